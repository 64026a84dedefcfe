#pragma once
#include <QSet>

#include "core/dialogues.h"

/// The sample is made without anybody at the keyboard: what is said goes to the terminal, each text once
/// however many files say it, and questions are answered "no".
class TDialoguesDemo : public IDialogues {
 public:
  void Message(const QString& texte) override;
  void Information(const QString& texte) override { Message(texte); }
  bool Confirmer(const QString& question) override;
  std::optional<QString> Saisir(const TSaisie&) override { return {}; }
  std::optional<QString> ChoisirFichier(const QString&, const QString&) override { return {}; }
  std::optional<QString> FichierAEnregistrer(const QString&, const QString&, const QString&) override {
    return {};
  }
  bool Reessayer(const TReessai& reessai) override;
  void Progression(int fait, int total, const QString& nom) override;
  void TraiterEvenements() override {}
  void CurseurAttente(bool) override {}

 private:
  QSet<QString> dits_;
  int dixieme_ = -1;
};
