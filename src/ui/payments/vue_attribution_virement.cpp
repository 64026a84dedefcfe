#include "ui/payments/vue_attribution_virement.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

#include "screens/payments/frm_attribution_virement.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/texte.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

namespace {

struct TLigneMouvement {
  const char16_t* Libelle;
  const char* Nom;
  QString (TFrmAttributionVirement::*Lire)() const;
};

using F = TFrmAttributionVirement;
constexpr TLigneMouvement kMouvement[] = {{u"Donneur d'ordre :", "lblDonneurOrdre", &F::lblDonneurOrdre},
                                          {u"Montant :", "lblMontant", &F::lblMontant},
                                          {u"Date du virement :", "lblDateVirement", &F::lblDateVirement},
                                          {u"Communication :", "lblCommunication", &F::lblCommunication},
                                          {u"N° de compte :", "lblCompte", &F::lblCompte}};

}  // namespace

VueAttributionVirement::VueAttributionVirement(TFrmAttributionVirement& form, QWidget* parent)
    : DialogueBase(u"Attribution manuelle des paiements"_s, parent),
      form_(form),
      liaison_(new LiaisonChamps(form.Champs(), this)),
      nom_(new ChampFiltre(u"Nom de l'élève"_s)),
      eleves_(new VueGrille(form.LUCombo1, u"Élèves de l'année"_s, u"Attribution/Eleves"_s)),
      classe_(new Etiquette),
      valide_(new MarqueEtat),
      proposition_(new Etiquette({}, TRole::Texte, &Theme::Gras)),
      accepter_(BoutonSimple(u"A&ccepter"_s)),
      ajouter_(BoutonSimple(u"Ajouter le groupe au libellé"_s)) {
  DefinirEntete(u"Attribution manuelle des paiements aux élèves"_s);
  Contenu()->addLayout(CreerMouvement());
  Contenu()->addLayout(CreerEleve(), 1);
  Contenu()->addLayout(CreerPaiement());
  CreerBoutons();
  connect(nom_, &QLineEdit::textEdited, this, [this](const QString& texte) { form_.LUCombo1Change(texte); });
  connect(nom_, &QLineEdit::textChanged, this, [this](const QString& texte) {
    if (texte.isEmpty() && !form_.SaisieEleve().isEmpty())
      form_.LUCombo1Change(texte);  // emptied by its button
  });
  connect(eleves_, &VueGrille::Activee, this, [this] { Principal()->click(); });
  connect(accepter_, &QPushButton::clicked, this, [this] { form_.btnAccepterClick(); });
  connect(ajouter_, &QPushButton::clicked, this, [this] { form_.btnAjoutLibelleClick(); });
  nom_->installEventFilter(this);
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  liens_ += form_.SurMouvement.Suivre([this] { PlacerFoyer(); });
  Actualiser();
  PlacerFoyer();
}

QLayout* VueAttributionVirement::CreerMouvement() {
  auto* grille = new QGridLayout;
  grille->setHorizontalSpacing(Theme::Px(8));
  grille->setVerticalSpacing(Theme::Px(4));
  grille->setColumnStretch(1, 1);
  int rang = 0;
  for (const auto& [libelle, nom, lire] : kMouvement) {
    Etiquette*& valeur = mouvement_[static_cast<std::size_t>(rang)];
    valeur = new Etiquette({}, TRole::Texte, &Theme::Gras);
    valeur->setObjectName(QString::fromLatin1(nom));
    valeur->setWordWrap(true);
    valeur->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grille->addWidget(CreerLibelle(QString::fromUtf16(libelle), valeur), rang, 0, Qt::AlignTop);
    grille->addWidget(valeur, rang++, 1);
  }
  return grille;
}

QLayout* VueAttributionVirement::CreerEleve() {
  eleves_->setMinimumSize(Theme::Px(620), eleves_->HauteurPour(6));
  classe_->setMinimumWidth(Theme::Px(72));  // it comes while one types
  auto* rang = new QHBoxLayout;
  rang->setSpacing(Theme::Px(8));
  rang->addWidget(nom_, 1);
  rang->addWidget(classe_);
  rang->addWidget(valide_);
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(8));
  colonne->addLayout(rang);
  colonne->addLayout(CreerProposition());
  colonne->addWidget(eleves_, 1);
  return colonne;
}

