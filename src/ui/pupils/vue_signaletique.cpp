#include "ui/pupils/vue_signaletique.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>

#include "core/formats.h"
#include "core/mois.h"
#include "screens/pupils/frm_signaletique.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/pied_de_grille.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"
#include "ui/pupils/fiche_identite.h"

using namespace Qt::StringLiterals;

namespace {

// At 10 points.
constexpr int kLargeurIdentite = 536;
constexpr int kLargeurDeux = 1060;
constexpr int kLargeurTrois = 1500;
constexpr int kIconeSeule = 28;
constexpr int kMois = 108;
constexpr int kRangees = 5;
/// With more than one column the last row of the grid takes the height that the lists leave.
constexpr int kRangsLarges = 3;

QWidget* CreerBloc(TitreSection* titre, VueGrille* grille, PiedDeGrille* pied) {
  titre->setMinimumHeight(Theme::Px(30));  // with and without a list of months
  auto* bloc = new QWidget;
  auto* colonne = new QVBoxLayout(bloc);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(0);
  colonne->addWidget(titre);
  colonne->addSpacing(Theme::Px(6));
  colonne->addWidget(grille, 1);
  colonne->addSpacing(Theme::Px(6));
  colonne->addWidget(pied);
  return bloc;
}

}  // namespace

VueSignaletique::VueSignaletique(TFrmSignaletique& form, QWidget* parent)
    : QScrollArea(parent), form_(form), contenu_(new QWidget), grille_(new QGridLayout(contenu_)) {
  setWidgetResizable(true);
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  identite_ = new FicheIdentite(form);
  identite_->setAccessibleName(u"Signalétique"_s);
  blocReleve_ = CreerReleve();
  blocFrais_ = CreerFrais();
  setWidget(contenu_);
  CreerRetablir();
  connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &VueSignaletique::DefinirMarges);
  Disposer();
  identite_->OrdonnerTab();
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

QWidget* VueSignaletique::CreerReleve() {
  cmbMois_ = new QComboBox;
  cmbMois_->addItems(NomsMoisScolaires());
  cmbMois_->setAccessibleName(u"Mois du relevé"_s);
  cmbMois_->setMaxVisibleItems(10);
  cmbMois_->setMaximumWidth(Theme::Px(kMois));
  connect(cmbMois_, &QComboBox::activated, this, [this](int indice) { form_.cmbMoisChange(indice); });
  auto* titre = new TitreSection(u"Relevé mensuel des services"_s);
  titre->AjouterSuite(cmbMois_);
  QPushButton* supprimer = BoutonSupprimer(u"Supprimer le relevé"_s, {});
  connect(supprimer, &QPushButton::clicked, this, [this] { form_.btnDeleteFaitClick(); });
  auto* outils = new QWidget;  // close to each other: the title beside them is whole at 1366 points
  auto* rang = new QHBoxLayout(outils);
  rang->setContentsMargins(0, 0, 0, 0);
  rang->setSpacing(0);
  for (QPushButton* bouton :
       {Bouton({}, u"list-add"_s, u"Ajouter un relevé"_s, [this] { form_.btnAjoutFaitClick(); }),
        Bouton({}, u"view-calendar-day"_s, u"Relevés sur calendrier"_s,
               [this] { form_.btnCalendrierClick(); }),
        Bouton({}, u"document-print"_s, u"Exporter les informations (accueil extrascolaire du mois)"_s,
               [this] { form_.SpeedButton3Click(); }),
        supprimer}) {
    bouton->setMaximumWidth(Theme::Px(kIconeSeule));
    rang->addWidget(bouton);
  }
  titre->AjouterAction(outils);
  releve_ = new VueGrille(form_.Releve.Grille, titre->Texte(), u"Signaletique/Releve"_s);
  releve_->DefinirNomExport([this] { return form_.NomReleve(); });
  piedReleve_ = new PiedDeGrille(*releve_);
  sansReleve_ = new EtatVide(releve_);
  connect(releve_, &VueGrille::Changee, this, &VueSignaletique::ActualiserListes);
  connect(releve_, &VueGrille::Suppression, this, [this] { form_.btnDeleteFaitClick(); });
  connect(sansReleve_, &EtatVide::BoutonPresse, this, [this] { form_.btnAjoutFaitClick(); });
  return CreerBloc(titre, releve_, piedReleve_);
}

QWidget* VueSignaletique::CreerFrais() {
  auto* titre = new TitreSection(u"Frais et paiements"_s);
  titre->AjouterAction(
      Bouton(u"Ajouter"_s, u"list-add"_s, u"Ajouter un paiement"_s, [this] { form_.SpeedButton1Click(); }));
  QPushButton* supprimer = BoutonSupprimer(u"Supprimer le frais ou le paiement"_s);
  connect(supprimer, &QPushButton::clicked, this, [this] { form_.SpeedButton2Click(); });
  titre->AjouterAction(supprimer);
  frais_ = new VueGrille(form_.Frais.Grille, titre->Texte(), u"Signaletique/Frais"_s);
  frais_->DefinirNomExport([this] { return form_.NomFrais(); });
  piedFrais_ = new PiedDeGrille(*frais_);
  sansFrais_ = new EtatVide(frais_);
  connect(frais_, &VueGrille::Activee, this, [this] { form_.grdListeFraisDblClick(); });
  connect(frais_, &VueGrille::Suppression, this, [this] { form_.SpeedButton2Click(); });
  connect(frais_, &VueGrille::Cochee, this, [this](int ligne) { form_.grdListeFraisCocheClick(ligne); });
  return CreerBloc(titre, frais_, piedFrais_);
}

