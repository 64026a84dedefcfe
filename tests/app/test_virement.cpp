// The transfer form and the payment code, as they come off the paper.
#include <cmath>

#include "papier_essai.h"

namespace {

constexpr double kPixel = 96.0 / 72;
constexpr double kCoupe = 38 + 701;  ///< the cut line, px from the upper edge
constexpr int kPremiereColonne = -8;

struct TMot {
  QString Texte;
  double X, Y;  ///< its middle, px
};

/// A debtor on two pages, one on a page, and one who owes nothing.
struct TVirementEssai : TPapierEssai {
  TVirementEssai() {
    ecole_.parametres(
        u"1=École|11=BE68 5390 0754 7034|50=Éèà \"Ö\" <b>&lt; [NOM1]|51=BE71096123456769|52=GKCCBEBB|"
        "53=avenue des Tilleuls, 112|54=5364|55=Vesperval|107=1"_s);
    TEleveEssai longue = ecole_.unEleve().enClasse(u"P1"_s, u"A"_s);
    for (int i = 1; i <= 30; ++i) longue.doit(ecole_.frais(u"Cahier %1"_s.arg(i), u"41.15"_s, 10));
    ecole_.unEleve().enClasse(u"P1"_s, u"A"_s).doit(ecole_.frais(u"Piscine"_s, u"0.5"_s, 10));
    ecole_.unEleve().enClasse(u"P1"_s, u"A"_s).paie(u"5"_s, 10, 2, u"Virement"_s);
    base_->Deconnecter();
  }

  /// What is printed below the cut line.
  std::vector<TMot> SousLaCoupe(int page) const {
    static const QRegularExpression motif(
        u"<word xMin=\"(.*?)\" yMin=\"(.*?)\" xMax=\"(.*?)\" yMax=\"(.*?)\">(.*?)</word>"_s);
    const QString numero = QString::number(page);
    const QString mots =
        Sortie(u"pdftotext"_s, {u"-bbox"_s, u"-f"_s, numero, u"-l"_s, numero, Pdf(), u"-"_s});
    std::vector<TMot> dessous;
    for (const QRegularExpressionMatch& mot : motif.globalMatch(mots)) {
      const auto milieu = [&](int a, int b) {
        return (mot.captured(a).toDouble() + mot.captured(b).toDouble()) / 2 * kPixel;
      };
      QString texte = mot.captured(5);
      texte.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s).replace(u"&quot;"_s, u"\""_s);
      texte.replace(u"&apos;"_s, u"'"_s).replace(u"&amp;"_s, u"&"_s);
      if (milieu(2, 4) > kCoupe) dessous.push_back({texte, milieu(1, 3), milieu(2, 4) - kCoupe});
    }
    return dessous;
  }

  /// The rows of boxes, by the upper edge of the box: a character a box, from eight boxes left of the first
  /// column on. Anything else on the form but its captions is added to `Restes`.
  QMap<int, QString> Cases(int page) {
    QMap<int, QString> rangees;
    for (const int y : {66, 98, 122, 145, 168, 196, 220, 244, 267, 290, 318}) rangees[y] = QString(34, u' ');
    Legendes.clear();
    for (const TMot& mot : SousLaCoupe(page)) {
      const int colonne = static_cast<int>(std::floor((mot.X - 38 - 224) / 19)) - kPremiereColonne;
      const auto cles = rangees.keys();
      const auto y = std::ranges::find_if(cles, [&](int haut) { return mot.Y > haut && mot.Y < haut + 20; });
      if (mot.Texte.size() == 1 && y != cles.end() && colonne >= 0 && colonne < 34 &&
          rangees[*y][colonne] == u' ')
        rangees[*y][colonne] = mot.Texte[0];
      else
        Legendes += mot.Texte;
    }
    for (QString& rangee : rangees)
      while (rangee.endsWith(u' ')) rangee.chop(1);
    return rangees;
  }

  /// What a telephone reads, as it stands in the code.
  static QString Telephone(const QStringList& images) {
    return Sortie(u"zbarimg"_s, QStringList{u"-q"_s, u"--nodbus"_s, u"--raw"_s, u"-Sdisable"_s,
                                            u"-Sqrcode.enable"_s, u"-Sbinary"_s} +
                                    images);
  }

  QStringList Legendes;
};

QString Decalee(const QString& texte, int colonne) {
  return QString(colonne - kPremiereColonne, u' ') + texte;
}

}  // namespace

