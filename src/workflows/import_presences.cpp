#include "workflows/import_presences.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <set>

#include "core/calendrier_scolaire.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/lecture_dates.h"
#include "core/transaction_commune.h"
#include "pupils/reserver.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEntree = 1;
constexpr int kSortie = 2;

/// An exit of day-care up to this time was really an entry.
const TDateTime kFinDesEntrees = EncodeTime(11, 0);

/// What sets the derived day-care record of a meal apart from the meal's own time.
const TDateTime kDecalage = HeureAuMilliseconde(0.0001);

/// The path itself, or with the first number that no file has yet: "Presences-... (2).txt".
QString NomLibre(const QString& chemin) {
  QString libre = chemin;
  for (int numero = 2; QFile::exists(libre); ++numero)
    libre = QString(chemin).insert(chemin.lastIndexOf(u'.'), u" (%1)"_s.arg(numero));
  return libre;
}

bool ACompter(TDateTime entree, TDateTime sortie) { return entree != 0.0 || sortie != 0.0; }

}  // namespace

QString NomArchive(TDateTime moment) {
  const TJour jour = DecodeDate(moment);
  const QTime heure = HeureVersQt(moment);
  return u"Presences-%1.%2.%3-%4h%5m%6s.txt"_s.arg(jour.Jour)
      .arg(jour.Mois)
      .arg(jour.Annee)
      .arg(heure.hour())
      .arg(heure.minute())
      .arg(heure.second());
}

namespace {

/// The day; with its year when it is not of the one on display.
TValeurVue JourVu(TDateTime date) {
  return TImportPresences::EstHorsAnnee(date) ? TValeurVue(TJourAnnee{date}) : TValeurVue(date);
}

}  // namespace

// With the day flat rate a meal eaten at school is a day-care presence too, whether or not the meal
// itself has a tariff.
std::unique_ptr<TPresence> GarderieDuRepas(const TPresence& repas) {
  const bool aTable =
      repas.TypePresence == TTypePresence::Repas || repas.TypePresence == TTypePresence::Soupe;
  if (!aTable || !Globals.Presences->Regles.GarderieUnique) return nullptr;
  auto derive = std::make_unique<TPresence>();
  derive->EleveId = repas.EleveId;
  derive->TypePresence = TTypePresence::Garderie;
  derive->DateReleve = repas.DateReleve;
  const bool entree = repas.HeureEntree > 0.0;
  derive->HeureEntree = entree ? HeureAuMilliseconde(repas.HeureEntree + kDecalage) : repas.HeureSortie;
  derive->HeureSortie = entree ? 0.0 : repas.HeureSortie;
  return derive;
}

TCellules LigneRecapitulatif(const TPresence& presence) {
  const TEleve* eleve = Globals.Eleves->TrouverParId(presence.EleveId);
  return {eleve->Nom,
          eleve->Prenom,
          JourVu(presence.DateReleve),
          Texte(presence.TypePresence),
          presence.HeureEntree,
          presence.HeureSortie,
          eleve->Matricule};
}

TCellules LigneAnomalie(const TAnomalie& anomalie) {
  if (anomalie.Presence) return LigneRecapitulatif(*anomalie.Presence);
  return {u"Matricule inconnu ("_s + anomalie.Matricule + u')',
          QString(),
          JourVu(anomalie.Date),
          Texte(static_cast<TTypePresence>(anomalie.TypePresence)),
          anomalie.Entree,
          anomalie.Sortie,
          QString()};
}

TImportPresences::TImportPresences(TControleur& controleur) : controleur_(controleur) {}

QString TImportPresences::SiteDuChemin(const QString& chemin) {
  if (!Globals.Parametres->EstVrai(TParam::PlusieursImplantations)) return {};
  const QString texte = chemin.toUpper();
  for (const TImplantation& site : *Globals.Eleves->Implantations) {
    const QString nom = site.LibelleCourt.toUpper();
    if (!nom.isEmpty() && texte.contains(nom)) return site.Code;
  }
  return {};
}

void TImportPresences::ImporterFichier(const QString& chemin) {
  const TAttente attente(controleur_.Dialogues());
  ImporterTablette(chemin);
  AnnoncerAnomalies();
}

void TImportPresences::AnnoncerAnomalies() const {
  if (!anomalies_.empty()) controleur_.Dialogues().Message(u"Des anomalies ont été détectées !"_s);
}

void TImportPresences::ImporterTablette(const QString& chemin) {
  Lire(chemin);
  Analyser(SiteDuChemin(chemin));
  pret_ = true;
}

void TImportPresences::ImporterScanner(const QString& copie) {
  Lire(copie);
  Analyser({});
  pret_ = true;
}

void TImportPresences::Vider() {
  pret_ = false;
  bons_.clear();
  origines_.clear();
  ajoutees_.clear();
  ecartes_.clear();
  bilan_ = {};
  anomalies_.clear();
  grille_ = {};
}

