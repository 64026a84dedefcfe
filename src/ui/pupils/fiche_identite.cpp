#include "ui/pupils/fiche_identite.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QRadioButton>

#include "screens/pupils/frm_signaletique.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/grille_mois.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/photo_eleve.h"
#include "ui/commun/saisie.h"
#include "ui/commun/texte.h"
#include "ui/commun/titres.h"
#include "ui/pupils/grille_jours.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonnesSituation = 3;

Etiquette* CreerTitre(const QString& texte) {
  return new Etiquette(texte, TRole::Texte, &Theme::TitreSection);
}

/// Each row: its label, and its fields for the first adult; those of the second end with "2".
const std::pair<QString, QStringList> kRangees[] = {
    {u"Nom, prénom"_s, {u"edNomResponsable"_s, u"edPrenomResponsable"_s}},
    {u"Adresse, n°"_s, {u"edAdresse"_s, u"edNumero"_s}},
    {u"Code, localité"_s, {u"edCodePostal"_s, u"edLocalite"_s}},
    {u"N° national"_s, {u"edNumNationalResponsable"_s}}};

QStringList DuSecond(QStringList noms) {
  for (QString& nom : noms) nom += u'2';
  return noms;
}

/// Its boxes, in the order of the table.
std::vector<QWidget*> Cases(LiaisonChamps& liaison) {
  std::vector<QWidget*> cases;
  for (int champ = 0; champ < liaison.Champs().Nombre(); ++champ)
    if (liaison.Champs().Champ(champ).Genre == TGenreChamp::Coche) cases.push_back(liaison.Widget(champ));
  return cases;
}

}  // namespace

FicheIdentite::FicheIdentite(TFrmSignaletique& form)
    : form_(form), liaison_(new LiaisonChamps(form.Champs(), this)) {
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(0);
  colonne->addLayout(CreerEntete());
  AjouterSection(nullptr)->addLayout(CreerResponsables());
  AjouterSituation();
  AjouterMois();
  AjouterActivites();
  colonne->addStretch(1);
}

QVBoxLayout* FicheIdentite::AjouterSection(QWidget* titre) {
  auto* section = new QWidget;
  auto* colonne = new QVBoxLayout(section);
  colonne->setSpacing(Theme::Px(6));
  if (titre) colonne->addWidget(titre);
  layout()->addWidget(section);
  sections_.push_back(colonne);
  return colonne;
}

void FicheIdentite::Aerer(bool large) {
  for (QVBoxLayout* section : sections_) section->setContentsMargins(0, Theme::Px(large ? 24 : 12), 0, 0);
}

// Building

QLayout* FicheIdentite::CreerEntete() {
  photo_ = new PhotoEleve;
  photo_->PeutEffacer = [this] { return form_.AvecPhoto(); };
  connect(photo_, &PhotoEleve::clicked, this, [this] { form_.Image1Click(); });
  connect(photo_, &PhotoEleve::FichierDepose, this,
          [this](const QString& chemin) { form_.PrendrePhoto(chemin); });
  connect(photo_, &PhotoEleve::Effacee, this, [this] { form_.Effacerlaphoto1Click(); });
  nom_ = new Etiquette({}, TRole::Texte, &Theme::TitreEcran);
  nom_->DefinirElision(true);
  sousTitre_ = new Etiquette({}, TRole::Secondaire);
  sousTitre_->DefinirElision(true);
  auto* naissance = static_cast<SaisieDate*>(liaison_->Widget(u"lblDateNaissance"_s));
  naissance->MontrerFleche(false);
  naissance->setFixedWidth(Theme::Px(96));
  auto* numero = liaison_->Widget(u"edNumNational"_s);
  numero->setFixedWidth(Theme::Px(128));
  auto* date = new QGridLayout;
  date->setHorizontalSpacing(Theme::Px(8));
  date->setVerticalSpacing(Theme::Px(4));
  date->setColumnStretch(1, 1);
  date->addWidget(CreerLibelleDeRang(u"Date de naissance:"_s, naissance), 0, 0, Qt::AlignTop);
  date->addLayout(liaison_->Rangee({{form_.Champs().Indice(u"lblDateNaissance"_s), 0}}), 0, 1);
  date->addWidget(CreerLibelleDeRang(u"Numéro national:"_s, numero), 1, 0, Qt::AlignTop);
  date->addLayout(liaison_->Rangee({{form_.Champs().Indice(u"edNumNational"_s), 0}}), 1, 1);

  auto* textes = new QVBoxLayout;
  textes->setSpacing(Theme::Px(4));
  textes->addWidget(nom_);
  textes->addWidget(sousTitre_);
  textes->addStretch(1);
  textes->addLayout(date);
  textes->addStretch(1);
  auto* entete = new QHBoxLayout;
  entete->setSpacing(Theme::Px(16));
  entete->addWidget(photo_, 0, Qt::AlignTop);
  entete->addLayout(textes, 1);
  entete->addLayout(CreerSolde());
  return entete;
}

