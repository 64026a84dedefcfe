#include "ui/documents/vue_print_wizard.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>

#include "core/mois.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/vue_grille.h"
#include "ui/documents/filet.h"

using namespace Qt::StringLiterals;

namespace {

struct TTextesPage {
  QString Etape;
  QString Question;
};

/// By page.
const std::vector<TTextesPage>& TextesPages() {
  static const std::vector<TTextesPage> textes{
      {u"Rapport"_s, u"Veuillez choisir le rapport que vous souhaitez imprimer:"_s},
      {u"Élèves"_s, u"Veuillez choisir le ou les élèves concernés par ce rapport:"_s},
      {u"Période"_s, u"Veuillez choisir la période concernées par ce rapport:"_s},
  };
  return textes;
}

/// Of a title of a calendar year, on the page of the period.
const QString kQuestionAnnee = u"Veuillez choisir l'année des revenus:"_s;

/// A layout without margins, its parts that far apart.
template <class T>
T* SansMarge(QWidget* parent, int ecart) {
  auto* disposition = new T(parent);
  disposition->setContentsMargins(0, 0, 0, 0);
  disposition->setSpacing(Theme::Px(ecart));
  return disposition;
}

template <class T>
int Id(T valeur) {
  return static_cast<int>(valeur);
}

}  // namespace

VuePrintWizard::VuePrintWizard(TFrmPrintWizard& form, QWidget* parent)
    : DialogueBase(u"Assistant d'impression"_s, parent),
      form_(form),
      question_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      pages_(new QStackedWidget),
      precedent_(AjouterBouton(u"< &Précédent"_s)),
      titres_(new QButtonGroup(this)),
      qui_(new QButtonGroup(this)),
      periode_(new QButtonGroup(this)),
      dates_(new LiaisonChamps(form.Dates(), this)) {
  question_->setWordWrap(true);
  precedent_->setFocusPolicy(Qt::TabFocus);
  Contenu()->addWidget(CreerEtapes());
  Contenu()->addWidget(question_);
  Contenu()->addWidget(pages_, 1);
  Contenu()->addWidget(new Filet(Qt::Horizontal));
  pages_->addWidget(CreerPageRapport());
  pages_->addWidget(CreerPageQui());
  pages_->addWidget(CreerPagePeriode());
  const QSize place = QGuiApplication::primaryScreen()->availableSize();
  resize(QSize(Theme::Px(720), Theme::Px(680)).boundedTo(place));
  Suivre();
  pages_->setCurrentIndex(Id(form_.Page()));
  Rafraichir();
  FoyerDePage();
}

void VuePrintWizard::Suivre() {
  liens_ += form_.SurChangement.Suivre([this] { Rafraichir(); });
  liens_ += form_.SurFoyer.Suivre([this](TChampAssistant champ) { AllerAuChamp(champ); });
  connect(precedent_, &QPushButton::clicked, this, [this] { form_.btnPrecedentClick(); });
  connect(titres_, &QButtonGroup::idClicked, this, [this](int id) { form_.ChoixRapportClick(id); });
  connect(qui_, &QButtonGroup::idClicked, this,
          [this](int id) { form_.RbEleveClick(static_cast<TChoixQui>(id)); });
  connect(periode_, &QButtonGroup::idClicked, this,
          [this](int id) { form_.RbMoisClick(static_cast<TChoixPeriode>(id)); });
  connect(tout_, &QPushButton::clicked, this, [this] { form_.btnToutSelectionnerClick(); });
  connect(rien_, &QPushButton::clicked, this, [this] { form_.btnRienSelectionnerClick(); });
  connect(mois_, &QComboBox::activated, this, [this](int indice) { form_.ChoisirMois(indice); });
  connect(annees_, &QComboBox::activated, this,
          [this](int indice) { form_.ChoisirAnnee(form_.Annees()[static_cast<std::size_t>(indice)]); });
  SuivreListe(eleves_, form_.LstEleve,
              [this](int colonne, bool croissant) { form_.LstEleveColumnClick(colonne, croissant); });
  SuivreListe(classes_, form_.LstClasse,
              [this](int colonne, bool croissant) { form_.LstClasseColumnClick(colonne, croissant); });
}

