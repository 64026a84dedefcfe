// The lists of fees and of activities, worked by keyboard and read back.
#include <QScrollBar>
#include <QTreeWidget>

#include "screens/services/frm_activites.h"
#include "screens/services/frm_liste_frais.h"
#include "ui/commun/vue_liste.h"
#include "ui/reglages_essai.h"
#include "ui/services/arbre_coches.h"
#include "ui/services/vue_liste_frais.h"
#include "workflows/professeurs.h"

namespace {

/// A class of four pupils, the last struck off; another of one.
class ListesServices : public TReglagesEssai {
 protected:
  void SetUp() override {
    for (int i = 1; i < 5; ++i) Ecole.unEleve().enClasse("P1", "A");
    TEleveEssai(Ecole, 4).avec("FLG_RADIE");
    Ecole.unEleve().enClasse("P2", "A");
    Ecole.unEleve().enClasse("PROFESSEURS", "");  // no part of "Toute l'école"
  }
  ArbreCoches& Arbre() {
    for (ArbreCoches* arbre : Programme.Fenetre().findChildren<ArbreCoches*>())
      if (arbre->isVisible()) return *arbre;
    throw std::runtime_error("no tree");
  }
  /// The texts from the root down: "P1 A", "Eleve1 Prenom1".
  void CocherNoeud(const QString& texte) {
    ArbreCoches& arbre = Arbre();
    const auto trouves = arbre.findItems(texte, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(trouves.size(), 1) << texte.toStdString();
    arbre.setCurrentItem(trouves.front());
    Aller(arbre);
    QTest::keyClick(&arbre, Qt::Key_Space);
  }
  QString EtatNoeud(const QString& texte) {
    return Arbre().findItems(texte, Qt::MatchExactly | Qt::MatchRecursive).front()->text(1);
  }
  /// A fee of October for the whole school in the panel, not stored.
  void RemplirPiscine() {
    Touche(Qt::Key_F7);
    QTest::keyClicks(QApplication::focusWidget(), "Piscine");
    Taper("edMontant", "10");
    Choisir("cmbMois", 1);
    Choisir("cmbConcerne", 0);
  }
  QStringList Lignes() {
    return Base.Rangees("SELECT ELEVE_ID, MONTANT_VERSE FROM FRAIS_ELEVE ORDER BY ELEVE_ID");
  }
};

}  // namespace

TEST_F(ListesServices, ActivitiesAreKeptAndDeleted) {
  Demarrer(TGestionnaire::btnActivitesClick);
  Touche(Qt::Key_F7);
  EXPECT_EQ(Controle<QLineEdit>("edDateDebut").text(), "03/10/2016") << "today";
  EXPECT_EQ(QApplication::focusWidget(), &Controle("edLibelle"));
  QTest::keyClicks(QApplication::focusWidget(), QString(300, 'x'));
  EXPECT_EQ(Controle<QLineEdit>("edLibelle").text().size(), 250) << "no more than the column takes";
  Saisir("edLibelle", "Judo");
  for (const auto& [champ, texte] : {std::pair("edDateDebut", "31/02/2017"), std::pair("edHeureFin", "25:00"),
                                     std::pair("edHeureDebut", "  "), std::pair("edDateFin", "")}) {
    const QString avant = Controle<QLineEdit>(champ).text();
    Taper(champ, texte);
    Touche(Qt::Key_F9);
    EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM ACTIVITES"), "0") << champ;
    EXPECT_TRUE(Etat().startsWith("Non enregistré")) << champ << ' ' << Etat().toStdString();
    EXPECT_EQ(Form<TFrmActivites>().Mode(), TModeEdition::Nouveau);
    Taper(champ, avant.isEmpty() ? QString("16:00") : avant);
  }
  Taper("edDateFin", "01/09/2016");  // before the start, which nothing forbids
  Taper("edHeureDebut", "16:00");
  Taper("edHeureFin", "17:30");
  Touche(Qt::Key_F9);
  const QString tout =
      "SELECT LIBELLE, ANNEE_SCOLAIRE, DATE_DEBUT, DATE_FIN, HEURE_DEBUT, HEURE_FIN FROM ACTIVITES";
  EXPECT_EQ(Base.Rangees(tout), QStringList("Judo;2016;2016-10-03;2016-09-01;16:00:00.000;17:30:00.000"));
  Touche(Qt::Key_F2);
  Taper("edLibelle", "Judo petits");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Base.Valeur("SELECT LIBELLE FROM ACTIVITES"), "Judo petits");
  const int cle = Base.Valeur("SELECT ACTIVITE_ID FROM ACTIVITES").toInt();
  TEleveEssai(Ecole, 1).suit(cle, "1");

