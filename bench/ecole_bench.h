#pragma once
#include <QTemporaryDir>
#include <memory>

#include "application/donnees_annee.h"
#include "core/data_module.h"
#include "core/parametres.h"
#include "services/tarifs_garderies.h"

/// Nobody to talk to: a message is a failure of the benchmark.
class TSilence : public IDialogues {
  void Message(const QString& texte) override;
  void Information(const QString&) override {}
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
};

/// A school in a file of its own: settings, tariffs of every family, fees of October, and that many
/// pupils and presences in the school year 2016, the same at each run.
class TEcole {
 public:
  static constexpr int kAnnee = 2016;

  TEcole(const QTemporaryDir& dossier, int eleves, int presences);
  std::unique_ptr<TDonneesAnnee> Charger();

  TDataModule1& Base() { return base_; }
  const TParametres& Parametres() const { return *parametres_; }
  /// In memory only.
  void Regler(TParam param, const QString& valeur) { parametres_->SetParametre(param, valeur); }
  const TTarifsGarderies& Tarifs() const { return *tarifs_; }

 private:
  TSilence dialogues_;
  TReglagesPoste reglages_;
  TDataModule1 base_;
  std::unique_ptr<TParametres> parametres_;
  std::unique_ptr<TTarifsGarderies> tarifs_;
};
