#include <QPrinter>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>

#include "screens/documents/frm_manques.h"
#include "screens/payments/frm_date_paiement.h"
#include "support/outil.h"
#include "support/refus.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/saisie.h"
#include "ui/commun/vue_dialogue.h"
#include "ui/documents/dialogue_papier.h"
#include "ui/documents/impression.h"
#include "ui/documents/pages_apercu.h"
#include "ui/documents/vue_apercu.h"
#include "ui/documents/vue_manques.h"
#include "ui/documents/vue_print_wizard.h"
#include "ui/reglages_essai.h"

namespace {

struct TModaleGeste : IFenetreModale {
  TResultatModal MontrerModal(TForm&) override {
    Geste();
    return TResultatModal::Annule;
  }
  std::function<void()> Geste;
};

/// Two pupils in "P1 A", one in "P2 A", each with a fee of October.
class DocumentsVues : public TReglagesEssai {
 protected:
  void SetUp() override {
    const int frais = Ecole.frais(u"Classes de mer"_s, u"185"_s, 10);
    for (const auto& [nom, classe] : {std::pair("Adam", "P1"), {"Bastin", "P1"}, {"Pirard", "P2"}})
      Ecole.unEleve().nomme(nom, u"Élise"_s).enClasse(classe, u"A"_s).doit(frais);
    Programme.Demarrer();
  }
  TRapport Factures() {
    TChoixDocument choix;
    choix.DateDebut = J("2016-10-01");
    choix.DateFin = J("2016-10-31");
    choix.Eleves = Globals.Eleves->Tous();
    TResultat resultat =
        FaireDocument(ContexteDesGlobals(Programme.Horloge), *TrouverTitre(u"Facture"), choix);
    return std::move(resultat.Rapports.at(0));
  }
  TContexteApercu Contexte() {
    return {Programme.Tout().Dialogues, Programme.Tout().Reglages, Programme.Horloge};
  }
  /// A radio button, by its own words.
  static void ChoisirBouton(QWidget& fenetre, const QString& texte) {
    QAbstractButton* bouton = BoutonDe(fenetre, texte);
    ASSERT_NE(bouton, nullptr) << texte.toStdString();
    QTest::mouseClick(bouton, Qt::LeftButton, {}, {12, bouton->height() / 2});
  }
  static QString Texte(const QString& pdf) { return Sortie(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s}); }
};

}  // namespace

TEST_F(DocumentsVues, AnInvoiceByClassAndMonthFromTheKeyboard) {
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  Programme.Dialogues.Fait(u"Assistant d'impression"_s, [this](QWidget& fenetre) {
    QApplication::setActiveWindow(&fenetre);
    EXPECT_TRUE(Programme.EstIci(u"Etiquettes d'identification 89mm x 36mm (Etiquette Dymo 99012)"_s));
    for (int i = 0; i < 6; ++i) Programme.Presser({Qt::Key_Down});
    EXPECT_TRUE(Programme.EstIci(u"Facture"_s));
    Programme.Presser({Qt::Key_Return});
    EXPECT_TRUE(TextesDe(fenetre).contains(u"le ou les élèves"_s));
    EXPECT_TRUE(Programme.EstIci(u"Les élèves suivants:"_s)) << "nobody is selected in the tree";
    Programme.Jusqu(u"Les classes suivantes:"_s, Qt::Key_Right);
    Programme.Jusqu(u"Classes"_s, Qt::Key_Tab);
    Programme.Presser({Qt::Key_Home, Qt::Key_Space});
    EXPECT_TRUE(TextesDe(fenetre).contains(u"1 classe, 2 élèves"_s));
    Programme.Presser({Qt::Key_Return});
    EXPECT_TRUE(TextesDe(fenetre).contains(u"octobre 2016"_s)) << "today's month";
    EXPECT_TRUE(Programme.EstIci(u"Mois"_s));
    Programme.Presser({Qt::Key_Return});
  });
  Programme.Dialogues.Fait(u"Aperçu"_s, [this](QWidget& fenetre) {
    QApplication::setActiveWindow(&fenetre);
    auto& vue = dynamic_cast<VueApercu&>(fenetre);
    QTRY_VERIFY(TextesDe(fenetre).contains(u"2 pages prêtes"_s) && !TextesDe(fenetre).contains(u'…'));
    auto* zoom = fenetre.findChild<QComboBox*>();
    Programme.Presser({Qt::CTRL | Qt::Key_Plus});
    EXPECT_EQ(zoom->currentText(), u"125 %"_s);
    Programme.Presser({Qt::CTRL | Qt::Key_0});
    EXPECT_EQ(zoom->currentText(), u"100 %"_s);
    EXPECT_TRUE(vue.Pages()->hasFocus());
    Programme.Presser({Qt::CTRL | Qt::Key_F});
    QTest::keyClicks(fenetre.focusWidget(), u"bastin"_s);
    EXPECT_TRUE(TextesDe(fenetre).contains(u"1 sur "_s)) << TextesDe(fenetre).toStdString();
    EXPECT_EQ(fenetre.findChild<QTreeWidget*>()->currentItem()->text(0), u"Bastin Élise"_s);
    Programme.Presser({Qt::Key_Escape});
    EXPECT_TRUE(fenetre.isVisible()) << "Escape empties the field first";
    Programme.Presser({Qt::Key_Escape});
    EXPECT_FALSE(fenetre.isVisible());
  });
  Programme.Main().OutilClick(TOutil::btnPrint);
}

