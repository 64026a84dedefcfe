#include <QDir>
#include <QTemporaryDir>

#include "core/fichiers.h"
#include "report/layout/mise_en_page.h"

using namespace Qt::StringLiterals;

namespace {

class Modele : public testing::Test {
 protected:
  void Ecrire(const QString& nom, const QByteArray& octets) const {
    EcrireFichier(dossier_.filePath(nom), octets);
  }
  /// What the reader says, without the folder; "" when it has nothing to say.
  QString Refus(const QByteArray& xml) const {
    try {
      LireModele(xml, u"essai.xml"_s, dossier_.path());
      return {};
    } catch (const Exception& e) {
      return QString(e.Message).remove(dossier_.path() + u'/');
    }
  }

  QTemporaryDir dossier_;
};

/// A master band, and what else stands on the page from line 3 on.
QByteArray Page(const QByteArray& suite) {
  return "<modele nom='M'><page nom='P'>\n<bande sorte='maitre' nom='MasterData1'/>\n" + suite +
         "</page></modele>";
}

QByteArray Script(const QByteArray& script) {
  return Page(
      "<bande sorte='pied' nom='F' jeu='MasterData1'><texte nom='mem'/><trait nom='tra'/></bande>"
      "<script>" +
      script + "</script>");
}

}  // namespace

TEST_F(Modele, RefuseAvecFichierLigneEtRaison) {
  Ecrire(u"partie.xml"_s, "<partie>\n<bande sorte='pied' nom='F' jeu='DetailData1'/>\n</partie>");
  Ecrire(u"abimee.png"_s, "pas une image");
  const QByteArray debut = "<modele nom='M'>\n<page nom='P'>\n";
  const std::pair<QByteArray, QString> cas[] = {
      // the line of essai.xml and what is said of it
      {Page(""), {}},
      // A foot without rows, and a head of rows that are not there, would never be printed.
      {Page("<bande sorte='entete' nom='H'/><bande sorte='pied' nom='F' jeu='masterdata1'/>"), {}},
      {Page("<bande sorte='pied' nom='F'/>"), u"3 : le pied « F » n'a pas de « jeu »."_s},
      {Page("\n<bande sorte='entete' nom='H' jeu='MasterDat1'/>"),
       u"4 : la page n'a pas de bande maitre, detail ou sousDetail « MasterDat1 » (jeu de « H »)."_s},
      {Page("<bande sorte='pied' nom='F' jeu='F'/>"),
       u"3 : la page n'a pas de bande maitre, detail ou sousDetail « F » (jeu de « F »)."_s},
      {Page("<inclure modele='partie'/>"),
       u"partie.xml, ligne 2 : la page n'a pas de bande maitre, detail ou sousDetail « DetailData1 » (jeu de « F »)."_s},
      {Page("<bande sorte='detail' nom='D' jeu='MasterData1'/>"), u"3 : « jeu » est pour : entete, pied."_s},
      {Page("<bande sorte='pied' nom='F' jeu='MasterData1' dernierePage='oui'/>"),
       u"3 : « dernierePage » est pour : piedPage."_s},
      {Page("<bande sorte='piedPage' nom='F' hauteur='18' etirable='oui'/>"),
       u"3 : « etirable » est pour : toute sorte de bande sauf piedPage."_s},
      {Page("<bande sorte='detail' nom='masterData1'/>"),
       u"3 : deux objets portent le nom « masterData1 »."_s},
      {Page("<bande sorte='detail' nom='D' avantImpression='Rien'/>"),
       u"3 : la procédure « Rien » n'existe pas dans le script."_s},
      {Page("<bande sorte='resume' nom='R'><sousRapport>P</sousRapport></bande>"),
       u"3 : aucune page n'est le sous-rapport « P »."_s},
      {Page("<bande sorte='piedPage' nom='F'><sousRapport>P</sousRapport></bande>"),
       u"3 : la bande « F » ne peut pas avoir de sous-rapport."_s},
      {Page("<bande sorte='resume' nom='R'><image\nfichier='absente.png'/></bande>"),
       u"4 : l'image « absente.png » manque."_s},
      {Page("<bande sorte='resume' nom='R'><image fichier='abimee.png'/></bande>"),
       u"3 : l'image ne peut pas être lue."_s},
      {Page("<bande sorte='resume' nom='R'><image fichier='../x.png'/></bande>"),
       u"3 : « ../x.png » n'est pas un nom d'image."_s},
      {Page("<bande sorte='resume' nom='R'><texte tailel='9'/></bande>"),
       u"3 : l'attribut « tailel » n'existe pas ici."_s},
      {Page("perdu"), u"3 : le texte « perdu » n'a pas sa place ici."_s},
      {"<!DOCTYPE x []>\n<modele/>", u"1 : une déclaration de type n'a pas sa place dans un modèle."_s},
      {"<modele/>", u"essai.xml : le modèle n'a pas de page."_s},
      // What a script names is there, and has the property.
      {Script("procedure A;begin mem.Text := 'x'; F.Visible := false; end;"), {}},
      {Script("\nprocedure A;begin mme.Top := 1; end;"), u"4 : le script nomme « mme », qui n'existe pas."_s},
      {Script("procedure A;begin tra.Text := 'x'; end;"),
       u"3 : « tra » n'a pas la propriété que pose le script."_s},
      {Script("procedure A;begin mem.Left := 1; end;"), u"3 : « Left » n'est pas une propriété."_s},
      // What is no template at all, told by its beginning.
      {debut + "<bande sorte='maitre' nom='B'>\n</page></modele>",
       u"4 : le texte n'est pas du XML correct ("_s},
      {debut, u"3 : le texte n'est pas du XML correct ("_s},
      {"", u"1 : le texte n'est pas du XML correct ("_s},
      {QByteArray("\x00\xff\xfe<", 4), u"1 : le texte n'est pas du XML correct ("_s},
      {"<rapport/>", u"1 : « modele » est attendu, et non « rapport »."_s},
      {debut + "<bandes/></page></modele>", u"3 : « bandes » n'a pas sa place dans une page."_s},
      {debut + "<bande sorte='maitre' nom='B'>\n\n<dessin/></bande></page></modele>",
       u"5 : « dessin » n'a pas sa place dans une bande."_s},
      {debut + "<bande sorte='maitresse' nom='B'/></page></modele>",
       u"3 : l'attribut « sorte » est l'un de : entetePage, "_s},
      {"<modele nom='M'><script>\n\nprocedure P;\nbegin\n  while true do Sender.Visible := "
       "false;\nend;</script></modele>",
       u"5 : « while » n'existe pas dans les scripts des modèles."_s},
      {debut + "<inclure modele='absente'/></page></modele>", u"3 : Le modèle « absente » n'existe pas"_s},
      {debut + "<inclure modele='../essai'/></page></modele>",
       u"3 : « ../essai » n'est pas un nom de modèle"_s},
  };
  for (const auto& [xml, dit] : cas) {
    const QString attendu = !dit.isEmpty() && dit[0].isDigit() ? u"essai.xml, ligne "_s + dit : dit;
    EXPECT_EQ(Refus(xml).left(attendu.isEmpty() ? -1 : attendu.size()).toStdString(), attendu.toStdString())
        << xml.toStdString();
  }
}