  Programme.Dialogues.Repond("Les montants des garderies seront recalculés chez tous les élèves.", false)
      .Repond("Voulez-vous supprimer cette activité ?", true);
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM ACTIVITES"), "0");
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM ACTIVITES_ELEVES"), "1") << "who followed it stays";
  Touche(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Base.Valeur("SELECT LIBELLE FROM ACTIVITES"), "Judo petits");
  EXPECT_EQ(Base.Valeur(
                "SELECT COUNT(*) FROM ACTIVITES_ELEVES E JOIN ACTIVITES A ON A.ACTIVITE_ID = E.ACTIVITE_ID"),
            "1")
      << "and follows the one that is back";
}

TEST_F(ListesServices, AFeeGivenToAClassChangedAndDeleted) {
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  Touche(Qt::Key_F7);
  QTest::keyClicks(QApplication::focusWidget(), "Piscine");
  Taper("edMontant", "12,5");
  Touche(Qt::Key_F9);
  EXPECT_TRUE(Etat().contains("Un mois d'imputation est obligatoire.")) << Etat().toStdString();
  EXPECT_TRUE(Controle("cmbMois").hasFocus());
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM LISTE_FRAIS"), "0");
  Choisir("cmbMois", 2);
  EXPECT_EQ(Etat(), "") << "what was wrong is right now";
  Cocher("cbService");
  // Three have paid already, the fourth has not.
  CocherNoeud("Eleve4 Prenom4");
  Cliquer("Mode frais non payés");
  CocherNoeud("P2 A");
  Cliquer("Mode frais déjà payés");
  EXPECT_EQ(EtatNoeud("Eleve5 Prenom5"), "") << "nothing is stored of it";
  CocherNoeud("P2 A");
  Cliquer("Mode frais non payés");
  for (int i = 1; i < 4; ++i) CocherNoeud(u"Eleve%1 Prenom%1"_s.arg(i));
  EXPECT_EQ(EtatNoeud("Eleve1 Prenom1"), "payé");
  for (const char* texte : {"12..5", "1e3", "2.20", ""}) {
    Taper("edMontant", texte);
    Touche(Qt::Key_F9);
    EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM LISTE_FRAIS"), "0") << texte;
  }
  Taper("edMontant", "0,0125");
  Touche(Qt::Key_F9);
  EXPECT_EQ(
      Base.Rangees("SELECT LIBELLE, COUT, MOIS, TYPE_FRAIS, FLG_SERVICE, ANNEE_SCOLAIRE FROM LISTE_FRAIS"),
      QStringList("Piscine;0.0125;10;2;1;2016"));
  EXPECT_EQ(Lignes(), (QStringList{"1;0.0125", "2;0.0125", "3;0.0125", "4;0.0000"})) << "the struck off too";
  auto& form = Form<TFrmListeFrais>();
  EXPECT_EQ(form.Grille.Texte(0, 3), "4 élèves");

  Touche(Qt::Key_F2);
  CocherNoeud("Eleve4 Prenom4");
  Choisir("cmbConcerne", 1);  // past the whole school, which a choice alone does not tick
  Cliquer("Mode frais déjà payés");
  CocherNoeud("P2 A");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Lignes(), (QStringList{"1;0.0125", "2;0.0125", "3;0.0125", "5;0.0000"}));
  EXPECT_EQ(form.Mode(), TModeEdition::Lecture);

  Programme.Dialogues.Repond("Le montant de ce frais sera supprimé chez tous les élèves concerné.", true);
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Lignes(), QStringList());
  EXPECT_EQ(form.Grille.NombreLignes(), 0);
  Touche(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Lignes(), (QStringList{"1;0.0125", "2;0.0125", "3;0.0125", "5;0.0000"}));
  EXPECT_EQ(form.Grille.Texte(0, 3), "4 élèves");
}

