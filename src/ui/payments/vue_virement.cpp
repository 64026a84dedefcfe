#include "ui/payments/vue_virement.h"

#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "core/chaines.h"
#include "core/mois.h"
#include "screens/payments/frm_virement.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/feuille_progression.h"
#include "ui/commun/outils_liste.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"
#include "ui/payments/page_historique.h"

using namespace Qt::StringLiterals;

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
  connect(etape1_, &QPushButton::clicked, this,
          [this] { FaireEtape(form_, &TFrmVirement::btnEtape1Click, etape1_, etape2_); });
  connect(etape2_, &QPushButton::clicked, this,
          [this] { FaireEtape(form_, &TFrmVirement::btnEtape2Click, etape1_, etape2_); });
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
  AjouterFiltreEtCopie(*titre_, *apercu_, u"Filtrer le contenu du fichier"_s);
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
  for (const QString& mois : NomsMoisScolaires()) {
    auto* total = new Etiquette;
    const QString nom = MajusculesSansAccents(mois);
    total->setObjectName(QString(u"lblTot" % nom.first(1) % nom.sliced(1).toLower()));
    colonne->addWidget(total);
  }
  colonne->addStretch(1);
  return page;
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
