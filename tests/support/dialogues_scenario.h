#pragma once
#include <QStringList>
#include <deque>

#include "core/dialogues.h"
#include "support/affichage.h"

/// Dialogs answered by a script. What the program asks or says must be what the test expects next,
/// in this order; anything else fails the test, and so does an expectation that never comes.
class TDialoguesScenario : public IDialogues {
 public:
  TDialoguesScenario() = default;
  ~TDialoguesScenario() override;

  /// The next message or information holds this text.
  TDialoguesScenario& Attend(const QString& extrait);
  /// The next question holds this text and is answered so.
  TDialoguesScenario& Repond(const QString& extrait, bool oui);
  /// The next input or file dialog holds this text in its title or prompt; none gives up. What is refused is
  /// among `Dits`, and the dialog stands there again.
  TDialoguesScenario& Saisit(const QString& extrait, std::optional<QString> reponse);
  /// The next failed connection is answered by "Réessayer" or "Annuler", after the link when asked.
  TDialoguesScenario& Reessaie(bool oui, bool parLeLien = false);

  void Message(const QString& texte) override;
  void Information(const QString& texte) override;
  bool Confirmer(const QString& question) override;
  std::optional<QString> Saisir(const TSaisie& saisie) override;
  std::optional<QString> ChoisirFichier(const QString& titre, const QString& filtre) override;
  std::optional<QString> FichierAEnregistrer(const QString& titre, const QString& nom,
                                             const QString& filtre) override;
  bool Reessayer(const TReessai& reessai) override;
  void Progression(int fait, int total, const QString& nom) override;
  void TraiterEvenements() override {}
  void CurseurAttente(bool actif) override;

  QStringList Dits;       ///< every message and information shown so far
  QStringList Invites;    ///< every prompt of an input so far
  QStringList Questions;  ///< every question asked so far
  int Progressions = 0;   ///< calls of Progression
  int Attentes = 0;       ///< wait cursors not yet ended

 private:
  enum class TSorte { Texte, Question, Saisie, Reessai };
  struct TAttendu {
    TSorte sorte;
    QString extrait;
    bool oui = false;
    std::optional<QString> reponse;
  };
  TAttendu Suivant(TSorte sorte, const QString& texte);

  std::deque<TAttendu> attendus_;
};
