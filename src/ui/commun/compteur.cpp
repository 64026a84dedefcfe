#include "ui/commun/compteur.h"

#include <QHBoxLayout>

#include "core/formats.h"

using namespace Qt::StringLiterals;

Compteur::Compteur(const QString& mot, QWidget* parent)
    : QWidget(parent),
      nombre_(new Etiquette(u"0"_s, TRole::Texte, &Theme::Compteur)),
      mot_(new Etiquette(mot, TRole::Secondaire)) {
  auto* ligne = new QHBoxLayout(this);
  ligne->setContentsMargins(0, 0, 0, 0);
  ligne->setSpacing(Theme::Px(7));
  ligne->addWidget(nombre_);
  ligne->addWidget(mot_);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void Compteur::Definir(int nombre) { Definir(LocaleEcole().toString(nombre)); }

void Compteur::Definir(const QString& nombre) { nombre_->setText(nombre); }

void Compteur::DefinirMot(const QString& mot) { mot_->setText(mot); }
