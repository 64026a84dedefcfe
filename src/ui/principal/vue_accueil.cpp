#include "ui/principal/vue_accueil.h"

#include "screens/principal/frm_main.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etiquette.h"
#include "ui/commun/marque_etat.h"

/// A step: icon, what it is, whether it is done, and its button.
class VueAccueil::Ligne : public QWidget {
 public:
  Ligne(TFrmMain& form, const TEtapeAccueil& etape, int numero)
      : etat_(new MarqueEtat), bouton_(BoutonSimple(etape.Bouton)) {
    const auto commande = std::find_if(form.Commandes.begin(), form.Commandes.end(),
                                       [&](const auto& c) { return c.Gestionnaire == etape.Gestionnaire; });
    auto* image = new QLabel;
    const QSize cote(Theme::Px(32), Theme::Px(32));
    image->setPixmap(Theme::Icone(commande->Icone, TRole::Accent).pixmap(cote, devicePixelRatioF()));
    auto* titre =
        new Etiquette(QString::number(numero) % u".  " % etape.Titre, TRole::Texte, &Theme::TitreSection);
    auto* explication = new Etiquette(etape.Explication, TRole::Secondaire);
    explication->setWordWrap(true);
    auto* textes = new QVBoxLayout;
    textes->setSpacing(Theme::Px(4));
    textes->addWidget(titre);
    textes->addWidget(explication);
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, Theme::Px(16), 0, Theme::Px(16));
    ligne->setSpacing(Theme::Px(16));
    ligne->addWidget(image);
    ligne->addLayout(textes, 1);
    ligne->addWidget(etat_);
    ligne->addWidget(bouton_);
    etat_->setFixedWidth(Theme::Px(108));
    bouton_->setFixedWidth(Theme::Px(176));
    bouton_->setAccessibleName(etape.Titre % u" : " % etape.Bouton);
    connect(bouton_, &QPushButton::clicked, this,
            [&form, quoi = etape.Gestionnaire] { form.Executer(quoi); });
  }

  void Actualiser(const TEtapeAccueil& etape) {
    etat_->Definir(etape.Faite ? QStringLiteral("dialog-ok-apply") : QStringLiteral("data-information"),
                   etape.Faite ? QStringLiteral("Fait") : QStringLiteral("À faire"));
    DefinirGenre(*bouton_, etape.Prochaine ? TGenreBouton::Principal : TGenreBouton::Simple);
    bouton_->setEnabled(etape.Possible);
    bouton_->setToolTip(etape.Possible ? QString()
                                       : QStringLiteral("Pas encore disponible dans cette version"));
    prochaine_ = etape.Prochaine;
  }

  bool EstProchaine() const { return prochaine_; }
  QPushButton* Bouton() const { return bouton_; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter peintre(this);
    peintre.setPen(Theme::Ligne());
    peintre.drawLine(0, height() - 1, width(), height() - 1);
  }

 private:
  MarqueEtat* etat_;
  QPushButton* bouton_;
  bool prochaine_ = false;
};

VueAccueil::VueAccueil(TFrmMain& form, QWidget* parent)
    : QWidget(parent), form_(form), place_(new QVBoxLayout) {
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(8));
  colonne->addWidget(
      new Etiquette(QStringLiteral("Bienvenue dans Calpenne"), TRole::Texte, &Theme::TitreAccueil));
  colonne->addWidget(new Etiquette(
      QStringLiteral("La base est prête et ne contient encore aucun élève. Voici par où commencer."),
      TRole::Secondaire, &Theme::TitreSection));
  colonne->addSpacing(Theme::Px(24));
  place_->setSpacing(0);
  colonne->addLayout(place_);
  colonne->addSpacing(Theme::Px(24));
  auto* note =
      new Etiquette(QStringLiteral("Les tarifs et les frais peuvent être encodés ou corrigés plus tard : "
                                   "les montants sont recalculés à chaque demande."),
                    TRole::Secondaire);
  note->setWordWrap(true);
  colonne->addWidget(note);
  colonne->addStretch();
  auto* cadre = new QWidget;
  cadre->setLayout(colonne);
  colonne->setContentsMargins(0, 0, 0, 0);
  cadre->setMaximumWidth(Theme::Px(880));
  auto* ligne = new QHBoxLayout(this);
  ligne->setContentsMargins(Theme::Px(48), Theme::Px(40), Theme::Px(48), Theme::Px(16));
  ligne->addWidget(cadre, 1);
  ligne->addStretch();
}

void VueAccueil::Actualiser() {
  const std::vector<TEtapeAccueil> etapes = form_.Etapes();
  for (std::size_t i = lignes_.size(); i < etapes.size(); ++i) {
    lignes_.push_back(new Ligne(form_, etapes[i], static_cast<int>(i) + 1));
    place_->addWidget(lignes_.back());
  }
  for (std::size_t i = 0; i < etapes.size(); ++i) lignes_[i]->Actualiser(etapes[i]);
}

void VueAccueil::PrendreFoyer() {
  for (Ligne* ligne : lignes_)
    if (ligne->EstProchaine()) ligne->Bouton()->setFocus(Qt::OtherFocusReason);
}
