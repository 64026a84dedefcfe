#include <QRegularExpression>
#include <set>

#include "documents/modeles.h"
#include "ecole_documents.h"
#include "report/layout/mise_en_page.h"

namespace {

constexpr auto kBadge = u"Badge individuel d'identification (85mm x 54mm)";
constexpr auto kXerox = u"Badge individuel Xerox DocuCard (1 carte)";
constexpr auto kListe = u"Liste d'identification par classe";
constexpr auto kListeLarge = u"Liste d'identification par classe - grand format";

struct TIdentificationEssai : TDocumentsEssai {
  /// The one report of a document that takes no period.
  TRapport Faire(QStringView titre, const std::vector<int>& eleves) {
    TResultat resultat = Demander(titre, eleves);
    EXPECT_TRUE(!resultat.Echec && resultat.Messages.isEmpty());
    if (resultat.Rapports.size() != 1) throw std::runtime_error("one report is expected");
    return std::move(resultat.Rapports[0]);
  }
  static TDocumentPrepare Pages(const TRapport& rapport) {
    return MettreEnPage(rapport, *ModeleDocument(rapport.Modele()));
  }
  TEleveEssai Carte(const QString& nom, const QString& prenom, const QString& classe,
                    const QString& matricule) {
    return ecole.unEleve().nomme(nom, prenom).enClasse(classe, u"A"_s).matricule(matricule);
  }
};

QString Variables(const TRapport& rapport) {
  QStringList variables;
  for (const auto& [nom, valeur] : rapport.Variables()) variables += nom % u'=' % valeur;
  return variables.join(u" | ");
}

/// The texts of a page, each as "size text".
QStringList Textes(const TPagePreparee& page) {
  QStringList textes;
  for (const TElement& element : page.Elements)
    if (const auto* texte = std::get_if<TElementTexte>(&element))
      textes += QString::number(texte->Forme->Style.Taille) % u' ' % texte->Forme->Texte;
  return textes;
}

}  // namespace

TEST_F(TIdentificationEssai, Badges) {
  ecole.parametre(28, u"2"_s);
  const int lea = Carte(u"ADAM"_s, u"Léa"_s, u"P3"_s, u"5537-1"_s).Id;
  const int noe = Carte(u"BODART"_s, u"Noé"_s, u"M1"_s, u"5537-2"_s).avec(u"FLG_RADIE"_s).Id;
  const TRapport badges = Faire(kBadge, {lea, noe, lea});
  EXPECT_EQ(badges.Modele(), u"Badge"_s);
  EXPECT_EQ(Variables(badges), u"NomRapport=Badge d'identification | TypeCodeBar=2"_s);
  const QString carte = u"ADAM Léa: NomEleve=ADAM | PrenomEleve=Léa | Classe=P3 A | Matricule=5537-1"_s;
  EXPECT_EQ(Dessin(badges), QString(carte % u'\n' % carte));
  const TRapport seul = Faire(kXerox, {noe});
  EXPECT_EQ(seul.Modele(), u"Xerox"_s);
  EXPECT_EQ(Dessin(seul),
            u"BODART Noé: NomEleve=BODART | PrenomEleve=Noé | Classe=M1 A | Matricule=5537-2"_s);
  EXPECT_TRUE(Pages(Faire(kBadge, {noe, noe})).Pages.empty()) << "two who were struck off";
}

TEST_F(TIdentificationEssai, UneListeReprendLeTitreAChaqueClasse) {
  const int a = Carte(u"A"_s, u"a"_s, u"P1"_s, u"1"_s).Id;
  const int b = Carte(u"B"_s, u"b"_s, u"P2"_s, u"2"_s).Id;
  const int c = Carte(u"C"_s, u"c"_s, u"P1"_s, u"3"_s).Id;
  const int d = Carte(u"D"_s, u"d"_s, u"P1"_s, u"4"_s).Id;
  const int ailleurs =
      ecole.unEleve().nomme(u"E"_s, u"e"_s).enClasse(u"P1"_s, u"A"_s, u"1234"_s).matricule(u"5"_s).Id;
  const int radie = Carte(u"R"_s, u"r"_s, u"P2"_s, u"6"_s).avec(u"FLG_RADIE"_s).Id;
  const TRapport liste = Faire(kListe, {a, b, c, radie, d, ailleurs});
  EXPECT_EQ(liste.Modele(), u"ListeEleveCodeBarre"_s);
  EXPECT_EQ(Variables(liste), u"NomRapport=Liste des élèves | TypeCodeBar=1"_s);
  EXPECT_EQ(Dessin(liste),
            uR"(P1 A: Classe=P1 A
  A a: NomEleve=A | PrenomEleve=a | Matricule=1
P2 A: Classe=P2 A
  B b: NomEleve=B | PrenomEleve=b | Matricule=2
P1 A: Classe=P1 A
  C c: NomEleve=C | PrenomEleve=c | Matricule=3
  D d: NomEleve=D | PrenomEleve=d | Matricule=4
P1 A: Classe=P1 A
  E e: NomEleve=E | PrenomEleve=e | Matricule=5)"_s);
  const TRapport seul = Faire(kListeLarge, {radie});
  EXPECT_EQ(seul.Modele(), u"ListeEleveCodeBarreLarge"_s);
  EXPECT_EQ(seul.Plat().size(), 2U);
}