TEST_F(Modele, UneImageEstAuDossierOuDansLeProgramme) {
  const auto largeur = [&](const QString& nom, const QString& dossier) {
    const QByteArray bande = "<bande sorte='resume' nom='R'><image fichier='" + nom.toUtf8() + "'/></bande>";
    return LireModele(Page(bande), u"essai.xml"_s, dossier).Pages[0].Bandes[1].Objets[0].Image->width();
  };
  EXPECT_EQ(largeur(u"damier.png"_s, {}), 4);
  EXPECT_EQ(largeur(u"damier.png"_s, dossier_.path()), 4);
  EXPECT_TRUE(QImage(7, 3, QImage::Format_RGB32).save(dossier_.filePath(u"damier.png"_s)));
  EXPECT_EQ(largeur(u"damier.png"_s, dossier_.path()), 7);
}

TEST_F(Modele, PartiesQuiSIncluentSansFin) {
  Ecrire(u"a.xml"_s, "<partie>\n\n<inclure modele='b'/></partie>");
  Ecrire(u"b.xml"_s, "<partie><inclure modele='a'/></partie>");
  EXPECT_EQ(Refus(Page("<inclure modele='a'/>")),
            u"b.xml, ligne 1 : trop de modèles s'incluent l'un l'autre."_s);
  // No circle, but each part twenty times in the one before: 20^6.
  for (int i = 0; i < 6; ++i) {
    const QByteArray suivante = "<inclure modele='p" + QByteArray::number(i + 1) + "'/>\n";
    Ecrire(u"p%1.xml"_s.arg(i), "<partie>" + suivante.repeated(20) + "</partie>");
  }
  Ecrire(u"p6.xml"_s, "<partie/>");
  EXPECT_TRUE(Refus(Page("<inclure modele='p0'/>")).endsWith(u"trop de modèles s'incluent l'un l'autre."_s));
  Ecrire(u"grand.xml"_s, "<modele nom='M'>" + QByteArray(9 << 20, ' ') + "</modele>");
  EXPECT_THROW(ChargerModele(u"grand"_s, dossier_.path()), Exception);
}

/// A text that doubles at each row would soon take all memory: the band has a fault, the page is there.
TEST_F(Modele, UnTexteQuiGrandirait) {
  const TModele modele = LireModele(
      "<modele nom='M'><script>var MyT: String;\nprocedure P; begin\nMyT := 'aa' + MyT + MyT; "
      "end;</script><page nom='P'><bande sorte='maitre' nom='B' hauteur='20' "
      "avantImpression='P'/></page></modele>",
      u"essai.xml"_s);
  TRapport rapport(u"Essai"_s, u"essai"_s);
  rapport.CopierArbre(TArbreRapport(60, TNoeudRapport(u"ligne"_s)));
  const TDocumentPrepare document = MettreEnPage(rapport, modele);
  EXPECT_EQ(document.Pages.size(), 2U);
  ASSERT_EQ(document.Defauts.size(), 1U);
  EXPECT_EQ(document.Defauts[0].Bande, u"B"_s);
  EXPECT_EQ(document.Defauts[0].Message, u"script, ligne 3 : le texte devient trop long."_s);
}
