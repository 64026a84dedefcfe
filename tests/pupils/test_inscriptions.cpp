#include <gtest/gtest.h>

#include "core/data_set.h"
#include "pupils/eleves_classes.h"
#include "pupils/implantations.h"
#include "support/ecole_essai.h"

namespace {

const QString kInscriptions = QStringLiteral(
    "SELECT ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE, CODE_IMPLANTATION FROM ELEVES_CLASSES "
    "ORDER BY ELEVE_CLASSE_ID");

}  // namespace

TEST(ElevesClasses, UneInscriptionParEleveEtParAnnee) {
  TBaseEssai base;
  TElevesClasses toutes(*base, 0);
  toutes.Inscrire(5, QStringLiteral("P1"), 2016, QStringLiteral("A1"), QStringLiteral("A"));
  toutes.Inscrire(5, QStringLiteral("P2"), 2016, QStringLiteral("B"), QStringLiteral("C"));
  toutes.Inscrire(5, QStringLiteral("P3"), 2017, {}, {});
  toutes.Inscrire(6, QStringLiteral("M1"), 2016, {}, {});
  EXPECT_EQ(base.Rangees(kInscriptions), (QStringList{QStringLiteral("5;2016;P2;C;B"), QStringLiteral("5;2017;P3;;"),
                                                      QStringLiteral("6;2016;M1;;")}));
  // The first row in the order of the database, not the latest year.
  EXPECT_EQ(toutes.ClasseDe(5), u"P2");
  EXPECT_EQ(toutes.SousClasseDe(5), u"C");
  EXPECT_EQ(toutes.ImplantationDe(5), u"B");
  EXPECT_EQ(toutes.ClasseDe(99), QString());

  TElevesClasses annee(*base, 2017);
  EXPECT_EQ(annee.Count(), 1);
  EXPECT_EQ(annee.ClasseDe(5), u"P3");
}
