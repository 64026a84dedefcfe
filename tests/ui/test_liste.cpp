#include <QClipboard>
#include <QMenu>

#include "screens/services/frm_parametres_garderies.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/menu_grille.h"
#include "ui/commun/vue_liste.h"
#include "ui/reglages_essai.h"
#include "ui/vues_seules.h"

namespace {

const QString kQuestion = "Voulez-vous supprimer ce tarif ?";
const QString kAbandon = "Voulez-vous l'abandonner ?";

/// The screen of the tariffs in the whole program, by clicking and typing.
struct Tarifs : TReglagesEssai {
  void SetUp() override {
    using namespace Essai;
    Ecole.unEleve().enClasse("P1", "A");
    Ecole.tarif(Soir, LundiMardiJeudiVendredi, "16:30", "18:00", DemiHeure, "0.0125", ScanSortie, "0.4");
    Ecole.tarif(Matin, TousLesJours, "07:00", "08:15", Forfait, "1", ScanPresence);
    Ecole.tarif(Midi, TousLesJours, "12:00", "13:30", Forfait, "10", ScanPresence);
    Demarrer(TGestionnaire::AdvGlowButton5Click);
  }
  TFrmParametresGarderies& Ecran() { return Form<TFrmParametresGarderies>(); }
  VueListe& Vue() { return *Programme.Vue<VueListe>(); }
  VueGrille& Liste() { return *Vue().findChild<VueGrille*>(); }
  QString Texte(const char* champ) { return Controle<QLineEdit>(QLatin1String(champ)).text(); }
  QStringList Table() {
    return Base.Rangees(
        u"SELECT TYPE_FAMILLE, TYPE_JOUR, HEURE_DEBUT_SCAN, COUT, COUT_2E_ENFANT FROM TARIF_GARDERIE ORDER "
        "BY TARIF_GARDERIE_ID"_s);
  }
  QStringList Colonne(int colonne) { return ColonneVue(Liste(), colonne); }
  QStringList Outils() {
    QStringList actifs;
    for (const TOutilPrincipal& outil : OutilsPrincipaux())
      if (Programme.Main().OutilActif(outil.Outil)) actifs += outil.Libelle;
    return actifs;
  }
};

}  // namespace

TEST_F(Tarifs, MontreLesRangeesEtLesTrieParValeur) {
  EXPECT_TRUE(Dit("Horaires et tarifs des services offerts par l'école"));
  EXPECT_EQ(Ecran().Grille.Textes(1), (QStringList{"garderie du soir", "lundi, mardi, jeudi, vendredi",
                                                   "16h30", "18h00", "0,0125 €", "à la demi-heure"}));
  Liste().setFocus();
  Ecran().Grille.ChoisirLigne(1);
  EXPECT_EQ(Texte("edCout"), "0,0125");
  EXPECT_EQ(Controle<QComboBox>("cmbTypeScan").currentText(), "scanning à la sortie");
  EXPECT_TRUE(Controle<QLineEdit>("edCout").isReadOnly());
  EXPECT_EQ(Outils(), (QStringList{"Nouveau", "Modifier", "Supprimer"}));
}

TEST_F(Tarifs, AjouteModifieEtRefuse) {
  Liste().setFocus();
  Touche(Qt::Key_F7);
  EXPECT_EQ(Outils(), QStringList{"Enregistrer"});
  EXPECT_EQ(QApplication::focusWidget(), &Controle("cmbTypeFamille"));
  EXPECT_EQ(Texte("edCout"), QString());
  for (int i = 0; i < 4; ++i) Touche(Qt::Key_Down);  // "étude"
  Controle<QComboBox>("cmbTypeJour").setFocus();
  for (int i = 0; i < 6; ++i) Touche(Qt::Key_Down);
  Taper("edHeureDebut", "15h30");
  Taper("edHeureFin", "25:00");
  Touche(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &Controle("edHeureFin")) << "the hand stays where the fault is";
  EXPECT_TRUE(Dit("« 25:00 » n'est pas une heure (hh:mm)."));
  EXPECT_EQ(Etat(), u"Non enregistré : « Heure de fin » : « 25:00 » n'est pas une heure (hh:mm).");
  Taper("edHeureFin", "1630");
  EXPECT_EQ(Etat(), QString()) << "it is typed anew";
  Taper("edCout", "1");
  Touche(Qt::Key_Period, Qt::KeypadModifier);
  QTest::keyClicks(&Controle("edCout"), "2375");
  Touche(Qt::Key_F9);
  EXPECT_EQ(QApplication::focusWidget(), &Controle("edCout2eEnfant")) << "an empty price is a fault";
  EXPECT_EQ(Table().size(), 3);
  QTest::keyClicks(QApplication::focusWidget(), "0");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Table().last(), u"4;6;15:30:00.000;1.2375;0.0000") << Table().last().toStdString();
  EXPECT_EQ(Etat(), u"Tarif enregistré : il ne coûtera rien, faute d'unité après le coût");
  EXPECT_EQ(Ecran().Courant()->TypeFamille, TTypeFamille::Etude);
  EXPECT_TRUE(Programme.Main().OutilActif(TOutil::btnNew));

  Touche(Qt::Key_F2);  // then the same key as another row
  Controle<QComboBox>("cmbTypeFamille").setFocus();
  for (int i = 0; i < 3; ++i) Touche(Qt::Key_Up);  // "garderie du matin"
  Taper("edHeureDebut", "07:00");
  Taper("edHeureFin", "08:15");
  Programme.Dialogues.Attend("UNIQ_TARIF_GARDERIE");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Ecran().Mode(), TModeEdition::Modification);
  EXPECT_EQ(Texte("edHeureDebut"), "07:00") << "what was typed stays";
  EXPECT_EQ(Ecran().Courant()->TypeFamille, TTypeFamille::Etude) << "memory is what the table holds";
  Touche(Qt::Key_Escape);
  EXPECT_EQ(Texte("edHeureDebut"), "15:30");
  Touche(Qt::Key_F2);
  Taper("edCout", "2");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Table().last(), u"4;6;15:30:00.000;2.0000;0.0000") << "the next save works";
}