void VuePrintWizard::SuivreListe(const TListe& liste, const TGrille& grille,
                                 const std::function<void(int, bool)>& trier) {
  connect(liste.Filtre, &QLineEdit::textChanged, this,
          [this, &grille](const QString& texte) { form_.Filtrer(grille, texte); });
  const QHeaderView* tete = liste.Vue->header();
  const auto ordonner = [trier](int colonne, Qt::SortOrder ordre) {
    trier(colonne, ordre == Qt::AscendingOrder);
  };
  ordonner(tete->sortIndicatorSection(), tete->sortIndicatorOrder());
  connect(tete, &QHeaderView::sortIndicatorChanged, this, ordonner);
}

QWidget* VuePrintWizard::CreerEtapes() {
  auto* barre = new QWidget;
  auto* ligne = SansMarge<QHBoxLayout>(barre, 8);
  for (const TTextesPage& textes : TextesPages()) {
    const QString numero = QString::number(etapes_.size() + 1);
    if (!etapes_.empty()) ligne->addWidget(new Etiquette(u"›"_s, TRole::Secondaire));
    etapes_.push_back(new Etiquette(numero % u"  " % textes.Etape, TRole::Secondaire));
    ligne->addWidget(etapes_.back());
  }
  ligne->addStretch(1);
  return barre;
}

QWidget* VuePrintWizard::CreerPageRapport() {
  auto* page = new QWidget;
  auto* colonne = new QVBoxLayout(page);
  colonne->setContentsMargins(Theme::Px(10), 0, 0, 0);
  colonne->setSpacing(Theme::Px(4));
  auto* zone = new QScrollArea;
  for (const TTitreAssistant& titre : form_.Titres()) {
    const bool possible = titre.Empechement.isEmpty();
    auto* bouton =
        new QRadioButton(possible ? titre.Titre : QString(titre.Titre % u" (" % titre.Empechement % u')'));
    bouton->setEnabled(possible);
    bouton->setMinimumSize(Theme::Px(420), Theme::Px(24));
    titres_->addButton(bouton, static_cast<int>(titres_->buttons().size()));
    colonne->addWidget(bouton, 0, Qt::AlignLeft);
    connect(bouton, &QRadioButton::toggled, zone, [zone, bouton](bool coche) {
      if (coche) zone->ensureWidgetVisible(bouton);
    });
  }
  colonne->addStretch(1);
  zone->setFrameShape(QFrame::NoFrame);
  zone->setWidgetResizable(true);
  zone->setFocusPolicy(Qt::NoFocus);
  zone->setWidget(page);
  auto* pages = new QWidget;
  auto* haut = SansMarge<QVBoxLayout>(pages, 4);
  if (const int dernier = form_.IndiceDernier();
      dernier >= 0) {  // above the titles, which may have to scroll
    QPushButton* reprendre =
        BoutonDiscret(u"Comme la dernière fois : " % form_.Titres()[static_cast<std::size_t>(dernier)].Titre);
    connect(reprendre, &QPushButton::clicked, this, [this] { form_.btnDernierClick(); });
    haut->addWidget(reprendre, 0, Qt::AlignLeft);
  }
  haut->addWidget(zone, 1);
  return pages;
}

