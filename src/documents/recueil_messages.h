#pragma once
#include <QStringList>

#include "core/dialogues.h"

/// Gathers what an operation says to the user, so that a document can hand it on. Nobody is there to
/// answer: a question gets "no", an input is given up.
class TRecueilMessages final : public IDialogues {
 public:
  void Message(const QString& texte) override { Messages += texte; }
  void Information(const QString& texte) override { Messages += texte; }
  bool Confirmer(const QString&) override { return false; }
  std::optional<QString> Saisir(const TSaisie&) override { return {}; }
  std::optional<QString> ChoisirFichier(const QString&, const QString&) override { return {}; }
  std::optional<QString> FichierAEnregistrer(const QString&, const QString&, const QString&) override {
    return {};
  }
  bool Reessayer(const TReessai&) override { return false; }
  void Progression(int, int, const QString&) override {}
  void TraiterEvenements() override {}
  void CurseurAttente(bool) override {}

  QStringList Messages;
};
