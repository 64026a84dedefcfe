#include "ui/pupils/fiche_identite.h"

#include <QGridLayout>

#include "core/formats.h"
#include "screens/pupils/frm_signaletique.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/grille_mois.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/photo_eleve.h"
#include "ui/commun/saisie.h"
#include "ui/commun/texte.h"
#include "ui/commun/titres.h"
#include "ui/pupils/champ_lecture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonnesSituation = 3;

QString T(const char* texte) { return QString::fromUtf8(texte); }

Etiquette* CreerTitre(const char* texte) {
  return new Etiquette(T(texte), TRole::Texte, &Theme::TitreSection);
}

QHBoxLayout* Cote(std::initializer_list<std::pair<QWidget*, int>> widgets) {
  auto* ligne = new QHBoxLayout;
  ligne->setSpacing(Theme::Px(8));
  for (const auto& [widget, part] : widgets) ligne->addWidget(widget, part);
  return ligne;
}

}  // namespace

FicheIdentite::FicheIdentite(TFrmSignaletique& form) : form_(form) {
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(0);
  colonne->addLayout(CreerEntete());
  AjouterSection(nullptr)->addLayout(CreerResponsables());
  AjouterSituation();
  AjouterMois();
  AjouterActivites();
  auto* lecture = new MarqueEtat;
  lecture->Definir(u"data-information"_s, u"Fiche en lecture seule : elle ne se modifie pas encore ici"_s);
  AjouterSection(nullptr)->addWidget(lecture);
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

template <class Bouton>
Bouton* FicheIdentite::CreerBouton(const QString& texte) {
  auto* bouton = new Bouton(texte);
  connect(bouton, &QAbstractButton::clicked, this, [this] { form_.ModificationDemandee(); });
  return bouton;
}

// Building

QLayout* FicheIdentite::CreerEntete() {
  photo_ = new PhotoEleve;
  connect(photo_, &PhotoEleve::clicked, this, [this] { form_.ModificationDemandee(); });
  nom_ = new Etiquette({}, TRole::Texte, &Theme::TitreEcran);
  nom_->DefinirElision(true);
  sousTitre_ = new Etiquette({}, TRole::Secondaire);
  sousTitre_->DefinirElision(true);
  naissance_ = new SaisieDate;
  naissance_->setReadOnly(true);
  naissance_->MontrerFleche(false);
  naissance_->setFixedWidth(Theme::Px(96));
  auto* date = Cote({{CreerLibelle(u"Date de naissance:"_s, naissance_), 0}, {naissance_, 0}});
  date->addStretch(1);

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

QLayout* FicheIdentite::CreerResponsables() {
  auto* grille = new QGridLayout;
  grille->setHorizontalSpacing(Theme::Px(16));
  grille->setVerticalSpacing(Theme::Px(6));
  grille->setColumnStretch(1, 1);
  grille->setColumnStretch(2, 1);
  grille->addWidget(CreerTitre("Responsable"), 0, 1);
  grille->addWidget(CreerTitre("Second responsable"), 0, 2);
  AjouterResponsable(*grille, 1, responsables_[0], u" du responsable"_s, u" au nom du responsable"_s);
  AjouterResponsable(*grille, 2, responsables_[1], u" du second responsable"_s, u" au nom du second"_s);
  const char* const libelles[] = {"Nom, prénom", "Adresse, n°", "Code, localité", "Attestation"};
  QWidget* const champs[] = {responsables_[0].Nom, responsables_[0].Adresse, responsables_[0].CodePostal,
                             responsables_[0].Attestation};
  for (int i = 0; i < 4; ++i) grille->addWidget(CreerLibelle(T(libelles[i]), champs[i]), i + 1, 0);
  AjouterCompte(*grille);
  return grille;
}

void FicheIdentite::AjouterResponsable(QGridLayout& grille, int colonne, TChamps& champs, const QString& de,
                                       const QString& au) {
  champs = {new ChampLecture(u"Nom" % de),
            new ChampLecture(u"Prénom" % de),
            new ChampLecture(u"Adresse" % de),
            new ChampLecture(u"Numéro" % de),
            new ChampLecture(u"Code postal" % de),
            new ChampLecture(u"Localité" % de),
            CreerBouton<ChoixLecture>(colonne == 1 ? u"Au nom du responsable"_s : u"Au nom du second"_s)};
  champs.Attestation->setAccessibleName(u"Attestation" % au);
  champs.Numero->setFixedWidth(Theme::Px(52));
  champs.CodePostal->setFixedWidth(Theme::Px(52));
  grille.addLayout(Cote({{champs.Nom, 1}, {champs.Prenom, 1}}), 1, colonne);
  grille.addLayout(Cote({{champs.Adresse, 1}, {champs.Numero, 0}}), 2, colonne);
  grille.addLayout(Cote({{champs.CodePostal, 0}, {champs.Localite, 1}}), 3, colonne);
  grille.addWidget(champs.Attestation, 4, colonne);
}

void FicheIdentite::AjouterCompte(QGridLayout& grille) {
  compte_ = new ChampLecture({});
  titulaire_ = new ChampLecture({});
  grille.addWidget(CreerLibelle(u"N° compte :"_s, compte_), 5, 0);
  grille.addWidget(compte_, 5, 1);
  grille.addLayout(Cote({{CreerLibelle(u"Nom du titulaire :"_s, titulaire_), 0}, {titulaire_, 1}}), 5, 2);
}

void FicheIdentite::AjouterSituation() {
  const char* const textes[] = {"2e enfant", "Gratuité des services", "Facture détaillée", "Parents séparés",
                                "Élève radié"};
  auto* grille = new QGridLayout;
  grille->setHorizontalSpacing(Theme::Px(16));
  grille->setVerticalSpacing(Theme::Px(6));
  for (int colonne = 0; colonne < kColonnesSituation; ++colonne) grille->setColumnStretch(colonne, 1);
  for (int i = 0; i < 5; ++i) {
    situation_[static_cast<std::size_t>(i)] = CreerBouton<CaseLecture>(T(textes[i]));
    grille->addWidget(situation_[static_cast<std::size_t>(i)], i / kColonnesSituation, i % kColonnesSituation,
                      Qt::AlignLeft);
  }
  AjouterSection(CreerTitre("Situation"))->addLayout(grille);
}

void FicheIdentite::AjouterMois() {
  QStringList titres;
  for (const TGroupeMois& groupe : form_.Mois()) titres += groupe.Titre;
  mois_ = new GrilleMois(titres);
  mois_->DefinirLectureSeule(true);
  for (QCheckBox* boite : mois_->findChildren<QCheckBox*>())
    connect(boite, &QCheckBox::clicked, this, [this] { form_.ModificationDemandee(); });
  AjouterSection(CreerTitre("Mois par mois"))->addWidget(mois_);
}

void FicheIdentite::AjouterActivites() {
  titreExt_ = new TitreSection({});
  auto* ligne = new QHBoxLayout;
  ligne->setSpacing(Theme::Px(20));
  for (std::size_t jour = 0; jour < jours_.size(); ++jour) {
    const QString nom = LocaleEcole().dayName(static_cast<int>(jour) + 1);
    jours_[jour] = CreerBouton<CaseLecture>(nom.left(1).toUpper() % nom.sliced(1));
    ligne->addWidget(jours_[jour]);
  }
  ligne->addStretch(1);
  AjouterSection(titreExt_)->addLayout(ligne);
  activites_ = new Etiquette({}, TRole::Texte);
  activites_->DefinirElision(true);
  titreActivites_ = CreerTitre("Activités");
  AjouterSection(titreActivites_)->addWidget(activites_);
}

// The photo comes last: whoever enters the record wants its fields.
void FicheIdentite::OrdonnerTab() {
  std::vector<QWidget*> ordre{naissance_};
  for (const TChamps& champs : responsables_)
    for (QWidget* champ : std::initializer_list<QWidget*>{champs.Nom, champs.Prenom, champs.Adresse,
                                                          champs.Numero, champs.CodePostal, champs.Localite})
      ordre.push_back(champ);
  for (const TChamps& champs : responsables_) ordre.push_back(champs.Attestation);
  ordre.push_back(compte_);
  ordre.push_back(titulaire_);
  ordre.insert(ordre.end(), situation_.begin(), situation_.end());
  for (QCheckBox* boite : mois_->findChildren<QCheckBox*>()) ordre.push_back(boite);
  ordre.insert(ordre.end(), jours_.begin(), jours_.end());
  ordre.push_back(photo_);
  for (std::size_t i = 1; i < ordre.size(); ++i) setTabOrder(ordre[i - 1], ordre[i]);
}

// Showing

void FicheIdentite::Actualiser() {
  ActualiserEntete();
  ActualiserResponsables();
  ActualiserCases();
}

void FicheIdentite::ActualiserEntete() {
  const TFicheEleve& fiche = form_.Fiche();
  nom_->setText(form_.AvecEleve() ? fiche.NomComplet : u"Choisissez un élève dans la liste"_s);
  sousTitre_->setText(fiche.SousTitre());
  photo_->Definir(form_.Photo());
  naissance_->setText(fiche.DateNaissance);
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

void FicheIdentite::ActualiserResponsables() {
  const TFicheEleve& fiche = form_.Fiche();
  for (std::size_t i = 0; i < responsables_.size(); ++i) {
    const TChamps& champs = responsables_[i];
    const TResponsable& responsable = fiche.Responsables[i];
    champs.Nom->Montrer(responsable.Nom);
    champs.Prenom->Montrer(responsable.Prenom);
    champs.Adresse->Montrer(responsable.Adresse);
    champs.Numero->Montrer(responsable.Numero);
    champs.CodePostal->Montrer(responsable.CodePostal);
    champs.Localite->Montrer(responsable.Localite);
  }
  // Of an exclusive pair one is always chosen; without a pupil none is.
  for (const TChamps& champs : responsables_) champs.Attestation->setAutoExclusive(form_.AvecEleve());
  for (std::size_t i = 0; i < responsables_.size(); ++i)
    responsables_[i].Attestation->setChecked(form_.AvecEleve() && fiche.FlgImpotRespons2 == (i == 1));
  compte_->Montrer(fiche.NumCompte);
  titulaire_->Montrer(fiche.NomTitulaireCompte);
}

void FicheIdentite::ActualiserCases() {
  const TFicheEleve& fiche = form_.Fiche();
  const bool situation[] = {fiche.Flg2eEnfant, fiche.Flg3eEnfant, fiche.FlgFactureDetail,
                            fiche.FlgParentSepare, fiche.FlgRadie};
  for (std::size_t i = 0; i < situation_.size(); ++i) situation_[i]->setChecked(situation[i]);
  const auto& groupes = form_.Mois();
  for (std::size_t ligne = 0; ligne < groupes.size(); ++ligne)
    for (std::size_t mois = 0; mois < groupes[ligne].Mois.size(); ++mois)
      mois_->Definir(static_cast<int>(ligne), static_cast<int>(mois), groupes[ligne].Mois[mois]);
  titreExt_->parentWidget()->setVisible(form_.ActivitesExtVisibles());
  titreExt_->DefinirTexte(form_.TitreActivitesExt());
  for (std::size_t jour = 0; jour < jours_.size(); ++jour)
    jours_[jour]->setChecked(form_.JoursActivite()[jour]);
  activites_->parentWidget()->setVisible(form_.ActivitesVisibles() && form_.AvecEleve());
  titreActivites_->setVisible(!form_.ActivitesExtVisibles());  // one heading for both
  activites_->setText(form_.Activites().isEmpty() ? u"Aucune activité"_s : form_.Activites());
}
