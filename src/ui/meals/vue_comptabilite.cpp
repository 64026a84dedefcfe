#include "ui/meals/vue_comptabilite.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include "screens/meals/frm_comptabilite.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/saisie.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

VueComptabilite::VueComptabilite(TFrmComptabilite& form, QWidget* parent)
    : QWidget(parent), form_(form), debut_(new SaisieDate), fin_(new SaisieDate) {
  debut_->setAccessibleName(u"Début de la période"_s);
  fin_->setAccessibleName(u"Fin de la période"_s);
  auto* periode = new QHBoxLayout;
  periode->addWidget(new QLabel(u"Période de comptabilisation des tickets vendus"_s));
  periode->addWidget(debut_);
  periode->addWidget(new QLabel(u"au"_s));
  periode->addWidget(fin_);
  periode->addStretch(1);
  auto* pages = new QTabWidget;
  AjouterPage(*pages, form.Versements, u"Versement sur le compte"_s, u"Compta/Versements"_s);
  AjouterPage(*pages, form.Comptant, u"Paiement au comptant"_s, u"Compta/Comptant"_s);
  QVBoxLayout* colonne = ColonneEcran(*this, u"Compta"_s);
  colonne->addLayout(periode);
  colonne->addWidget(pages, 1);
  for (SaisieDate* date : {debut_, fin_}) connect(date, &Saisie::Saisi, this, &VueComptabilite::Lire);
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VueComptabilite::AjouterPage(QTabWidget& pages, TGrille& grille, const QString& titre,
                                  const QString& ecran) {
  auto* vue = new VueGrille(grille, titre, ecran);
  vides_.emplace_back(&grille, new EtatVide(vue));
  pages.addTab(vue, titre);
}

// A date that cannot be read stays as it was typed, marked, and the lists stay too.
void VueComptabilite::Lire() {
  const auto debut = debut_->Date(), fin = fin_->Date();
  if (debut && fin && *debut != 0.0 && *fin != 0.0) form_.dtChange(*debut, *fin);
}

void VueComptabilite::Actualiser() {
  debut_->DefinirDate(form_.dtDebut);
  fin_->DefinirDate(form_.dtFin);
  for (const auto& [grille, vide] : vides_) {
    if (grille->NombreLignes() > 0)
      vide->Cacher();
    else
      vide->Montrer(u"Aucune vente dans cette période"_s, u"Changez les dates pour voir d'autres ventes."_s);
  }
}
