#include "ui/pupils/grille_jours.h"

#include <QCheckBox>
#include <QGridLayout>

#include "core/formats.h"
#include "ui/commun/etiquette.h"

using namespace Qt::StringLiterals;

GrilleJours::GrilleJours(QWidget* parent) : QWidget(parent), grille_(new QGridLayout(this)) {
  grille_->setContentsMargins(0, 0, 0, 0);
  grille_->setHorizontalSpacing(Theme::Px(12));
  grille_->setVerticalSpacing(Theme::Px(4));
  grille_->setColumnStretch(0, 1);
}

void GrilleJours::Definir(const QStringList& lignes) {
  if (lignes == textes_) return;
  qDeleteAll(findChildren<QWidget*>());
  lignes_.clear();
  textes_ = lignes;
  for (int ligne = 0; ligne < lignes.size(); ++ligne) {
    const QString& texte = lignes[ligne];
    auto* libelle = new Etiquette(texte);
    libelle->DefinirElision(true);
    grille_->addWidget(libelle, ligne, 0);
    auto& cases = lignes_.emplace_back();
    for (int jour = 0; jour < kJours; ++jour) {
      const QString nom = LocaleEcole().dayName(jour + 1);
      auto* boite = new QCheckBox(nom.left(1).toUpper() % nom.sliced(1));
      if (!texte.isEmpty()) boite->setAccessibleName(texte % u", " % nom);
      connect(boite, &QCheckBox::clicked, this,
              [this, ligne, jour](bool coche) { emit Basculee(ligne, jour, coche); });
      grille_->addWidget(boite, ligne, jour + 1);
      cases[static_cast<std::size_t>(jour)] = boite;
    }
  }
}

void GrilleJours::Cocher(int ligne, const std::array<bool, kJours>& jours) {
  auto& cases = lignes_.at(static_cast<std::size_t>(ligne));
  for (std::size_t jour = 0; jour < jours.size(); ++jour) cases[jour]->setChecked(jours[jour]);
}
