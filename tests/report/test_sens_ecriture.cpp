#include <gtest/gtest.h>

#include <QStringList>

#include "report/layout/sens_ecriture.h"

using namespace Qt::StringLiterals;

// Parts of a line as they stand from left to right; < begins one that runs from right to left.
TEST(SensEcriture, UneLigneDeDeuxSens) {
  struct TCas {
    QString Ligne;
    QStringList Suites;
  };
  for (const TCas& cas :
       {TCas{u"Éléonore 12"_s, {u"Éléonore 12"_s}}, TCas{u"الحسن محمد"_s, {u"<الحسن محمد"_s}},
        TCas{u"EL HASSAN محمد"_s, {u"EL HASSAN "_s, u"<محمد"_s}},
        TCas{u"الحسن Zoé"_s, {u"<الحسن"_s, u" Zoé"_s}},
        TCas{u"a (محمد 12,50 الحسن) b"_s, {u"a ("_s, u"< الحسن"_s, u"12,50"_s, u"<محمد "_s, u") b"_s}},
        TCas{u"محمد 12 a 13"_s, {u"12"_s, u"<محمد "_s, u" a 13"_s}},
        TCas{u"a 𐤀𐤁 b"_s, {u"a "_s, u"<𐤀𐤁"_s, u" b"_s}}, TCas{u""_s, {}}}) {
    QStringList suites;
    for (const TSuiteDeLettres& suite : SuitesDeGaucheADroite(cas.Ligne))
      suites += (suite.ADroite ? u"<"_s : u""_s) + cas.Ligne.mid(suite.Debut, suite.Fin - suite.Debut);
    EXPECT_EQ(suites.join(u'|').toStdString(), cas.Suites.join(u'|').toStdString());
    EXPECT_EQ(EcritDeDroiteAGauche(cas.Ligne), suites.join(u'|').contains(u'<'));
  }
}
