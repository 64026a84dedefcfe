#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QMenu>
#include <QPushButton>

#include "screens/services/frm_parametres_garderies.h"
#include "support/ecran_essai.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/menu_grille.h"
#include "ui/commun/vue_grille.h"
#include "ui/commun/vue_liste.h"
#include "ui/principal/barre_commandes.h"
#include "ui/reglages_essai.h"
#include "verifier_vue.h"

namespace {

const QString kQuestion = u"Voulez-vous supprimer ce tarif ?"_s;
const QString kAbandon = u"Voulez-vous l'abandonner ?"_s;

/// The screen of the tariffs in the whole program, by clicking and typing.
struct Tarifs : TReglagesEssai {
  void SetUp() override {
    using namespace Essai;
    Ecole.unEleve().enClasse(u"P1"_s, u"A"_s);
    Ecole.tarif(Soir, LundiMardiJeudiVendredi, u"16:30"_s, u"18:00"_s, DemiHeure, u"0.0125"_s, ScanSortie,
                u"0.4"_s);
    Ecole.tarif(Matin, TousLesJours, u"07:00"_s, u"08:15"_s, Forfait, u"1"_s, ScanPresence);
    Ecole.tarif(Midi, TousLesJours, u"12:00"_s, u"13:30"_s, Forfait, u"10"_s, ScanPresence);
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
  QStringList Colonne(int colonne) {
    QStringList textes;
    for (QModelIndex i = Liste().model()->index(0, 0); i.isValid(); i = Liste().indexBelow(i))
      textes += i.siblingAtColumn(colonne).data().toString();
    return textes;
  }
  QStringList Outils() {
    QStringList actifs;
    for (const TOutilPrincipal& outil : OutilsPrincipaux())
      if (Programme.Main().OutilActif(outil.Outil)) actifs += outil.Libelle;
    return actifs;
  }
};

}  // namespace

TEST_F(Tarifs, MontreLesRangeesEtLesTrieParValeur) {
  EXPECT_TRUE(
      TextesDe(Programme.Fenetre()).contains(u"Horaires et tarifs des services offerts par l'école"_s));
  EXPECT_EQ(Ecran().Grille.Textes(1),
            (QStringList{u"garderie du soir"_s, u"lundi, mardi, jeudi, vendredi"_s, u"16h30"_s, u"18h00"_s,
                         u"0,0125 €"_s, u"à la demi-heure"_s}));
  const char* const attendus[] = {"midi|matin|soir", "midi|soir|matin", "matin|midi|soir",
                                  "matin|midi|soir", "soir|matin|midi", "soir|midi|matin"};
  for (int colonne = 2; colonne < 5; ++colonne) {
    Liste().sortByColumn(colonne, Qt::AscendingOrder);
    EXPECT_EQ(Colonne(0).join(u'|').remove(u"garderie du "_s), QLatin1String(attendus[colonne])) << colonne;
  }
  Liste().setFocus();
  Ecran().Grille.ChoisirLigne(1);
  EXPECT_EQ(Texte("edCout"), u"0,0125"_s);
  EXPECT_EQ(Controle<QComboBox>("cmbTypeScan").currentText(), u"scanning à la sortie"_s);
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
  Taper("edHeureDebut", u"15h30"_s);
  Taper("edHeureFin", u"25:00"_s);
  Touche(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &Controle("edHeureFin")) << "the hand stays where the fault is";
  EXPECT_TRUE(TextesDe(Programme.Fenetre()).contains(u"« 25:00 » n'est pas une heure (hh:mm)."_s));
  EXPECT_EQ(Etat(), u"Non enregistré : « Heure de fin » : « 25:00 » n'est pas une heure (hh:mm).");
  Taper("edHeureFin", u"1630"_s);
  EXPECT_EQ(Etat(), QString()) << "it is typed anew";
  Controle<QLineEdit>("edCout").setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&Controle<QLineEdit>("edCout"), u"1"_s);
  QTest::keyClick(&Controle<QLineEdit>("edCout"), Qt::Key_Period, Qt::KeypadModifier);
  QTest::keyClicks(&Controle<QLineEdit>("edCout"), u"2375"_s);
  Touche(Qt::Key_F9);
  EXPECT_EQ(QApplication::focusWidget(), &Controle("edCout2eEnfant")) << "an empty price is a fault";
  EXPECT_EQ(Table().size(), 3);
  QTest::keyClicks(QApplication::focusWidget(), u"0"_s);
  Touche(Qt::Key_F9);
  EXPECT_EQ(Table().last(), u"4;6;15:30:00.000;1.2375;0.0000") << Table().last().toStdString();
  EXPECT_EQ(Etat(), u"Tarif enregistré : il ne coûtera rien, faute d'unité après le coût");
  EXPECT_EQ(Ecran().Courant()->TypeFamille, TTypeFamille::Etude);
  EXPECT_TRUE(Programme.Main().OutilActif(TOutil::btnNew));

