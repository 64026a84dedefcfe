#include "ui/meals/vue_presence_repas.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScroller>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/meals/frm_presence_repas.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/meals/cadre_eleve.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeurBouton = 180;
constexpr int kLargeurRecherche = 280;
constexpr int kMarge = 18;
constexpr int kEntreLignes = 20;
constexpr int kMinuteMs = 30'000;

/// Drawn along by the finger, as by the bar.
void SuivreLeDoigt(QScrollArea& defile) {
  QScroller::grabGesture(defile.viewport(), QScroller::LeftMouseButtonGesture);
  QScrollerProperties proprietes = QScroller::scroller(defile.viewport())->scrollerProperties();
  for (const auto mesure :
       {QScrollerProperties::HorizontalOvershootPolicy, QScrollerProperties::VerticalOvershootPolicy})
    proprietes.setScrollMetric(mesure, QScrollerProperties::OvershootAlwaysOff);
  QScroller::scroller(defile.viewport())->setScrollerProperties(proprietes);
}

QPushButton* GrandBouton(const QString& texte) {
  QPushButton* bouton = BoutonSimple(texte);
  bouton->setMinimumSize(Theme::Px(kLargeurBouton), Theme::CoteDoigt());
  return bouton;
}

void Vider(QLayout& place) {
  while (QLayoutItem* element = place.takeAt(0)) {
    if (QWidget* widget = element->widget()) {
      widget->hide();
      widget->deleteLater();
    }
    delete element;
  }
}

}  // namespace