void TImportPresences::Lire(const QString& chemin) {
  Vider();
  grille_ = TTexteSepare::Lire(chemin);
  if (grille_.NombreLignes() == 0) throw Exception(u"Le fichier « %1 » est vide."_s.arg(chemin));
  // A study scan is always an exit, whatever the scanner recorded.
  for (QStringList& ligne : grille_.Lignes) {
    if (ligne.value(1).trimmed() != u"4") continue;
    while (ligne.size() < 5) ligne += QString();
    ligne[4] = QString::number(kSortie);
  }
}

TImportPresences::TScan TImportPresences::LireLigne(int ligne) const {
  try {
    return {grille_.Cellule(ligne, 0), StrToInt(grille_.Cellule(ligne, 1)),
            LireDateCompacte(grille_.Cellule(ligne, 2)), LireHeureCompacte(grille_.Cellule(ligne, 3)),
            StrToInt(grille_.Cellule(ligne, 4))};
  } catch (const EConvertError& e) {
    throw EConvertError(u"Ligne %1 : %2\nRien n'a été enregistré."_s.arg(ligne + 1).arg(e.Message));
  }
}

// Lines of unknown pupils come first among the anomalies, then the records without a tariff.
void TImportPresences::Analyser(const QString& site) {
  std::vector<TAnomalie> sansTarif;
  try {
    for (int ligne = 0; ligne < grille_.NombreLignes(); ++ligne) Classer(LireLigne(ligne), site, sansTarif);
  } catch (...) {
    bons_.clear();
    anomalies_.clear();
    throw;
  }
  for (TAnomalie& anomalie : sansTarif) anomalies_.push_back(std::move(anomalie));
}

void TImportPresences::Classer(const TScan& scan, const QString& site, std::vector<TAnomalie>& sansTarif) {
  const TEleve* eleve = Globals.Eleves->TrouverParCode(scan.Matricule);
  if (eleve == nullptr) {
    anomalies_.push_back({scan.Matricule, nullptr, scan.TypePresence, scan.Date,
                          scan.Sens == kEntree ? scan.Heure : 0.0, scan.Sens == kSortie ? scan.Heure : 0.0});
    return;
  }
  auto presence = std::make_unique<TPresence>();
  presence->EleveId = eleve->Id;
  presence->TypePresence = static_cast<TTypePresence>(scan.TypePresence);
  presence->DateReleve = scan.Date;
  presence->CodeImplantation = site;
  const bool entreeDuMatin = scan.TypePresence == static_cast<int>(TTypePresence::Garderie) &&
                             scan.Sens == kSortie && scan.Heure <= kFinDesEntrees;
  const bool entree = scan.Sens == kEntree || entreeDuMatin;
  (entree ? presence->HeureEntree : presence->HeureSortie) = scan.Heure;
  std::unique_ptr<TPresence> derive = GarderieDuRepas(*presence);
  if (AUnTarif(*presence))
    bons_.push_back(std::move(presence));
  else
    sansTarif.push_back({eleve->Matricule, std::move(presence)});
  if (!derive) return;
  origines_[derive.get()] = TOrigine::Derive;
  bons_.push_back(std::move(derive));
}

// A teacher may have been removed since the analysis.
bool TImportPresences::EstCorrigible(int anomalie) const {
  const auto& presence = anomalies_[static_cast<std::size_t>(anomalie)].Presence;
  return presence && Globals.Eleves->TrouverParId(presence->EleveId) != nullptr;
}

bool TImportPresences::Corriger(int anomalie, TTypePresence typePresence, TDateTime date, TDateTime sortie,
                                TDateTime entree, const QString& codeImplantation) {
  if (!EstCorrigible(anomalie)) {
    controleur_.Dialogues().Message(u"La correction ne peut se faire que sur un élève existant"_s);
    return false;
  }
  TAnomalie& ligne = anomalies_[static_cast<std::size_t>(anomalie)];
  ligne.Presence->TypePresence = typePresence;
  ligne.Presence->DateReleve = date;
  ligne.Presence->HeureEntree = entree;
  ligne.Presence->HeureSortie = sortie;
  ligne.Presence->CodeImplantation = codeImplantation;
  origines_[ligne.Presence.get()] = TOrigine::Corrige;
  bons_.push_back(std::move(ligne.Presence));
  anomalies_.erase(anomalies_.begin() + anomalie);
  pret_ = true;
  return true;
}

// Two tablets may come back at once: each pupil is the business of one of them.
void TImportPresences::EnregistrerTablette() {
  TTransactionCommune ensemble(controleur_.Base());
  RelireJours();
  Enregistrer();
  ensemble.Valider();
}

void TImportPresences::RelireJours() const {
  if (bons_.empty()) return;
  std::set<int> eleves;  // in one order everywhere, so that no two wait for each other
  TPeriode jours{bons_.front()->DateReleve, bons_.front()->DateReleve};
  for (const auto& bon : bons_) {
    eleves.insert(bon->EleveId);
    jours = {std::min(jours.Premier, bon->DateReleve), std::max(jours.Dernier, bon->DateReleve)};
  }
  // A file of this computer is open in one program only, and a lock that a killed one left there is waited
  // for.
  if (!controleur_.Base().EstLocal())
    for (const int cle : eleves) Reserver(*Globals.Eleves->TrouverParId(cle));
  Globals.Presences->LireNouvelles(jours);
}