QLayout* VuePrintWizard::CreerListe(TListe& liste, const QString& courant, const QString& plusieurs,
                                    TGrille& grille, const QString& nom) {
  liste = {new QRadioButton(courant), new Etiquette({}, TRole::Texte, &Theme::Gras),
           new QRadioButton(plusieurs), new ChampFiltre, new VueGrille(grille, nom, u"PrintWizard/" % nom)};
  liste.Nom->setContentsMargins(Theme::Px(24), 0, 0, 0);
  liste.Nom->DefinirElision(true);
  liste.Filtre->setAccessibleName(u"Filtrer : " % nom);
  liste.Filtre->setMaximumWidth(Theme::Px(140));
  liste.Vue->Filtrer(*liste.Filtre);
  auto* colonne = SansMarge<QVBoxLayout>(nullptr, 4);
  auto* ligne = SansMarge<QHBoxLayout>(nullptr, 8);
  ligne->addWidget(liste.Plusieurs);
  ligne->addWidget(liste.Filtre, 1);
  colonne->addWidget(liste.Courant);
  colonne->addWidget(liste.Nom);
  colonne->addLayout(ligne);
  colonne->addSpacing(Theme::Px(4));
  colonne->addWidget(liste.Vue, 1);
  return colonne;
}

QWidget* VuePrintWizard::CreerPageQui() {
  auto* page = new QWidget;
  auto* colonne = SansMarge<QVBoxLayout>(page, 12);
  auto* listes = SansMarge<QHBoxLayout>(nullptr, 24);
  listes->addLayout(CreerListe(eleves_, u"L'élève actuellement sélectionné :"_s, u"Les élèves suivants:"_s,
                               form_.LstEleve, u"Élèves"_s),
                    4);  // one column more than the classes
  listes->addLayout(CreerListe(classes_, u"La classe actuellement sélectionnée :"_s,
                               u"Les classes suivantes:"_s, form_.LstClasse, u"Classes"_s),
                    3);
  const std::pair<QRadioButton*, TChoixQui> choix[] = {{eleves_.Courant, TChoixQui::Eleve},
                                                       {eleves_.Plusieurs, TChoixQui::Eleves},
                                                       {classes_.Courant, TChoixQui::Classe},
                                                       {classes_.Plusieurs, TChoixQui::Classes}};
  for (const auto& [bouton, qui] : choix) qui_->addButton(bouton, Id(qui));
  tout_ = BoutonSimple(u"Tout sélectionner"_s);
  rien_ = BoutonSimple(u"Ne rien sélectionner"_s);
  compte_ = new Etiquette({}, TRole::Texte, &Theme::Gras);
  auto* pied = SansMarge<QHBoxLayout>(nullptr, 8);
  pied->addWidget(tout_);
  pied->addWidget(rien_);
  pied->addStretch(1);
  pied->addWidget(compte_);
  colonne->addLayout(listes, 1);
  colonne->addLayout(pied);
  return page;
}

QWidget* VuePrintWizard::CreerLigneMois() {
  mois_ = new QComboBox;
  mois_->addItems(form_.cmbMois());
  mois_->setPlaceholderText(u"Choisir un mois"_s);
  mois_->setMinimumWidth(Theme::Px(160));
  mois_->setAccessibleName(u"Mois"_s);
  auto* champs = new QWidget;
  auto* ligne = SansMarge<QHBoxLayout>(champs, 12);
  ligne->addWidget(mois_);
  if (form_.MoisEcran() > 0) {
    QPushButton* ecran = BoutonDiscret(u"Mois à l'écran : " % NomMoisCourant(form_.MoisEcran()));
    connect(ecran, &QPushButton::clicked, this, [this] { form_.btnMoisEcranClick(); });
    ligne->addWidget(ecran);
  }
  return champs;
}

QWidget* VuePrintWizard::CreerLigneDates() {
  auto* champs = new QWidget;
  const TChamps& dates = form_.Dates();
  champs->setLayout(dates_->Rangee({{dates.Indice(u"dtDate1"_s)}, {dates.Indice(u"dtDate2"_s)}}));
  champs->layout()->setContentsMargins(0, 0, 0, 0);
  return champs;
}

