#include "screens/attendance/frm_presences.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <utility>

#include "core/accord.h"
#include "core/formats.h"
#include "screens/attendance/frm_ajout_releve.h"
#include "workflows/lien_lecteur.h"

using namespace Qt::StringLiterals;

namespace {

const QString kFichiersLecteur[] = {u"\\StorageCard\\Presences\\Presences.txt"_s,
                                    u"\\Backup\\Presences\\Presences.txt"_s};
const QString kTelechargement = u"Téléchargement des données..."_s;

std::vector<TColonneGrille> Colonnes() {
  return {{u"Nom"_s, 271},
          {u"Prénom"_s, 120},
          {u"Date"_s, 180, TGenre::DateLongue},
          {u"Type"_s, 88},
          {u"Entrée"_s, 72, TGenre::Heure},
          {u"Sortie"_s, 72, TGenre::Heure},
          {u"État"_s, 140, TGenre::Etat},
          {u"Matricule"_s, 128}};
}

/// The state stands before the number, which alone is out of sight on a small screen.
TCellules AvecEtat(TCellules cellules) {
  cellules.insert(cellules.begin() + TfrmPresences::Etat, TValeurVue());
  return cellules;
}

/// The windows in which a scan of that kind counts that day, for who corrects it: "matin 07:00 - 08:30".
QString HeuresDesTarifs(TTypePresence type, TDateTime date) {
  QStringList heures;
  for (const TTarifGarderie& tarif : *Globals.TarifsGarderies) {
    if (GroupeTarif(tarif.TypeFamille) != GroupeDe(type) || !JourConvient(tarif.TypeJour, date)) continue;
    const QString texte = Texte(tarif.TypeFamille) % u' ' % FormatHeureCourte(tarif.HeureDebutScan) % u" - " %
                          FormatHeureCourte(tarif.HeureFinScan);
    if (!heures.contains(texte)) heures += texte;
  }
  return heures.isEmpty() ? u"Aucun tarif ce jour-là."_s : QString(u"Tarifs : " % heures.join(u", "));
}

/// The hour to be put right, by its field: "Heure de fin à corriger : 18:22".
QString HeuresACorriger(const TPresence& presence) {
  QStringList heures;
  if (presence.HeureEntree != 0.0)
    heures += u"Heure de début à corriger : " % FormatHeureCourte(presence.HeureEntree);
  if (presence.HeureSortie != 0.0)
    heures += u"Heure de fin à corriger : " % FormatHeureCourte(presence.HeureSortie);
  return heures.join(u'\n');
}

}  // namespace

TfrmPresences::TfrmPresences(TContexteEcran& contexte)
    : Recapitulatif(Colonnes()), Anomalies(Colonnes()), contexte_(contexte), import_(contexte.Controleur) {
  Recapitulatif.Etats = {{},
                         {u"Corrigé"_s, u"data-information"_s},
                         {u"Forfait journée"_s, u"data-information"_s},
                         {u"Hors de l'année"_s, u"data-warning"_s},
                         {u"Sans tarif"_s, u"data-warning"_s}};
  Anomalies.Etats = {{}, {u"Inconnu"_s, u"data-error"_s}, {u"Sans tarif"_s, u"data-warning"_s}};
}

TfrmPresences::~TfrmPresences() { FermerLien(); }

void TfrmPresences::FormShow() { scannerVisible_ = !Globals.Parametres->EstVrai(TParam::ImportDirect); }

bool TfrmPresences::FormCloseQuery() {
  if (enCours_) Signaler(TNiveauEtat::Alerte, u"Le lecteur est lu : l'écran reste ouvert jusqu'à la fin."_s);
  return !enCours_ && AccepteDePerdre();
}

// What was read, corrected or still to be, goes only when the user says so.
bool TfrmPresences::AccepteDePerdre() const {
  const QString reste = EnSuspens();
  return reste.isEmpty() ||
         contexte_.Dialogues().ConfirmerGrave(reste % u".\nContinuer sans les mémoriser ?");
}

void TfrmPresences::FormClose() {
  FermerLien();
  if (const QString reste = EnSuspens(); !reste.isEmpty()) Signaler(TNiveauEtat::Alerte, reste);
}

