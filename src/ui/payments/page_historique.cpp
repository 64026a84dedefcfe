#include "ui/payments/page_historique.h"

#include <QAction>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>

#include "screens/payments/frm_virement.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/outils_liste.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

PageHistorique::PageHistorique(TFrmVirement& form)
    : form_(form),
      titre_(new TitreSection({})),
      grille_(new VueGrille(form.Historique, u"Mouvements de l'année"_s, u"Virements/Historique"_s)),
      vide_(new EtatVide(grille_)),
      comptabilises_(
          CreerFiltreEtat(u"&Comptabilisés"_s, u"btnComptabilise"_s, &TFrmVirement::btnComptabiliseClick)),
      inconnus_(CreerFiltreEtat(u"&Inconnus"_s, u"btnInconnu"_s, &TFrmVirement::btnInconnuClick)),
      attribuer_(BoutonPrincipal(u"&Attribuer..."_s)) {
  CreerTitre();
  CreerMenu();
  Disposer();
  attribuer_->setToolTip(u"Attribuer le mouvement choisi à un élève (Entrée)"_s);
  connect(attribuer_, &QPushButton::clicked, this, &PageHistorique::Attribuer);
  connect(grille_, &VueGrille::Activee, this, &PageHistorique::Attribuer);
  connect(grille_, &VueGrille::Choisie, this, [this](int ligne) { attribuer_->setEnabled(ligne >= 0); });
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  liens_ += form_.SurOrdre.Suivre([this](std::vector<int>& lignes) { lignes = grille_->LignesVues(); });
  Actualiser();
}

QPushButton* PageHistorique::CreerFiltreEtat(const QString& texte, const QString& nom,
                                             void (TFrmVirement::*faire)()) {
  QPushButton* bouton = BoutonSimple(texte);
  bouton->setObjectName(nom);
  bouton->setCheckable(true);
  bouton->setFocusPolicy(Qt::TabFocus);  // its mnemonic leaves the hand in the list
  bouton->setToolTip(QString(u"Enfoncé, montre les mouvements " % QString(texte).remove(u'&').toLower()));
  connect(bouton, &QPushButton::clicked, this, [this, faire] {
    std::invoke(faire, form_);
    if (grille_->hasFocus()) PrendreFoyer();  // the row in hand may be gone
  });
  return bouton;
}

void PageHistorique::CreerTitre() {
  for (QPushButton* etat : {comptabilises_, inconnus_}) titre_->AjouterAction(etat);
  AjouterFiltreEtCopie(*titre_, *grille_, u"Filtrer l'historique"_s);
}

QAction* PageHistorique::AjouterAction(const QString& texte, void (TFrmVirement::*faire)(),
                                       const QString& icone) {
  auto* action = new QAction(icone.isEmpty() ? QIcon() : Theme::Icone(icone), texte, grille_);
  connect(action, &QAction::triggered, this, [this, faire] { std::invoke(faire, form_); });
  grille_->addAction(action);
  return action;
}

void PageHistorique::CreerMenu() {
  using F = TFrmVirement;
  AjouterAction(u"Attribuer à un élève...\tEntrée"_s, &F::grdHistoriqueDblClick, u"system-users"_s);
  AjouterAction(u"Attribuer à l'année scolaire précédente"_s, &F::AnneePrecedenteClick);
  AjouterAction(u"Attribuer à l'année scolaire suivante"_s, &F::AnneeSuivanteClick);
  AjouterAction(u"Cacher le mouvement"_s, &F::Supprimerlextrait1Click);
  caches_ = AjouterAction(u"Inclure tous les mouvements cachés"_s, &F::mnuAfficheMouvementClick);
  caches_->setCheckable(true);
  AjouterAction(u"Compte responsable 1"_s, &F::Compteresponsable11Click);
  AjouterAction(u"Compte responsable 2"_s, &F::Compteresponsable21Click);
}

void PageHistorique::Disposer() {
  grille_->DefinirColonneSouple(TFrmVirement::Eleve);
  auto* pied = new QHBoxLayout;
  pied->setSpacing(Theme::Px(24));
  for (Etiquette*& total : totaux_) {
    pied->addWidget(total = new Etiquette, 1);  // on a second line where the room is short
    total->setWordWrap(true);
  }
  pied->addWidget(attribuer_);
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(0, Theme::Px(12), 0, 0);
  colonne->setSpacing(Theme::Px(12));
  colonne->addWidget(titre_);
  colonne->addWidget(grille_, 1);
  colonne->addLayout(pied);
}

void PageHistorique::PrendreFoyer() {
  if (!isVisible()) return;
  if (form_.Historique.LigneCourante() < 0)
    if (const std::vector<int> lignes = grille_->LignesVues(); !lignes.empty())
      form_.Historique.ChoisirLigne(lignes.front());
  grille_->setFocus(Qt::OtherFocusReason);
}

void PageHistorique::Attribuer() {
  form_.grdHistoriqueDblClick();
  grille_->setFocus(Qt::OtherFocusReason);
}

void PageHistorique::Actualiser() {
  titre_->DefinirTexte(form_.TitreHistorique());
  comptabilises_->setChecked(form_.btnComptabilise());
  inconnus_->setChecked(form_.btnInconnu());
  caches_->setChecked(form_.CachesInclus());
  setEnabled(!form_.EnCours());
  attribuer_->setEnabled(form_.Historique.LigneCourante() >= 0);
  const std::pair<QString, int> totaux[] = {{u"Total de mouvements comptabilisés :"_s, form_.lblCompta()},
                                            {u"Total de mouvements inconnus :"_s, form_.lblInconnu()},
                                            {u"Nombre total de mouvements:"_s, form_.lblTotal()}};
  for (std::size_t i = 0; i < totaux_.size(); ++i)
    totaux_[i]->setText(QString(totaux[i].first % u' ' % QString::number(totaux[i].second)));
  vide_->Montrer(form_.HistoriqueVide());
}
