#pragma once
#include "core/dialogues.h"

/// Dialogs of the batch program: messages go to the error stream, a question is answered "no" unless
/// the user said otherwise beforehand, and nothing is ever waited for.
class TDialoguesTerminal : public IDialogues {
 public:
  void Message(const QString& texte) override;
  void Information(const QString& texte) override { Message(texte); }
  bool Confirmer(const QString& question) override;
  std::optional<QString> Saisir(const TSaisie& saisie) override;
  std::optional<QString> ChoisirFichier(const QString& titre, const QString& filtre) override;
  std::optional<QString> FichierAEnregistrer(const QString& titre, const QString& nom,
                                             const QString& filtre) override;
  bool Reessayer(const TReessai& reessai) override;
  void Progression(int fait, int total, const QString& nom) override;
  void TraiterEvenements() override {}
  void CurseurAttente(bool) override {}

  bool Oui = false;  ///< what a question is answered

 private:
  int dixieme_ = -1;
};
