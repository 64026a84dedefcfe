#include "ui/attendance/vue_presences.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "core/accord.h"
#include "screens/attendance/frm_presences.h"
#include "ui/commun/bouton.h"
#include "ui/commun/compteur.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/outils_liste.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLignesAnomalies = 8;
constexpr int kLignesMinimum = 3;

/// One word and several, by counter.
const struct {
  QString Un, Plusieurs;
} kMots[] = {{u"ligne dans le fichier"_s, u"lignes dans le fichier"_s},
             {u"relevé bon"_s, u"relevés bons"_s},
             {u"anomalie"_s, u"anomalies"_s},
             {u"total"_s, u"total"_s}};
constexpr int kAnomalies = 2;

}  // namespace

VuePresences::VuePresences(TfrmPresences& form, QWidget* parent)
    : QScrollArea(parent),
      form_(form),
      etape1_(BoutonPrincipal(u"Etape n°1 : Importer les présences"_s, u"view-barcode"_s)),
      etape2_(BoutonSimple(u"Etape n°2 : Mémoriser les présences"_s, u"document-save"_s)),
      source_(BoutonDiscret({})),
      menu_(new QMenu(this)),
      fichier_(new Etiquette({}, TRole::Secondaire)),
      titreAnomalies_(new TitreSection(u"Anomalies"_s)),
      corriger_(BoutonSimple(u"Corriger le relevé"_s, u"document-edit"_s)),
      anomalies_(new VueGrille(form.Anomalies, u"Anomalies"_s, u"Presences/Anomalies"_s)),
      titreRecapitulatif_(new TitreSection(u"Récapitulatif"_s)),
      recapitulatif_(new VueGrille(form.Recapitulatif, u"Récapitulatif"_s, u"Presences/Recapitulatif"_s)),
      vide_(new EtatVide(recapitulatif_)) {
  CreerMenu();
  CreerGrilles();
  Disposer();
  connect(etape1_, &QPushButton::clicked, this, &VuePresences::Importer);
  connect(etape2_, &QPushButton::clicked, this, [this] { form_.btnEtape2Click(); });
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VuePresences::CreerMenu() {
  changerSource_ = menu_->addAction(QString(), this, [this] { form_.mnuImportationClick(); });
  menu_->addAction(Theme::Icone(u"document-open"_s), u"Importer un fichier de présence"_s, this,
                   &VuePresences::ImporterFichier);
  source_->setMenu(menu_);
  source_->setToolTip(u"D'où viennent les présences"_s);
}

void VuePresences::CreerGrilles() {
  anomalies_->GarderBarre();
  recapitulatif_->GarderBarre();
  recapitulatif_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  VueGrille::Accorder(*anomalies_, *recapitulatif_);
  auto* corriger = new QAction(corriger_->icon(), corriger_->text(), anomalies_);
  anomalies_->addAction(corriger);
  corriger_->setToolTip(u"Corriger le relevé choisi (F2, Entrée)"_s);
  connect(corriger, &QAction::triggered, this, &VuePresences::Corriger);
  connect(corriger_, &QPushButton::clicked, this, &VuePresences::Corriger);
  connect(anomalies_, &VueGrille::Activee, this, &VuePresences::Corriger);
  auto* touche = new QShortcut(QKeySequence(Qt::Key_F2), this);
  touche->setContext(Qt::WidgetWithChildrenShortcut);
  connect(touche, &QShortcut::activated, this, &VuePresences::Corriger);
}

QLayout* VuePresences::Etapes() {
  auto* boutons = new RangeePliante;
  for (QPushButton* bouton : {etape1_, etape2_, source_}) boutons->addWidget(bouton);
  fichier_->DefinirElision(true);
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(8));
  colonne->addLayout(boutons);
  colonne->addWidget(fichier_);
  return colonne;
}

QLayout* VuePresences::Comptes() {
  auto* rangee = new RangeePliante;
  rangee->setSpacing(Theme::Px(32));
  for (Compteur*& compteur : comptes_) rangee->addWidget(compteur = new Compteur({}));
  return rangee;
}