TEST_F(ListesServices, AFeeRefusedHalfWayIsNotMadeTwice) {
  Base.Sql(
      "CREATE TRIGGER REFUS FOR FRAIS_ELEVE BEFORE INSERT AS BEGIN IF (NEW.ELEVE_ID = 3) THEN "
      "NEW.ELEVE_ID = NULL; END");
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  RemplirPiscine();
  CocherNoeud("Toute l'école");
  EXPECT_TRUE(Dit("5 élèves"));
  Programme.Dialogues.Ferme("ELEVE_ID");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Lignes(), (QStringList{"1;0.0000", "2;0.0000"})) << "what was stored stays";
  Base.Sql("DROP TRIGGER REFUS");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM LISTE_FRAIS"), "1");
  const QStringList toutes = Lignes();
  EXPECT_EQ(toutes.size(), 5);
  Base.Sql(
      "CREATE TRIGGER REFUS FOR FRAIS_ELEVE BEFORE DELETE AS DECLARE X INTEGER; BEGIN IF (OLD.ELEVE_ID = 3) "
      "THEN X = 1 / 0; END");
  Programme.Dialogues.Repond("Voulez-vous supprimer ce frais ?", true).Ferme("zero");
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Lignes(), toutes) << "those who were done have it again";
  EXPECT_TRUE(Dit("5 élèves"));
  Base.Sql("DROP TRIGGER REFUS");
  // A fee for the school of former times keeps its lines, so it cannot go.
  Base.Sql("UPDATE LISTE_FRAIS SET TYPE_FRAIS = 0");
  Programme.Main().mnuAnneeClick(2016);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton16Click);
  Programme.Dialogues.Repond("Voulez-vous supprimer ce frais ?", true).Ferme("FK_LISTE_FRAIS");
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Lignes().size(), 5);
  EXPECT_EQ(Form<TFrmListeFrais>().Grille.NombreLignes(), 1) << "it is back";
}

TEST_F(ListesServices, NothingElseBeginsWhileAFeeIsStoredOrDeleted) {
  Ecole.frais("Bus", "5", 10);
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  RemplirPiscine();
  Cliquer("Mode frais non payés");
  CocherNoeud("Toute l'école");
  int fois = 0;
  const TLien lien = Programme.Tout().Dialogues.SurProgression.Suivre([&](int, int total, const QString&) {
    if (total == 0) return;
    ++fois;
    for (const Qt::Key touche : {Qt::Key_Escape, Qt::Key_F2, Qt::Key_Return, Qt::Key_Space}) Touche(touche);
    for (const Qt::Key touche : {Qt::Key_Delete, Qt::Key_Z}) Touche(touche, Qt::ControlModifier);
  });
  Touche(Qt::Key_F9);
  EXPECT_EQ(fois, 5);
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM FRAIS_ELEVE WHERE MONTANT_VERSE = 10"), "5");
  Programme.Dialogues.Repond("Voulez-vous supprimer ce frais ?", true);
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(fois, 10);
  EXPECT_EQ(Lignes(), QStringList());
  EXPECT_EQ(Base.Valeur("SELECT LIBELLE FROM LISTE_FRAIS"), "Bus");
  EXPECT_EQ(Form<TFrmListeFrais>().Mode(), TModeEdition::Lecture);
}

// The user is told that no key could be had; nothing is said to be stored, and no pupil pays it.
TEST_F(ListesServices, ARowWithoutKeyIsRefused) {
  Base.Sql("DELETE FROM COUNTERS WHERE TABLE_NAME IN ('LISTE_FRAIS', 'ACTIVITES')");
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  RemplirPiscine();
  CocherNoeud("Toute l'école");
  const auto refuse = [this] {
    Programme.Dialogues.Attend("Le compteur de table").Attend("Aucun numéro n'a pu être donné");
    Touche(Qt::Key_F9);
    EXPECT_TRUE(Etat().startsWith("Non enregistré")) << Etat().toStdString();
  };
  refuse();
  EXPECT_EQ(Lignes(), QStringList());
  EXPECT_EQ(Form<TFrmListeFrais>().Grille.NombreLignes(), 0);
  Touche(Qt::Key_Escape);
  Programme.Ouvrir(TGestionnaire::btnActivitesClick);
  Touche(Qt::Key_F7);
  for (const auto& [champ, texte] :
       {std::pair("edLibelle", "Judo"), std::pair("edHeureDebut", "16:00"), std::pair("edHeureFin", "17:00")})
    Taper(champ, texte);
  refuse();
  EXPECT_EQ(Form<TFrmActivites>().Grille.NombreLignes(), 0);
  Touche(Qt::Key_Escape);
}