// Its place stays while there is none, so that nothing moves from a movement to the next.
QLayout* VueAttributionVirement::CreerProposition() {
  accepter_->setToolTip(u"Attribuer à l'élève proposé (Entrée dans « Nom de l'élève »)"_s);
  QSizePolicy place = accepter_->sizePolicy();
  place.setRetainSizeWhenHidden(true);
  accepter_->setSizePolicy(place);
  proposition_->setWordWrap(true);
  auto* rang = new QHBoxLayout;
  rang->setSpacing(Theme::Px(8));
  rang->addWidget(proposition_, 1);
  rang->addWidget(accepter_);
  return rang;
}

QLayout* VueAttributionVirement::CreerPaiement() {
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(8));
  colonne->addLayout(CreerFormulaire(*liaison_));
  colonne->addWidget(ajouter_, 0, Qt::AlignRight);
  return colonne;
}

void VueAttributionVirement::CreerBoutons() {
  Annuler()->setText(u"Fermer"_s);
  DefinirPrincipal(u"Attribuer"_s, u"dialog-ok-apply"_s);
  repartir_ = AjouterBouton(u"&Répartir..."_s);
  repartir_->setToolTip(u"Répartir le virement entre plusieurs élèves"_s);
  connect(repartir_, &QPushButton::clicked, this, [this] { form_.btnRepartirClick(); });
  QPushButton* precedent = AjouterBouton(u"&Précédent"_s, u"go-previous"_s);
  suivant_ = AjouterBouton(u"&Suivant"_s, u"go-next"_s);
  // Not as the keys of the buttons, which are pressed a moment later.
  connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this, [this] { form_.Button1Click(); });
  connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this,
          [this] { form_.Button2Click(); });
  precedent->setToolTip(u"Mouvement précédent (Page préc.)"_s);
  suivant_->setToolTip(u"Mouvement suivant (Page suiv.)"_s);
  connect(precedent, &QPushButton::clicked, this, [this] { form_.Button1Click(); });
  connect(suivant_, &QPushButton::clicked, this, [this] { form_.Button2Click(); });
}

// The dialog stays for the next movement.
bool VueAttributionVirement::Valider() {
  form_.Button3Click();
  return false;
}

void VueAttributionVirement::reject() {
  form_.Button4Click();
  if (!form_.EstMontree()) DialogueBase::reject();
}

void VueAttributionVirement::Actualiser() {
  for (std::size_t i = 0; i < mouvement_.size(); ++i)
    mouvement_[i]->setText(TypographieMontant(std::invoke(kMouvement[i].Lire, form_)));
  if (nom_->text() != form_.SaisieEleve()) nom_->setText(form_.SaisieEleve());
  for (QWidget* champ :
       {static_cast<QWidget*>(nom_), static_cast<QWidget*>(eleves_), static_cast<QWidget*>(ajouter_)})
    champ->setEnabled(form_.Actif());
  classe_->setText(form_.lblClasse());
  proposition_->setText(form_.lblProposition());
  accepter_->setVisible(!proposition_->text().isEmpty());
  repartir_->setEnabled(form_.PeutRepartir());
  const auto& [niveau, etat] = form_.Etat();
  valide_->Definir(niveau, etat);
}

void VueAttributionVirement::PlacerFoyer() {
  (form_.Actif() ? static_cast<QWidget*>(nom_) : suivant_)->setFocus(Qt::OtherFocusReason);
}

void VueAttributionVirement::Deplacer(int pas) {
  const int derniere = form_.LUCombo1.NombreLignes() - 1;
  if (derniere < 0) return;
  form_.LUCombo1.ChoisirLigne(std::clamp(form_.LUCombo1.LigneCourante() + pas, 0, derniere));
  eleves_->MontrerLigne(form_.LUCombo1.LigneCourante());
}

// The arrows choose in the list while the hand goes on typing.
bool VueAttributionVirement::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet != nom_ || evenement->type() != QEvent::KeyPress)
    return DialogueBase::eventFilter(objet, evenement);
  const int touche = static_cast<QKeyEvent*>(evenement)->key();
  if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
    form_.EntreeClick();
    return true;
  }
  if (touche != Qt::Key_Down && touche != Qt::Key_Up) return false;
  Deplacer(touche == Qt::Key_Down ? 1 : -1);
  return true;
}