QString TfrmPresences::EnSuspens() const {
  QStringList restes{
      Compter(import_.NombreNonMemorises(), u"relevé non mémorisé"_s, u"relevés non mémorisés"_s, {}),
      Compter(import_.NombreACorriger(), u"anomalie non corrigée"_s, u"anomalies non corrigées"_s, {})};
  restes.removeAll(QString());
  return restes.join(u", "_s);
}

QString TfrmPresences::TitreSource() const {
  return scannerVisible_ ? u"Source : scanner local"_s : u"Source : site distant"_s;
}

QString TfrmPresences::TitreMenuImportation() const {
  return scannerVisible_ ? u"Importation depuis un site distant"_s : u"Importation depuis un scanner local"_s;
}

void TfrmPresences::mnuImportationClick() {
  scannerVisible_ = !scannerVisible_;
  Annoncer();
}

QString TfrmPresences::TitreAnomalies() const {
  return Anomalies.NombreLignes() > 0 ? u"Anomalies"_s : u"Aucune anomalie"_s;
}

QString TfrmPresences::NoteAnomalies() const {
  const int nombre = Anomalies.NombreLignes();
  if (nombre == 0) return {};
  if (!import_.Pret())
    return Compter(nombre, u"ligne n'a pas été mémorisée"_s, u"lignes n'ont pas été mémorisées"_s);
  return Compter(nombre, u"ligne ne sera pas mémorisée tant qu'elle n'est pas corrigée"_s,
                 u"lignes ne seront pas mémorisées tant qu'elles ne sont pas corrigées"_s);
}

TVide TfrmPresences::RecapitulatifVide() const {
  if (Recapitulatif.NombreLignes() > 0) return {};
  if (FichierLu())
    return {u"Aucun relevé bon dans ce fichier"_s,
            u"Corrigez les anomalies, ou importez un autre fichier."_s};
  return {u"Aucune présence à montrer"_s,
          u"Importez-les depuis le scanner local ou un site distant (Etape n°1), ou "
          "choisissez « Importer un fichier de présence » sous Source."_s};
}

QString TfrmPresences::NoteRecapitulatif() const {
  if (!lu_) return {};
  if (!import_.Pret()) return TexteBilan();
  const int hors = import_.NombreHorsAnnee();
  const QString prets = Compter(import_.NombreNonMemorises(), u"relevé prêt"_s, u"relevés prêts"_s);
  return hors == 0 ? prets : QString(prets % u", dont %1 hors de l'année"_s.arg(hors));
}

QString TfrmPresences::TexteBilan() const {
  const TBilanPresences& bilan = import_.Bilan();
  QString texte = Compter(bilan.Memorisees, u"relevé mémorisé"_s, u"relevés mémorisés"_s);
  const int connus = bilan.Doubles + bilan.Derivees;
  if (connus == 0) return texte;
  QStringList raisons;
  if (bilan.Doubles > 0) raisons += u"%1 en double"_s.arg(bilan.Doubles);
  if (bilan.Derivees > 0) raisons += u"%1 du forfait journée"_s.arg(bilan.Derivees);
  return texte % u", " % Compter(connus, u"déjà connu"_s, u"déjà connus"_s) % u" (" % raisons.join(u", ") %
         u')';
}

// Step 1.

void TfrmPresences::btnImportScannerClick() {
  if (enCours_ || !AccepteDePerdre()) return;
  const TAttente attente(contexte_.Dialogues());
  Vider();
  if (!OuvrirLien()) {
    contexte_.Dialogues().Message(
        u"Veuillez vérifier si votre lecteur de code à barre est allumé et connecté à votre "
        "ordinateur."_s);
    return;
  }
  try {
    ImporterDuLecteur();
  } catch (...) {
    FermerLien();
    throw;
  }
}

bool TfrmPresences::OuvrirLien() {
  ILienLecteur* lien = contexte_.Lecteur;
  if (lien == nullptr) return false;
  lienOuvert_ = lien->CeRapiInit();
  if (!lienOuvert_) lien->CeRapiUnInit();
  return lienOuvert_;
}

void TfrmPresences::ImporterDuLecteur() {
  const QString local = Globals.DossierTemporaire + u"/Presences.txt"_s;
  const bool copie = CopierDuLecteur(local);
  Annoncer();
  if (!copie)
    RienARecuperer(u"Aucune donnée à récupérer"_s);
  else if (!QFile::exists(local))
    RienARecuperer(u"Aucune données à récupérer !"_s);
  else
    Lire(TSource::Scanner, local, u"Fichier du lecteur"_s);
}