QLayout* FicheIdentite::CreerSolde() {
  titreSolde_ = CreerLibelle(u"Solde"_s, nullptr);
  solde_ = new Etiquette({}, TRole::Texte, &Theme::Compteur);
  etatSolde_ = new MarqueEtat;
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(4));
  colonne->addWidget(titreSolde_, 0, Qt::AlignRight);
  colonne->addWidget(solde_, 0, Qt::AlignRight);
  colonne->addWidget(etatSolde_, 0, Qt::AlignRight);
  colonne->addStretch(1);
  return colonne;
}

QLayout* FicheIdentite::Rangee(const QStringList& noms) {
  std::vector<LiaisonChamps::TPart> parts;
  for (const QString& nom : noms) {
    const int champ = form_.Champs().Indice(nom);
    const int largeur = form_.Champs().Champ(champ).Largeur;
    if (largeur > 0) liaison_->Widget(champ)->setFixedWidth(Theme::Px(largeur));
    parts.push_back({champ, largeur > 0 ? 0 : 1});
  }
  return liaison_->Rangee(parts);
}

QLayout* FicheIdentite::CreerResponsables() {
  auto* grille = new QGridLayout;
  grille->setHorizontalSpacing(Theme::Px(16));
  grille->setVerticalSpacing(Theme::Px(6));
  grille->setColumnStretch(1, 1);
  grille->setColumnStretch(2, 1);
  grille->addWidget(CreerTitre(u"Responsable"_s), 0, 1);
  grille->addWidget(CreerTitre(u"Second responsable"_s), 0, 2);
  int rang = 0;
  for (const auto& [libelle, noms] : kRangees) {
    ++rang;
    grille->addLayout(Rangee(noms), rang, 1);
    grille->addLayout(Rangee(DuSecond(noms)), rang, 2);
    grille->addWidget(CreerLibelleDeRang(libelle, liaison_->Widget(noms[0])), rang, 0, Qt::AlignTop);
  }
  const QString nom = u"rbAttestationResponsable"_s;
  attestations_ = {liaison_->Radio(nom, 0, u"Au nom du responsable"_s),
                   liaison_->Radio(nom, 1, u"Au nom du second"_s)};
  attestations_[0]->setAccessibleName(u"Attestation au nom du responsable"_s);
  attestations_[1]->setAccessibleName(u"Attestation au nom du second"_s);
  grille->addWidget(CreerLibelle(u"Attestation"_s, attestations_[0]), ++rang, 0);
  grille->addWidget(attestations_[0], rang, 1);
  grille->addWidget(attestations_[1], rang, 2);

  AjouterCompte(*grille, ++rang);
  return grille;
}

void FicheIdentite::AjouterCompte(QGridLayout& grille, int rang) {
  QWidget* compte = liaison_->Widget(u"edNumCompte"_s);
  QWidget* titulaire = liaison_->Widget(u"edNomTitulaireCompte"_s);
  comptes_ = BoutonSimple(u"…"_s);
  comptes_->setAccessibleName(u"Comptes vus sur les virements"_s);
  comptes_->setToolTip(u"Insérer une communication structurée"_s);
  comptes_->setFixedWidth(Theme::Px(32));
  connect(comptes_, &QPushButton::clicked, this, [this] { form_.AdvGlowButton1Click(); });
  auto* premier = new QHBoxLayout;
  premier->setSpacing(Theme::Px(4));
  premier->addLayout(Rangee({u"edNumCompte"_s}), 1);
  premier->addWidget(comptes_, 0, Qt::AlignTop);
  auto* second = new QHBoxLayout;
  second->setSpacing(Theme::Px(8));
  second->addWidget(CreerLibelleDeRang(u"Nom du titulaire :"_s, titulaire), 0, Qt::AlignTop);
  second->addLayout(Rangee({u"edNomTitulaireCompte"_s}), 1);
  grille.addWidget(CreerLibelleDeRang(u"N° compte :"_s, compte), rang, 0, Qt::AlignTop);
  grille.addLayout(premier, rang, 1);
  grille.addLayout(second, rang, 2);
}

void FicheIdentite::AjouterSituation() {
  auto* grille = new QGridLayout;
  grille->setHorizontalSpacing(Theme::Px(16));
  grille->setVerticalSpacing(Theme::Px(6));
  for (int colonne = 0; colonne < kColonnesSituation; ++colonne) grille->setColumnStretch(colonne, 1);
  int place = 0;
  for (QWidget* boite : Cases(*liaison_)) {
    grille->addWidget(boite, place / kColonnesSituation, place % kColonnesSituation, Qt::AlignLeft);
    ++place;
  }
  AjouterSection(CreerTitre(u"Situation"_s))->addLayout(grille);
}

