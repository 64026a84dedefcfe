#include <QRegularExpression>
#include <set>

#include "ecole_documents.h"

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
  TEleveEssai Carte(const QString& nom, const QString& prenom, const QString& classe,
                    const QString& matricule) {
    return ecole.unEleve().nomme(nom, prenom).enClasse(classe, "A").matricule(matricule);
  }
};

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
  ecole.parametre(28, "2");
  const int lea = Carte("ADAM", "Léa", "P3", "5537-1").Id;
  const int noe = Carte("BODART", "Noé", "M1", "5537-2").avec("FLG_RADIE").Id;
  const TRapport badges = Faire(kBadge, {lea, noe, lea});
  EXPECT_EQ(badges.Modele(), "Badge");
  EXPECT_EQ(Variables(badges), "NomRapport=Badge d'identification|TypeCodeBar=2");
  const QString carte = "ADAM Léa: NomEleve=ADAM | PrenomEleve=Léa | Classe=P3 A | Matricule=5537-1";
  EXPECT_EQ(Dessin(badges), QString(carte % u'\n' % carte));
  const TRapport seul = Faire(kXerox, {noe});
  EXPECT_EQ(seul.Modele(), "Xerox");
  EXPECT_EQ(Dessin(seul), "BODART Noé: NomEleve=BODART | PrenomEleve=Noé | Classe=M1 A | Matricule=5537-2");
  EXPECT_TRUE(Pages(Faire(kBadge, {noe, noe})).Pages.empty()) << "two who were struck off";
}

TEST_F(TIdentificationEssai, UneListeReprendLeTitreAChaqueClasse) {
  const int a = Carte("A", "a", "P1", "1").Id;
  const int b = Carte("B", "b", "P2", "2").Id;
  const int c = Carte("C", "c", "P1", "3").Id;
  const int d = Carte("D", "d", "P1", "4").Id;
  const int ailleurs = ecole.unEleve().nomme("E", "e").enClasse("P1", "A", "1234").matricule("5").Id;
  const int radie = Carte("R", "r", "P2", "6").avec("FLG_RADIE").Id;
  const TRapport liste = Faire(kListe, {a, b, c, radie, d, ailleurs});
  EXPECT_EQ(liste.Modele(), "ListeEleveCodeBarre");
  EXPECT_EQ(Variables(liste), "NomRapport=Liste des élèves|TypeCodeBar=1");
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
  EXPECT_EQ(seul.Modele(), "ListeEleveCodeBarreLarge");
  EXPECT_EQ(seul.Plat().size(), 2U);
}

TEST_F(TIdentificationEssai, VingtQuatreCellulesParPageOuQuinze) {
  std::vector<int> eleves;
  for (int i = 1; i <= 25; ++i)
    eleves.push_back(Carte(u"E%1"_s.arg(i, 2, 10, '0'_L1), "Zoé", "P1", u"5537-%1"_s.arg(i)).Id);
  eleves.push_back(Carte("SEUL", "Noé", "P2", "5537-99").Id);
  for (const auto& [titre, parPage, colonne] :
       {std::tuple(kListe, 24, 239.3F), std::tuple(kListeLarge, 15, 349.0F)}) {
    const TDocumentPrepare document = Pages(Faire(titre, eleves));
    ASSERT_EQ(document.Pages.size(), 3U);
    std::vector<int> codes;
    std::set<int> gauches;
    for (const TPagePreparee& page : document.Pages) {
      EXPECT_EQ(Textes(page).first(), &page == &document.Pages[2] ? "18 P2 A" : "18 P1 A");
      EXPECT_FALSE(Textes(page).join(u'\n').contains("Année")) << "a hidden memo";
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
      Carte("ADAM", "Léa", "P1", "1").Id,
      Carte("VANDENBOSSCHE-DE LA CROIX", "Marie-Antoinette", "P1", "2").Id,
      Carte("VANDENBOSSCHE-DE LA CROIX DE MEULENAERE-VAN CAUWENBERGHE TER", "Marie-Antoinette", "P1", "3")
          .Id};
  const int enorme = Carte("VAN DEN BROECK-DE LA TORRE Y SANTIAGO DE COMPOSTELA VON UND ZU HOHENLOHE",
                           "Marie-Antoinette Joséphine Clémentine Bernadette Eulalie Philippine", "P1", "4")
                         .Id;
  for (const auto& [titre, tailles] : {std::pair(kBadge, "18 13 11"), std::pair(kXerox, "18 13 11"),
                                       std::pair(kListe, "11 11 9"), std::pair(kListeLarge, "13 13 11")}) {
    SCOPED_TRACE(QString::fromUtf16(titre).toStdString());
    TDocumentPrepare document = Pages(Faire(titre, eleves));
    QStringList textes, vues;
    for (const TPagePreparee& page : document.Pages) textes += Textes(page);
    for (const QString& nom : textes.filter(QRegularExpression("^\\d+ (ADAM|VANDEN)")))
      vues += nom.section(u' ', 0, 0);
    EXPECT_EQ(vues.join(u' '), tailles);
    EXPECT_TRUE(textes.join(u' ').contains("TER") && textes.join(u' ').count("Antoinette") == 2);
    if (titre == kXerox) continue;

    document = Pages(Faire(titre, {enorme}));
    float basDuNom = 0, hautDuCode = 0;
    for (const TElement& element : document.Pages.at(0).Elements) {
      if (const auto* texte = std::get_if<TElementTexte>(&element))
        if (texte->Forme->Texte.contains("Philippine")) basDuNom = static_cast<float>(texte->Base);
      if (const auto* barres = std::get_if<TElementBarres>(&element))
        hautDuCode = static_cast<float>(barres->Barres[0].top());
    }
    EXPECT_GT(basDuNom, 0);
    EXPECT_LT(basDuNom + 2, hautDuCode);
  }
}
