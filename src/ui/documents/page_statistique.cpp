#include "ui/documents/page_statistique.h"

#include <QVBoxLayout>

#include "screens/documents/frm_recapitulatif.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/outils_liste.h"
#include "ui/commun/texte.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

PageStatistique::PageStatistique(const QString& titre, QWidget* liste)
    : titre_(new TitreSection(titre)),
      criteres_(new RangeePliante),
      milieu_(new QHBoxLayout),
      totaux_(new RangeePliante),
      commandes_(new RangeePliante),
      vide_(new EtatVide(liste)) {
  milieu_->setSpacing(Theme::Px(24));
  milieu_->addWidget(liste, 2);
  auto* colonne = new QVBoxLayout(this);
  const int marge = Theme::Px(12);
  colonne->setContentsMargins(marge, marge, marge, marge);
  colonne->setSpacing(Theme::Px(8));
  colonne->addWidget(titre_);
  colonne->addLayout(criteres_);
  colonne->addLayout(milieu_, 1);
  colonne->addLayout(totaux_);
  colonne->addLayout(commandes_);
}

void PageStatistique::AjouterOutils(VueGrille& grille) {
  const auto bouton = [&](const QString& texte, const QString& icone, const QString& aide, auto faire) {
    QPushButton* nouveau = BoutonDiscret(texte, icone);
    nouveau->setToolTip(aide);
    connect(nouveau, &QPushButton::clicked, &grille, faire);
    titre_->AjouterAction(nouveau);
  };
  if (grille.Grille().CasesACocher) {
    bouton(u"Tout sélectionner"_s, {}, u"Cocher les lignes que le filtre montre"_s, [&grille] {
      {
        const TGrille::TLot lot(grille.Grille());
        for (const int ligne : grille.LignesVues()) grille.Grille().Cocher(ligne, true);
      }
      emit grille.Cochee(-1, true);
    });
    bouton(u"Ne rien sélectionner"_s, {}, u"Décocher toutes les lignes, les cachées aussi"_s, [&grille] {
      grille.Grille().CocherTout(false);
      emit grille.Cochee(-1, false);
    });
  }
  AjouterFiltreEtCopie(*titre_, grille);
}

void PageStatistique::AjouterACote(QWidget* widget) {
  milieu_->itemAt(0)->widget()->setMinimumWidth(Theme::Px(320));  // its amounts stay whole on a small window
  milieu_->addWidget(widget, 3);
}

void PageStatistique::Montrer(const std::vector<TTotalListe>& totaux, const QString& vide) {
  if (valeurs_.empty())
    for (const TTotalListe& total : totaux) {
      auto* ensemble = new QWidget;
      auto* rang = new QHBoxLayout(ensemble);
      rang->setContentsMargins(0, 0, Theme::Px(24), 0);
      rang->addWidget(new Etiquette(total.Mot, TRole::Secondaire));
      rang->addWidget(valeurs_.emplace_back(new Etiquette({}, TRole::Texte, &Theme::Gras)));
      totaux_->addWidget(ensemble);
    }
  for (std::size_t i = 0; i < totaux.size(); ++i) valeurs_[i]->setText(TypographieMontant(totaux[i].Valeur));
  vide.isEmpty() ? vide_->Cacher() : vide_->Montrer(vide);
}