TEST_F(TVirementEssai, UnCaractereParCase) {
  Imprimer(Mots(u"Facture --mois 10 --tous"_s));
  const QStringList pages = Pages();
  ASSERT_EQ(pages.size(), 4);
  QString ordres;
  for (const QString& page : pages) ordres += page.contains(u"ORDRE DE VIREMENT"_s) ? u'1' : u'0';
  EXPECT_EQ(ordres, u"0110"_s) << "a pupil's last page, and nowhere when nothing is owed";
  const QString legendes =
      u"ORDRE DE VIREMENT Si complété à la main, n'indiquer qu'une seule MAJUSCULE ou un seul chiffre noir "
      "(ou bleu) par case Signature(s) Date d'exécution souhaitée dans le futur EUR CENT Montant Compte "
      "donneur "
      "d'ordre (IBAN) Nom et adresse donneur d'ordre Compte bénéficiaire (IBAN) BIC bénéficiaire Nom et "
      "adresse bénéficiaire Communication"_s;
  const QString nom = u"Éèà \"Ö\" <b>&lt; [NOM1]"_s;
  const std::tuple<int, QString, QString, QString> attendus[] = {
      {2, u"    1234,50"_s, u"+++100/0001/01680+++"_s, u"EUR1234.50"_s},
      {3, u"       0,50"_s, u"+++100/0002/01613+++"_s, u"EUR0.50"_s}};
  const QStringList images = Images();
  for (const auto& [page, montant, communication, euros] : attendus) {
    const QMap<int, QString> cases = Cases(page);
    EXPECT_EQ(cases[66], Decalee(montant, 15));
    EXPECT_EQ(cases[196], Decalee(u"BE71096123456769"_s, 0));
    EXPECT_EQ(cases[220], Decalee(u"GKCCBEBB"_s, 0));
    EXPECT_EQ(cases[244], Decalee(nom, 0));
    EXPECT_EQ(cases[267], Decalee(u"avenue des Tilleuls, 112"_s, 0));
    EXPECT_EQ(cases[290], Decalee(u"5364 Vesperval"_s, 0));
    EXPECT_EQ(cases[318], Decalee(communication, kPremiereColonne));
    for (const int vide : {98, 122, 145, 168}) EXPECT_EQ(cases[vide], QString()) << vide;
    QStringList attendues = legendes.split(u' ');
    Legendes.sort();
    attendues.sort();
    EXPECT_EQ(Legendes, attendues);
    EXPECT_EQ(Telephone({images.at(page - 1)}),
              u"BCD\n002\n1\nSCT\n\n" % nom % u"\nBE71096123456769\n" % euros % u"\n\n\n" % communication);
  }
}

/// Every other paper that asks for money with a structured communication.
TEST_F(TVirementEssai, UnTelephoneLesPaieAussi) {
  const std::tuple<const char*, const char*, const char*> cas[] = {
      {"", "Facture --mois 10", "EUR0.50"},
      {"25", "Facture --mois 10", "EUR0.50"},
      {"116", "Document de provision de compte", "EUR12.50"},
  };
  for (const auto& [vrais, document, ligne] : cas) {
    SCOPED_TRACE(document);
    base_->Connecter();
    base_.Sql(u"DELETE FROM PARAMETRE WHERE PARAMETRE_ID IN (25, 56, 107, 116)"_s);
    ecole_.parametre(56, u"12,50"_s);
    for (const QString& id : Mots(QString::fromLatin1(vrais))) ecole_.parametre(id.toInt(), u"1"_s);
    base_->Deconnecter();
    const QString titre = QString::fromLatin1(document);
    QProcess lot;
    Lancer(lot, Serveur() + EnPdf({titre.section(u" --"_s, 0, 0), u"--eleves"_s, u"2"_s}) +
                    (titre.contains(u"--"_s) ? QStringList{u"--mois"_s, u"10"_s} : QStringList()));
    const QString code = Telephone(Images());
    EXPECT_EQ(code.count(u"BCD\n002\n1\nSCT\n\nÉèà"_s), 1) << code.toStdString();
    EXPECT_TRUE(code.contains(QString::fromLatin1(ligne))) << code.toStdString();
    const bool reference = code.contains(QRegularExpression(u"\\n\\n[0-9]{12}$"_s));
    EXPECT_EQ(reference, titre.startsWith(u'D')) << code.toStdString();
  }
}
