#include "ui/meals/vue_ticket.h"

#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <functional>

#include "screens/commun/nom_de_liste.h"
#include "screens/meals/frm_ticket.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

VueTicket::VueTicket(TFrmTicket& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      classe_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      eleves_(new VueGrille(form.LstEleve, u"Élèves de la classe"_s, u"Tickets/Eleves"_s)),
      eleve_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      detail_(new VueGrille(form.Detail, u"Tickets de l'élève"_s, u"Tickets/Detail"_s)),
      titreSousTrois_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      sousTrois_(new VueGrille(form.SousTrois, u"Élèves avec moins de 3 tickets"_s, u"Tickets/SousTrois"_s)),
      pages_(new QTabWidget),
      vide_(new EtatVide(eleves_)),
      sansTicket_(new EtatVide(detail_)),
      personne_(new EtatVide(sousTrois_)) {
  pages_->addTab(Classe(), u"Aperçu classe"_s);
  pages_->addTab(PageDetail(), u"Détail de l'élève"_s);
  pages_->addTab(PageSousTrois(), u"Moins de 3 tickets"_s);
  connect(pages_, &QTabWidget::currentChanged, this, [this](int page) { form_.ChoisirPage(page); });
  for (VueGrille* liste : {eleves_, sousTrois_})
    connect(liste, &VueGrille::Activee, this, [this] { form_.LstEleveDblClick(); });
  eleves_->DefinirNomExport([this] { return NomDeListe(form_.NomClasse()); });
  detail_->DefinirNomExport([this] { return NomDeListe(form_.NomEleve()); });
  connect(sansTicket_, &EtatVide::BoutonPresse, this, [this] { form_.btnEtape1Click(); });
  connect(detail_, &VueGrille::Suppression, this, [this] { form_.AdvGlowButton2Click(); });
  QVBoxLayout* colonne = ColonneEcran(*this, u"Gestion des tickets"_s);
  colonne->addLayout(Boutons());
  colonne->addWidget(pages_, 1);
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

QLayout* VueTicket::Boutons() {
  const struct {
    const char16_t* Texte;
    const char16_t* Icone;
    void (TFrmTicket::*Faire)();
    bool Principal;
  } boutons[] = {
      {u"Ajouter des tickets", u"list-add", &TFrmTicket::btnEtape1Click, true},
      {u"Supprimer un ticket", u"edit-delete", &TFrmTicket::AdvGlowButton2Click, false},
      {u"Transférer un ticket", u"document-export", &TFrmTicket::AdvGlowButton3Click, false},
      {u"Actualiser", u"view-refresh", &TFrmTicket::AdvGlowButton1Click, false},
  };
  auto* rangee = new RangeePliante;
  for (const auto& [texte, icone, faire, principal] : boutons) {
    QPushButton* bouton = CreerBouton(principal ? TGenreBouton::Principal : TGenreBouton::Simple,
                                      QString::fromUtf16(texte), QString::fromUtf16(icone));
    connect(bouton, &QPushButton::clicked, this, [this, faire = faire] { std::invoke(faire, form_); });
    rangee->addWidget(bouton);
    if (faire != &TFrmTicket::AdvGlowButton1Click) continue;
    bouton->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    bouton->setToolTip(u"Relire ce que les autres postes ont changé (Ctrl+R)"_s);
  }
  return rangee;
}

QWidget* VueTicket::Classe() {
  auto* page = new QWidget;
  auto* colonne = new QVBoxLayout(page);
  colonne->setContentsMargins(0, Theme::Px(12), 0, 0);
  colonne->addWidget(classe_);
  auto* comptes = new RangeePliante;
  comptes->setSpacing(Theme::Px(24));
  for (Etiquette*& compteur : compteurs_)
    comptes->addWidget(compteur = new Etiquette({}, TRole::Texte, &Theme::Gras));
  for (std::size_t i = 0; i < compteurs_.size(); ++i)
    compteurs_[i]->DefinirRole(RoleDeEtat(form_.LstEleve.Etats.at(i + 1)));
  colonne->addLayout(comptes);
  colonne->addWidget(eleves_, 1);
  return page;
}

QWidget* VueTicket::PageDetail() {
  auto* page = new QWidget;
  auto* colonne = new QVBoxLayout(page);
  colonne->setContentsMargins(0, Theme::Px(12), 0, 0);
  colonne->addWidget(eleve_);
  colonne->addWidget(detail_, 1);
  return page;
}

QWidget* VueTicket::PageSousTrois() {
  auto* page = new QWidget;
  auto* colonne = new QVBoxLayout(page);
  colonne->setContentsMargins(0, Theme::Px(12), 0, 0);
  QPushButton* imprimer = BoutonSimple(u"Imprimer la liste"_s, u"document-print"_s);
  connect(imprimer, &QPushButton::clicked, this, [this] { form_.ImprimerSousTrois(); });
  auto* tete = new QHBoxLayout;
  tete->addWidget(titreSousTrois_);
  tete->addStretch(1);
  tete->addWidget(imprimer);
  colonne->addLayout(tete);
  colonne->addWidget(sousTrois_, 1);
  return page;
}

void VueTicket::Actualiser() {
  classe_->setText(form_.NomClasse());
  const QStringList textes = form_.Compteurs();
  for (std::size_t i = 0; i < compteurs_.size(); ++i)
    compteurs_[i]->setText(textes[static_cast<qsizetype>(i)]);
  eleve_->setText(form_.NomEleve());
  titreSousTrois_->setText(form_.TitreSousTrois());
  pages_->setCurrentIndex(form_.Page());
  MontrerVides();
}

void VueTicket::MontrerVides() {
  if (form_.LstEleve.NombreLignes() > 0)
    vide_->Cacher();
  else
    vide_->Montrer(u"Aucun élève à montrer"_s,
                   u"Choisissez une classe ou un élève dans l'arbre de gauche."_s);
  if (form_.SousTrois.NombreLignes() > 0)
    personne_->Cacher();
  else
    personne_->Montrer(u"Aucun élève à montrer"_s, u"Tous les élèves ont trois tickets et plus."_s);
  if (form_.Detail.NombreLignes() > 0)
    sansTicket_->Cacher();
  else if (form_.NomEleve().isEmpty())
    sansTicket_->Montrer(u"Aucun élève choisi"_s, u"Choisissez un élève dans la liste de la classe."_s);
  else
    sansTicket_->Montrer(u"Aucun ticket"_s, form_.NomEleve() % u" n'a jamais eu de ticket.",
                         u"Ajouter des tickets"_s);
}