// Who is not in the year on display is listed too, and the way to the record changes the year.
TEST_F(DocumentsVues, WhatIsMissingOfWhoHasLeftLeadsToTheYearOfTheRecord) {
  TEcoleEssai avant(Programme.Base, 2015);
  avant.tarif(Essai::Matin, Essai::TousLesJours, u"07:00"_s, u"08:00"_s, Essai::Forfait, u"1"_s,
              Essai::ScanPresence);
  TEleveEssai parti = avant.unEleve().nomme(u"Parti"_s, u"Rui"_s).enClasse(u"P6"_s, u"A"_s);
  parti.scan(Essai::Garderie, u"2016-03-07"_s, u"07:30"_s).mois(3, u"1"_s);
  Globals.TarifsGarderies = std::make_unique<TTarifsGarderies>(*Programme.Base);
  Programme.Main().mnuAnneeClick(2016);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  Programme.Dialogues.Fait(u"Assistant d'impression"_s, [this](QWidget& fenetre) {
    QApplication::setActiveWindow(&fenetre);
    ChoisirBouton(fenetre, u"Fiche fiscale 281.86"_s);
    ::Cliquer(fenetre, u"Suivant >"_s);
    ChoisirBouton(fenetre, u"Les élèves suivants:"_s);
    ::Cliquer(fenetre, u"Tout sélectionner"_s);
    ::Cliquer(fenetre, u"Suivant >"_s);
    EXPECT_TRUE(Programme.EstIci(u"Année des revenus"_s));
    for (const QString& dit : {u"Compris aussi : 1 élève de 2015 - 2016"_s, u"revenus de 2016"_s})
      EXPECT_TRUE(TextesDe(fenetre).contains(dit)) << TextesDe(fenetre).toStdString();
    EXPECT_EQ(BoutonDe(fenetre, u"Le mois de :"_s), nullptr) << "it takes no period";
    ::Cliquer(fenetre, u"Imprimer"_s);
  });
  Programme.Dialogues.Fait(u"Ce qui manque"_s,
                           [](QWidget& fenetre) { ::Cliquer(fenetre, u"Aller à la fiche"_s); });
  Programme.Main().OutilClick(TOutil::btnPrint);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2015);
  ASSERT_NE(Globals.EleveCourant, nullptr);
  EXPECT_EQ(Globals.EleveCourant->Id, parti.Id);
  EXPECT_EQ(Programme.Main().Etat().Texte, u"Année 2015 - 2016, celle de Parti Rui");
}

