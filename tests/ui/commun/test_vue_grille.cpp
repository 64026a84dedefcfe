#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTest>

#include "ui/commun/champ_filtre.h"
#include "ui/commun/theme.h"
#include "ui/commun/vue_grille.h"
#include "ui/programme_essai.h"

namespace {

QString T(const char* texte) { return QString::fromUtf8(texte); }
Currency M(const char* montant) { return StrToCurr(T(montant)); }

TGrille Frais() {
  TGrille grille({{u"Libellé"_s, 200},
                  {u"Date"_s, 90, TGenre::Date},
                  {u"Dû"_s, 80, TGenre::Montant},
                  {u"État"_s, 80, TGenre::Etat}});
  grille.Etats = {{}, {u"Payé"_s, u"dialog-ok-apply"_s}};
  grille.Ajouter({u"Natation"_s, J("2018-11-05"), M("9")}, {}, 1);
  grille.Ajouter({u"Théâtre"_s, J("2018-09-12"), M("-1182,90")});
  grille.Ajouter({u"Mer"_s, J("2019-02-01"), M("185")});
  return grille;
}

void Montrer(VueGrille& vue) {
  vue.resize(600, 300);
  vue.show();
  QApplication::setActiveWindow(&vue);
  vue.setFocus();
  QApplication::processEvents();
}

}  // namespace

TEST(VueGrille, TrieSelonLaValeurEtGardeLaLigne) {
  TGrille grille = Frais();
  grille.CasesACocher = true;
  grille.ChoisirLigne(2);
  VueGrille vue(grille, u"Frais"_s, {});
  std::vector<std::pair<int, bool>> coches;
  QObject::connect(&vue, &VueGrille::Cochee, &vue, [&](int ligne, bool coche) {
    coches.push_back({ligne, coche});
  });
  Montrer(vue);
  for (const auto& [colonne, ordre] :
       {std::pair(0, "Mer|Natation|Théâtre"), {1, "Théâtre|Natation|Mer"}, {2, "Théâtre|Natation|Mer"}}) {
    vue.sortByColumn(colonne, Qt::AscendingOrder);
    EXPECT_EQ(ColonneVue(vue), T(ordre).split(u'|')) << colonne;
    EXPECT_EQ(vue.currentIndex().siblingAtColumn(0).data().toString(), u"Mer"_s);
    EXPECT_TRUE(vue.selectionModel()->isSelected(vue.currentIndex()));
  }
  EXPECT_EQ(ColonneVue(vue, 2).first(), u"−1\u202F182,90\u00A0€"_s);
  QTest::keyClick(&vue, Qt::Key_Home);
  EXPECT_EQ(grille.LigneCourante(), 1);
  vue.setCurrentIndex(vue.currentIndex().siblingAtColumn(2));
  for (int fois = 0; fois < 2; ++fois) QTest::keyClick(&vue, Qt::Key_Space);
  EXPECT_EQ(coches, (std::vector<std::pair<int, bool>>{{1, true}, {1, false}}));

  grille.Ajouter({u"Avent"_s, {}, M("-2000")});  // keeps order and row
  EXPECT_EQ(ColonneVue(vue).first(), u"Avent"_s);
  EXPECT_EQ(vue.currentIndex().siblingAtColumn(0).data().toString(), u"Théâtre"_s);
}

TEST(VueGrille, FiltreEnTapant) {
  TGrille grille = Frais();
  grille.ChoisirLigne(0);
  VueGrille vue(grille, u"Frais"_s, {});
  ChampFiltre champ;
  vue.Filtrer(champ);
  Montrer(vue);
  QTest::keyClicks(&champ, u"theatre"_s);
  EXPECT_EQ(ColonneVue(vue), QStringList{u"Théâtre"_s});
  EXPECT_EQ(grille.LigneCourante(), -1);  // it is out of sight
  QTest::keyClick(&champ, Qt::Key_Escape);
  EXPECT_EQ(ColonneVue(vue).size(), 3);
  QTest::keyClicks(&champ, u"paye"_s);  // the word of the state
  EXPECT_EQ(ColonneVue(vue), QStringList{u"Natation"_s});
}

