#include "ui/documents/vue_recapitulatif.h"

#include <QComboBox>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

#include "screens/documents/frm_recapitulatif.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/diagramme_mois.h"
#include "ui/commun/etiquette.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"
#include "ui/documents/arbre_passages.h"
#include "ui/documents/page_statistique.h"

using namespace Qt::StringLiterals;

namespace {

/// Seven titles that all stand in sight on a small window: each is cut there, and its tip has it whole.
class BarrePages : public QTabBar {
 protected:
  QSize minimumTabSizeHint(int index) const override {
    const QSize entier = tabSizeHint(index);
    return {std::min(entier.width(), Theme::Px(80)), entier.height()};
  }
};

class Pages : public QTabWidget {
 public:
  Pages() {
    setTabBar(new BarrePages);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideRight);
  }
};

}  // namespace

VueRecapitulatif::VueRecapitulatif(TFrmRecapitulatif& form, QWidget* parent)
    : QScrollArea(parent),
      form_(form),
      liaison_(new LiaisonChamps(form.Champs(), this)),
      onglets_(new Pages) {
  ColonneEcran(*this, u"Statistiques"_s)->addWidget(onglets_, 1);
  CreerImpayes();
  CreerPositives();
  CreerPassages();
  CreerAnnuel();
  CreerPaiements();
  CreerFiscales();
  CreerFrais();
  onglets_->setObjectName(u"AdvOfficePager1"_s);
  onglets_->setAccessibleName(u"Pages des statistiques"_s);
  connect(onglets_, &QTabWidget::currentChanged, this, [this](int page) { form_.ChoisirPage(page); });
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  setFocusProxy(onglets_);
  Actualiser();
}

PageStatistique* VueRecapitulatif::AjouterPage(const QString& titre, QWidget* liste) {
  auto* page = new PageStatistique(titre, liste);
  const QString onglet = TFrmRecapitulatif::Titres().at(onglets_->count());
  onglets_->setTabToolTip(onglets_->addTab(page, onglet), onglet);
  pages_.push_back(page);
  return page;
}

PageStatistique* VueRecapitulatif::AjouterListe(const QString& titre, TGrille& grille, const QString& cle) {
  auto* liste =
      new VueGrille(grille, TFrmRecapitulatif::Titres().at(onglets_->count()), u"Statistiques/" % cle);
  liste->setMinimumHeight(liste->HauteurPour(4));
  PageStatistique* page = AjouterPage(titre, liste);
  page->AjouterOutils(*liste);
  connect(liste, &VueGrille::Cochee, this, [this] { form_.TreeGridFraisCheckClick(); });
  return page;
}

void VueRecapitulatif::CreerImpayes() {
  PageStatistique* page = AjouterListe(u"Critères de sélection"_s, form_.Impayes, u"Impayes"_s);
  RangeePliante& criteres = page->Criteres();
  for (const QString& nom : {u"cbFrais"_s, u"cbServices"_s}) criteres.addWidget(liaison_->Widget(nom));
  const std::pair<QString, QString> etendues[] = {{u"rbAnnuel"_s, u"année scolaire"_s},
                                                  {u"rbMois"_s, u"le mois de"_s},
                                                  {u"rbjusquauMois"_s, u"jusqu'au"_s}};  // of TEtendue
  int valeur = 0;
  for (const auto& [nom, texte] : etendues) {
    QRadioButton* bouton = liaison_->Radio(u"rbPeriode"_s, valeur++, texte);
    bouton->setObjectName(nom);
    criteres.addWidget(bouton);
  }
  criteres.addWidget(liaison_->Widget(u"cmbMois"_s, u"Mois"_s));
  AjouterCommande(*page, u"Exporter la liste"_s, u"document-export"_s, &TFrmRecapitulatif::Exporter);
  AjouterCommande(*page, u"Transfert des soldes négatifs"_s, u"go-next"_s,
                  &TFrmRecapitulatif::AdvGlowButton1Click);
}

void VueRecapitulatif::CreerPositives() {
  PageStatistique* page = AjouterListe(u"Critères de sélection"_s, form_.Positives, u"Positives"_s);
  for (const QString& nom : {u"cbFraisPositifs"_s, u"cbServicesPositifs"_s})
    page->Criteres().addWidget(liaison_->Widget(nom));
  AjouterCommande(*page, u"Exporter la liste"_s, u"document-export"_s, &TFrmRecapitulatif::Exporter);
  AjouterCommande(*page, u"Transfert des soldes positifs"_s, u"go-next"_s,
                  &TFrmRecapitulatif::btnEtape1Click);
}