void FicheIdentite::AjouterMois() {
  QStringList titres;
  for (const TGroupeMois& groupe : form_.Mois()) titres += groupe.Titre;
  mois_ = new GrilleMois(titres);
  connect(mois_, &GrilleMois::Basculee, this,
          [this](int groupe, int mois, bool coche) { form_.cbMoisClick(groupe, mois, coche); });
  connect(mois_, &GrilleMois::TousBascules, this,
          [this](int groupe, bool coche) { form_.cbMaitreClick(groupe, coche); });
  AjouterSection(CreerTitre(u"Mois par mois"_s))->addWidget(mois_);
}

void FicheIdentite::AjouterActivites() {
  titreExt_ = new TitreSection({});
  jours_ = new GrilleJours;
  jours_->Definir({QString()});
  connect(jours_, &GrilleJours::Basculee, this,
          [this](int, int jour, bool coche) { form_.cbLundi1Click(jour, coche); });
  AjouterSection(titreExt_)->addWidget(jours_);
  activites_ = new GrilleJours;
  connect(activites_, &GrilleJours::Basculee, this,
          [this](int activite, int jour, bool coche) { form_.cbJourActiviteClick(activite, jour, coche); });
  titreActivites_ = CreerTitre(u"Activités"_s);
  AjouterSection(titreActivites_)->addWidget(activites_);
}

// The photo comes last: whoever enters the record wants its fields.
void FicheIdentite::OrdonnerTab() {
  std::vector<QWidget*> ordre{liaison_->Widget(u"lblDateNaissance"_s), liaison_->Widget(u"edNumNational"_s)};
  for (const QString& suffixe : {QString(), u"2"_s})
    for (const auto& [libelle, noms] : kRangees)
      for (const QString& nom : noms) ordre.push_back(liaison_->Widget(nom % suffixe));
  ordre.insert(ordre.end(), attestations_.begin(), attestations_.end());
  ordre.push_back(liaison_->Widget(u"edNumCompte"_s));
  ordre.push_back(comptes_);
  ordre.push_back(liaison_->Widget(u"edNomTitulaireCompte"_s));
  for (QWidget* boite : Cases(*liaison_)) ordre.push_back(boite);
  for (QCheckBox* boite : mois_->findChildren<QCheckBox*>()) ordre.push_back(boite);
  for (GrilleJours* jours : {jours_, activites_})
    for (QCheckBox* boite : jours->findChildren<QCheckBox*>()) ordre.push_back(boite);
  ordre.push_back(photo_);
  for (std::size_t i = 1; i < ordre.size(); ++i) setTabOrder(ordre[i - 1], ordre[i]);
}

// Showing; the fields follow by themselves.

void FicheIdentite::Actualiser() {
  ActualiserEntete();
  ActualiserCases();
}

void FicheIdentite::ActualiserEntete() {
  nom_->setText(form_.Titre());
  sousTitre_->setText(form_.SousTitre());
  photo_->Definir(form_.Photo());
  titreSolde_->setVisible(form_.AvecEleve());
  if (!form_.AvecEleve()) {
    solde_->clear();
    etatSolde_->Definir({}, {});
    return;
  }
  const TEtatGrille etat = form_.EtatSolde();
  solde_->DefinirRole(RoleDeIcone(etat.Icone) == TRole::Alerte ? TRole::Erreur : TRole::Texte);
  solde_->setText(TexteMontant(form_.Solde()));
  etatSolde_->Definir(etat.Icone, etat.Texte);
}

void FicheIdentite::ActualiserCases() {
  const auto& groupes = form_.Mois();
  for (std::size_t ligne = 0; ligne < groupes.size(); ++ligne)
    for (std::size_t mois = 0; mois < groupes[ligne].Mois.size(); ++mois)
      mois_->Definir(static_cast<int>(ligne), static_cast<int>(mois), groupes[ligne].Mois[mois]);
  titreExt_->parentWidget()->setVisible(form_.ActivitesExtVisibles());
  titreExt_->DefinirTexte(form_.TitreActivitesExt());
  jours_->Cocher(0, form_.JoursActivite());
  QStringList noms;
  for (const auto& activite : form_.Activites()) noms += activite.Libelle;
  if (form_.ActivitesVisibles()) activites_->Definir(noms);
  activites_->parentWidget()->setVisible(form_.ActivitesVisibles() && form_.AvecEleve());
  titreActivites_->setVisible(!form_.ActivitesExtVisibles());  // one heading for both
  for (int i = 0; form_.ActivitesVisibles() && i < noms.size(); ++i)
    activites_->Cocher(i, form_.Activites()[static_cast<std::size_t>(i)].Jours);
}