void TfrmPresences::RienARecuperer(const QString& texte) {
  Signaler(TNiveauEtat::Alerte, texte);
  contexte_.Dialogues().Message(texte);
  FermerLien();
}

bool TfrmPresences::CopierDuLecteur(const QString& local) {
  const QScopedValueRollback enCours(enCours_, true);
  Annoncer();
  TProgression progression(contexte_.Dialogues(), 1);
  progression.Avancer(0, kTelechargement);
  Signaler(TNiveauEtat::Neutre, kTelechargement);
  contexte_.Dialogues().TraiterEvenements();
  for (const QString& distant : kFichiersLecteur) {
    try {
      CopierDepuisLecteur(*contexte_.Lecteur, distant, local);
      copie_ = distant;
      return true;
    } catch (const Exception& e) {
      DireErreur(e);
    }
  }
  return false;
}

void TfrmPresences::Importerunfichierdeprsence1Click() {
  if (enCours_ || !AccepteDePerdre()) return;
  const auto chemin = contexte_.Dialogues().ChoisirFichier(u"Importer un fichier de présence"_s,
                                                           u"Fichiers de présences (*.txt)"_s);
  if (!chemin) return;
  const TAttente attente(contexte_.Dialogues());
  QString nom = u"Fichier choisi : " % QFileInfo(*chemin).fileName();
  const QString code = TImportPresences::SiteDuChemin(*chemin);
  if (const TImplantation* site = Globals.Eleves->Implantations->TrouverParCode(code);
      site && !code.isEmpty())
    nom += u" · site " % site->LibelleCourt;
  Vider();
  Lire(TSource::Main, *chemin, nom);
  CompterReleves();
}

void TfrmPresences::Vider() {
  FermerLien();
  import_.Vider();
  source_ = TSource::Scanner;
  fichier_.clear();
  lu_ = memorise_ = false;
  compteurs_.AJour = false;
  Afficher();
}

void TfrmPresences::Lire(TSource source, const QString& chemin, const QString& nom) {
  try {
    if (source == TSource::Scanner)
      import_.ImporterScanner(chemin);
    else
      import_.ImporterTablette(chemin);
  } catch (const Exception&) {
    Signaler(TNiveauEtat::Erreur, QString(u"Fichier refusé : " % QFileInfo(chemin).fileName()));
    throw;
  }
  source_ = source;
  fichier_ = nom;
  lu_ = true;
  Afficher();
  if (Anomalies.NombreLignes() == 0) {
    Signaler(TNiveauEtat::Succes, NoteRecapitulatif());
    return;
  }
  Signaler(TNiveauEtat::Alerte, u"Des anomalies ont été détectées !"_s);
  import_.AnnoncerAnomalies();
}

void TfrmPresences::Afficher() {
  {
    const TGrille::TLot bons(Recapitulatif), mauvais(Anomalies);
    Recapitulatif.Vider();
    for (const auto& presence : import_.Bons()) AjouterBon(*presence);
    Anomalies.Vider();
    for (const TAnomalie& a : import_.Anomalies())
      Anomalies.Ajouter(AvecEtat(LigneAnomalie(a)), a.Presence.get(), a.Presence ? SansTarif : Inconnu);
    Anomalies.ChoisirLigne(0);
  }
  Annoncer();
}

void TfrmPresences::AjouterBon(TPresence& presence) {
  Recapitulatif.Ajouter(AvecEtat(LigneRecapitulatif(presence)), &presence, EtatDe(presence));
}

// What was corrected is ready whatever its hours are; that no tariff counts it is only said.
int TfrmPresences::EtatDe(const TPresence& bon) const {
  if (TImportPresences::EstHorsAnnee(bon.DateReleve)) return HorsAnnee;
  const TOrigine origine = import_.Origine(bon);
  if (origine == TOrigine::Corrige && !TImportPresences::AUnTarif(bon)) return CorrigeSansTarif;
  return static_cast<int>(origine);
}

void TfrmPresences::CompterReleves() {
  compteurs_ = {import_.NombreEntrees(), import_.NombreBons(), import_.NombreAnomalies(),
                import_.NombreTotal(), true};
  Annoncer();
}

// Correction.