TEST(VueGrille, CopieAvecTabulations) {
  TGrille grille = Frais();
  grille.ChoisirLigne(0);
  VueGrille vue(grille, u"Frais"_s, {});
  Montrer(vue);
  QTest::keyClick(&vue, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), u"Natation\t05/11/2018\t9,00 €\tPayé"_s);
  vue.sortByColumn(2, Qt::AscendingOrder);
  QTest::keyClick(&vue, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const QStringList lignes = QApplication::clipboard()->text().split(u'\n');
  EXPECT_EQ(lignes.size(), 4);
  EXPECT_EQ(lignes[0], u"Libellé\tDate\tDû\tÉtat"_s);
  EXPECT_EQ(lignes[1], u"Théâtre\t12/09/2018\t-1\u202F182,90 €\t"_s);
}

TEST(VueGrille, RetientLargeursOrdreEtTri) {
  {
    TGrille grille = Frais();
    VueGrille vue(grille, u"Frais"_s, u"Essai/Frais"_s);
    Montrer(vue);
    vue.header()->resizeSection(2, Theme::Px(123));
    vue.header()->moveSection(3, 1);
    vue.sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(grille.Colonne(2).Largeur, 123);
  }
  TGrille grille = Frais();
  VueGrille vue(grille, u"Frais"_s, u"Essai/Frais"_s);
  Montrer(vue);
  EXPECT_EQ(vue.header()->sectionSize(2), Theme::Px(123));
  EXPECT_EQ(vue.header()->visualIndex(3), 1);
  EXPECT_EQ(ColonneVue(vue), u"Mer|Natation|Théâtre"_s.split(u'|'));

  TGrille autre({{u"Nom"_s}, {u"Prénom"_s}});  // what does not fit is forgotten
  VueGrille neuve(autre, u"Noms"_s, u"Essai/Frais"_s);
  EXPECT_EQ(neuve.header()->sortIndicatorSection(), -1);
}

TEST(VueGrille, NeCoupePasUnMontant) {
  TGrille grille({{u"Nom"_s, 200}, {u"Dû"_s, 20, TGenre::Montant}});
  VueGrille vue(grille, u"Frais"_s, {});
  Montrer(vue);
  grille.Ajouter({u"Mer"_s, M("1000182,90")});
  QApplication::processEvents();
  EXPECT_GE(vue.header()->sectionSize(1),
            vue.fontMetrics().horizontalAdvance(u"1\u00A0000\u00A0182,90\u00A0€"_s) + 2 * Theme::Px(7));
}

TEST(VueGrille, UnJourEtUnMoisSAbregentEtUnNomContinueDansLaCelluleVide) {
  TGrille grille({{u"Nom"_s, 271},
                  {u"Prénom"_s, 120},
                  {u"Date"_s, 180, TGenre::DateLongue},
                  {u"Mois"_s, 110, TGenre::Mois},
                  {.Titre = u"Par"_s, .Largeur = 60, .Abreger = [](const QString& t) { return t.left(2); }}});
  grille.Ajouter({u"Matricule inconnu (553799999)"_s, QString(), J("2018-11-07"), 9, u"heure"_s});
  grille.Ajouter({u"ALVES"_s, QString(), TJourAnnee{J("2017-09-27")}, 9, u"heure"_s});
  VueGrille vue(grille, u"Relevés"_s, {});
  Montrer(vue);
  vue.resize(440, 300);
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  EXPECT_LE(vue.header()->length(), vue.viewport()->width()) << "it does not scroll";
  for (const int colonne : {2, 3, 4})
    EXPECT_LT(vue.header()->sectionSize(colonne),
              static_cast<QAbstractItemView&>(vue).sizeHintForColumn(colonne));
  grille.Ecrire(0, 2, TJourAnnee{J("2017-09-26")});  // now all of them say their year
  vue.resize(439, 300);
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  EXPECT_LE(vue.header()->length(), vue.viewport()->width());
  const auto ecrit = [&](const QString& prenom) {
    grille.Ecrire(0, 1, prenom);
    const QRect place = vue.visualRect(vue.model()->index(0, 1)).adjusted(0, 4, 0, -4);
    const QImage image = vue.viewport()->grab(place).toImage();
    int points = 0;
    for (int x = 0; x < image.width() / 4; ++x)
      for (int y = 0; y < image.height(); ++y)
        points += image.pixel(x, y) != image.pixel(image.width() - 1, y);
    return points;
  };
  EXPECT_GT(ecrit({}), 0) << "the name goes on";
  EXPECT_EQ(ecrit(u" "_s), 0) << "behind what is not empty it is cut";
}

