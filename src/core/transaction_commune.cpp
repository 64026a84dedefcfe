#include "core/transaction_commune.h"

#include "core/data_module.h"
#include "core/firebird_interne.h"

TTransactionCommune::TTransactionCommune(TDataModule1& base) : base_(base) {
  base_.Attache().OuvrirCommune();
}

TTransactionCommune::~TTransactionCommune() {
  if (base_.EstConnecte()) base_.Attache().AnnulerCommune();
}

void TTransactionCommune::Valider() { base_.Attache().ValiderCommune(); }