void VueRecapitulatif::CreerPassages() {
  arbre_ = new ArbrePassages(form_);
  PageStatistique* page = AjouterPage(u"Période"_s, arbre_);
  AjouterPeriode(*page, u"dtDebut"_s, u"dtFin"_s);
  auto* filtre = new ChampFiltre;
  filtre->setFixedWidth(Theme::Px(200));
  filtre->DefinirSuite(arbre_);
  connect(filtre, &QLineEdit::textChanged, arbre_, &ArbrePassages::Filtrer);
  liens_ += form_.SurPassages.Suivre([this, filtre] { arbre_->Filtrer(filtre->text()); });
  page->Titre().AjouterAction(filtre);
  etendre_ = BoutonDiscret({}, u"view-list-tree"_s);
  connect(etendre_, &QPushButton::clicked, this, [this] { form_.btnCollapseTreeClick(); });
  page->Titre().AjouterAction(etendre_);
}

void VueRecapitulatif::CreerAnnuel() {
  PageStatistique* page = AjouterListe(u"Relevé global de l'école "_s, form_.Annuel, u"Annuel"_s);
  diagramme_ = new DiagrammeMois(u"Diagramme des dix mois"_s);
  page->AjouterACote(diagramme_);
}

void VueRecapitulatif::CreerPaiements() {
  PageStatistique* page = AjouterListe(u"Paiements"_s, form_.Paiements, u"Paiements"_s);
  page->Titre().DefinirNote(u"De toutes les années scolaires."_s);
  page->Criteres().addWidget(new Etiquette(u"Groupe paiement : "_s, TRole::Secondaire));
  QWidget* groupe = liaison_->Widget(u"cmbGroupePaiement"_s);
  groupe->setMinimumWidth(Theme::Px(248));
  page->Criteres().addWidget(groupe);
}

void VueRecapitulatif::CreerFiscales() {
  PageStatistique* page = AjouterListe(u"Période"_s, form_.Fiscales, u"Fiscales"_s);
  page->Titre().DefinirNote(u"Les élèves pour qui plus a été payé que dû, garderies et études."_s);
  AjouterPeriode(*page, u"dtContributionDate1"_s, u"dtContributionDate2"_s);
}

void VueRecapitulatif::CreerFrais() {
  PageStatistique* page = AjouterListe(u"Frais de l'année"_s, form_.Frais, u"Frais"_s);
  page->Titre().GarderTexte();
  // Under the heading: beside it the buttons leave it no room on a small window.
  page->Criteres().addWidget(new Etiquette(u"Tous les élèves, de toute année."_s, TRole::Secondaire));
}

void VueRecapitulatif::AjouterPeriode(PageStatistique& page, const QString& debut, const QString& fin) {
  const struct {
    const QString& Champ;
    QString Mot;
    QString Nom;
  } dates[] = {{debut, u"Du"_s, u"Début de la période"_s}, {fin, u"au"_s, u"Fin de la période"_s}};
  for (const auto& [champ, mot, nom] : dates) {
    QWidget* date = liaison_->Widget(champ, nom);
    date->setFixedWidth(Theme::Px(116));
    page.Criteres().addWidget(new Etiquette(mot, TRole::Secondaire));
    page.Criteres().addWidget(date);
  }
}

void VueRecapitulatif::AjouterCommande(PageStatistique& page, const QString& texte, const QString& icone,
                                       void (TFrmRecapitulatif::*faire)()) {
  QPushButton* bouton = BoutonSimple(texte, icone);
  connect(bouton, &QPushButton::clicked, this, [this, faire] { std::invoke(faire, form_); });
  page.Commandes().addWidget(bouton);
}

void VueRecapitulatif::Actualiser() {
  onglets_->setCurrentIndex(form_.Page());
  for (std::size_t i = 0; i < pages_.size(); ++i)
    pages_[i]->Montrer(form_.Totaux(static_cast<int>(i)), form_.Vide(static_cast<int>(i)));
  liaison_->Widget(u"cmbMois"_s)->setEnabled(form_.MoisDemande());
  etendre_->setText(form_.TexteCollapseTree());
  if (etendu_ != form_.ArbreEtendu()) arbre_->Etendre(etendu_ = form_.ArbreEtendu());
  std::vector<TBarreMois> barres;
  for (const auto& [nom, montant] : form_.Mois()) barres.push_back({nom, montant});
  diagramme_->Definir(std::move(barres));
}
