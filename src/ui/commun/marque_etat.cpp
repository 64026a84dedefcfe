#include "ui/commun/marque_etat.h"

#include <QEvent>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

TRole RoleDeIcone(const QString& icone) {
  static const struct {
    QString Icone;
    TRole Role;
  } kRoles[] = {
      {u"dialog-ok-apply"_s, TRole::Succes},
      {u"data-warning"_s, TRole::Alerte},
      {u"data-error"_s, TRole::Erreur},
  };
  for (const auto& [nom, role] : kRoles)
    if (nom == icone) return role;
  return TRole::Secondaire;
}

TRole RoleDeEtat(const TEtatGrille& etat) {
  switch (etat.Ton) {
    case TTon::RougeFonce:
      return TRole::ErreurGrave;
    case TTon::Rouge:
      return TRole::Erreur;
    case TTon::Vert:
      return TRole::Succes;
    case TTon::Icone:
      break;
  }
  return RoleDeIcone(etat.Icone);
}

QString IconeDeNiveau(TNiveauEtat niveau) {
  switch (niveau) {
    case TNiveauEtat::Succes:
      return u"dialog-ok-apply"_s;
    case TNiveauEtat::Alerte:
      return u"data-warning"_s;
    case TNiveauEtat::Erreur:
    case TNiveauEtat::Refus:
      return u"data-error"_s;
    case TNiveauEtat::Neutre:
      break;
  }
  return {};
}

MarqueEtat::MarqueEtat(QWidget* parent)
    : QWidget(parent), image_(new QLabel), texte_(new Etiquette({}, TRole::Secondaire)) {
  auto* ligne = new QHBoxLayout(this);
  ligne->setContentsMargins(0, 0, 0, 0);
  ligne->setSpacing(Theme::Px(4));
  image_->hide();
  texte_->DefinirElision(true);
  ligne->addWidget(image_);
  ligne->addWidget(texte_, 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void MarqueEtat::Definir(const QString& icone, const QString& texte) {
  const bool autreIcone = std::exchange(icone_, icone) != icone;
  if (!autreIcone && texte_->text() == texte) return;
  texte_->DefinirRole(RoleDeIcone(icone));
  texte_->setText(texte);
  setAccessibleName(texte);
  if (autreIcone) Redessiner();
}

void MarqueEtat::Definir(TNiveauEtat niveau, const QString& texte) { Definir(IconeDeNiveau(niveau), texte); }

void MarqueEtat::Redessiner() {
  const int cote = Theme::Px(16);
  image_->setVisible(!icone_.isEmpty());
  if (icone_.isEmpty()) return;
  image_->setPixmap(Theme::Icone(icone_, RoleDeIcone(icone_)).pixmap(QSize(cote, cote), devicePixelRatioF()));
}

void MarqueEtat::changeEvent(QEvent* evenement) {
  QWidget::changeEvent(evenement);
  if (evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::FontChange) Redessiner();
}
