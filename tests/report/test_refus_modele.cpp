#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/exceptions.h"
#include "report/layout/mise_en_page.h"

using namespace Qt::StringLiterals;

namespace {

/// A folder of templates as a school adapts them.
class RefusModele : public testing::Test {
 protected:
  void Ecrire(const QString& nom, const QByteArray& octets) const {
    QFile fichier(dossier_.filePath(nom + u".xml"));
    EXPECT_TRUE(fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size());
  }
  /// What is said against the template of that name, without the folder.
  QString Refus(const QString& nom) const {
    try {
      ChargerModele(nom, dossier_.path());
      return {};
    } catch (const Exception& e) {
      return QString(e.Message).remove(dossier_.path() + u'/');
    }
  }

  QTemporaryDir dossier_;
};

}  // namespace

TEST_F(RefusModele, FichierAbime) {
  struct TCas {
    QByteArray Xml;
    QString Refus;  // how it begins
  };
  const QByteArray debut = "<modele nom=\"M\">\n<page nom=\"P\">\n";
  for (const TCas& cas : {
           TCas{debut + "<bande sorte=\"maitre\" nom=\"B\">\n</page></modele>",
                u"essai.xml, ligne 4 : le texte n'est pas du XML correct ("_s},
           TCas{debut, u"essai.xml, ligne 3 : le texte n'est pas du XML correct ("_s},
           TCas{"", u"essai.xml, ligne 1 : le texte n'est pas du XML correct ("_s},
           TCas{QByteArray("\x00\xff\xfe<", 4),
                u"essai.xml, ligne 1 : le texte n'est pas du XML correct ("_s},
           TCas{"<rapport/>", u"essai.xml, ligne 1 : « modele » est attendu, et non « rapport »."_s},
           TCas{debut + "<bandes/></page></modele>",
                u"essai.xml, ligne 3 : « bandes » n'a pas sa place dans une page."_s},
           TCas{debut + "<bande sorte=\"maitre\" nom=\"B\">\n\n<dessin/></bande></page></modele>",
                u"essai.xml, ligne 5 : « dessin » n'a pas sa place dans une bande."_s},
           TCas{debut + "<bande sorte=\"maitresse\" nom=\"B\"/></page></modele>",
                u"essai.xml, ligne 3 : l'attribut « sorte » est l'un de : entetePage, "_s},
           TCas{"<modele nom=\"M\"><script>\n\nprocedure P;\nbegin\n  while true do Sender.Visible := "
                "false;\nend;</script></modele>",
                u"essai.xml, ligne 5 : « while » n'existe pas dans les scripts des modèles."_s},
           TCas{debut + "<inclure modele=\"absente\"/></page></modele>",
                u"essai.xml, ligne 3 : Le modèle « absente » n'existe pas"_s},
           TCas{debut + "<inclure modele=\"../essai\"/></page></modele>",
                u"essai.xml, ligne 3 : « ../essai » n'est pas un nom de modèle"_s},
       }) {
    Ecrire(u"essai"_s, cas.Xml);
    const QString refus = Refus(u"essai"_s);
    EXPECT_EQ(refus.left(cas.Refus.size()).toStdString(), cas.Refus.toStdString()) << cas.Xml.toStdString();
  }
}

TEST_F(RefusModele, PartiesQuiSIncluentSansFin) {
  Ecrire(u"essai"_s, "<modele nom=\"M\"><page nom=\"P\">\n<inclure modele=\"a\"/></page></modele>");
  Ecrire(u"a"_s, "<partie>\n\n<inclure modele=\"b\"/></partie>");
  Ecrire(u"b"_s, "<partie><inclure modele=\"a\"/></partie>");
  EXPECT_EQ(Refus(u"essai"_s), u"b.xml, ligne 1 : trop de modèles s'incluent l'un l'autre."_s);

  // No circle, but each part twenty times in the one before: 20^6.
  QByteArray contenu;
  for (int i = 0; i < 20; ++i) contenu += "<inclure modele=\"p#\"/>\n";
  for (int i = 0; i < 6; ++i)
    Ecrire(u'p' + QString::number(i),
           "<partie>" + QByteArray(contenu).replace("#", QByteArray::number(i + 1)) + "</partie>");
  Ecrire(u"p6"_s, "<partie/>");
  Ecrire(u"essai"_s, "<modele nom=\"M\"><page nom=\"P\">\n<inclure modele=\"p0\"/></page></modele>");
  EXPECT_TRUE(Refus(u"essai"_s).endsWith(u"trop de modèles s'incluent l'un l'autre."_s));
}

TEST_F(RefusModele, FichierDeNeufMegaoctets) {
  Ecrire(u"essai"_s, "<modele nom=\"M\">" + QByteArray(9 << 20, ' ') + "</modele>");
  EXPECT_EQ(Refus(u"essai"_s), u"Le modèle « essai.xml » est trop grand."_s);
}

/// A text that doubles at each row would soon take all memory: the band has a fault, the page is there.
TEST_F(RefusModele, UnTexteQuiGrandirait) {
  Ecrire(u"essai"_s,
         "<modele nom=\"M\"><script>var MyT: String;\nprocedure P; begin\nMyT := 'aa' + MyT + MyT; "
         "end;</script><page nom=\"P\"><bande sorte=\"maitre\" nom=\"B\" hauteur=\"20\" "
         "avantImpression=\"P\"/></page></modele>");
  TRapport rapport(u"Essai"_s, u"essai"_s);
  rapport.CopierArbre(TArbreRapport(60, TNoeudRapport(u"ligne"_s)));
  const TDocumentPrepare document = MettreEnPage(rapport, *ChargerModele(u"essai"_s, dossier_.path()));
  EXPECT_EQ(document.Pages.size(), 2U);
  ASSERT_EQ(document.Defauts.size(), 1U);
  EXPECT_EQ(document.Defauts[0].Bande, u"B"_s);
  EXPECT_EQ(document.Defauts[0].Message, u"script, ligne 3 : le texte devient trop long."_s);
}
