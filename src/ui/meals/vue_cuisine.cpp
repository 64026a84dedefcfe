#include "ui/meals/vue_cuisine.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "screens/meals/frm_cuisine.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/titres.h"
#include "ui/meals/choix_classe_jour.h"

using namespace Qt::StringLiterals;

namespace {

/// A number in large type over its word.
QWidget* GrandNombre(Etiquette*& nombre, const QString& mot) {
  auto* place = new QWidget;
  auto* colonne = new QVBoxLayout(place);
  colonne->setContentsMargins(0, 0, 0, 0);
  nombre = new Etiquette({}, TRole::Accent, &Theme::TitreAccueil);
  nombre->setAccessibleName(mot);
  colonne->addWidget(nombre);
  colonne->addWidget(new Etiquette(mot, TRole::Secondaire));
  return place;
}

}  // namespace

VueCuisine::VueCuisine(TFrmCuisine& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      choix_(new ChoixClasseJour(false)),
      incompletes_(new Etiquette({}, TRole::Alerte)),
      changements_(new Etiquette({}, TRole::Alerte, &Theme::Gras)),
      arbre_(new QTreeWidget),
      vide_(new EtatVide(arbre_)) {
  Disposer();
  connect(choix_, &ChoixClasseJour::Recule, this, [this] { form_.btnReculeDateClick(); });
  connect(choix_, &ChoixClasseJour::Avance, this, [this] { form_.btnAvanceDateClick(); });
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VueCuisine::Disposer() {
  QPushButton* actualiser = BoutonSimple(u"Actualiser"_s, u"view-refresh"_s);
  actualiser->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
  actualiser->setToolTip(u"Relire ce que les autres postes ont commandé (Ctrl+R)"_s);
  connect(actualiser, &QPushButton::clicked, this, [this] { form_.AdvGlowButton1Click(); });
  choix_->AjouterAction(actualiser);
  auto* totaux = new QHBoxLayout;
  totaux->setSpacing(Theme::Px(48));
  const TGenerationRepas& generation = form_.Generation();
  const QString mots[] = {u"Repas chauds"_s, QString::fromUtf16(generation.LigneSandwich),
                          QString::fromUtf16(generation.LigneDago)};
  for (std::size_t i = 0; i < nombres_.size(); ++i) totaux->addWidget(GrandNombre(nombres_[i], mots[i]));
  totaux->addStretch(1);
  arbre_->setHeaderHidden(true);
  arbre_->setAccessibleName(u"Commandes par classe"_s);
  for (Etiquette* note : {incompletes_, changements_}) note->setWordWrap(true);
  QVBoxLayout* colonne = ColonneEcran(*this, u"Cuisine"_s);
  colonne->addWidget(choix_);
  colonne->addLayout(totaux);
  colonne->addWidget(incompletes_);
  colonne->addWidget(changements_);
  colonne->addWidget(arbre_, 1);
}

void VueCuisine::RemplirArbre() {
  arbre_->clear();
  for (const auto& classe : form_.Arbre.Racines()) {
    auto* noeud = new QTreeWidgetItem(arbre_, {classe->Texte});
    for (const auto& ligne : classe->Enfants()) new QTreeWidgetItem(noeud, {ligne->Texte});
  }
  arbre_->expandAll();
  if (!form_.Arbre.Racines().empty())
    vide_->Cacher();
  else
    vide_->Montrer(u"Aucune commande ce jour"_s, u"Les commandes s'encodent dans l'écran Réservation."_s);
}

void VueCuisine::Actualiser() {
  choix_->DefinirJour(form_.Titre(), true);
  const int nombres[] = {form_.lblRepas(), form_.lblSandwiches(), form_.lblDagobert()};
  for (std::size_t i = 0; i < nombres_.size(); ++i) nombres_[i]->setText(QString::number(nombres[i]));
  for (const auto& [note, texte] :
       {std::pair{incompletes_, form_.NoteIncompletes()}, std::pair{changements_, form_.NoteChangements()}}) {
    note->setText(texte);
    note->setVisible(!texte.isEmpty());
  }
  RemplirArbre();
}