VuePresenceRepas::VuePresenceRepas(TFrmPresenceRepas& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      date_(new Etiquette({}, TRole::Texte, &Theme::TitreAccueil)),
      avertissement_(new Etiquette({}, TRole::Erreur, &Theme::Gras)),
      attente_(new Etiquette({}, TRole::Secondaire)),
      transfert_(new Etiquette({}, TRole::Secondaire)),
      recherche_(new QLineEdit),
      classe_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      cadres_(new QScrollArea),
      vide_(new EtatVide(cadres_)),
      minuterie_(new QTimer(this)) {
  auto* tete = new QHBoxLayout;
  tete->addWidget(date_, 1);
  auto* notes = new QVBoxLayout;
  notes->addWidget(attente_, 0, Qt::AlignRight);
  notes->addWidget(transfert_, 0, Qt::AlignRight);
  tete->addLayout(notes);
  auto* corps = new QHBoxLayout;
  corps->setSpacing(Theme::Px(16));
  corps->addWidget(Gauche());
  corps->addWidget(Droite(), 1);
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(Theme::Px(16), Theme::Px(16), Theme::Px(16), Theme::Px(12));
  colonne->addLayout(tete);
  colonne->addWidget(avertissement_);
  colonne->addLayout(corps, 1);
  connect(minuterie_, &QTimer::timeout, this, [this] { form_.Horloge(); });
  minuterie_->start(kMinuteMs);
  // Later, as it takes this view away.
  connect(
      vide_, &EtatVide::BoutonPresse, this, [this] { form_.btnTransfertClick(); }, Qt::QueuedConnection);
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

QWidget* VuePresenceRepas::Gauche() {
  auto* place = new QWidget;
  auto* colonne = new QVBoxLayout(place);
  colonne->setContentsMargins(0, 0, 0, 0);
  boutons_ = new QVBoxLayout;
  boutons_->setSpacing(Theme::Px(8));
  colonne->addLayout(boutons_);
  colonne->addStretch(1);
  auto* defile = new QScrollArea;
  defile->setWidgetResizable(true);
  defile->setFrameShape(QFrame::NoFrame);
  defile->setFocusPolicy(Qt::NoFocus);
  defile->setFixedWidth(Theme::Px(kLargeurBouton + 30));
  defile->setWidget(place);
  SuivreLeDoigt(*defile);
  return defile;
}

QWidget* VuePresenceRepas::Droite() {
  recherche_->setPlaceholderText(u"Rechercher un élève"_s);
  recherche_->setAccessibleName(u"Rechercher un élève"_s);
  recherche_->setClearButtonEnabled(true);
  recherche_->setMinimumSize(Theme::Px(kLargeurRecherche), Theme::CoteDoigt());
  connect(recherche_, &QLineEdit::textEdited, this, [this](const QString& t) { form_.edRechercheChange(t); });
  cadres_->setWidgetResizable(true);
  cadres_->setFrameShape(QFrame::NoFrame);
  cadres_->setFocusPolicy(Qt::NoFocus);
  SuivreLeDoigt(*cadres_);
  auto* place = new QWidget;
  auto* colonne = new QVBoxLayout(place);
  colonne->setContentsMargins(0, 0, 0, 0);
  auto* tete = new QHBoxLayout;
  tete->addWidget(classe_, 1);
  tete->addWidget(recherche_);
  colonne->addLayout(tete);
  colonne->addWidget(cadres_, 1);
  return place;
}

void VuePresenceRepas::Actualiser() {
  date_->setText(form_.lblDate());
  avertissement_->setText(form_.AvertissementDate());
  avertissement_->setVisible(!form_.AvertissementDate().isEmpty());
  attente_->setText(form_.NoteEnAttente());
  transfert_->setText(form_.NoteTransfert());
  classe_->setText(form_.lblClasse());
  recherche_->setEnabled(form_.Empechement().isEmpty());
  if (recherche_->text().trimmed() != form_.Recherche()) recherche_->setText(form_.Recherche());
  RemplirBoutons();
  RemplirCadres();
  if (form_.Empechement().isEmpty())
    vide_->Cacher();
  else
    vide_->Montrer(u"Aucun élève à servir"_s, form_.Empechement(), u"Transfert"_s);
}

// The buttons stay where they are while only their counts change.
void VuePresenceRepas::RemplirBoutons() {
  std::vector<TBouton> boutons;
  if (!form_.AnneeChoisie())
    for (const QString& annee : form_.Annees())
      boutons.push_back({annee, annee, [this, annee] { form_.btnAnneeClick(annee); }});
  else
    for (const auto& [classe, libelle, compte, enMain] : form_.ClassesDeLAnnee())
      boutons.push_back({libelle, libelle % u'\n' % compte,
                         [this, classe = classe] { form_.btnClasseClick(*classe); }, enMain, true});
  if (form_.AnneeChoisie()) boutons.push_back({u"RETOUR"_s, u"RETOUR"_s, [this] { form_.btnRetourClick(); }});
  const bool memes = std::ranges::equal(boutons, boutonsMontres_, {}, &TBouton::Cle,
                                        [](const auto& montre) { return montre.first; });
  if (!memes) CreerBoutons(boutons);
  for (std::size_t i = 0; i < boutons.size(); ++i) {
    boutonsMontres_[i].second->setText(boutons[i].Texte);
    boutonsMontres_[i].second->setChecked(boutons[i].Choisi);
  }
}

void VuePresenceRepas::CreerBoutons(const std::vector<TBouton>& boutons) {
  const bool foyer =
      std::ranges::any_of(boutonsMontres_, [](const auto& montre) { return montre.second->hasFocus(); });
  Vider(*boutons_);
  boutonsMontres_.clear();
  for (const TBouton& bouton : boutons) {
    QPushButton* montre = GrandBouton(bouton.Texte);
    montre->setCheckable(bouton.AChoisir);
    connect(montre, &QPushButton::clicked, this, bouton.Faire, Qt::QueuedConnection);
    if (bouton.Cle == u"RETOUR") boutons_->addSpacing(Theme::Px(20));
    boutons_->addWidget(montre);
    boutonsMontres_.emplace_back(bouton.Cle, montre);
  }
  // Before the field of the search, which would bring up the keyboard of the tablet.
  if (boutonsMontres_.empty()) return;
  setTabOrder(boutonsMontres_.back().second, recherche_);
  if (foyer) boutonsMontres_.front().second->setFocus();
}

bool VuePresenceRepas::MettreAJourCadres() {
  const auto cadres = form_.Cadres();
  const bool memes = std::ranges::equal(
      cadres, montres_, [](const auto& cadre, const auto& montre) { return cadre.Eleve == montre.first; });
  if (!memes) return false;
  for (std::size_t i = 0; i < cadres.size(); ++i)
    montres_[i].second->Definir(cadres[i].Statut, cadres[i].Servi, cadres[i].Radie);
  return true;
}

void VuePresenceRepas::RemplirCadres() {
  if (!montres_.empty() && MettreAJourCadres()) return;
  montres_.clear();
  auto* place = new QWidget;
  auto* rangees = new RangeePliante;
  rangees->setContentsMargins(Theme::Px(kMarge), 0, 0, 0);
  rangees->setSpacing(Theme::Px(kMarge));
  rangees->DefinirEntreLignes(Theme::Px(kEntreLignes));
  auto* colonne = new QVBoxLayout(place);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->addLayout(rangees);
  colonne->addStretch(1);
  for (const TFrmPresenceRepas::TCadre& cadre : form_.Cadres()) {
    auto* bouton = new CadreEleve(cadre.Nom, cadre.Prenom, TFrmPresenceRepas::Photo(*cadre.Eleve));
    bouton->Definir(cadre.Statut, cadre.Servi, cadre.Radie);
    connect(
        bouton, &QAbstractButton::clicked, this, [this, eleve = cadre.Eleve] { form_.CadreClick(*eleve); },
        Qt::QueuedConnection);
    rangees->addWidget(bouton);
    montres_.emplace_back(cadre.Eleve, bouton);
  }
  cadres_->setWidget(place);
}
