#include "report/layout/sens_ecriture.h"

using namespace Qt::StringLiterals;

// Parts of a line as they stand from left to right; < begins one that runs from right to left.
TEST(SensEcriture, UneLigneDeDeuxSens) {
  for (const auto& [ligne, attendues] : {std::pair(u"Éléonore 12"_s, u"Éléonore 12"_s),
                                         {u"الحسن محمد"_s, u"<الحسن محمد"_s},
                                         {u"EL HASSAN محمد"_s, u"EL HASSAN |<محمد"_s},
                                         {u"الحسن Zoé"_s, u"<الحسن| Zoé"_s},
                                         {u"a (محمد 12,50 الحسن) b"_s, u"a (|< الحسن|12,50|<محمد |) b"_s},
                                         {u"محمد 12 a 13"_s, u"12|<محمد | a 13"_s},
                                         {u"a 𐤀𐤁 b"_s, u"a |<𐤀𐤁| b"_s},
                                         {u""_s, u""_s}}) {
    QStringList suites;
    for (const TSuiteDeLettres& suite : SuitesDeGaucheADroite(ligne))
      suites += (suite.ADroite ? u"<"_s : u""_s) + ligne.mid(suite.Debut, suite.Fin - suite.Debut);
    EXPECT_EQ(suites.join(u'|').toStdString(), attendues.toStdString());
    EXPECT_EQ(EcritDeDroiteAGauche(ligne), attendues.contains(u'<'));
  }
}
