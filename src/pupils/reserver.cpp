#include "pupils/reserver.h"

#include "core/query_internal.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

// Waiting at the reading, and not at an update, is what lets the next one in without a failure.
void ReserverRangee(TDataModule1& base, const QString& table, const QString& cle, int id) {
  TQueryInternal(base, u"EXECUTE BLOCK AS DECLARE LA INTEGER; BEGIN SELECT 1 FROM %1 WHERE %2 = %3 "
                       "WITH LOCK INTO LA; END"_s.arg(table, cle)
                           .arg(id))
      .Executer();
}

}  // namespace

void Reserver(const TEleve& eleve) {
  ReserverRangee(eleve.Eleves->BaseDeDonnees(), u"ELEVES"_s, u"ELEVE_ID"_s, eleve.Id);
}

void ReserverExtrait(TDataModule1& base, int extraitId) {
  ReserverRangee(base, u"EXTRAITS"_s, u"EXTRAIT_ID"_s, extraitId);
}