TEST(VueGrille, PlieLesGroupesAuClavier) {
  TGrille grille({{u"Catégorie"_s, 160}, {u"Montant"_s, 80, TGenre::Montant}});
  const auto remplir = [&] {
    const TGrille::TLot lot(grille);
    grille.Vider();
    grille.AjouterTete({u"Matin"_s, M("3")});
    grille.Ajouter({u"lundi"_s, M("2")});
    grille.Ajouter({u"mardi"_s, M("1")});
    grille.AjouterTete({u"Soir"_s, M("9")});
    grille.Ajouter({u"jeudi"_s, M("9")});
  };
  remplir();
  VueGrille vue(grille, u"Relevé"_s, {});
  int activee = -1;
  QObject::connect(&vue, &VueGrille::Activee, &vue, [&](int ligne) { activee = ligne; });
  Montrer(vue);
  vue.sortByColumn(1, Qt::DescendingOrder);  // within the groups only
  EXPECT_EQ(ColonneVue(vue), u"Matin|lundi|mardi|Soir|jeudi"_s.split(u'|'));
  vue.sortByColumn(1, Qt::AscendingOrder);
  EXPECT_EQ(ColonneVue(vue), u"Matin|mardi|lundi|Soir|jeudi"_s.split(u'|'));

  grille.ChoisirLigne(1);
  QTest::keyClick(&vue, Qt::Key_Return);
  EXPECT_EQ(activee, 1);
  QTest::keyClick(&vue, Qt::Key_Left);  // to the head
  EXPECT_EQ(grille.LigneCourante(), 0);
  QTest::keyClick(&vue, Qt::Key_Left);
  EXPECT_EQ(ColonneVue(vue), u"Matin|Soir|jeudi"_s.split(u'|'));
  remplir();  // stays shut
  EXPECT_EQ(ColonneVue(vue), u"Matin|Soir|jeudi"_s.split(u'|'));
  ChampFiltre champ;
  vue.Filtrer(champ);
  champ.setText(u"lundi"_s);
  EXPECT_EQ(ColonneVue(vue), u"Matin|lundi"_s.split(u'|'));
  champ.clear();
  EXPECT_EQ(ColonneVue(vue), u"Matin|Soir|jeudi"_s.split(u'|'));
  grille.ChoisirLigne(0);
  QTest::keyClick(&vue, Qt::Key_Space);
  EXPECT_EQ(ColonneVue(vue).size(), 5);
}

TEST(VueGrille, LeNomGardeSaPlaceOuLaListeDefile) {
  TGrille grille = Frais();
  grille.Ajouter({u"Excursion à la mer, deux jours"_s, J("2019-03-01"), M("12")});
  VueGrille vue(grille, u"Frais"_s, {});
  Montrer(vue);
  const int voulu = static_cast<QAbstractItemView&>(vue).sizeHintForColumn(0);
  for (const int largeur : {600, 440, 200}) {
    vue.resize(largeur, 300);
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_GE(vue.header()->sectionSize(0), std::min(voulu, Theme::Px(140))) << largeur;
    EXPECT_GE(vue.header()->sectionSize(2), static_cast<QAbstractItemView&>(vue).sizeHintForColumn(2))
        << "an amount is never cut, " << largeur;
    const bool defile = vue.header()->length() > vue.viewport()->width();
    EXPECT_EQ(defile, largeur == 200) << largeur;
  }
  vue.resize(600, 300);
  QApplication::processEvents();
  EXPECT_EQ(vue.header()->length(), vue.viewport()->width()) << "and the room is taken again";
}
