#include "ui/meals/vue_compte_eleve.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/meals/frm_compte_eleve.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"
#include "ui/meals/choix_classe_jour.h"
#include "ui/meals/rangee_compteurs.h"

using namespace Qt::StringLiterals;

VueCompteEleve::VueCompteEleve(TFrmCompteEleve& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      choix_(new ChoixClasseJour(true)),
      comptes_(new RangeeCompteurs),
      titre_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      recu_(new Etiquette),
      grille_(new VueGrille(form.Grille, u"Comptes des élèves"_s, u"Comptes/Eleves"_s)),
      nom_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      ajouter_(BoutonPrincipal(u"Ajouter un paiement"_s, u"list-add"_s)),
      note_(new Etiquette({}, TRole::Secondaire)),
      total_(new Etiquette({}, TRole::Accent, &Theme::Compteur)),
      valider_(BoutonPrincipal(u"Valider"_s, u"dialog-ok-apply"_s)),
      annuler_(BoutonSimple(u"Annuler"_s)),
      vide_(new EtatVide(grille_)) {
  grille_->DefinirNomExport([this] { return form_.NomComptes(); });
  Disposer();
  choix_->Suivre(form_);
  const auto saisir = [this] {
    form_.btnAjouteArgentClick();
    if (form_.EnSaisie()) champs_.front()->setFocus();
  };
  connect(ajouter_, &QPushButton::clicked, this, saisir);
  connect(grille_, &VueGrille::Activee, this, saisir);
  connect(valider_, &QPushButton::clicked, this, [this] {
    form_.btnValiderClick();
    grille_->setFocus();
  });
  connect(annuler_, &QPushButton::clicked, this, [this] {
    form_.btnAnnulerClick();
    grille_->setFocus();
  });
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VueCompteEleve::AjouterCoupure(QGridLayout& grille, int coupure) {
  const auto i = static_cast<std::size_t>(coupure);
  const QString nom = QString::fromUtf16(Coupures()[i].Libelle);
  boutons_[i] = BoutonSimple(nom);
  champs_[i] = new QLineEdit;
  champs_[i]->setAccessibleName(u"Nombre : " % nom);
  champs_[i]->setAlignment(Qt::AlignRight);
  champs_[i]->setFixedWidth(Theme::Px(70));
  champs_[i]->installEventFilter(this);
  connect(boutons_[i], &QPushButton::clicked, this, [this, coupure] { form_.btnCoupureClick(coupure); });
  connect(champs_[i], &QLineEdit::textEdited, this,
          [this, coupure](const QString& texte) { form_.edChange(coupure, texte); });
  const int rang = coupure < 7 ? coupure : coupure - 7;
  const int colonne = coupure < 7 ? 0 : 2;
  grille.addWidget(boutons_[i], rang, colonne);
  grille.addWidget(champs_[i], rang, colonne + 1);
}

QWidget* VueCompteEleve::CreerMonnaie() {
  auto* place = new QWidget;
  auto* colonne = new QVBoxLayout(place);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->addWidget(note_);
  auto* grille = new QGridLayout;
  grille->setSpacing(Theme::Px(8));
  for (int i = 0; i < static_cast<int>(kNombreCoupures); ++i) AjouterCoupure(*grille, i);
  colonne->addLayout(grille);
  auto* pied = new QHBoxLayout;
  pied->addWidget(total_, 1);
  pied->addWidget(annuler_);
  pied->addWidget(valider_);
  colonne->addLayout(pied);
  OrdonnerFoyer();
  return place;
}

// From field to field, then the end of it, and only then the buttons.
void VueCompteEleve::OrdonnerFoyer() {
  std::vector<QWidget*> ordre(champs_.begin(), champs_.end());
  ordre.insert(ordre.end(), {valider_, annuler_});
  ordre.insert(ordre.end(), boutons_.begin(), boutons_.end());
  for (std::size_t i = 1; i < ordre.size(); ++i) QWidget::setTabOrder(ordre[i - 1], ordre[i]);
}

QWidget* VueCompteEleve::CreerPanneau() {
  auto* place = new QWidget;
  auto* colonne = new QVBoxLayout(place);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(Theme::Px(12));
  colonne->addWidget(nom_);
  colonne->addWidget(ajouter_);
  colonne->addWidget(monnaie_ = CreerMonnaie());
  colonne->addStretch(1);
  nom_->DefinirElision(true);  // the grid keeps its width whatever the name
  place->setFixedWidth(std::max(Theme::Px(260), monnaie_->sizeHint().width()));
  return place;
}

void VueCompteEleve::Disposer() {
  QPushButton* caisse = BoutonSimple(u"Caisse du jour"_s, u"document-print"_s);
  connect(caisse, &QPushButton::clicked, this, [this] { form_.ImprimerCaisse(); });
  choix_->AjouterAction(caisse);
  auto* corps = new QHBoxLayout;
  corps->setSpacing(Theme::Px(24));
  corps->addWidget(grille_, 1);
  corps->addWidget(CreerPanneau());
  auto* tete = new QHBoxLayout;
  tete->addWidget(titre_);
  tete->addStretch(1);
  tete->addWidget(recu_);
  QVBoxLayout* colonne = ColonneEcran(*this, u"Comptes"_s);
  colonne->addWidget(choix_);
  colonne->addWidget(comptes_);
  colonne->addLayout(tete);
  colonne->addLayout(corps, 1);
}

void VueCompteEleve::Actualiser() {
  choix_->Montrer(form_);
  comptes_->Definir(form_.Compteurs());
  titre_->setText(form_.Titre());
  note_->setText(form_.NoteMonnaie());
  recu_->setText(form_.IndiceClasse() > 0 ? form_.TotalRecu() : QString());
  nom_->setText(form_.NomEleve());
  ajouter_->setText(form_.TitreAjouteArgent());
  ajouter_->setVisible(form_.IndiceClasse() > 0 && !form_.EnSaisie());
  grille_->setEnabled(!form_.EnSaisie());
  monnaie_->setVisible(form_.EnSaisie());
  valider_->setVisible(form_.btnValiderVisible());
  total_->setText(form_.lblTotal());
  for (int i = 0; i < static_cast<int>(kNombreCoupures); ++i) {
    QLineEdit* champ = champs_[static_cast<std::size_t>(i)];
    if (champ->text() != form_.Champ(i)) champ->setText(form_.Champ(i));
  }
  if (form_.IndiceClasse() > 0)
    vide_->Cacher();
  else
    vide_->Montrer(u"Aucun compte à montrer"_s, u"Choisissez une classe dans la liste."_s);
}

// The button of the field in hand stands out.
bool VueCompteEleve::eventFilter(QObject* objet, QEvent* evenement) {
  const bool entre = evenement->type() == QEvent::FocusIn;
  if (entre || evenement->type() == QEvent::FocusOut)
    for (std::size_t i = 0; i < kNombreCoupures; ++i)
      if (champs_[i] == objet)
        DefinirGenre(*boutons_[i], entre ? TGenreBouton::Principal : TGenreBouton::Simple);
  return QWidget::eventFilter(objet, evenement);
}

void VueCompteEleve::keyPressEvent(QKeyEvent* evenement) {
  if (form_.EnSaisie() && evenement->key() == Qt::Key_Escape) return annuler_->click();
  const bool entree = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
  if (entree && form_.btnValiderVisible()) return valider_->click();
  QWidget::keyPressEvent(evenement);
}