TEST_F(ListesServices, ATeacherWhoGoesLeavesNoScreenThatHoldsHim) {
  const int cle = 6;
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  Programme.Main().Arbre.Selectionner(Programme.Main().Arbre.TrouverObjet(Globals.Eleves->TrouverParId(cle)));
  Programme.Dialogues.Repond("supprimer définitivement ce professeurs", true);
  Programme.Main().Supprimerunprofesseur1Click();
  EXPECT_EQ(Programme.Main().Panneau.Courante(), nullptr);
  EXPECT_EQ(Globals.Eleves->TrouverParId(cle), nullptr);
}

TEST_F(ListesServices, ATeacherIsStoredWithHisEnrolmentOrNotAtAll) {
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  TProfesseurs professeurs(Programme.Main().Controleur);
  const QString lui =
      "SELECT C.CLASSE, E.MATRICULE FROM ELEVES E LEFT JOIN ELEVES_CLASSES C ON C.ELEVE_ID = E.ELEVE_ID "
      "WHERE "
      "E.NOM = 'Dupont'";
  Base.Sql(
      "CREATE TRIGGER REFUS FOR ELEVES_CLASSES BEFORE INSERT AS DECLARE X INTEGER; BEGIN X = 1 / 0; END");
  const int avant = Globals.Eleves->Count();
  EXPECT_THROW(professeurs.Ajouter("Dupont", "Luc"), Exception);
  EXPECT_EQ(Base.Rangees(lui), QStringList());
  Base.Sql("DROP TRIGGER REFUS");
  Base.Sql("DELETE FROM COUNTERS WHERE TABLE_NAME = 'ELEVES_CLASSES'");
  Programme.Dialogues.Attend("Le compteur de table");
  EXPECT_THROW(professeurs.Ajouter("Dupont", "Luc"), Exception);
  EXPECT_EQ(Base.Rangees(lui), QStringList());
  EXPECT_EQ(Globals.Eleves->Count(), avant);
  Base.Sql("INSERT INTO COUNTERS VALUES ('ELEVES_CLASSES', 100)");
  EXPECT_EQ(professeurs.Ajouter("Dupont", "Luc"), "Dupont Luc");
  EXPECT_EQ(Base.Rangees(lui).size(), 1);
  EXPECT_TRUE(Base.Rangees(lui).value(0).startsWith("PROFESSEURS;000"))
      << Base.Rangees(lui).join(' ').toStdString();
}

TEST_F(ListesServices, NothingScrollsSidewaysInTheSmallestWindow) {
  using namespace Essai;
  Ecole.tarif(Soir, LundiMardiJeudiVendredi, "16:30", "18:00", DemiHeure, "0.0125", ScanSortie, "0.4");
  Ecole.tarif(Mercredi, 3, "12:30", "18:00", Forfait, "3", ScanPresence);
  Ecole.frais("Fournitures de la section maternelle, premier trimestre", "1015", 9);
  Ecole.activite("16:00", "17:00");
  Programme.Demarrer();
  Programme.Fenetre().resize(960, 540);
  for (const TGestionnaire ecran : {TGestionnaire::AdvGlowButton5Click, TGestionnaire::AdvGlowButton16Click,
                                    TGestionnaire::btnActivitesClick}) {
    Programme.Ouvrir(ecran);
    Touche(Qt::Key_F2);
    QTest::qWait(0);
    auto& vue = *Programme.Vue<VueListe>();
    auto& liste = *vue.findChild<VueGrille*>();
    EXPECT_EQ(vue.horizontalScrollBar()->maximum(), 0) << static_cast<int>(ecran);
    EXPECT_EQ(liste.horizontalScrollBar()->maximum(), 0) << static_cast<int>(ecran);
    EXPECT_GE(liste.height(), liste.HauteurPour(4)) << static_cast<int>(ecran);
    Touche(Qt::Key_Escape);
  }
}

TEST_F(ListesServices, NothingIsMissedByKeyboardOrReader) {
  Ecole.frais("Piscine", "10", 10);
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  VerifierVuePartout([this] { return std::make_unique<VueListeFrais>(Form<TFrmListeFrais>(), nullptr); });
  Programme.Ouvrir(TGestionnaire::btnActivitesClick);
  VerifierVuePartout([this] { return std::make_unique<VueListe>(Form<TFrmActivites>(), nullptr); });
}