TEST_F(Tarifs, SupprimeEtRetablit) {
  Liste().setFocus();
  Ecran().Grille.ChoisirLigne(1);
  Programme.Dialogues.Repond(kQuestion, false).Repond(kQuestion, true);
  Touche(Qt::Key_Delete);
  EXPECT_EQ(Table().size(), 3);
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Table().size(), 2);
  EXPECT_EQ(Etat(), u"Tarif supprimé : garderie du soir (Ctrl+Z rétablit)");
  Touche(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Table().last(), u"2;7;16:30:00.000;0.0125;0.4000");
  Touche(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Table().size(), 3) << "once";
  for (int i = 0; i < 3; ++i) {
    Programme.Dialogues.Repond(kQuestion, true);
    Touche(Qt::Key_Delete);
  }
  EXPECT_TRUE(Dit("Aucun tarif."));
  EXPECT_EQ(Texte("edCout"), QString());
  EXPECT_EQ(Outils(), QStringList{"Nouveau"});
}

TEST_F(Tarifs, DemandeAvantDAbandonner) {
  Liste().setFocus();
  Touche(Qt::Key_F2);
  Taper("edCout", "7");
  EXPECT_TRUE(Dit("Non enregistré · F9"));
  Programme.Dialogues.Repond(kAbandon, false);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  EXPECT_NE(Programme.Vue<VueListe>(), nullptr);
  Programme.Dialogues.Repond(kAbandon, false);
  Programme.Main().mnuAnneeClick(2017);
  EXPECT_EQ(Programme.Main().AnneeCochee(), 2016);
  Programme.Dialogues.Repond(kAbandon, false);
  Programme.Fenetre().close();
  EXPECT_TRUE(Programme.EstOuvert());
  EXPECT_EQ(Texte("edCout"), "7,00");
  Programme.Dialogues.Repond(kAbandon, true);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  EXPECT_EQ(Programme.Vue<VueListe>(), nullptr);
}

TEST_F(Tarifs, LeMenuDeLaListe) {
  Liste().setFocus();
  Ecran().Grille.ChoisirLigne(0);
  const auto choisir = [&](const QString& texte) {
    QMenu menu;
    RemplirMenu(menu, Liste());
    for (QAction* action : menu.actions() + menu.findChildren<QAction*>())
      if (action->text().startsWith(texte)) return action->trigger();
    FAIL() << texte.toStdString();
  };
  choisir("Copier la ligne");
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("garderie du midi\ttous les jours\t12h00"));
  choisir("Coût");
  EXPECT_EQ(Colonne(4).first(), u"0,0125\u00A0€");
  const QString fichier = Base.Chemin("tarifs.csv");
  Programme.Dialogues.Fichier("Exporter la liste", fichier).Attend(u"La liste est exportée :\n"_s + fichier);
  choisir("Exporter");
  const QStringList lignes = QString::fromUtf8(LireFichier(fichier)).split("\r\n");
  EXPECT_EQ(lignes[1], u"garderie du soir;lundi, mardi, jeudi, vendredi;16:30;18:00;0,0125;à la demi-heure");
  choisir("Filtrer");
  QTest::keyClicks(Vue().findChild<ChampFiltre*>(), "matin");
  EXPECT_EQ(Colonne(0), QStringList{"garderie du matin"});
  Ecran().Grille.ChoisirLigne(2);
  Aller(Liste());
  Programme.Dialogues.Repond(kQuestion, true);
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Table().size(), 2);
  EXPECT_EQ(Ecran().Grille.LigneCourante(), -1) << "no row out of sight";
}

TEST_F(TVuesSeules, AListIsWithinReach) {
  ecole.tarif(1, 6, "07:00", "08:00", 1, "1", 1);
  ecran.reset();
  ecran = std::make_unique<TEcranEssai>(base);
  TFrmParametresGarderies form(ecran->Contexte);
  VerifierForme(form);
  form.Modifier();
  form.Champs().Refuser("edCout", "« 1e3 » n'est pas un montant (par exemple 2,20).");
  VerifierForme(form);
}
