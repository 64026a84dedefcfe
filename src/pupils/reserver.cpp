#include "pupils/reserver.h"

#include "core/query_internal.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

// Waiting at the reading, and not at an update, is what lets the next one in without a failure.
void Reserver(const TEleve& eleve) {
  TQueryInternal(eleve.Eleves->BaseDeDonnees(),
                 u"EXECUTE BLOCK AS DECLARE LA INTEGER; BEGIN SELECT 1 FROM ELEVES WHERE ELEVE_ID = " %
                     QString::number(eleve.Id) % u" WITH LOCK INTO LA; END")
      .Executer();
}