TEST_F(DocumentsVues, WizardWithoutPeriodAndItsRefusals) {
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  Programme.Dialogues.Fait(u"Assistant d'impression"_s, [](QWidget& fenetre) {
    ::Cliquer(fenetre, u"Suivant >"_s);
    EXPECT_EQ(BoutonDe(fenetre, u"Suivant >"_s), nullptr) << "labels take no period";
    ::Cliquer(fenetre, u"< Précédent"_s);
    ChoisirBouton(fenetre, u"Facture"_s);
    ::Cliquer(fenetre, u"Suivant >"_s);
    ::Cliquer(fenetre, u"Tout sélectionner"_s);
    ::Cliquer(fenetre, u"Suivant >"_s);
    ChoisirBouton(fenetre, u"La période du :"_s);
    auto* date = fenetre.findChildren<SaisieDate*>().at(1);
    date->setFocus();
    date->selectAll();
    QTest::keyClicks(date, u"31/02/2017"_s);
    ::Cliquer(fenetre, u"Imprimer"_s);
    EXPECT_TRUE(TextesDe(fenetre).contains(u"La date introduite est incorrecte."_s));
    EXPECT_EQ(date->text(), u"31/02/2017"_s);
    ChoisirBouton(fenetre, u"Le mois de :"_s);
    EXPECT_FALSE(TextesDe(fenetre).contains(u"incorrecte"_s)) << "no matter any more";
    ::Cliquer(fenetre, u"< Précédent"_s);
    ::Cliquer(fenetre, u"Ne rien sélectionner"_s);
    QTimer::singleShot(0, &fenetre, [&fenetre] { ::Cliquer(fenetre, u"Suivant >"_s); });
  });
  Programme.Dialogues.Attend(u"Aucun élève n'a été sélectionné !"_s);
  Programme.Dialogues.Fait(u"Assistant d'impression"_s, [this](QWidget& fenetre) {
    EXPECT_TRUE(Programme.EstIci(u"Élèves"_s));
    QTest::keyClicks(fenetre.findChild<ChampFiltre*>(), u"pirard"_s);
    ::Cliquer(fenetre, u"Tout sélectionner"_s);
    EXPECT_TRUE(TextesDe(fenetre).contains(u"1 élève"_s)) << "the filter holds";
    Programme.Presser({Qt::Key_Escape});
  });
  Programme.Main().OutilClick(TOutil::btnPrint);
}

TEST_F(DocumentsVues, PrintedPagesReadBack) {
  const TRapport rapport = Factures();
  TFrmApercu form(Contexte(), rapport);
  form.Terminer();
  // By the painter, as a printer gets them.
  QPrinter imprimante(QPrinter::ScreenResolution);
  imprimante.setOutputFormat(QPrinter::PdfFormat);
  imprimante.setOutputFileName(Programme.Base.Chemin(u"peint.pdf"_s));
  PeindreSurImprimante(form.Document(), imprimante);
  const QString lu = Sortie(u"pdfinfo"_s, {imprimante.outputFileName()}).simplified();
  EXPECT_TRUE(lu.contains(u"Pages: 3 "_s) && lu.contains(u"A4"_s)) << lu.toStdString();

  // To a file: the range that was asked for.
  imprimante.setOutputFileName(Programme.Base.Chemin(u"plage.pdf"_s));
  imprimante.setPrintRange(QPrinter::PageRange);
  imprimante.setFromTo(2, 9);
  imprimante.setPageOrder(QPrinter::LastPageFirst);
  Imprimer(form.Document(), imprimante);
  const QStringList pages = Texte(imprimante.outputFileName()).split(u'\f', Qt::SkipEmptyParts);
  ASSERT_EQ(pages.size(), 2);
  EXPECT_TRUE(pages[0].contains(u"Pirard"_s) && pages[1].contains(u"Bastin"_s));

  imprimante.setOutputFileName(Programme.Base.Chemin(u"absent/plage.pdf"_s));
  EXPECT_ANY_THROW(Imprimer(form.Document(), imprimante));
}

