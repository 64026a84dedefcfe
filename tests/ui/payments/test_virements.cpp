// The bank through the real window, by the keyboard: a file, whom its movements went to, and back.

#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

#include "screens/payments/frm_attribution_compte.h"
#include "screens/payments/frm_attribution_virement.h"
#include "screens/payments/frm_repartition.h"
#include "screens/payments/frm_virement.h"
#include "ui/payments/vue_repartition.h"
#include "ui/payments/vue_virement.h"
#include "ui/pupils/vue_signaletique.h"
#include "ui/reglages_essai.h"
#include "ui/vues_seules.h"

namespace {

const QString kAttribution = u"Attribution manuelle des paiements"_s;

/// Two pupils; a file of five movements, of which the first names its pupil.
class Virements : public TReglagesEssai {
 protected:
  void SetUp() override {
    Ecole.unEleve().nomme(u"LAMBERT"_s, u"Élise"_s).enClasse(u"P3"_s, u"A"_s);
    Ecole.unEleve().nomme(u"DUPONT"_s, u"Zoé"_s).enClasse(u"P1"_s, u"A"_s);
    QByteArray lignes = QByteArray(";\n").repeated(13);
    for (const char* ligne : {"A;;;;;10,00;;;;+++000/0110/16104+++", "B;;;;;11,00;;;;b", "C;;;;;12,00;;;;c",
                              "D;;;;;13,00;;;;d", "E;;;;;14,00;;;;e"})
      lignes += QByteArray("x;05/10/2016;;;BE68;") + ligne + '\n';
    Fichier = Base.Fichier(u"releve.csv"_s, lignes);
    Programme.Demarrer();
    Alt(Qt::Key_V, [this] { return Programme.Vue<VueVirement>() != nullptr; });
  }
  /// A mnemonic presses its button a moment later.
  void Alt(Qt::Key touche, const std::function<bool()>& fait) {
    Touche(touche, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor(fait));
  }
  void Touche(Qt::Key touche, Qt::KeyboardModifiers avec = {}) {
    TReglagesEssai::Touche(touche, avec);
    Activer();
  }
  /// The entry of the context menu of the history.
  void Menu(const QString& entree) {
    QTimer::singleShot(0, [entree] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      for (QAction* action : menu->actions())
        if (action->text() == entree) menu->setActiveAction(action);
      QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent demande(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&Nomme<VueGrille>(u"Mouvements de l'année"_s), &demande);
    Activer();  // a menu leaves none
  }
  TFrmVirement& Form() { return TReglagesEssai::Form<TFrmVirement>(); }
  QStringList Credits() {
    return Base.Rangees(
        u"SELECT ELEVE_ID, DONNEUR_ORDRE FROM FRAIS_ELEVE JOIN EXTRAITS USING (EXTRAIT_ID) ORDER BY 2"_s);
  }

  QString Fichier;
};

}  // namespace

TEST_F(Virements, FromTheFileToTheRecordAndBack) {
  QAbstractButton* etape1 = BoutonDe(Programme.Fenetre(), u"Etape n°1 : Importer vos virements"_s);
  Touche(Qt::Key_F6);
  for (int pas = 0; pas < 5 && QApplication::focusWidget() != etape1; ++pas) Touche(Qt::Key_Tab);
  Programme.Dialogues.Fait(u"Importer vos virements"_s, [this](QWidget& dialogue) {
    dialogue.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(Fichier);
    QTest::keyClick(dialogue.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open), Qt::Key_Space);
  });
  Touche(Qt::Key_Space);
  Touche(Qt::Key_Space);  // the hand is on step 2
  ASSERT_EQ(Credits(), QStringList{u"1;A"_s});
  EXPECT_TRUE(Dit(u"4 mouvements sont inconnus."_s));

  Touche(Qt::Key_Tab, Qt::ControlModifier);
  Alt(Qt::Key_C, [this] { return Form().Historique.NombreLignes() == 4; });  // the unknown ones are left
  auto& liste = Nomme<VueGrille>(u"Mouvements de l'année"_s);
  EXPECT_TRUE(liste.hasFocus() && Form().Historique.LigneCourante() == 0) << "the hand stays in the list";
  liste.sortByColumn(TFrmVirement::Donneur, Qt::DescendingOrder);
  Touche(Qt::Key_Home);
  Programme.Dialogues.Fait(kAttribution, [](QWidget& dialogue) {
    QApplication::setActiveWindow(&dialogue);
    const auto touche = [&](Qt::Key cle) { QTest::keyClick(dialogue.focusWidget(), cle); };
    const auto taper = [&](const QString& nom) {
      QTest::keyClicks(dialogue.focusWidget(), nom);
      touche(Qt::Key_Return);
    };
    EXPECT_TRUE(TextesDe(dialogue).contains(u"\nE\n")) << "the first one on the screen";
    taper(u"du"_s);
    EXPECT_TRUE(TextesDe(dialogue).contains(u"\nD\n")) << "and the next one";
    touche(Qt::Key_PageUp);
    EXPECT_TRUE(TextesDe(dialogue).contains(u"Comptabilisé"));
    touche(Qt::Key_PageDown);
    taper(u"lamb"_s);
    touche(Qt::Key_Escape);
  });
  Touche(Qt::Key_Return);
  ASSERT_EQ(Credits(), (QStringList{u"1;A"_s, u"1;D"_s, u"2;E"_s}));
  EXPECT_TRUE(liste.hasFocus());
  EXPECT_TRUE(Dit(u"Total de mouvements inconnus : 2"_s));