QWidget* VuePrintWizard::CreerAnnees() {
  annees_ = new QComboBox;
  annees_->setMinimumWidth(Theme::Px(100));
  portee_ = new Etiquette({}, TRole::Secondaire);
  portee_->setWordWrap(true);
  auto* partie = new QWidget;
  auto* colonne = SansMarge<QVBoxLayout>(partie, 12);
  auto* ligne = SansMarge<QHBoxLayout>(nullptr, 16);
  ligne->addWidget(CreerLibelle(u"Année des &revenus :"_s, annees_));
  ligne->addWidget(annees_);
  ligne->addStretch(1);
  colonne->addLayout(ligne);
  colonne->addWidget(portee_);
  return partie;
}

QWidget* VuePrintWizard::CreerPeriodes() {
  auto* partie = new QWidget;
  auto* grille = SansMarge<QGridLayout>(partie, 8);
  annee_ = new Etiquette({}, TRole::Secondaire);
  const struct {
    QString Texte;
    TChoixPeriode Choix;
    QWidget* Champs;
  } lignes[] = {{u"Le mois de :"_s, TChoixPeriode::Mois, CreerLigneMois()},
                {u"La période du :"_s, TChoixPeriode::Periode, CreerLigneDates()},
                {u"L'année scolaire"_s, TChoixPeriode::Annee, annee_}};
  int rang = 0;
  for (const auto& [texte, choix, champs] : lignes) {
    auto* bouton = new QRadioButton(texte);
    bouton->setFocusPolicy(Qt::TabFocus);  // a press must not be called back by a date that is refused
    periode_->addButton(bouton, Id(choix));
    grille->addWidget(bouton, rang, 0);
    grille->addWidget(champs, rang++, 1, Qt::AlignLeft | Qt::AlignVCenter);
  }
  grille->setHorizontalSpacing(Theme::Px(16));
  grille->setColumnStretch(1, 1);
  return partie;
}

QWidget* VuePrintWizard::CreerPagePeriode() {
  auto* page = new QWidget;
  auto* colonne = SansMarge<QVBoxLayout>(page, 12);
  periodes_ = CreerPeriodes();
  ligneAnnees_ = CreerAnnees();
  resume_ = new Etiquette({}, TRole::Texte, &Theme::Gras);
  resume_->setWordWrap(true);
  colonne->addWidget(periodes_);
  colonne->addWidget(ligneAnnees_);
  colonne->addSpacing(Theme::Px(8));
  colonne->addWidget(new Filet(Qt::Horizontal));
  colonne->addWidget(new Etiquette(u"Sera imprimé"_s, TRole::Secondaire));
  colonne->addWidget(resume_);
  colonne->addStretch(1);
  return page;
}

void VuePrintWizard::Rafraichir() {
  const bool autrePage = pages_->currentIndex() != Id(form_.Page());
  pages_->setCurrentIndex(Id(form_.Page()));
  const bool annee = form_.Page() == TPageAssistant::Periode && !form_.Annees().empty();
  question_->setText(annee ? kQuestionAnnee : TextesPages()[static_cast<std::size_t>(form_.Page())].Question);
  precedent_->setEnabled(!form_.EstPremierePage());
  if (form_.EstDernierePage())
    DefinirPrincipal(u"&Imprimer"_s, u"document-print"_s);
  else
    DefinirPrincipal(u"&Suivant >"_s);
  if (form_.Indice() >= 0) titres_->button(form_.Indice())->setChecked(true);
  RafraichirEtapes();
  RafraichirQui();
  RafraichirPeriode();
  if (autrePage) FoyerDePage();
}

void VuePrintWizard::RafraichirEtapes() {
  for (std::size_t i = 0; i < etapes_.size(); ++i) {
    const auto page = static_cast<TPageAssistant>(i);
    Etiquette& etape = *etapes_[i];
    const bool ici = page == form_.Page();
    etape.DefinirRole(ici ? TRole::Accent : TRole::Secondaire);
    QFont police = etape.font();
    police.setBold(ici);
    etape.setFont(police);
    etape.setEnabled(form_.PageVisible(page));
  }
}

