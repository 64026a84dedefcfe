// The office: record, wizard, imports.
#include <QFileInfo>
#include <QPushButton>

#include "app/captures/photographe.h"
#include "screens/attendance/frm_presences.h"
#include "screens/pupils/frm_import.h"
#include "screens/pupils/frm_signaletique.h"
#include "ui/commun/dialogue_base.h"
#include "ui/documents/vue_apercu.h"
#include "ui/documents/vue_manques.h"

using namespace Qt::StringLiterals;

namespace {

void Suivant(QWidget& fenetre) { dynamic_cast<DialogueBase&>(fenetre).Principal()->click(); }

}  // namespace

void Photographe::Signaletique() {
  TFrmMain& main = programme_.Main;
  main.edSearchChange({});
  ChoisirEleve();
  main.Executer(TGestionnaire::AdvGlowButton2Click);
  Attendre(50);
  Prendre(programme_.Fenetre, u"signaletique"_s);
}

void Photographe::Dialogues() {
  auto* fiche = dynamic_cast<TFrmSignaletique*>(programme_.Main.Panneau.Courante());
  if (fiche == nullptr) throw Exception(u"La fiche ne s'ouvre pas."_s);
  Suivre({Photo(u"ajout-releve"_s)});
  fiche->btnAjoutFaitClick();
  Suivre({Photo(u"calendrier"_s)});
  fiche->btnCalendrierClick();
  Suivre({Photo(u"paiement"_s)});
  fiche->SpeedButton1Click();
  Suivre({Photo(u"suppression"_s)});
  fiche->Frais.Grille.ChoisirLigne(0);
  fiche->SpeedButton2Click();
  Suivre({Photo(u"professeur"_s)});
  programme_.Main.Ajouterunprofesseur1Click();
  Suivre({Photo(u"touches"_s)});
  Declencher(u"&Touches"_s);
}

void Photographe::Assistant() {
  TFrmPrintWizard& assistant = programme_.Assistant;
  Suivre({
      [this](QWidget& fenetre) {
        Bouton(fenetre, u"Facture"_s)->click();
        Prendre(fenetre, u"assistant-rapport"_s);
        Suivant(fenetre);
        return true;
      },
      [this, &assistant](QWidget& fenetre) {
        Bouton(fenetre, u"Les classes suivantes:"_s)->click();
        for (int i = 0; i < assistant.LstClasse.NombreLignes(); ++i)
          assistant.LstClasse.Cocher(i, assistant.LstClasse.Texte(i, 0).startsWith(u"P3"));
        Attendre(50);
        Prendre(fenetre, u"assistant-eleves"_s);
        Suivant(fenetre);
        return true;
      },
      [this](QWidget& fenetre) {
        Prendre(fenetre, u"assistant-periode"_s);
        Suivant(fenetre);
        return true;
      },
      [this](QWidget& fenetre) {
        if (dynamic_cast<VueApercu*>(&fenetre) == nullptr) {
          Prendre(fenetre, u"date-paiement"_s);
          Suivant(fenetre);
          return false;
        }
        fenetre.setWindowState(Qt::WindowNoState);  // it opens as large as the screen
        fenetre.resize(programme_.Fenetre.size());
        Attendre(2000);
        Prendre(fenetre, u"apercu-facture"_s);
        fenetre.close();
        return true;
      },
  });
  programme_.Main.OutilClick(TOutil::btnPrint);
}

void Photographe::Manques() {
  Suivre({[](QWidget& fenetre) {
            Bouton(fenetre, u"Fiche fiscale 281.86"_s)->click();
            Suivant(fenetre);
            return true;
          },
          [](QWidget& fenetre) {
            Suivant(fenetre);  // the classes of the document before
            return true;
          },
          [this](QWidget& fenetre) {
            Prendre(fenetre, u"assistant-revenus"_s);
            Suivant(fenetre);
            return true;
          },
          [this](QWidget& fenetre) {
            if (dynamic_cast<VueManques*>(&fenetre) != nullptr) Prendre(fenetre, u"fiches-manques"_s);
            fenetre.close();  // else it says that the year is not over
            return dynamic_cast<VueManques*>(&fenetre) != nullptr;
          }});
  programme_.Main.OutilClick(TOutil::btnPrint);
}

void Photographe::Importation() {
  programme_.Main.Executer(TGestionnaire::AdvGlowButton8Click);
  auto* form = dynamic_cast<TFrmImport*>(programme_.Main.Panneau.Courante());
  if (form == nullptr) throw Exception(u"L'importation ne s'ouvre pas."_s);
  Suivre({Fichier(QFileInfo(sujet_.Registre).absoluteFilePath())});
  form->btnEtape1Click();
  bool pris = false;
  const TLien lien = programme_.Dialogues.SurProgression.Suivre([&](int fait, int total, const QString&) {
    if (pris || total == 0 || 2 * fait < total) return;
    pris = true;  // once the row in hand is told everywhere
    QTimer::singleShot(0, &programme_.Fenetre,
                       [this] { Prendre(programme_.Fenetre, u"importation-registre"_s); });
  });
  form->btnEtape2Click();
}

void Photographe::Presences() {
  programme_.Main.Executer(TGestionnaire::AdvGlowButton1Click);
  if (dynamic_cast<TfrmPresences*>(programme_.Main.Panneau.Courante()) == nullptr)
    throw Exception(u"Les présences ne s'ouvrent pas."_s);
  Suivre({Fichier(QFileInfo(sujet_.Presences).absoluteFilePath())});
  Declencher(u"Importer un fichier de présence"_s);
  Attendre(50);
  Prendre(programme_.Fenetre, u"presences-scanner"_s);
  Suivre({Photo(u"correction"_s)});
  auto& form = dynamic_cast<TfrmPresences&>(*programme_.Main.Panneau.Courante());
  form.Anomalies.ChoisirLigne(form.Anomalies.NombreLignes() - 1);
  Declencher(u"Corriger le relevé"_s);
  Suivre({[this](QWidget& fenetre) {
    Prendre(fenetre, u"presences-abandon"_s);
    Bouton(fenetre, u"Oui"_s)->click();
    return true;
  }});
  programme_.Main.Executer(TGestionnaire::AdvGlowButton5Click);  // the record only hides this screen
  programme_.Main.Executer(TGestionnaire::AdvGlowButton2Click);
}