  Form().Historique.ChoisirLigne(0);
  Menu(u"Compte responsable 2"_s);
  Menu(u"Cacher le mouvement"_s);
  Menu(u"Attribuer à l'année scolaire précédente"_s);
  EXPECT_EQ(Base.Rangees(u"SELECT DONNEUR_ORDRE, FLG_IGNORE, TYPE_RESPONSABLE, ANNEE_SCOLAIRE FROM EXTRAITS "
                         "WHERE DONNEUR_ORDRE IN ('B', 'C') ORDER BY 1"_s),
            (QStringList{"B;1;2;2016", "C;-;0;2015"}));

  // On the record: the account of one of two payers, and the payment of the other taken back.
  Touche(Qt::Key_F3);
  QTest::keyClicks(QApplication::focusWidget(), u"lamb"_s);
  Alt(Qt::Key_L, [this] { return Programme.Vue<VueSignaletique>() != nullptr; });
  Nomme<QAbstractButton>(u"Comptes vus sur les virements"_s).setFocus();
  Programme.Dialogues.Fait(u"Attribution de compte bancaire sur base des virements"_s, [](QWidget& dialogue) {
    QTest::keyClick(dialogue.focusWidget(), Qt::Key_Down);
    QTest::keyClick(dialogue.focusWidget(), Qt::Key_Return);
  });
  Touche(Qt::Key_Space);
  EXPECT_EQ(Base.Valeur(u"SELECT NOM_TITULAIRE_COMPTE FROM ELEVES WHERE ELEVE_ID = 1"_s), u"D");
  auto& frais = Nomme<VueGrille>(u"Frais et paiements"_s);
  frais.Grille().ChoisirLigne(0);
  frais.setFocus();
  Programme.Dialogues.Repond(u"Confirmez-vous la suppression du paiement de 10,00 euros"_s, true);
  Touche(Qt::Key_Delete);
  Alt(Qt::Key_V, [this] { return Programme.Vue<VueVirement>() != nullptr; });
  EXPECT_EQ(Form().Historique.Textes(0).last(), u"Inconnu") << "nobody has it any more";
}

TEST_F(TVuesSeules, TheBankIsWithinReach) {
  TFrmVirement form(ecran->Contexte);
  form.Montrer();
  for (int page = 0; page < 3; ++page)
    VerifierVuePartout([&] {
      auto vue = std::make_unique<VueVirement>(form, nullptr);
      vue->findChild<QTabWidget*>()->setCurrentIndex(page);
      return vue;
    });
  const QByteArray lignes = QByteArray(";\n").repeated(13) + "x;05/10/2016;;;BE68;A;;;;;10,00;EUR;;;a\n";
  base.Dialogues.Saisit(u"Importer"_s, base.Fichier(u"r.csv"_s, lignes));
  form.btnEtape1Click();
  form.btnEtape2Click();
  VerifierForme(form);
  form.Historique.ChoisirLigne(0);
  TFrmAttributionVirement attribution(ecran->Contexte, form);
  VerifierForme(attribution);
  const std::vector<TProposition> aucune;
  TFrmRepartition parts(ecran->Contexte, *ecran->Essai.Controleur.Extraits().begin(), {}, aucune);
  parts.Ajouter(*Globals.Eleves->Tous().front());
  VerifierForme(parts);
  VueRepartition partage(parts, nullptr);
  partage.show();
  partage.activateWindow();
  QTest::keyClick(partage.focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(partage.focusWidget(), BoutonDe(partage, u"Retirer"_s));
  QTest::keyClick(partage.focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(partage.focusWidget(), partage.findChild<QWidget*>(u"edPart"_s)) << "not left onto the button";
  TFrmAttributionCompte compte(base.Dialogues, {u"BE11"_s, u"BE22"_s}, {u"A"_s, u"B"_s});
  VerifierForme(compte);
}