void VuePresences::Disposer() {
  titreAnomalies_->AjouterAction(corriger_);
  AjouterFiltreEtCopie(*titreRecapitulatif_, *recapitulatif_);

  QVBoxLayout* colonne = ColonneEcran(*this, u"Présences"_s);
  colonne->addLayout(Etapes());
  colonne->addLayout(Comptes());
  colonne->addWidget(titreAnomalies_);
  colonne->addWidget(anomalies_);
  colonne->addWidget(titreRecapitulatif_);
  colonne->addWidget(recapitulatif_, 1);
}

void VuePresences::Actualiser() {
  ActualiserEtapes();
  source_->setText(form_.TitreSource());
  changerSource_->setText(form_.TitreMenuImportation());
  fichier_->setText(form_.Fichier());
  fichier_->setVisible(!form_.Fichier().isEmpty());
  ActualiserComptes();

  const bool anomalies = form_.Anomalies.NombreLignes() > 0;
  titreAnomalies_->setVisible(form_.FichierLu());
  titreAnomalies_->DefinirTexte(form_.TitreAnomalies());
  titreAnomalies_->DefinirNote(form_.NoteAnomalies());
  anomalies_->setVisible(anomalies);
  corriger_->setVisible(anomalies);
  corriger_->setEnabled(form_.PeutCorriger());
  titreRecapitulatif_->DefinirNote(form_.NoteRecapitulatif());
  MesurerAnomalies();
  vide_->Montrer(form_.RecapitulatifVide());
}

void VuePresences::ActualiserEtapes() {
  const bool pret = form_.Etape2Active(), libre = form_.Etape1Active();
  DefinirGenre(*etape1_, libre && !pret ? TGenreBouton::Principal : TGenreBouton::Simple);
  DefinirGenre(*etape2_, pret ? TGenreBouton::Principal : TGenreBouton::Simple);
  if (!libre && etape1_->hasFocus()) foyerARendre_ = true;
  etape1_->setEnabled(libre);
  source_->setEnabled(libre);
  etape2_->setEnabled(pret);
  if (libre && std::exchange(foyerARendre_, false)) etape1_->setFocus(Qt::OtherFocusReason);
}

void VuePresences::ActualiserComptes() {
  const TfrmPresences::TCompteurs& c = form_.Compteurs();
  const int nombres[] = {c.lblEntree, c.lblRecap, c.lblAnomalie, c.lblTotal};
  for (std::size_t i = 0; i < comptes_.size(); ++i) {
    comptes_[i]->Definir(nombres[i]);
    comptes_[i]->DefinirMot(Accorder(nombres[i], kMots[i].Un, kMots[i].Plusieurs));
    comptes_[i]->setEnabled(c.AJour);
    comptes_[i]->setToolTip(c.AJour ? QString() : u"Comptes d'un fichier précédent"_s);
  }
  comptes_[kAnomalies]->DefinirRole(c.lblAnomalie > 0 ? TRole::Alerte : TRole::Texte);
}

// All the anomalies up to eight; where there is no room for both, the summary gives way first.
void VuePresences::MesurerAnomalies() {
  const int lignes = std::min(form_.Anomalies.NombreLignes(), kLignesAnomalies);
  anomalies_->setMaximumHeight(anomalies_->HauteurPour(lignes));
  anomalies_->setMinimumHeight(anomalies_->HauteurPour(std::min(lignes, kLignesMinimum)));
  recapitulatif_->setMinimumHeight(recapitulatif_->HauteurPour(kLignesMinimum));
}

void VuePresences::changeEvent(QEvent* evenement) {
  QScrollArea::changeEvent(evenement);
  if (evenement->type() == QEvent::FontChange) MesurerAnomalies();
}

void VuePresences::contextMenuEvent(QContextMenuEvent* evenement) { menu_->popup(evenement->globalPos()); }

void VuePresences::Importer() {
  if (form_.ScannerVisible())
    form_.btnImportScannerClick();
  else
    form_.btnImportFTPClick();
  PlacerFoyer();
}

void VuePresences::ImporterFichier() {
  form_.Importerunfichierdeprsence1Click();
  PlacerFoyer();
}

void VuePresences::PlacerFoyer() {
  if (!form_.Etape2Active()) return;
  if (form_.Anomalies.NombreLignes() > 0)
    anomalies_->setFocus(Qt::OtherFocusReason);
  else
    etape2_->setFocus(Qt::OtherFocusReason);
}

void VuePresences::Corriger() {
  if (!form_.PeutCorriger()) return;
  form_.Corrigerlerelev1Click();
  PlacerFoyer();
}
