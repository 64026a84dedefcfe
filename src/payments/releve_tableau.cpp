#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/texte_separe.h"
#include "payments/releve.h"

using namespace Qt::StringLiterals;

namespace {

/// Where a layout holds what, counted from 0.
struct TColonnes {
  int PremiereLigne, Date, Compte, Donneur, Montant, Communication;
};

constexpr TColonnes kDispositionA{13, 1, 4, 5, 10, 14};
constexpr TColonnes kDispositionB{14, 3, 4, 5, 10, 8};

TMouvement LireLigne(const QStringList& cellules, const TColonnes& c) {
  const TDateTime date = StrToDate(cellules.value(c.Date));
  // The day before the first one that a database tells from an empty one.
  if (date == 0.0) throw EConvertError(u"« %1 » n'est pas une date."_s.arg(cellules.value(c.Date)));
  return {cellules.value(c.Donneur), date, StrToCurr(cellules.value(c.Montant)),
          cellules.value(c.Communication), cellules.value(c.Compte)};
}

}  // namespace

TReleveLu LireTableau(const QByteArray& octets, TDispositionReleve disposition) {
  const TColonnes& c = disposition == TDispositionReleve::B ? kDispositionB : kDispositionA;
  const TTexteSepare tableau = TTexteSepare::Depuis(octets);
  TReleveLu releve;
  for (int i = c.PremiereLigne; i < tableau.NombreLignes(); ++i) {
    const QStringList& cellules = tableau.Lignes[static_cast<std::size_t>(i)];
    try {
      releve.Mouvements.push_back(LireLigne(cellules, c));
    } catch (const EConvertError& e) {
      releve.Faute = {FauteDeLigne(i, e.Message), cellules.value(c.Donneur),       cellules.value(c.Date),
                      cellules.value(c.Montant),  cellules.value(c.Communication), cellules.value(c.Compte)};
      break;
    }
  }
  return releve;
}
