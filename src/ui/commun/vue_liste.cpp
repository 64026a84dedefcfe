#include "ui/commun/vue_liste.h"

#include <QAction>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/commun/frm_liste.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/outils_liste.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

VueListe::VueListe(TFrmListe& form, QWidget* parent)
    : QScrollArea(parent),
      form_(form),
      liste_(new VueGrille(form.Grille, form.Textes().Liste, u"Listes/" % form.Textes().Liste)),
      liaison_(new LiaisonChamps(form.Champs(), this)),
      vide_(new EtatVide(liste_)) {
  QVBoxLayout* colonne = ColonneEcran(*this, CreerTitre());
  colonne->addWidget(liste_, 1);
  colonne->addWidget(CreerPanneau());
  liste_->DefinirMoindre(4);

  AjouterRetablir();
  liste_->addAction(Theme::Icone(u"document-print"_s), u"Imprimer la liste..."_s, this,
                    [this] { form_.Imprimer(liste_->LignesVues(), liste_->ColonnesVues()); });
  connect(liste_, &VueGrille::Activee, this, [this] { form_.RecevoirMessage({TCodeMessage::Modifier, {}}); });
  connect(liste_, &VueGrille::Suppression, this, [this] {
    form_.RecevoirMessage({TCodeMessage::Supprimer, {}});
  });
  connect(vide_, &EtatVide::BoutonPresse, this, [this] { form_.Nouveau(); });
  liens_ += form.SurChangement.Suivre([this] { Actualiser(); });
  setFocusProxy(liste_);
  Actualiser();
}

TitreEcran* VueListe::CreerTitre() {
  auto* titre = new TitreEcran(form_.Textes().Titre);
  AjouterFiltreEtCopie(*titre, *liste_);
  return titre;
}

QWidget* VueListe::CreerPanneau() {
  titre_ = new TitreSection({});
  marque_ = new MarqueEtat;
  titre_->AjouterAction(marque_);
  panneau_ = new QHBoxLayout;
  panneau_->setSpacing(Theme::Px(24));
  panneau_->addLayout(CreerFormulaire(*liaison_), 3);
  auto* panneau = new QWidget;
  auto* colonne = new QVBoxLayout(panneau);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(Theme::Px(8));
  colonne->addWidget(titre_);
  colonne->addLayout(panneau_);
  return panneau;
}

void VueListe::AjouterRetablir() {
  auto* action =
      new QAction(Theme::Icone(u"edit-undo"_s), u"Rétablir ce qui a été supprimé\tCtrl+Z"_s, liste_);
  action->setEnabled(false);
  connect(action, &QAction::triggered, this, [this] { form_.Retablir(); });
  liste_->addAction(action);
  liens_ += form_.SurCommandes.Suivre([this, action] { action->setEnabled(form_.PeutRetablir()); });
  auto* partout = new QAction(this);  // wherever the hand is, but in a field, which undoes its own typing
  partout->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  partout->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(partout, &QAction::triggered, action, &QAction::trigger);
  addAction(partout);
}

void VueListe::Actualiser() {
  const TModeEdition mode = form_.Mode();
  const bool lecture = mode == TModeEdition::Lecture;
  titre_->DefinirTexte(form_.TitrePanneau());
  const QString etat = mode == TModeEdition::Nouveau ? u"Nouveau"_s : u"En modification"_s;
  if (lecture)
    marque_->Definir(QString(), u"En lecture · F2 modifie, F7 ajoute"_s);
  else if (form_.EstModifie())
    marque_->Definir(u"data-warning"_s, u"Non enregistré · F9 enregistre, Échap annule"_s);
  else
    marque_->Definir(u"data-information"_s, etat % u" · F9 enregistre, Échap annule");
  const bool foyer = !lecture && liste_->hasFocus();
  liste_->setEnabled(lecture);
  if (foyer) liaison_->AllerA(0);
  if (lecture && !lecture_) liste_->setFocus(Qt::OtherFocusReason);
  lecture_ = lecture;
  form_.Grille.NombreLignes() > 0 || !lecture
      ? vide_->Cacher()
      : vide_->Montrer(form_.Textes().Vide, form_.Textes().VideSuite, u"Nouveau"_s);
}

void VueListe::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() != Qt::Key_Escape || form_.Mode() == TModeEdition::Lecture)
    return QScrollArea::keyPressEvent(evenement);
  form_.Annuler();
}