QPushButton* VueSignaletique::Bouton(const QString& texte, const QString& icone, const QString& nom,
                                     std::function<void()> faire) {
  QPushButton* bouton = BoutonDiscret(texte, icone);
  bouton->setAccessibleName(nom);
  bouton->setToolTip(nom);
  connect(bouton, &QPushButton::clicked, this, std::move(faire));
  return bouton;
}

void VueSignaletique::CreerRetablir() {
  retablir_ = new QAction(Theme::Icone(u"edit-undo"_s), u"Rétablir ce qui a été supprimé"_s, this);
  retablir_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  retablir_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(retablir_, &QAction::triggered, this, [this] { form_.Retablir(); });
  for (QWidget* place :
       {static_cast<QWidget*>(this), static_cast<QWidget*>(releve_), static_cast<QWidget*>(frais_)})
    place->addAction(retablir_);
}

// Placing

int VueSignaletique::ColonnesPour(int largeur) const {
  if (largeur >= Theme::Px(kLargeurTrois)) return 3;
  return largeur >= Theme::Px(kLargeurDeux) ? 2 : 1;
}

/// Wider than it should be when a broad font wants it.
int VueSignaletique::LargeurIdentite() const {
  return std::max(Theme::Px(kLargeurIdentite), identite_->minimumSizeHint().width());
}

void VueSignaletique::Disposer() {
  colonnes_ = ColonnesPour(width());
  const bool seule = colonnes_ == 1, trois = colonnes_ == 3;
  for (QWidget* bloc : {static_cast<QWidget*>(identite_), blocReleve_, blocFrais_})
    grille_->removeWidget(bloc);
  grille_->addWidget(identite_, 0, 0, seule ? 1 : kRangsLarges, 1);
  grille_->addWidget(blocReleve_, seule ? 1 : 0, seule ? 0 : 1);
  grille_->addWidget(blocFrais_, seule ? 2 : trois ? 0 : 1, seule ? 0 : trois ? 2 : 1);
  for (int i = 0; i < 3; ++i) {
    // Side by side the labels of the fees need more room than the categories of the month.
    grille_->setColumnStretch(i, i >= colonnes_ || (!seule && i == 0) ? 0 : trois ? 6 + i : 1);
    grille_->setRowStretch(i, (seule && i > 0) || i == kRangsLarges - 1 ? 1 : 0);
  }
  DefinirMarges();
  grille_->setHorizontalSpacing(Theme::Px(trois ? 24 : 16));  // the labels of the fees need what they can get
  grille_->setVerticalSpacing(Theme::Px(seule ? 24 : 16));
  identite_->Aerer(trois);
  identite_->setMinimumWidth(seule ? 0 : LargeurIdentite());
  identite_->setMaximumWidth(seule ? QWIDGETSIZE_MAX : LargeurIdentite());
  for (VueGrille* liste : {releve_, frais_})
    liste->setMinimumHeight(liste->HauteurPour(seule ? 8 : kRangees - 2));
  TenirDansLaVue();
}

// The scroll bar stands in the margin: the lists are as wide with it as without.
void VueSignaletique::DefinirMarges() {
  const int marge = Theme::Px(16);
  const int barre = verticalScrollBar()->maximum() > 0 ? verticalScrollBar()->sizeHint().width() : 0;
  grille_->setContentsMargins(marge, Theme::Px(12), std::max(marge - barre, 0), Theme::Px(12));
}

// Beside a long column of the pupil the lists do not grow with it: their totals stay in view.
void VueSignaletique::TenirDansLaVue() {
  const int rangs = colonnes_ == 2 ? 2 : 1;
  const int place =
      viewport()->height() - 2 * Theme::Px(12) - (kRangsLarges - 1) * grille_->verticalSpacing();
  for (QWidget* bloc : {blocReleve_, blocFrais_}) {
    const int hauteur = std::max(place / rangs, bloc->minimumSizeHint().height());
    bloc->setMaximumHeight(colonnes_ == 1 ? QWIDGETSIZE_MAX : hauteur);
    bloc->setMinimumHeight(colonnes_ == 1 ? 0 : hauteur);
  }
}

void VueSignaletique::resizeEvent(QResizeEvent* evenement) {
  if (ColonnesPour(width()) != colonnes_) Disposer();
  QScrollArea::resizeEvent(evenement);
  TenirDansLaVue();
}

void VueSignaletique::changeEvent(QEvent* evenement) {
  QScrollArea::changeEvent(evenement);
  if (evenement->type() == QEvent::FontChange && colonnes_ > 0) Disposer();
}

// Showing

void VueSignaletique::Actualiser() {
  identite_->Actualiser();
  retablir_->setEnabled(form_.PeutRetablir());
  cmbMois_->setCurrentIndex(form_.IndiceMois());
  piedFrais_->Definir(form_.Frais.Pied);
  ActualiserListes();
}

void VueSignaletique::ActualiserListes() {
  const QString total = form_.AvecEleve() ? FormatMontant(form_.Releve.Total) : QString();
  piedReleve_->Definir({{u"Total"_s, {}, {}, {}, total}});
  const QString sansReleve = form_.TexteSansReleve();
  sansReleve.isEmpty() ? sansReleve_->Cacher() : sansReleve_->Montrer(sansReleve, {}, u"Ajouter"_s);
  const bool sansFrais = form_.AvecEleve() && form_.Frais.Grille.NombreLignes() == 0;
  sansFrais ? sansFrais_->Montrer(u"Aucun frais ni paiement"_s) : sansFrais_->Cacher();
}