void VuePrintWizard::RafraichirQui() {
  for (QAbstractButton* bouton : qui_->buttons())
    bouton->setEnabled(form_.ChoixQuiPossible(static_cast<TChoixQui>(qui_->id(bouton))));
  qui_->button(Id(form_.ChoixQui()))->setChecked(true);
  const struct {
    TListe& Liste;
    const QString& Nom;
    bool Active;
  } listes[] = {{eleves_, form_.lblEleve, form_.LstEleveActive()},
                {classes_, form_.lblClasse, form_.LstClasseActive()}};
  for (const auto& [liste, nom, active] : listes) {
    liste.Nom->setText(nom);
    liste.Courant->setAccessibleDescription(nom);
    liste.Filtre->setEnabled(active);
    liste.Vue->setEnabled(active);
  }
  tout_->setEnabled(form_.SelectionActive());
  rien_->setEnabled(form_.SelectionActive());
  compte_->setText(form_.Compte());
}

void VuePrintWizard::RafraichirPeriode() {
  periode_->button(Id(form_.ChoixPeriode()))->setChecked(true);
  mois_->setEnabled(form_.ChoixPeriode() == TChoixPeriode::Mois);
  mois_->setCurrentIndex(form_.IndiceMois());
  for (int date = 0; date < form_.Dates().Nombre(); ++date)
    dates_->Widget(date)->setEnabled(!form_.Dates().LectureSeule());
  annee_->setText(form_.TexteAnnee());
  resume_->setText(form_.Resume());
  periodes_->setVisible(form_.Annees().empty());
  ligneAnnees_->setVisible(!form_.Annees().empty());
  if (form_.Page() == TPageAssistant::Periode) RafraichirAnnees();
}

void VuePrintWizard::RafraichirAnnees() {
  const std::vector<int>& annees = form_.Annees();
  if (annees_->count() == 0)  // only one title has years
    for (const int annee : annees) annees_->addItem(QString::number(annee));
  annees_->setCurrentIndex(annees_->findText(QString::number(form_.Annee())));
  portee_->setText(form_.Portee());
}

/// To what is checked; of the period to its field, where the month is chosen by the arrows.
void VuePrintWizard::FoyerDePage() {
  if (form_.Page() == TPageAssistant::Periode && !form_.Annees().empty())
    return annees_->setFocus(Qt::OtherFocusReason);
  if (form_.Page() == TPageAssistant::Periode && form_.ChoixPeriode() == TChoixPeriode::Mois)
    return mois_->setFocus(Qt::OtherFocusReason);
  if (form_.Page() == TPageAssistant::Periode && form_.ChoixPeriode() == TChoixPeriode::Periode)
    return dates_->AllerA(form_.Dates().Indice(u"dtDate1"_s));
  const QButtonGroup* groupes[] = {titres_, qui_, periode_};
  if (QAbstractButton* coche = groupes[pages_->currentIndex()]->checkedButton())
    coche->setFocus(Qt::OtherFocusReason);
}

void VuePrintWizard::AllerAuChamp(TChampAssistant champ) {
  switch (champ) {
    case TChampAssistant::Mois:
      return mois_->setFocus(Qt::OtherFocusReason);
    case TChampAssistant::LstEleve:
      return eleves_.Vue->setFocus(Qt::OtherFocusReason);
    case TChampAssistant::LstClasse:
      return classes_.Vue->setFocus(Qt::OtherFocusReason);
  }
}

bool VuePrintWizard::Valider() {
  if (!form_.EstDernierePage()) {
    form_.btnSuivantClick();
    return false;
  }
  form_.KWizard1FinishButtonClick();
  return !form_.EstMontree();
}
