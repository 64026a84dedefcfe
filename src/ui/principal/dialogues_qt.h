#pragma once
#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include "core/dialogues.h"
#include "forms/signal.h"

/// Answers with windows, above the one in front.
class DialoguesQt : public IDialogues {
 public:
  void Message(const QString& texte) override;
  void Information(const QString& texte) override;
  /// "Oui" is the default.
  bool Confirmer(const QString& question) override;
  /// "Non" is the default.
  bool ConfirmerGrave(const QString& question) override;
  std::optional<QString> Saisir(const TSaisie& saisie) override;
  std::optional<QString> ChoisirFichier(const QString& titre, const QString& filtre) override;
  std::optional<QString> FichierAEnregistrer(const QString& titre, const QString& nom,
                                             const QString& filtre) override;
  bool Reessayer(const TReessai& reessai) override;
  void Progression(int fait, int total, const QString& nom) override;
  void TraiterEvenements() override;
  void CurseurAttente(bool actif) override;

  /// The main window shows the progress.
  TSignal<int, int, const QString&> SurProgression;

 private:
  bool Demander(const QString& question, bool sansRetour);

  QString dossier_;  // of the file chosen last
  QElapsedTimer attente_;
};

/// The window above which a dialog opens; null for none.
QWidget* FenetreDevant();

/// While a dialog is open there is no wait cursor; afterwards the window below it is in front again.
class TDevant {
 public:
  TDevant();
  ~TDevant();
  TDevant(const TDevant&) = delete;
  TDevant& operator=(const TDevant&) = delete;

  /// The window below.
  QWidget* Fenetre() const { return fenetre_; }

 private:
  QPointer<QWidget> fenetre_;
  bool attente_;
};
