#include <QCryptographicHash>

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

TEST(EcoleExemple, IbanBelge) {
  EXPECT_EQ(IbanBelge(539, 75470), u"BE68 5390 0754 7034");
  EXPECT_EQ(IbanBelge(96, 1234567), u"BE71 0961 2345 6769");
  EXPECT_EQ(IbanBelge(0, 97).mid(15), u"9797");  // a remainder of 0 is written 97
}
