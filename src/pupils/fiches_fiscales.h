#pragma once
#include "core/distributor.h"

/// That a tax sheet was made, and its number, which is its key.
struct TFicheNumerotee : TBaseObject {
  int EleveId = 0;
  int Responsable = 0;  ///< 1 or 2: whose payments it states
};

/// The numbers of the tax sheets of a year of income. One that was given stays for good.
class TFichesNumerotees : public TCollection<TFicheNumerotee> {
 public:
  TFichesNumerotees(TDataModule1& base, int anneeRevenus);

  /// The number of that sheet, given and stored at once the first time. Raises Exception.
  int Numero(int eleveId, int responsable);

 protected:
  void DefineQuery() override;

 private:
  const TFicheNumerotee* Trouver(int eleveId, int responsable) const;
  void Donner(int eleveId, int responsable);

  const int annee_;
};
