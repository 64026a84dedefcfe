#include "ui/meals/rangee_compteurs.h"

#include <QHBoxLayout>

#include "screens/meals/jour_ecran.h"
#include "ui/commun/etiquette.h"

RangeeCompteurs::RangeeCompteurs(QWidget* parent) : QWidget(parent), ligne_(new QHBoxLayout(this)) {
  ligne_->setContentsMargins(0, 0, 0, 0);
  ligne_->setSpacing(Theme::Px(8));
  ligne_->addStretch(1);
}

void RangeeCompteurs::Ajouter() {
  auto* mot = new Etiquette({}, TRole::Secondaire);
  auto* nombre = new Etiquette({}, TRole::Texte, &Theme::Gras);
  for (QWidget* widget : {mot, nombre}) ligne_->insertWidget(ligne_->count() - 1, widget);
  ligne_->insertSpacing(ligne_->count() - 1, Theme::Px(24));
  compteurs_.emplace_back(mot, nombre);
}

void RangeeCompteurs::Definir(const std::vector<TCompteurRepas>& compteurs) {
  while (compteurs_.size() < compteurs.size()) Ajouter();
  for (std::size_t i = 0; i < compteurs.size(); ++i) {
    compteurs_[i].first->setText(compteurs[i].Libelle);
    compteurs_[i].second->setText(QString::number(compteurs[i].Nombre));
    compteurs_[i].second->setAccessibleName(compteurs[i].Libelle);
  }
}