TEST_F(TIdentificationEssai, VingtQuatreCellulesParPageOuQuinze) {
  std::vector<int> eleves;
  for (int i = 1; i <= 25; ++i)
    eleves.push_back(Carte(u"E%1"_s.arg(i, 2, 10, '0'_L1), u"Zoé"_s, u"P1"_s, u"5537-%1"_s.arg(i)).Id);
  eleves.push_back(Carte(u"SEUL"_s, u"Noé"_s, u"P2"_s, u"5537-99"_s).Id);
  for (const auto& [titre, parPage, colonne] :
       {std::tuple(kListe, 24, 239.3F), std::tuple(kListeLarge, 15, 349.0F)}) {
    const TDocumentPrepare document = Pages(Faire(titre, eleves));
    EXPECT_TRUE(document.Defauts.empty()) << document.Defauts[0].Message.toStdString();
    ASSERT_EQ(document.Pages.size(), 3U);
    std::vector<int> codes;
    std::set<int> gauches;
    for (const TPagePreparee& page : document.Pages) {
      EXPECT_EQ(Textes(page).first(), &page == &document.Pages[2] ? u"18 P2 A"_s : u"18 P1 A"_s);
      EXPECT_FALSE(Textes(page).join(u'\n').contains(u"Année"_s)) << "a hidden memo";
      codes.push_back(0);
      for (const TElement& element : page.Elements)
        if (const auto* barres = std::get_if<TElementBarres>(&element)) {
          ++codes.back();
          gauches.insert(qRound(barres->Barres[0].left()));
        }
    }
    EXPECT_EQ(codes, (std::vector{parPage, 25 - parPage, 1}));
    EXPECT_EQ(gauches, (std::set{38, qRound(38 + colonne), qRound(38 + 2 * colonne)}));
  }
}

/// A name is never cut: it takes a smaller type, then more lines, and stays above its code.
TEST_F(TIdentificationEssai, UnNomLong) {
  const std::vector<int> eleves{
      Carte(u"ADAM"_s, u"Léa"_s, u"P1"_s, u"1"_s).Id,
      Carte(u"VANDENBOSSCHE-DE LA CROIX"_s, u"Marie-Antoinette"_s, u"P1"_s, u"2"_s).Id,
      Carte(u"VANDENBOSSCHE-DE LA CROIX DE MEULENAERE-VAN CAUWENBERGHE TER"_s, u"Marie-Antoinette"_s, u"P1"_s,
            u"3"_s)
          .Id};
  const int enorme =
      Carte(u"VAN DEN BROECK-DE LA TORRE Y SANTIAGO DE COMPOSTELA VON UND ZU HOHENLOHE"_s,
            u"Marie-Antoinette Joséphine Clémentine Bernadette Eulalie Philippine"_s, u"P1"_s, u"4"_s)
          .Id;
  for (const auto& [titre, tailles] :
       {std::pair(kBadge, u"18 13 11"_s), std::pair(kXerox, u"18 13 11"_s), std::pair(kListe, u"11 11 9"_s),
        std::pair(kListeLarge, u"13 13 11"_s)}) {
    SCOPED_TRACE(QString::fromUtf16(titre).toStdString());
    TDocumentPrepare document = Pages(Faire(titre, eleves));
    EXPECT_TRUE(document.Defauts.empty());
    QStringList textes, vues;
    for (const TPagePreparee& page : document.Pages) textes += Textes(page);
    for (const QString& nom : textes.filter(QRegularExpression(u"^\\d+ (ADAM|VANDEN)"_s)))
      vues += nom.section(u' ', 0, 0);
    EXPECT_EQ(vues.join(u' '), tailles);
    EXPECT_TRUE(textes.join(u' ').contains(u"TER"_s) && textes.join(u' ').count(u"Antoinette"_s) == 2);
    if (titre == kXerox) continue;

    document = Pages(Faire(titre, {enorme}));
    EXPECT_TRUE(document.Defauts.empty());
    float basDuNom = 0, hautDuCode = 0;
    for (const TElement& element : document.Pages.at(0).Elements) {
      if (const auto* texte = std::get_if<TElementTexte>(&element))
        if (texte->Forme->Texte.contains(u"Philippine"_s)) basDuNom = static_cast<float>(texte->Base);
      if (const auto* barres = std::get_if<TElementBarres>(&element))
        hautDuCode = static_cast<float>(barres->Barres[0].top());
    }
    EXPECT_GT(basDuNom, 0);
    EXPECT_LT(basDuNom + 2, hautDuCode);
  }
}
