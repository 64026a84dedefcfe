#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QSet>

#include "core/conversions.h"
#include "core/texte_separe.h"
#include "demo/calendrier.h"
#include "demo/fichiers.h"
#include "demo/noms.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Empreinte(const TEcoleExemple& ecole) {
  QCryptographicHash somme(QCryptographicHash::Md5);
  somme.addData(TexteRegistre(ecole, TDisposition::Premiere));
  somme.addData(TexteRegistre(ecole, TDisposition::Seconde));
  for (const TFichierPresences& fichier : FichiersPresences(ecole))
    somme.addData(QByteArray(fichier.Nom.toUtf8() + fichier.Texte));
  return somme.result();
}

}  // namespace

TEST(EcoleExemple, LaGraineDecideDeTout) {
  EXPECT_EQ(Empreinte(CreerEcoleExemple(5, true)), Empreinte(CreerEcoleExemple(5, true)));
  EXPECT_NE(Empreinte(CreerEcoleExemple(5, true)), Empreinte(CreerEcoleExemple(6, true)));
}

TEST(EcoleExemple, ChaqueLigneDuRegistreSeLit) {
  const TEcoleExemple ecole = CreerEcoleExemple(2016);
  ASSERT_EQ(ecole.Eleves.size(), 500U);
  const struct {
    TDisposition Disposition;
    int Matricule, Naissance, CodePostal, Site, Dernier;
  } cas[] = {{TDisposition::Premiere, 2, 6, 14, 1, 44}, {TDisposition::Seconde, 3, 6, 16, 2, 36}};
  for (const auto& c : cas) {
    const auto texte = TTexteSepare::Depuis(TexteRegistre(ecole, c.Disposition), u"registre"_s);
    QSet<QString> matricules;
    for (int ligne = 1; ligne < texte.NombreLignes(); ++ligne) {
      SCOPED_TRACE(ligne);
      EXPECT_EQ(texte.Lignes[static_cast<std::size_t>(ligne)].size(), texte.Lignes.front().size());
      EXPECT_GT(texte.Lignes.front().size(), c.Dernier);
      EXPECT_TRUE(QDate::fromString(texte.Cellule(ligne, c.Naissance), u"yyyyMMdd"_s).isValid());
      EXPECT_GE(StrToInt(texte.Cellule(ligne, c.CodePostal)), 5000);
      matricules.insert(texte.Cellule(ligne, c.Matricule));
    }
    EXPECT_EQ(matricules.size(), texte.NombreLignes() - 1);
  }
}

TEST(EcoleExemple, LesPassagesTombentDesJoursDEcole) {
  int lignes = 0, ailleurs = 0;
  for (const TFichierPresences& fichier : FichiersPresences(CreerEcoleExemple(2016))) {
    const auto texte = TTexteSepare::Depuis(fichier.Texte, fichier.Nom);
    ASSERT_EQ(texte.NombreLignes(), fichier.Lignes);
    lignes += fichier.Lignes;
    QString avant;
    for (int ligne = 0; ligne < fichier.Lignes; ++ligne) {
      const QString instant = texte.Cellule(ligne, 2) + texte.Cellule(ligne, 3);
      ASSERT_EQ(instant.size(), 17) << fichier.Nom.toStdString() << " " << ligne;
      ASSERT_LT(avant, instant);
      avant = instant;
      ailleurs += EstJourEcole(QDate::fromString(instant.left(8), u"yyyyMMdd"_s)) ? 0 : 1;
    }
  }
  EXPECT_GT(lignes, 100000);
  EXPECT_LT(lignes, 130000);
  EXPECT_GT(ailleurs, 0);  // the scanner left on at a feast
  EXPECT_LT(ailleurs, 30);
}

TEST(EcoleExemple, IbanBelge) {
  EXPECT_EQ(IbanBelge(539, 75470), u"BE68 5390 0754 7034");
  EXPECT_EQ(IbanBelge(96, 1234567), u"BE71 0961 2345 6769");
  EXPECT_EQ(IbanBelge(0, 97).mid(15), u"9797");  // a remainder of 0 is written 97
}