  Touche(Qt::Key_F2);  // then the same key as another row
  Controle<QComboBox>("cmbTypeFamille").setFocus();
  for (int i = 0; i < 3; ++i) Touche(Qt::Key_Up);  // "garderie du matin"
  Taper("edHeureDebut", u"07:00"_s);
  Taper("edHeureFin", u"08:15"_s);
  Programme.Dialogues.Attend(u"UNIQ_TARIF_GARDERIE"_s);
  Touche(Qt::Key_F9);
  EXPECT_EQ(Ecran().Mode(), TModeEdition::Modification);
  EXPECT_EQ(Texte("edHeureDebut"), u"07:00"_s) << "what was typed stays";
  EXPECT_EQ(Ecran().Courant()->TypeFamille, TTypeFamille::Etude) << "memory is what the table holds";
  Touche(Qt::Key_Escape);
  EXPECT_EQ(Texte("edHeureDebut"), u"15:30"_s);
  Touche(Qt::Key_F2);
  Taper("edCout", u"2"_s);
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
  EXPECT_TRUE(TextesDe(Programme.Fenetre()).contains(u"Aucun tarif."_s));
  EXPECT_EQ(Texte("edCout"), QString());
  EXPECT_EQ(Outils(), QStringList{"Nouveau"});
}

TEST_F(Tarifs, DemandeAvantDAbandonner) {
  Liste().setFocus();
  Touche(Qt::Key_F2);
  Taper("edCout", u"7"_s);
  EXPECT_TRUE(TextesDe(Programme.Fenetre()).contains(u"Non enregistré · F9"_s));
  Programme.Dialogues.Repond(kAbandon, false);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  EXPECT_NE(Programme.Vue<VueListe>(), nullptr);
  Programme.Dialogues.Repond(kAbandon, false);
  Programme.Main().mnuAnneeClick(2017);
  EXPECT_EQ(Programme.Main().AnneeCochee(), 2016);
  Programme.Dialogues.Repond(kAbandon, false);
  Programme.Fenetre().close();
  EXPECT_TRUE(Programme.EstOuvert());
  EXPECT_EQ(Texte("edCout"), u"7,00"_s);
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
  choisir(u"Copier la ligne"_s);
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith(u"garderie du midi\ttous les jours\t12h00"_s));
  choisir(u"Coût"_s);
  EXPECT_EQ(Colonne(4).first(), u"0,0125\u00A0€");
  const QString fichier = Base.Chemin(u"tarifs.csv"_s);
  Programme.Dialogues.Fait(u"Exporter la liste"_s, [&](QWidget& dialogue) {
    dialogue.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(fichier);
    QTest::mouseClick(dialogue.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save),
                      Qt::LeftButton);
  });
  Programme.Dialogues.Attend(u"La liste est exportée :\n"_s + fichier);
  choisir(u"Exporter"_s);
  QFile csv(fichier);
  ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
  const QStringList lignes = QString::fromUtf8(csv.readAll()).split(u"\r\n"_s);
  EXPECT_EQ(lignes[1], u"garderie du soir;lundi, mardi, jeudi, vendredi;16:30;18:00;0,0125;à la demi-heure");
  choisir(u"Filtrer"_s);
  QTest::keyClicks(Vue().findChild<ChampFiltre*>(), u"matin"_s);
  EXPECT_EQ(Colonne(0), QStringList{u"garderie du matin"_s});
}

TEST(VueDeListe, RienNeManqueAuClavierNiALaVue) {
  TBaseEssai base;
  TEcoleEssai(base).tarif(1, 6, u"07:00"_s, u"08:00"_s, 1, u"1"_s, 1);
  TEcranEssai ecran(base);
  TFrmParametresGarderies form(ecran.Contexte);
  form.Montrer();
  VerifierVuePartout([&] { return std::make_unique<VueListe>(form, nullptr); });
  form.Modifier();
  form.Champs().Refuser(u"edCout"_s, u"« 1e3 » n'est pas un montant (par exemple 2,20)."_s);
  VerifierVuePartout([&] { return std::make_unique<VueListe>(form, nullptr); });
}