void TfrmPresences::Corrigerlerelev1Click() {
  const int ligne = Anomalies.LigneCourante();
  const TPresence* presence = ligne < 0 ? nullptr : Anomalies.Ligne(ligne).Objet.En<TPresence>();
  if (presence == nullptr || !import_.EstCorrigible(ligne)) {
    contexte_.Dialogues().Message(u"La correction ne peut se faire que sur un élève existant"_s);
    return;
  }
  TFrmAjoutReleve saisie(contexte_);
  saisie.Mode = TFrmAjoutReleve::Correction;
  saisie.Charger(presence->TypePresence, presence->HeureSortie, presence->HeureEntree, presence->DateReleve,
                 presence->CodeImplantation);
  saisie.Note = Globals.Eleves->TrouverParId(presence->EleveId)->NomComplet() % u'\n' %
                HeuresDesTarifs(presence->TypePresence, presence->DateReleve) % u'\n' %
                HeuresACorriger(*presence);
  if (contexte_.Modale.MontrerModal(saisie) != TResultatModal::Valide) return;
  import_.Corriger(ligne, saisie.TypePresence(), saisie.DateReleve(), saisie.HeureSortie(),
                   saisie.HeureEntree(), saisie.CodeImplantation());
  AjouterBon(*import_.Bons().back());
  Anomalies.Retirer(ligne);
  CompterCorrection();
  const int corrigee = Recapitulatif.NombreLignes() - 1;
  const QString nom = Recapitulatif.Texte(corrigee, Nom) % u' ' % Recapitulatif.Texte(corrigee, Prenom);
  if (EtatDe(*import_.Bons().back()) == CorrigeSansTarif)
    Signaler(TNiveauEtat::Alerte, QString(u"Relevé corrigé, mais aucun tarif ne le couvre : " % nom));
  else
    Signaler(TNiveauEtat::Succes, QString(u"Relevé corrigé : " % nom));
  Annoncer();
}

// After a step 2 the lists of the import no longer hold what was stored.
void TfrmPresences::CompterCorrection() {
  if (!compteurs_.AJour) return;
  if (!memorise_) return CompterReleves();
  ++compteurs_.lblRecap;
  --compteurs_.lblAnomalie;
}

// Step 2.

bool TfrmPresences::AccepteHorsAnnee() const {
  const int hors = import_.NombreHorsAnnee();
  return hors == 0 || contexte_.Dialogues().ConfirmerGrave(
                          Compter(hors, u"relevé est daté"_s, u"relevés sont datés"_s) %
                          u" hors de l'année affichée, %1 - %2, où rien ne s'en verra.\nMémoriser "
                          "quand même ?"_s.arg(Globals.Eleves->AnneeScolaire)
                              .arg(Globals.Eleves->AnneeScolaire + 1));
}

void TfrmPresences::btnEtape2Click() {
  if (!Etape2Active() || !AccepteHorsAnnee()) return;
  const TAttente attente(contexte_.Dialogues());
  OublierObjets(Recapitulatif);
  import_.Etape2();
  const bool premiere = !std::exchange(memorise_, true);
  if (premiere && source_ == TSource::Scanner) EffacerDuLecteur();
  if (premiere && source_ == TSource::Ftp) Site(&TfrmPresences::ArchiverEtEffacer);
  FermerLien();
  Signaler(TNiveauEtat::Succes, TexteBilan());
  Annoncer();
}

// The records go to the school's presences, which drop those that are there already.
void TfrmPresences::OublierObjets(TGrille& grille) {
  const TGrille::TLot lot(grille);
  for (int ligne = 0; ligne < grille.NombreLignes(); ++ligne) grille.ChangerObjet(ligne, nullptr);
}

// Only the file that was copied must be there; the other one goes too when there is one.
void TfrmPresences::EffacerDuLecteur() {
  for (const QString& distant : kFichiersLecteur) {
    try {
      ::EffacerDuLecteur(*contexte_.Lecteur, distant);
    } catch (const Exception& e) {
      if (distant == copie_) DireErreur(e);
    }
  }
}

void TfrmPresences::FermerLien() {
  site_.Deconnecter();
  if (!lienOuvert_) return;
  lienOuvert_ = false;
  contexte_.Lecteur->CeRapiUnInit();
}

void TfrmPresences::DireErreur(const Exception& erreur) {
  contexte_.Dialogues().Message(u"L'erreur suivante s'est produite : " % erreur.Message);
}

void TfrmPresences::Signaler(TNiveauEtat niveau, const QString& texte) {
  contexte_.Principal.Etat(niveau, texte);
}
