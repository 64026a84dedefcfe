#include "ui/principal/barre_etat.h"

#include <QAccessible>

#include "core/mois.h"
#include "screens/principal/frm_main.h"
#include "ui/commun/marque_etat.h"

using namespace Qt::StringLiterals;

BarreEtat::BarreEtat(const TFrmMain& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      etat_(new MarqueEtat),
      ecart_(new MarqueEtat),
      affichee_(new Etiquette({}, TRole::Secondaire)),
      travail_(new Etiquette({}, TRole::Secondaire)),
      serveur_(new Etiquette({}, TRole::Secondaire)) {
  setAccessibleName(u"État"_s);
  auto* ligne = new QHBoxLayout(this);
  ligne->setContentsMargins(Theme::Px(14), 1, Theme::Px(14), 0);
  ligne->setSpacing(Theme::Px(24));
  ligne->addWidget(etat_, 1);
  ligne->addWidget(ecart_);
  for (Etiquette* texte : {affichee_, travail_, serveur_}) ligne->addWidget(texte);
  setFixedHeight(Theme::Px(24));
  Actualiser();
}

void BarreEtat::Actualiser() {
  const bool relie = form_.EstRelie();
  for (Etiquette* texte : {affichee_, travail_}) texte->setVisible(relie);
  affichee_->setText(u"Affichée : " % AnneeEnTexte(form_.AnneeCochee()));
  travail_->setText(u"Année de travail : " % AnneeEnTexte(form_.AnneeTravail()));
  ecart_->setVisible(relie && !form_.AnneeDeTravailAffichee());
  ecart_->Definir(TNiveauEtat::Alerte, u"Année affichée ≠ année de travail"_s);
  serveur_->setText(form_.TexteServeur());
}

void BarreEtat::MontrerEtat() {
  const TEtatPrincipal& etat = form_.Etat();
  if (etat.Niveau == TNiveauEtat::Neutre && form_.EnTravail())
    etat_->Definir(u"data-information"_s, etat.Texte);
  else
    etat_->Definir(etat.Niveau, etat.Texte);
  etat_->setAccessibleName(etat.Texte);
  if (etat.Texte.isEmpty()) return;
  QAccessibleEvent annonce(etat_, QAccessible::Alert);
  QAccessible::updateAccessibility(&annonce);
}

QString BarreEtat::Texte() const { return etat_->Texte(); }

void BarreEtat::paintEvent(QPaintEvent*) {
  QPainter peintre(this);
  peintre.setPen(Theme::Couleur(TRole::Ligne));
  peintre.drawLine(0, 0, width(), 0);
}
