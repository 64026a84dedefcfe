#include "ui/meals/vue_reservation.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "screens/meals/frm_reservation.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"
#include "ui/meals/choix_classe_jour.h"
#include "ui/meals/grille_commandes.h"
#include "ui/meals/rangee_compteurs.h"

using namespace Qt::StringLiterals;

VueReservation::VueReservation(TFrmReservation& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      choix_(new ChoixClasseJour(true)),
      comptes_(new RangeeCompteurs),
      grille_(new GrilleCommandes(form)),
      vueMois_(new VueGrille(mois_, u"Commandes du mois"_s, u"Reservation/Mois"_s)),
      pages_(new QStackedWidget),
      boutonMois_(BoutonSimple(u"Le mois"_s, u"view-calendar-month"_s)),
      nom_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      solde_(new Etiquette({}, TRole::Texte, &Theme::Gras)),
      aide_(new Etiquette({}, TRole::Secondaire)),
      vide_(new EtatVide(grille_)) {
  vueMois_->DefinirNomExport([this] { return form_.NomMois(); });
  Disposer();
  choix_->Suivre(form_);
  connect(boutonMois_, &QPushButton::toggled, this, &VueReservation::MontrerMois);
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

QLayout* VueReservation::Boutons() {
  reprises_ = {BoutonSimple(u"Comme la veille"_s, u"edit-copy"_s),
               BoutonSimple(u"Comme la semaine passée"_s, u"edit-copy"_s)};
  connect(reprises_[0], &QPushButton::clicked, this, [this] { form_.CommeLaVeille(); });
  connect(reprises_[1], &QPushButton::clicked, this, [this] { form_.CommeLaSemainePassee(); });
  QPushButton* actualiser = BoutonSimple(u"Actualiser"_s, u"view-refresh"_s);
  actualiser->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
  actualiser->setToolTip(u"Relire ce que les autres postes ont commandé (Ctrl+R)"_s);
  connect(actualiser, &QPushButton::clicked, this, [this] { form_.Actualiser(); });
  boutonMois_->setCheckable(true);
  auto* rangee = new RangeePliante;
  for (QPushButton* bouton : {reprises_[0], reprises_[1], boutonMois_, actualiser}) rangee->addWidget(bouton);
  return rangee;
}

QLayout* VueReservation::Eleve() {
  auto* ligne = new QHBoxLayout;
  ligne->setSpacing(Theme::Px(16));
  ligne->addWidget(nom_);
  ligne->addWidget(solde_);
  ligne->addStretch(1);
  return ligne;
}

void VueReservation::Disposer() {
  aide_->setWordWrap(true);
  pages_->addWidget(grille_);
  pages_->addWidget(vueMois_);
  QVBoxLayout* colonne = ColonneEcran(*this, u"Réservation"_s);
  colonne->addWidget(choix_);
  colonne->addLayout(Boutons());
  colonne->addWidget(comptes_);
  colonne->addLayout(Eleve());
  colonne->addWidget(pages_, 1);
  colonne->addWidget(aide_);
}

// Afterwards, where what fails is told.
void VueReservation::showEvent(QShowEvent* evenement) {
  QWidget::showEvent(evenement);
  QMetaObject::invokeMethod(this, &VueReservation::Actualiser, Qt::QueuedConnection);
}

void VueReservation::MontrerMois(bool mois) {
  Actualiser();
  pages_->setCurrentWidget(mois ? static_cast<QWidget*>(vueMois_) : static_cast<QWidget*>(grille_));
}

void VueReservation::Actualiser() {
  choix_->Montrer(form_);
  choix_->Verrouiller(form_.EstVerrouillee());
  comptes_->Definir(form_.Compteurs());
  nom_->setText(form_.NomEleve());
  solde_->setText(form_.TexteSolde());
  solde_->DefinirRole(form_.SoldeSuffit() ? TRole::Succes : TRole::Erreur);
  for (QPushButton* bouton : reprises_)
    bouton->setEnabled(form_.IndiceClasse() > 0 && !form_.EstVerrouillee());
  if (boutonMois_->isChecked()) form_.RemplirMois(mois_);
  aide_->setText(boutonMois_->isChecked() ? form_.LegendeMois() : grille_->Aide());
  if (form_.Grille.NombreLignes() > 0)
    vide_->Cacher();
  else
    vide_->Montrer(u"Aucun élève à montrer"_s, u"Choisissez une classe dans la liste."_s);
}
