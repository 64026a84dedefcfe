#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTest>

#include "support/affichage.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/modele_grille.h"
#include "ui/commun/theme.h"
#include "ui/commun/vue_grille.h"

namespace {

QString T(const char* texte) { return QString::fromUtf8(texte); }

std::vector<TColonneGrille> Colonnes() {
  return {{T("Libellé"), 200},
          {T("Date"), 90, TAlignement::Gauche, TOrdre::Date},
          {T("Dû"), 80, TAlignement::Droite, TOrdre::Nombre},
          {T("État"), 80}};
}

TGrille Frais() {
  TGrille grille(Colonnes());
  grille.Etats = {{}, {T("Payé"), T("dialog-ok-apply")}};
  grille.Ajouter({T("Natation"), T("05/11/2018"), T("9,00 €")}, {}, 1);
  grille.Ajouter({T("Théâtre"), T("12/09/2018"), T("-1 182,90 €")});
  grille.Ajouter({T("Mer"), T("01/02/2019"), T("185,00 €")});
  return grille;
}

/// One column as it stands on the screen, top to bottom.
QStringList Vus(const VueGrille& vue, int colonne = 0) {
  QStringList textes;
  for (QModelIndex i = vue.model()->index(0, 0); i.isValid(); i = vue.indexBelow(i))
    textes += i.siblingAtColumn(colonne).data().toString();
  return textes;
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
  grille.ChoisirLigne(2);
  VueGrille vue(grille, T("Frais"), {});
  Montrer(vue);
  const struct {
    int Colonne;
    const char* Ordre;
  } cas[] = {{0, "Mer|Natation|Théâtre"}, {1, "Théâtre|Natation|Mer"}, {2, "Théâtre|Natation|Mer"}};
  for (const auto& [colonne, ordre] : cas) {
    vue.sortByColumn(colonne, Qt::AscendingOrder);
    EXPECT_EQ(Vus(vue), T(ordre).split(u'|')) << colonne;
    EXPECT_EQ(vue.currentIndex().siblingAtColumn(0).data().toString(), T("Mer"));
    EXPECT_TRUE(vue.selectionModel()->isSelected(vue.currentIndex()));
  }
  EXPECT_EQ(Vus(vue, 2).first(), T("−1\u00A0182,90\u00A0€"));
  QTest::keyClick(&vue, Qt::Key_Home);
  EXPECT_EQ(grille.LigneCourante(), 1);

  grille.Ajouter({T("Avent"), {}, T("-2 000,00 €")});  // keeps order and row
  EXPECT_EQ(Vus(vue).first(), T("Avent"));
  EXPECT_EQ(vue.currentIndex().siblingAtColumn(0).data().toString(), T("Théâtre"));
}

TEST(VueGrille, FiltreEnTapant) {
  TGrille grille = Frais();
  grille.ChoisirLigne(0);
  VueGrille vue(grille, T("Frais"), {});
  ChampFiltre champ;
  vue.Filtrer(champ);
  Montrer(vue);
  QTest::keyClicks(&champ, T("theatre"));
  EXPECT_EQ(Vus(vue), QStringList{T("Théâtre")});
  EXPECT_EQ(vue.NombreVisibles(), 1);
  EXPECT_EQ(grille.LigneCourante(), -1);  // it is out of sight
  QTest::keyClick(&champ, Qt::Key_Escape);
  EXPECT_EQ(Vus(vue).size(), 3);
  QTest::keyClicks(&champ, T("paye"));  // the word of the state
  EXPECT_EQ(Vus(vue), QStringList{T("Natation")});
}

TEST(VueGrille, CopieAvecTabulations) {
  TGrille grille = Frais();
  grille.ChoisirLigne(0);
  VueGrille vue(grille, T("Frais"), {});
  Montrer(vue);
  QTest::keyClick(&vue, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), T("Natation\t05/11/2018\t9,00 €\tPayé"));
  vue.sortByColumn(2, Qt::AscendingOrder);
  QTest::keyClick(&vue, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const QStringList lignes = QApplication::clipboard()->text().split(u'\n');
  EXPECT_EQ(lignes.size(), 4);
  EXPECT_EQ(lignes[0], T("Libellé\tDate\tDû\tÉtat"));
  EXPECT_EQ(lignes[1], T("Théâtre\t12/09/2018\t-1 182,90 €\t"));
}

TEST(VueGrille, RetientLargeursOrdreEtTri) {
  {
    TGrille grille = Frais();
    VueGrille vue(grille, T("Frais"), T("Essai/Frais"));
    Montrer(vue);
    vue.header()->resizeSection(2, Theme::Px(123));
    vue.header()->moveSection(3, 1);
    vue.sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(grille.Colonne(2).Largeur, 123);
  }
  TGrille grille = Frais();
  VueGrille vue(grille, T("Frais"), T("Essai/Frais"));
  Montrer(vue);
  EXPECT_EQ(vue.header()->sectionSize(2), Theme::Px(123));
  EXPECT_EQ(vue.header()->visualIndex(3), 1);
  EXPECT_EQ(Vus(vue), T("Mer|Natation|Théâtre").split(u'|'));

  TGrille autre({{T("Nom")}, {T("Prénom")}});  // what does not fit is forgotten
  VueGrille neuve(autre, T("Noms"), T("Essai/Frais"));
  EXPECT_EQ(neuve.header()->sortIndicatorSection(), -1);
}

TEST(VueGrille, NeCoupePasUnMontant) {
  TGrille grille({{T("Nom"), 200}, {T("Dû"), 20, TAlignement::Droite, TOrdre::Nombre}});
  VueGrille vue(grille, T("Frais"), {});
  Montrer(vue);
  grille.Ajouter({T("Mer"), T("1 000 182,90 €")});
  QApplication::processEvents();
  EXPECT_GE(vue.header()->sectionSize(1),
            vue.fontMetrics().horizontalAdvance(T("1\u00A0000\u00A0182,90\u00A0€")) + 2 * Theme::Px(7));
}

TEST(VueGrille, PlieLesGroupesAuClavier) {
  TGrille grille({{T("Catégorie"), 160}, {T("Montant"), 80, TAlignement::Droite, TOrdre::Nombre}});
  const auto remplir = [&] {
    const TGrille::TLot lot(grille);
    grille.Vider();
    grille.AjouterTete({T("Matin"), T("3,00 €")});
    grille.Ajouter({T("lundi"), T("2,00 €")});
    grille.Ajouter({T("mardi"), T("1,00 €")});
    grille.AjouterTete({T("Soir"), T("9,00 €")});
    grille.Ajouter({T("jeudi"), T("9,00 €")});
  };
  remplir();
  VueGrille vue(grille, T("Relevé"), {});
  int activee = -1;
  QObject::connect(&vue, &VueGrille::Activee, &vue, [&](int ligne) { activee = ligne; });
  Montrer(vue);
  vue.sortByColumn(1, Qt::DescendingOrder);  // within the groups only
  EXPECT_EQ(Vus(vue), T("Matin|lundi|mardi|Soir|jeudi").split(u'|'));
  vue.sortByColumn(1, Qt::AscendingOrder);
  EXPECT_EQ(Vus(vue), T("Matin|mardi|lundi|Soir|jeudi").split(u'|'));

  grille.ChoisirLigne(1);
  QTest::keyClick(&vue, Qt::Key_Return);
  EXPECT_EQ(activee, 1);
  QTest::keyClick(&vue, Qt::Key_Left);  // to the head
  EXPECT_EQ(grille.LigneCourante(), 0);
  QTest::keyClick(&vue, Qt::Key_Left);
  EXPECT_EQ(Vus(vue), T("Matin|Soir|jeudi").split(u'|'));
  remplir();  // stays shut
  EXPECT_EQ(Vus(vue), T("Matin|Soir|jeudi").split(u'|'));
  ChampFiltre champ;
  vue.Filtrer(champ);
  champ.setText(T("lundi"));
  EXPECT_EQ(Vus(vue), T("Matin|lundi").split(u'|'));
  champ.clear();
  EXPECT_EQ(Vus(vue), T("Matin|Soir|jeudi").split(u'|'));
  grille.ChoisirLigne(0);
  QTest::keyClick(&vue, Qt::Key_Space);
  EXPECT_EQ(Vus(vue).size(), 5);
}

TEST(VueGrille, CocheALaBarreEtDitLaquelle) {
  TGrille grille = Frais();
  grille.CasesACocher = true;
  VueGrille vue(grille, T("Frais"), {});
  std::vector<std::pair<int, bool>> coches;
  QObject::connect(&vue, &VueGrille::Cochee, &vue, [&](int ligne, bool coche) {
    coches.push_back({ligne, coche});
  });
  Montrer(vue);
  vue.sortByColumn(0, Qt::AscendingOrder);
  grille.ChoisirLigne(1);
  vue.setCurrentIndex(vue.currentIndex().siblingAtColumn(2));
  QTest::keyClick(&vue, Qt::Key_Space);
  QTest::keyClick(&vue, Qt::Key_Space);
  EXPECT_EQ(coches, (std::vector<std::pair<int, bool>>{{1, true}, {1, false}}));
}
