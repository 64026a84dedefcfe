#include "ui/payments/vue_virement.h"

#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "screens/payments/frm_virement.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/feuille_progression.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"
#include "ui/payments/page_historique.h"

using namespace Qt::StringLiterals;

namespace {

/// The months of school, by the name of their label.
const QString kMois[] = {u"Septembre"_s, u"Octobre"_s, u"Novembre"_s, u"Decembre"_s, u"Janvier"_s,
                         u"Fevrier"_s,   u"Mars"_s,    u"Avril"_s,    u"Mai"_s,      u"Juin"_s};

}  // namespace

VueVirement::VueVirement(TFrmVirement& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      pages_(new QTabWidget),
      etape1_(BoutonPrincipal(u"Etape n°1 : Importer vos virements"_s, u"document-import"_s)),
      etape2_(BoutonSimple(u"Etape n°2 : Mémoriser les mouvements"_s, u"document-save"_s)),
      statut_(new Etiquette),
      feuille_(new FeuilleProgression),
      titre_(new TitreSection(u"Contenu du fichier"_s)),
      apercu_(new VueGrille(form.Apercu, u"Contenu du fichier"_s, u"Virements/Importation"_s)),
      vide_(new EtatVide(apercu_)),
      historique_(new PageHistorique(form)) {
  pages_->addTab(PageImportation(), u"Importation des virements"_s);
  pages_->addTab(historique_, u"Historique des virements"_s);
  pages_->addTab(PageReleve(), u"Relevé annuel"_s);
  QVBoxLayout* colonne = ColonneEcran(*this, u"Virements"_s);
  colonne->addWidget(pages_, 1);
  connect(etape1_, &QPushButton::clicked, this, [this] { Faire(&TFrmVirement::btnEtape1Click); });
  connect(etape2_, &QPushButton::clicked, this, [this] { Faire(&TFrmVirement::btnEtape2Click); });
  connect(apercu_, &VueGrille::Cochee, this, [this](int ligne, bool coche) { form_.Cocher(ligne, coche); });
  // The arrows go on from tab to tab.
  connect(pages_, &QTabWidget::currentChanged, this, [this] {
    if (!pages_->tabBar()->hasFocus()) historique_->PrendreFoyer();
  });
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  setFocusProxy(etape1_);
  Actualiser();
}

QWidget* VueVirement::PageImportation() {
  auto* boutons = new RangeePliante;
  boutons->addWidget(etape1_);
  boutons->addWidget(etape2_);
  statut_->setWordWrap(true);
  auto* filtre = new ChampFiltre(u"Filtrer le contenu du fichier"_s);
  filtre->setFixedWidth(Theme::Px(200));
  apercu_->Filtrer(*filtre);
  QPushButton* copier = BoutonDiscret(u"Copier"_s, u"edit-copy"_s);
  copier->setToolTip(u"Copier toute la liste (Ctrl+Maj+C)"_s);
  connect(copier, &QPushButton::clicked, apercu_, &VueGrille::CopierTout);
  titre_->AjouterAction(filtre);
  titre_->AjouterAction(copier);
  apercu_->DefinirColonneSouple(TFrmVirement::Eleve);

  auto* page = new QWidget;
  auto* colonne = new QVBoxLayout(page);
  colonne->setContentsMargins(0, Theme::Px(12), 0, 0);
  colonne->setSpacing(Theme::Px(12));
  colonne->addLayout(boutons);
  colonne->addWidget(statut_);
  colonne->addWidget(feuille_);
  colonne->addWidget(titre_);
  colonne->addWidget(apercu_, 1);
  return page;
}

// Nothing fills it.
QWidget* VueVirement::PageReleve() {
  auto* page = new QWidget;
  auto* colonne = new QVBoxLayout(page);
  colonne->setContentsMargins(0, Theme::Px(12), 0, 0);
  colonne->setSpacing(Theme::Px(12));
  colonne->addWidget(new TitreSection(u"Relevé global de l'école "_s));
  auto* note = new Etiquette(u"Cette page reste vide : le relevé annuel de l'école est dans Statistiques."_s,
                             TRole::Secondaire);
  note->setWordWrap(true);
  colonne->addWidget(note);
  for (const QString& mois : kMois) {
    auto* total = new Etiquette;
    total->setObjectName(QString(u"lblTot" % mois));
    colonne->addWidget(total);
  }
  colonne->addStretch(1);
  return page;
}

// Off during the work, the step in hand has lost the focus: it goes to what comes next, also after a fault.
void VueVirement::Faire(void (TFrmVirement::*etape)()) {
  const auto foyer = qScopeGuard([this, vue = QPointer<VueVirement>(this)] {
    if (vue) (form_.Etape2Suivante() ? etape2_ : etape1_)->setFocus();
  });
  (form_.*etape)();
}

void VueVirement::Actualiser() {
  const bool seconde = form_.Etape2Suivante();
  DefinirGenre(*etape1_, seconde ? TGenreBouton::Simple : TGenreBouton::Principal);
  DefinirGenre(*etape2_, seconde ? TGenreBouton::Principal : TGenreBouton::Simple);
  etape1_->setEnabled(form_.Etape1Active());
  etape2_->setEnabled(form_.Etape2Active());
  statut_->setText(form_.Statut());
  statut_->setVisible(!form_.Statut().isEmpty());
  titre_->DefinirNote(form_.NoteApercu());
  if (form_.Apercu.NombreLignes() > 0)
    vide_->Cacher();
  else
    vide_->Montrer(u"Aucun mouvement à montrer"_s,
                   u"Importez le fichier que la banque vous a donné : ses mouvements s'affichent ici avant "
                   "d'être mémorisés."_s);
  ActualiserFeuille();
}

void VueVirement::ActualiserFeuille() {
  if (form_.EnCours() == feuilleOuverte_) return;
  feuilleOuverte_ = form_.EnCours();
  if (feuilleOuverte_)
    feuille_->Demarrer(u"Mémorisation des mouvements"_s, form_.TotalEtape2(),
                       u"Progression de l'opération :"_s,
                       u"La fenêtre reste ouverte jusqu'à la fin de l'importation."_s);
  else
    feuille_->Terminer();
}
