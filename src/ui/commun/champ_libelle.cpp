#include "ui/commun/champ_libelle.h"

#include <QGridLayout>

#include "ui/commun/marque_etat.h"
#include "ui/commun/texte.h"

namespace {

/// A longer label goes on to a second line: it would push its fields out of a small screen.
constexpr int kLargeurLibelle = 284;

}  // namespace

Etiquette* CreerLibelle(const QString& texte, QWidget* champ, QWidget* parent) {
  auto* libelle = new Etiquette(texte, TRole::Secondaire, nullptr, parent);
  if (!champ || texte.isEmpty()) return libelle;
  libelle->setBuddy(champ);
  if (champ->accessibleName().isEmpty()) champ->setAccessibleName(NomAccessible(texte));
  return libelle;
}

Etiquette* CreerLibelleDeRang(const QString& texte, QWidget* champ) {
  Etiquette* libelle = CreerLibelle(texte, champ);
  libelle->setMinimumHeight(Theme::Px(28));
  if (libelle->sizeHint().width() <= Theme::Px(kLargeurLibelle)) return libelle;
  libelle->setWordWrap(true);
  libelle->setFixedWidth(Theme::Px(kLargeurLibelle));
  return libelle;
}

void MarquerFaute(QWidget& champ, bool faute) {
  if (champ.property("faute").toBool() == faute) return;
  champ.setProperty("faute", faute);
  champ.update();
}

ChampLibelle::ChampLibelle(const QString& libelle, QWidget* champ, TPlace place, QWidget* parent)
    : QWidget(parent), libelle_(CreerLibelle(libelle, champ)), champ_(champ), faute_(new MarqueEtat) {
  auto* grille = new QGridLayout(this);
  grille->setContentsMargins(0, 0, 0, 0);
  grille->setHorizontalSpacing(Theme::Px(8));
  grille->setVerticalSpacing(Theme::Px(4));
  const bool dessus = place == Dessus;
  grille->addWidget(libelle_, 0, 0, Qt::AlignVCenter);
  grille->addWidget(champ, dessus ? 1 : 0, dessus ? 0 : 1);
  grille->addWidget(faute_, dessus ? 2 : 1, dessus ? 0 : 1);
  grille->setColumnStretch(dessus ? 0 : 1, 1);
  grille->setRowStretch(3, 1);
  libelle_->setVisible(!libelle.isEmpty());
  faute_->hide();
}

void ChampLibelle::MontrerFaute(const QString& texte) {
  faute_->Definir(TNiveauEtat::Erreur, texte);
  faute_->setVisible(!texte.isEmpty());
  champ_->setAccessibleDescription(texte);
  MarquerFaute(*champ_, !texte.isEmpty());
}

void ChampLibelle::DefinirLargeurLibelle(int largeur) { libelle_->setMinimumWidth(Theme::Px(largeur)); }