TEST_F(DocumentsVues, SentToCups) {
  const TRapport rapport = Factures();
  TFrmApercu form(Contexte(), rapport);
  form.Terminer();
  const QString lp = Programme.Base.Fichier(
      u"lp"_s,
      "#!/bin/sh\ncd \"$(dirname \"$0\")\"\necho \"$@\" > demande.txt\ncat > recu.pdf\n"
      "[ ! -e refus ] || { echo 'papier vide' >&2; exit 1; }\n");
  QFile::setPermissions(lp, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  const QByteArray chemin = qgetenv("PATH");
  qputenv("PATH", QFileInfo(lp).path().toLocal8Bit() + ':' + chemin);
  QPrinter imprimante;
  imprimante.setOutputFormat(QPrinter::NativeFormat);
  imprimante.setOutputFileName({});
  imprimante.setCopyCount(2);
  imprimante.setPrintRange(QPrinter::PageRange);
  imprimante.setFromTo(1, 2);
  Imprimer(form.Document(), imprimante);
  const QString arguments = LireFichier(Programme.Base.Chemin(u"demande.txt"_s));
  EXPECT_TRUE(arguments.contains(u"-n 2 "_s) && arguments.contains(u"media=A4"_s)) << arguments.toStdString();
  const QString texte = Texte(Programme.Base.Chemin(u"recu.pdf"_s));
  EXPECT_TRUE(texte.contains(u"Bastin"_s) && !texte.contains(u"Pirard"_s));

  Programme.Base.Fichier(u"refus"_s, {});
  EXPECT_TRUE(Refus([&] { Imprimer(form.Document(), imprimante); }).contains(u"papier vide"_s));
  qputenv("PATH", chemin);
}

TEST_F(DocumentsVues, NavigatorPagesAndPaper) {
  const TRapport rapport = Factures();
  TFrmApercu form(Contexte(), rapport);
  VueApercu vue(form, nullptr);
  vue.setWindowState(Qt::WindowNoState);
  vue.resize(1366, 768);
  vue.show();
  QTRY_VERIFY(form.Complet());
  auto* arbre = vue.findChild<QTreeWidget*>();
  EXPECT_EQ(arbre->topLevelItemCount(), 2) << "the two classes";
  EXPECT_EQ(arbre->topLevelItem(1)->child(0)->text(1), u"p. 3"_s);
  arbre->setCurrentItem(arbre->topLevelItem(1)->child(0));
  EXPECT_EQ(form.PageCourante(), 2);
  const QImage page = vue.Pages()->viewport()->grab().toImage();
  EXPECT_EQ(page.pixelColor(page.width() / 2, 20), QColor(Qt::white));
  vue.Pages()->setFocus();
  QTest::keyClick(vue.Pages(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(form.PageCourante(), 1);
  for (int i = 0; i < 2; ++i) QTest::keyClick(vue.Pages(), Qt::Key_PageUp);
  EXPECT_EQ(form.PageCourante(), 0);
  form.Zoomer(TModeZoom::Facteur, 4);
  QScrollBar* barre = vue.Pages()->horizontalScrollBar();
  EXPECT_NEAR(barre->value(), barre->maximum() / 2, 2) << "the middle of the page stays in the middle";
  form.Zoomer(TModeZoom::Largeur);
  auto* zoom = vue.findChild<QComboBox*>();
  zoom->setFocus();
  vue.Pages()->setFocus();
  EXPECT_EQ(form.ModeZoom(), TModeZoom::Largeur) << "the field was only passed through";
  EXPECT_TRUE(TextesDe(vue).contains(u"A4, portrait"_s));
  Programme.Dialogues.Fait(u"Mise en page"_s, [](QWidget& fenetre) {
    ChoisirBouton(fenetre, u"Paysage"_s);
    ::Cliquer(fenetre, u"Valider"_s);
  });
  ::Cliquer(vue, u"Mise en page"_s);
  QTRY_VERIFY(form.Complet());
  EXPECT_TRUE(TextesDe(vue).contains(u"A4, paysage"_s));
}

TEST_F(DocumentsVues, ARefusedFieldCallsNoPressOfAnnulerBack) {
  TFrmDatePaiement form(Programme.Tout().Main.Contexte);
  VueDialogue vue(form, nullptr);
  vue.show();
  auto* date = vue.findChild<SaisieDate*>();
  date->setFocus();
  date->selectAll();
  QTest::keyClicks(date, u"31/02/2017"_s);
  QTest::mousePress(vue.Annuler(), Qt::LeftButton);
  QCoreApplication::processEvents();
  QTest::mouseRelease(vue.Annuler(), Qt::LeftButton);
  EXPECT_FALSE(vue.isVisible());
}

TEST_F(DocumentsVues, WithinReachOfEveryone) {
  auto& tout = Programme.Tout();
  TFrmDatePaiement date(tout.Main.Contexte);
  VerifierVuePartout([&] { return std::make_unique<VueDialogue>(date, nullptr); });
  VerifierVuePartout([&] { return std::make_unique<DialoguePapier>(TPapier{{210, 297}}, nullptr); });
  const TRapport rapport = Factures();
  TFrmApercu apercu(Contexte(), rapport);
  apercu.Terminer();
  VerifierVuePartout([&] {
    auto vue = std::make_unique<VueApercu>(apercu, nullptr);
    vue->setWindowState(Qt::WindowNoState);
    vue->resize(1366, 768);
    return vue;
  });
  TResultat incomplet = FaireDocument(ContexteDesGlobals(Programme.Horloge), *TrouverTitre(u"Facture"), {});
  incomplet.Manques = {{Globals.Eleves->Tous().front(), u"lblDateNaissance"_s, u"pas de date de naissance"_s},
                       {nullptr, {}, u"pas de numéro d'entreprise"_s}};
  TFrmManques manques(incomplet, true);
  VerifierVuePartout([&] { return std::make_unique<VueManques>(manques, nullptr); });
  EXPECT_LE(VueManques(manques, nullptr).minimumSizeHint().width(), Theme::Px(960)) << "the smallest screen";
  TModaleGeste modale;
  const TContexteEcran contexte{tout.Main.Controleur, modale, *tout.Apercu, tout.Main, nullptr};
  TFrmPrintWizard assistant(contexte);
  modale.Geste = [&] {
    assistant.RbEleveClick(TChoixQui::Classes);
    assistant.btnToutSelectionnerClick();
    for (int page = 0; page < 3; ++page) {
      VerifierVuePartout([&] { return std::make_unique<VuePrintWizard>(assistant, nullptr); });
      assistant.btnSuivantClick();
    }
  };
  assistant.Demander(TDemandeAssistant::De({{u"Badge"_s, true}, {u"Facture"_s, true}}));
  TTitreAssistant fiche{u"Fiche"_s};
  fiche.Annees = {2016, 2015};
  fiche.Portee = [](const TChoixDocument&) {
    return u"Compris aussi : 3 élèves de 2015 - 2016. "_s.repeated(5);
  };
  assistant.Demander(TDemandeAssistant::De({fiche}));

  modale.Geste = [&] {
    const VuePrintWizard vue(assistant, nullptr);
    const QAbstractButton* grise = nullptr;
    for (const auto* bouton : vue.findChildren<QRadioButton*>())
      if (bouton->text() == u"Badge (modèle absent)") grise = bouton;
    ASSERT_NE(grise, nullptr) << "the reason stands beside the title";
    EXPECT_FALSE(grise->isEnabled());
  };
  assistant.Demander(TDemandeAssistant::De({{u"Badge"_s, true, u"modèle absent"_s}, {u"Facture"_s, true}}));
}