// A failure leaves the rest pending: the step can be taken again.
void TImportPresences::Enregistrer() {
  if (ajoutees_.empty()) {
    bilan_ = {};
    ecartes_.clear();
  }
  for (auto& presence : bons_) Ajouter(std::move(presence));
  bons_.clear();
  origines_.clear();
  Globals.Presences->Save();
  for (const TPresence* presence : ajoutees_)
    if (presence->Status == TStatus::Nouveau)
      throw Exception(u"Toutes les présences n'ont pas pu être mémorisées : le fichier est gardé."_s);
  ajoutees_.clear();
  pret_ = false;
}

void TImportPresences::Ajouter(std::unique_ptr<TPresence> presence) {
  const bool derive = Origine(*presence) == TOrigine::Derive;
  const bool repas = presence->TypePresence == TTypePresence::Repas;
  const int eleve = presence->EleveId;
  const TDateTime jour = presence->DateReleve;
  if (const TPresence* ajoutee = Globals.Presences->AjoutePresence(std::move(presence))) {
    ajoutees_.push_back(ajoutee);
    ++bilan_.Memorisees;
  } else {
    ++(derive ? bilan_.Derivees : bilan_.Doubles);
    if (repas) NoterEcarte(eleve, jour);
  }
}

void TImportPresences::NoterEcarte(int eleve, TDateTime jour) {
  const auto dejaLa = Globals.Presences->PresencesEleve(eleve, {jour, jour});
  ecartes_.push_back({eleve, jour, std::ranges::any_of(dejaLa, [](const TPresence* presence) {
                        return presence->TypePresence == TTypePresence::Repas;
                      })});
}

// A copy is left in the temporary folder by the scanner only; a file chosen by hand stays where it is.
void TImportPresences::Etape2() {
  Enregistrer();
  controleur_.Dialogues().Information(u"Les présences ont été mémorisées."_s);
  Archiver(Globals.DossierTemporaire + u"/Presences.txt"_s);
}

bool TImportPresences::ArchiverTablette(const QString& chemin) const {
  if (Archiver(chemin)) return true;
  controleur_.Dialogues().Message(
      u"Les repas sont enregistrés, mais leur fichier « %1 » n'a pas pu être archivé : enlevez-le, sinon il "
      "sera relu au prochain transfert."_s.arg(chemin));
  return false;
}

// Of the scanner's copy a failure is ignored: the records are stored, and the file stays where it was.
bool TImportPresences::Archiver(const QString& fichier) const {
  if (!QFile::exists(fichier)) return true;
  const QString archive =
      QDir(DossierPresences(controleur_.Reglages())).filePath(NomArchive(controleur_.Horloge().Maintenant()));
  return QFile::rename(fichier, NomLibre(archive));
}

void TImportPresences::ArchiverSousSonNom(const QString& chemin) const {
  const QDir dossier(DossierPresences(controleur_.Reglages()));
  const QFileInfo fichier(chemin);
  QString nom = fichier.fileName();
  for (int n = 2; dossier.exists(nom); ++n)
    nom = u"%1 (%2).%3"_s.arg(fichier.completeBaseName()).arg(n).arg(fichier.suffix());
  if (!QFile::rename(chemin, dossier.filePath(nom)))
    throw Exception(u"Le fichier « %1 » n'a pas pu être archivé."_s.arg(fichier.fileName()));
}

TOrigine TImportPresences::Origine(const TPresence& bon) const {
  const auto origine = origines_.find(&bon);
  return origine == origines_.end() ? TOrigine::Fichier : origine->second;
}

bool TImportPresences::AUnTarif(const TPresence& presence) {
  return Globals.TarifsGarderies->TarifExiste(GroupeDe(presence.TypePresence), presence.HeureSortie,
                                              presence.HeureEntree, presence.DateReleve);
}

int TImportPresences::NombreNonMemorises() const { return static_cast<int>(bons_.size() + ajoutees_.size()); }

int TImportPresences::NombreACorriger() const {
  return static_cast<int>(
      std::ranges::count_if(anomalies_, [](const TAnomalie& a) { return a.Presence != nullptr; }));
}

bool TImportPresences::EstHorsAnnee(TDateTime date) {
  const TPeriode annee = BornesAnnee(Globals.Eleves->AnneeScolaire);
  return date < annee.Premier || date > annee.Dernier;
}

int TImportPresences::NombreHorsAnnee() const {
  return static_cast<int>(
      std::ranges::count_if(bons_, [](const auto& presence) { return EstHorsAnnee(presence->DateReleve); }));
}

int TImportPresences::NombreBons() const {
  int nombre = 0;
  for (const auto& presence : bons_) nombre += ACompter(presence->HeureEntree, presence->HeureSortie);
  return nombre;
}

int TImportPresences::NombreAnomalies() const {
  int nombre = 0;
  for (const TAnomalie& a : anomalies_)
    nombre += a.Presence ? ACompter(a.Presence->HeureEntree, a.Presence->HeureSortie)
                         : ACompter(a.Entree, a.Sortie);
  return nombre;
}
