#include "ui/principal/vue_accueil.h"

#include "core/mois.h"
#include "screens/principal/frm_main.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etiquette.h"
#include "ui/commun/marque_etat.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kIcone = 32;
constexpr int kEcart = 16;

/// Larger than a text, lighter than a heading.
QFont Chapeau() {
  QFont police = Theme::TitreSection();
  police.setWeight(QFont::Normal);
  return police;
}

}  // namespace

/// A step: icon, what it is, whether it is done, and its button.
class VueAccueil::Ligne : public QWidget {
 public:
  Ligne(TFrmMain& form, const TEtapeAccueil& etape, int numero)
      : etape_(etape),
        premiere_(numero == 1),
        etat_(new MarqueEtat),
        bouton_(BoutonSimple(etape.Bouton)),
        ecarter_(BoutonSimple({})) {
    auto* titre =
        new Etiquette(QString::number(numero) % u".  " % etape.Titre, TRole::Texte, &Theme::TitreSection);
    explication_ = new Etiquette(etape.Explication, TRole::Secondaire);
    explication_->setWordWrap(true);
    auto* textes = new QVBoxLayout;
    textes->setSpacing(Theme::Px(4));
    textes->addWidget(titre);
    textes->addWidget(explication_);
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(Theme::Px(kIcone + kEcart), Theme::Px(kEcart), 0, Theme::Px(kEcart));
    ligne->setSpacing(Theme::Px(kEcart));
    ligne->addLayout(textes, 1);
    ligne->addWidget(ecarter_);
    ligne->addWidget(etat_);
    ligne->addWidget(bouton_);
    etat_->setFixedWidth(Theme::Px(108));
    bouton_->setMinimumWidth(Theme::Px(176));
    bouton_->setAccessibleName(etape.Titre % u" : " % etape.Bouton);
    connect(bouton_, &QPushButton::clicked, this, [&form, this] { form.EtapeClick(etape_); });
    connect(ecarter_, &QPushButton::clicked, this, [&form, this] { form.EcarterClick(etape_); });
  }

  void Actualiser(const TEtapeAccueil& etape) {
    etape_ = etape;
    explication_->setText(etape.Explication);
    etat_->Definir(etape.Faite ? u"dialog-ok-apply"_s : u"data-information"_s,
                   etape.Faite ? u"Fait"_s : u"À faire"_s);
    DefinirGenre(*bouton_, etape.Prochaine ? TGenreBouton::Principal : TGenreBouton::Simple);
    bouton_->setEnabled(etape.Possible);
    bouton_->setToolTip(etape.RaisonInactive);
    ecarter_->setText(etape.Ecarter);
    ecarter_->setVisible(!etape.Ecarter.isEmpty());
    update();
  }

  bool EstProchaine() const { return etape_.Prochaine; }
  QPushButton* Bouton() const { return bouton_; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter peintre(this);
    const int cote = Theme::Px(kIcone);
    Theme::Icone(etape_.Icone, etape_.Faite ? TRole::Secondaire : TRole::Accent)
        .paint(&peintre, 0, (height() - cote) / 2, cote, cote);
    peintre.setPen(Theme::Couleur(TRole::Ligne));
    if (!premiere_) peintre.drawLine(0, 0, width(), 0);
  }

 private:
  TEtapeAccueil etape_;
  bool premiere_;
  Etiquette* explication_ = nullptr;
  MarqueEtat* etat_;
  QPushButton* bouton_;
  QPushButton* ecarter_;
};

VueAccueil::VueAccueil(TFrmMain& form, QWidget* parent)
    : QScrollArea(parent),
      form_(form),
      titre_(new Etiquette({}, TRole::Texte, &Theme::TitreAccueil)),
      phrase_(new Etiquette({}, TRole::Secondaire, &Chapeau)),
      place_(new QVBoxLayout) {
  setWidgetResizable(true);
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  auto* colonne = new QVBoxLayout;
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(Theme::Px(8));
  auto* note = new Etiquette(
      u"Les tarifs et les frais peuvent être encodés ou corrigés plus tard : "
      "les montants sont recalculés à chaque demande."_s,
      TRole::Secondaire);
  for (Etiquette* texte : {phrase_, note}) texte->setWordWrap(true);
  colonne->addWidget(titre_);
  colonne->addWidget(phrase_);
  colonne->addSpacing(Theme::Px(24));
  place_->setSpacing(0);
  colonne->addLayout(place_);
  colonne->addSpacing(Theme::Px(16));
  colonne->addWidget(note);
  colonne->addStretch();
  auto* cadre = new QWidget;
  cadre->setLayout(colonne);
  cadre->setMaximumWidth(Theme::Px(880));
  auto* page = new QWidget;
  auto* ligne = new QHBoxLayout(page);
  ligne->setContentsMargins(Theme::Px(32), Theme::Px(40), Theme::Px(24), Theme::Px(16));
  ligne->addWidget(cadre, 1);
  ligne->addStretch();
  setWidget(page);
}

void VueAccueil::Actualiser() {
  const TVide accueil = form_.Accueil();
  titre_->setText(accueil.Titre);
  phrase_->setText(accueil.Phrase);
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
