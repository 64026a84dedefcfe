// The bank.
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>

#include "app/captures/photographe.h"
#include "screens/payments/frm_virement.h"
#include "ui/commun/dialogue_base.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

void Photographe::Virements() {
  programme_.Main.Executer(TGestionnaire::btnVirementClick);
  auto* form = dynamic_cast<TFrmVirement*>(programme_.Main.Panneau.Courante());
  auto* pages = programme_.Fenetre.VueCourante()->findChild<QTabWidget*>();
  if (form == nullptr || pages == nullptr) throw Exception(u"Les virements ne s'ouvrent pas."_s);
  Suivre({Fichier(QFileInfo(sujet_.Releve).absoluteFilePath())});
  Bouton(programme_.Fenetre, u"Etape n°1 : Importer vos virements"_s)->click();
  Attendre(50);
  Prendre(programme_.Fenetre, u"virements-importation"_s);
  bool pris = false;
  const TLien lien = programme_.Dialogues.SurProgression.Suivre([&](int fait, int total, const QString&) {
    if (pris || total == 0 || 2 * fait < total) return;
    pris = true;
    Prendre(programme_.Fenetre, u"virements-progression"_s);
  });
  form->btnEtape2Click();
  Attendre(50);
  Prendre(programme_.Fenetre, u"virements-memorises"_s);
  pages->setCurrentIndex(1);
  Attendre(50);
  Prendre(programme_.Fenetre, u"virements-historique"_s);
  pages->setCurrentIndex(2);
  Attendre(50);
  Prendre(programme_.Fenetre, u"virements-releve"_s);
  pages->setCurrentIndex(1);
  Attribution(*form);
}

void Photographe::Attribution(TFrmVirement& form) {
  form.btnComptabiliseClick();  // the unknown ones
  if (form.Historique.NombreLignes() == 0) {
    QTextStream(stderr)
        << "Aucun mouvement n'est inconnu : les images de l'attribution ne sont pas prises.\n";
    return;
  }
  form.Historique.ChoisirLigne(0);
  Suivre({[this](QWidget& fenetre) {
    Prendre(fenetre, u"attribution-proposee"_s);
    auto* nom = fenetre.findChild<QLineEdit*>();
    for (int fois = 0; fois < 2; ++fois) {  // two payers for one pupil
      emit nom->textEdited(u"LAMBERT"_s);
      Attendre(50);
      if (fois == 0) Prendre(fenetre, u"attribution-virement"_s);
      dynamic_cast<DialogueBase&>(fenetre).Principal()->click();
    }
    Bouton(fenetre, u"Précédent"_s)->click();
    Attendre(50);
    Prendre(fenetre, u"attribution-comptabilise"_s);
    fenetre.close();
    return true;
  }});
  form.grdHistoriqueDblClick();
  const QString eleve = form.Historique.Texte(form.Historique.LigneCourante(), TFrmVirement::Eleve);
  Repartition(form);
  Comptes(eleve);
}

void Photographe::Repartition(TFrmVirement& form) {
  const TGrille& liste = form.Historique;
  for (int ligne = 0; ligne < liste.NombreLignes(); ++ligne)
    if (liste.Texte(ligne, TFrmVirement::Eleve).isEmpty() &&
        liste.Ligne(ligne).Objet.En<TExtrait>()->Montant > Currency())
      form.Historique.ChoisirLigne(ligne);
  Suivre({[](QWidget& fenetre) {
            Bouton(fenetre, u"Répartir..."_s)->click();
            fenetre.close();
            return true;
          },
          [this](QWidget& fenetre) {
            VueGrille* eleves = fenetre.findChildren<VueGrille*>().last();
            for (int fois = 0; fois < 2; ++fois) {
              eleves->Grille().ChoisirLigne(0);
              Bouton(fenetre, u"Ajouter"_s)->click();
            }
            Prendre(fenetre, u"repartition"_s);
            fenetre.close();
            return true;
          }});
  form.grdHistoriqueDblClick();
}

void Photographe::Comptes(const QString& eleve) {
  programme_.Main.edSearchChange(eleve);
  programme_.Main.Executer(TGestionnaire::AdvGlowButton2Click);
  Suivre({Photo(u"attribution-compte"_s)});
  Bouton(programme_.Fenetre, u"…"_s)->click();
  Attendre(300);
}
