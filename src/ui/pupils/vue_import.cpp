#include "ui/pupils/vue_import.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "core/accord.h"
#include "screens/pupils/frm_import.h"
#include "ui/commun/bouton.h"
#include "ui/commun/compteur.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/feuille_progression.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/outils_liste.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kNom = 2;  // the column that is never cut while there is room

}  // namespace

VueImport::VueImport(TFrmImport& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      etape1_(BoutonPrincipal(u"Etape n°1 : Ouvrir le fichier de données"_s, u"document-open"_s)),
      etape2_(BoutonSimple(u"Etape n°2 : Démarrer le transfert des données"_s, u"document-import"_s)),
      eleves_(new Compteur({})),
      fichier_(new MarqueEtat),
      effet_(new Etiquette({}, TRole::Secondaire)),
      feuille_(new FeuilleProgression),
      grille_(new VueGrille(form.Grille, u"Contenu du fichier"_s, u"Importation/Fichier"_s)),
      vide_(new EtatVide(grille_)) {
  Disposer();
  connect(etape1_, &QPushButton::clicked, this,
          [this] { FaireEtape(form_, &TFrmImport::btnEtape1Click, etape1_, etape2_); });
  connect(etape2_, &QPushButton::clicked, this,
          [this] { FaireEtape(form_, &TFrmImport::btnEtape2Click, etape1_, etape2_); });
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VueImport::Disposer() {
  auto* boutons = new RangeePliante;
  boutons->addWidget(etape1_);
  boutons->addWidget(etape2_);
  auto* comptes = new QHBoxLayout;
  comptes->setSpacing(Theme::Px(32));
  comptes->addWidget(eleves_);
  comptes->addWidget(fichier_, 1);

  grille_->DefinirColonneSouple(kNom);
  auto* titre = new TitreSection(u"Contenu du fichier"_s);
  AjouterFiltreEtCopie(*titre, *grille_);

  QVBoxLayout* colonne = ColonneEcran(*this, u"Importation des élèves"_s);
  colonne->addLayout(boutons);
  colonne->addLayout(comptes);
  colonne->addWidget(effet_);
  colonne->addWidget(feuille_);
  colonne->addWidget(titre);
  colonne->addWidget(grille_, 1);
}

void VueImport::Actualiser() {
  const bool seconde = form_.Etape2Suivante();
  const bool premiere = form_.Etape1Active() && !seconde;
  DefinirGenre(*etape1_, premiere ? TGenreBouton::Principal : TGenreBouton::Simple);
  DefinirGenre(*etape2_, seconde ? TGenreBouton::Principal : TGenreBouton::Simple);
  etape1_->setEnabled(form_.Etape1Active());
  etape2_->setEnabled(form_.Etape2Active());
  const int nombre = form_.NombreEleves();
  eleves_->Definir(nombre);
  eleves_->DefinirMot(Accorder(nombre, u"élève dans le fichier"_s, u"élèves dans le fichier"_s));
  fichier_->Definir(form_.Fichier().Niveau, form_.Fichier().Texte);
  effet_->setText(form_.Effet());
  effet_->setVisible(!form_.Effet().isEmpty());
  if (form_.Grille.NombreLignes() > 0)
    vide_->Cacher();
  else
    vide_->Montrer(
        u"Aucun élève à montrer"_s,
        u"Ouvrez l'export du registre de l'école : ses élèves s'affichent ici avant le transfert."_s);
  ActualiserFeuille();
}

void VueImport::ActualiserFeuille() {
  const TFrmImport::TFeuille& feuille = form_.Feuille();
  if (!feuille.Visible) {
    feuille_->Terminer();
  } else if (feuille.Arretee) {
    feuille_->Arreter(feuille.Titre, feuille.Note);
  } else {
    if (!feuilleOuverte_)
      feuille_->Demarrer(feuille.Titre, feuille.Total, u"Elève actuellement traité :"_s, feuille.Note);
    feuille_->Avancer(feuille.Fait, feuille.Nom);
    grille_->MontrerLigne(form_.Grille.LigneCourante());
  }
  feuilleOuverte_ = feuille.Visible && !feuille.Arretee;
}
