#include "demo/chargement.h"

#include <QDir>

#include "core/calendrier_scolaire.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/fichiers.h"
#include "core/numero_national.h"
#include "demo/calendrier.h"
#include "demo/chargement_repas.h"
#include "demo/fichiers.h"
#include "demo/portraits.h"
#include "demo/releve_banque.h"
#include "demo/tirage.h"
#include "demo/virements.h"
#include "payments/communication_structuree.h"
#include "services/frais_eleve.h"
#include "workflows/import_presences.h"
#include "workflows/import_registre.h"
#include "workflows/import_virements.h"

using namespace Qt::StringLiterals;

namespace {

/// The movements from this day on are left in a statement file, for the reader to import.
const QDate kDebutReleve(2017, 6, 1);
const QString kDatePhotos = u"14/09/2016 10:30:00"_s;
/// The flow of random numbers of the portraits.
constexpr std::uint64_t kFluxPhotos = 67;

const TFamilleExemple& Famille(const TEcoleExemple& ecole, int eleve) {
  return ecole.Familles[static_cast<std::size_t>(ecole.Eleves[static_cast<std::size_t>(eleve)].Famille)];
}

std::unique_ptr<TFraisEleve> Paiement(const QString& libelle, Currency montant, int mois, int typeFamille) {
  auto ligne = std::make_unique<TFraisEleve>();
  ligne->Remarque = libelle;
  ligne->MontantVerse = montant;
  ligne->Mois = mois;
  ligne->TypeFamilleFrais = static_cast<TTypeFamilleFrais>(typeFamille);
  return ligne;
}

QString NumeroNational(const QDate& naissance, int serie) {
  const QString debut = naissance.toString(u"yyMMdd"_s) % u"%1"_s.arg(serie, 3, 10, QChar(u'0'));
  return debut % ControleNumeroNational(debut, naissance.year() >= 2000);
}

/// The office has asked most families for theirs: those of the child and of its adults.
void NoterNumeros(TEleve& eleve, const TEleveExemple& exemple) {
  const int famille = exemple.Famille;
  if (famille % 12 == 5) return;
  const QDate adulte(1972 + famille % 22, 1 + famille % 12, 1 + famille % 28);
  const int serie = 1 + 2 * (famille * 4 + exemple.Rang) % 990;
  eleve.NumNational = NumeroNational(exemple.DateNaissance, serie + (exemple.Fille ? 1 : 0));
  eleve.NumNationalResponsable = NumeroNational(adulte, serie);
  if (!eleve.NomResponsable2.isEmpty())
    eleve.NumNationalResponsable2 = NumeroNational(adulte.addDays(-700), serie + 1);
}

}  // namespace

TChargement::TChargement(TControleur& controleur, const TEcoleExemple& ecole, QString dossier)
    : controleur_(controleur), ecole_(ecole), dossier_(std::move(dossier)) {}

TBilanChargement TChargement::Tout() {
  controleur_.ChargerParametres();
  // Nothing that waits in the machine's temporary folder is to be archived by the imports.
  Globals.DossierTemporaire = dossier_;
  if (!QDir().mkpath(dossier_ % u"/presences"))
    throw Exception(u"Impossible de créer le dossier " % dossier_);
  if (TEleves(controleur_.Base(), 0).Count() > 0)
    throw Exception(u"La base contient déjà des élèves : l'école d'exemple veut une base vide."_s);
  Parametres();
  controleur_.ChargerAnnee(ecole_.Annee);
  Registre();
  Sites();
  Fiches();
  Personnel();
  Recharger();
  Photos();
  Activites();
  Frais();
  Marques();
  Presences();
  Recharger();
  MoisPayes();
  Virements();
  ChargerRepas(controleur_.Dialogues(), dossier_);
  bilan_.Eleves = static_cast<int>(ecole_.Eleves.size());
  bilan_.Presences = Globals.Presences->Count();
  return bilan_;
}

TBilanChargement TChargement::Automne() {
  Etape(u"Clôture de l'année, et automne %1"_s.arg(ecole_.Annee));
  TClotureAnnee(controleur_).Cloturer();
  const QString registre = dossier_ % u"/registre-%1.csv"_s.arg(ecole_.Annee);
  EcrireFichier(registre, TexteRegistre(ecole_, TDisposition::Premiere));
  Inscrire(registre);
  Reengager();
  Recharger();
  Frais();
  Marques();
  Presences();
  Recharger();
  ReleveAutomne();
  Recharger();
  DirePayeurs();
  bilan_.Eleves = static_cast<int>(ecole_.Eleves.size());
  bilan_.Presences = Globals.Presences->Count();
  return bilan_;
}

void TChargement::Etape(const QString& titre) { controleur_.Dialogues().Information(titre); }

/// The year afresh, and the pupils by their index in the sample.
void TChargement::Recharger() {
  controleur_.ChargerAnnee(ecole_.Annee);
  eleves_.clear();
  for (const TEleveExemple& eleve : ecole_.Eleves) {
    TEleve* trouve = Globals.Eleves->TrouverParMatricule(eleve.Matricule);
    if (trouve == nullptr) throw Exception(u"L'élève %1 n'a pas été importé."_s.arg(eleve.Matricule));
    eleves_.push_back(trouve);
  }
}

void TChargement::Parametres() {
  Etape(u"Paramètres et tarifs"_s);
  for (const TParametreExemple& parametre : ecole_.Parametres)
    Globals.Parametres->SetParametre(parametre.Param, parametre.Valeur);
  Globals.Parametres->Save();
  for (const TTarifExemple& t : ecole_.Tarifs) {
    auto tarif = std::make_unique<TTarifGarderie>();
    tarif->TypeFamille = static_cast<TTypeFamille>(t.Famille);
    tarif->TypeJour = static_cast<TTypeJour>(t.Jour);
    tarif->TypeForfait = static_cast<TTypeForfait>(t.Forfait);
    tarif->TypeScan = static_cast<TTypeScan>(t.Scan);
    tarif->HeureDebutScan = StrToTime(t.Debut);
    tarif->HeureFinScan = StrToTime(t.Fin);
    tarif->Cout = t.Cout;
    tarif->Cout2eEnfant = t.Cout2eEnfant;
    Globals.TarifsGarderies->Add(std::move(tarif));
  }
  Globals.TarifsGarderies->Save();
}

void TChargement::Registre() {
  const QString chemin = dossier_ % u"/registre-disposition-1.csv";
  EcrireFichier(chemin, TexteRegistre(ecole_, TDisposition::Premiere));
  EcrireFichier(dossier_ % u"/registre-disposition-2.csv", TexteRegistre(ecole_, TDisposition::Seconde));
  Inscrire(chemin);
}

void TChargement::Inscrire(const QString& registre) {
  Etape(u"Importation du registre : %1 élèves"_s.arg(ecole_.Eleves.size()));
  TImportRegistre import(controleur_);
  if (!import.Etape1(registre)) throw Exception(u"Le registre écrit n'est pas accepté."_s);
  import.Etape2();
}

/// The staff goes on in the new year.
void TChargement::Reengager() {
  const TEleves tous(controleur_.Base(), 0);
  for (const TProfesseurExemple& exemple : ecole_.Professeurs)
    if (const TEleve* professeur = tous.TrouverParMatricule(exemple.Matricule))
      Globals.Eleves->AddClasseEleve(professeur->Id, u"PROFESSEURS"_s, ecole_.Annee,
                                     ecole_.Sites[static_cast<std::size_t>(exemple.Site)].Code, {});
}

/// The import has made the sites from their codes; the office gives them their names.
void TChargement::Sites() {
  TImplantations& sites = *Globals.Eleves->Implantations;
  for (const TSiteExemple& exemple : ecole_.Sites) {
    TImplantation* site = sites.TrouverParCode(exemple.Code);
    if (site == nullptr) throw Exception(u"Le site %1 n'a pas été créé."_s.arg(exemple.Code));
    site->LibelleCourt = exemple.LibelleCourt;
    site->LibelleLong = exemple.LibelleLong;
    site->Adresse = exemple.Adresse;
    site->CodePostal = exemple.CodePostal;
    site->Localite = exemple.Localite;
    site->Telephone = exemple.Telephone;
    site->Responsable = exemple.Responsable;
    site->ResponsablePrenom = exemple.ResponsablePrenom;
    sites.AddImplantation(*site);
  }
  sites.Save();
}

/// What the office notes on the pupils' records by hand.
void TChargement::Fiches() {
  Recharger();
  for (std::size_t e = 0; e < ecole_.Eleves.size(); ++e) {
    const TEleveExemple& exemple = ecole_.Eleves[e];
    const TFamilleExemple& famille = Famille(ecole_, static_cast<int>(e));
    TEleve& eleve = Eleve(static_cast<int>(e));
    eleve.Flg2eEnfant = exemple.Rang == 2;
    eleve.Flg3eEnfant = exemple.Rang > 2;
    eleve.FlgFactureDetail = exemple.FactureDetail;
    eleve.FlgDomiciliation = exemple.Domiciliation;
    eleve.FlgParentSepare = famille.ParentsSepares;
    eleve.FlgImpotRespons2 = exemple.ImpotResponsable2;
    eleve.FlgRadie = exemple.Radie;
    NoterNumeros(eleve, exemple);
    if (exemple.CompteConnu) {
      eleve.NumCompte = famille.Compte;
      eleve.NomTitulaireCompte = famille.Titulaire;
    }
    Globals.Eleves->AddEleve(eleve);
  }
  Globals.Eleves->Save();
}

// The photographer has missed a few.
void TChargement::Photos() {
  Etape(u"Photos des élèves"_s);
  TTirage tirage(ecole_.Graine, kFluxPhotos);
  for (std::size_t e = 0; e < ecole_.Eleves.size(); ++e) {
    const TEleveExemple& exemple = ecole_.Eleves[e];
    const QImage portrait = DessinerPortrait(tirage, exemple.Fille, exemple.Niveau);
    if (tirage.Chance(930)) Eleve(static_cast<int>(e)).SetPhoto(portrait);
  }
  Globals.Parametres->SetParametre(TParam::DatePhoto, kDatePhotos);
  Globals.Parametres->Save();
}

void TChargement::Personnel() {
  Etape(u"Personnel : %1 personnes"_s.arg(ecole_.Professeurs.size()));
  for (const TProfesseurExemple& exemple : ecole_.Professeurs) {
    auto professeur = std::make_unique<TEleve>();
    professeur->Nom = exemple.Nom;
    professeur->Prenom = exemple.Prenom;
    professeur->Matricule = exemple.Matricule;
    const TEleve& ajoute = Globals.Eleves->AddEleve(std::move(professeur));
    Globals.Eleves->Save();
    Globals.Eleves->AddClasseEleve(ajoute.Id, u"PROFESSEURS"_s, ecole_.Annee,
                                   ecole_.Sites[static_cast<std::size_t>(exemple.Site)].Code, {});
  }
}

void TChargement::Activites() {
  Etape(u"Activités, frais, paiements au secrétariat"_s);
  std::vector<const TActivite*> activites;
  for (const TActiviteExemple& exemple : ecole_.Activites) {
    auto activite = std::make_unique<TActivite>();
    activite->Libelle = exemple.Libelle;
    activite->HeureDebut = StrToTime(exemple.Debut);
    activite->HeureFin = StrToTime(exemple.Fin);
    activite->DateDebut = DateDeQt(exemple.Premier);
    activite->DateFin = DateDeQt(exemple.Dernier);
    activites.push_back(&Globals.Activites->Add(std::move(activite)));
  }
  Globals.Activites->Save();
  for (const TInscriptionExemple& exemple : ecole_.Inscriptions) {
    const auto rang = static_cast<std::size_t>(exemple.Activite);
    auto inscription = std::make_unique<TActiviteEleve>();
    inscription->EleveId = Eleve(exemple.Eleve).Id;
    inscription->ActiviteId = activites[rang]->Id;
    inscription->FlgJours[static_cast<std::size_t>(ecole_.Activites[rang].Jour)] = true;
    Globals.ActivitesEleves->Add(std::move(inscription));
  }
  Globals.ActivitesEleves->Save();
}

void TChargement::Frais() {
  std::vector<const TFrais*> catalogue;
  for (const TFraisExemple& exemple : ecole_.Frais) {
    auto frais = std::make_unique<TFrais>();
    frais->Libelle = exemple.Libelle;
    frais->Cout = exemple.Cout;
    frais->Mois = exemple.Mois;
    frais->TypeFrais = TTypeFrais::Eleves;
    frais->FlgPrevisionnel = exemple.Previsionnel;
    frais->FlgNonObligatoire = exemple.NonObligatoire;
    frais->FlgService = exemple.Service;
    catalogue.push_back(&Globals.ListeFrais->Add(std::move(frais)));
  }
  Globals.ListeFrais->Save();
  std::vector<const TGroupeFrais*> groupes;
  for (const QString& libelle : ecole_.Groupes) {
    auto groupe = std::make_unique<TGroupeFrais>();
    groupe->Libelle = libelle;
    groupes.push_back(&Globals.GroupesFrais->Add(std::move(groupe)));
  }
  Globals.GroupesFrais->Save();

  for (const TLigneFraisExemple& exemple : ecole_.LignesFrais) {
    const TFrais& frais = *catalogue[static_cast<std::size_t>(exemple.Frais)];
    auto ligne = std::make_unique<TFraisEleve>();
    ligne->ListeFraisId = frais.Id;
    if (exemple.Paye) ligne->MontantVerse = frais.Cout;
    Eleve(exemple.Eleve).GetAllFrais()->Add(std::move(ligne));
  }
  for (const TPaiementExemple& exemple : ecole_.Paiements) {
    auto ligne = Paiement(exemple.Libelle, exemple.Montant, exemple.Mois, exemple.TypeFamille);
    if (exemple.Groupe >= 0) ligne->GroupeFraisId = groupes[static_cast<std::size_t>(exemple.Groupe)]->Id;
    Eleve(exemple.Eleve).GetAllFrais()->Add(std::move(ligne));
  }
  for (TEleve* eleve : eleves_) eleve->GetAllFrais()->Save();
}

void TChargement::Marques() {
  for (const TMarqueExemple& exemple : ecole_.Marques) {
    auto marque = std::make_unique<TPresenceParticuliere>();
    marque->EleveId = Eleve(exemple.Eleve).Id;
    marque->TypePresence = static_cast<TTypeMarque>(exemple.Genre);
    marque->Mois = exemple.Mois;
    marque->Annee = Globals.Eleves->AnneeDuMois(exemple.Mois);
    Globals.PresencesParticulieres->AjouteMarque(std::move(marque));
  }
  Globals.PresencesParticulieres->Save();
}

void TChargement::Presences() {
  const auto fichiers = FichiersPresences(ecole_);
  Etape(u"Importation des présences : %1 fichiers de scanner"_s.arg(fichiers.size()));
  IDialogues& dialogues = controleur_.Dialogues();
  TImportPresences import(controleur_);
  int fait = 0;
  for (const TFichierPresences& fichier : fichiers) {
    const QString chemin = dossier_ % u"/presences/" % fichier.Nom;
    EcrireFichier(chemin, fichier.Texte);
    import.ImporterFichier(chemin);
    bilan_.LignesPresences += fichier.Lignes;
    bilan_.Anomalies += static_cast<int>(import.Anomalies().size());
    import.Etape2();
    dialogues.Progression(++fait, static_cast<int>(fichiers.size()), fichier.Nom);
  }
  dialogues.Progression(0, 0, {});
}

void TChargement::MoisPayes() {
  for (const TMoisExemple& exemple : ecole_.MoisPayes) {
    const TEleve& eleve = Eleve(exemple.Eleve);
    const Currency montant = eleve.CoutMois(exemple.Mois, ecole_.Annee);
    if (montant <= Currency()) continue;
    auto paiement = std::make_unique<TPaiement>();
    paiement->EleveId = eleve.Id;
    paiement->Mois = exemple.Mois;
    paiement->Annee = ecole_.Annee;
    paiement->Montant = montant;
    Globals.Paiements->MarquePaye(std::move(paiement));
  }
  Globals.Paiements->Save();
}

/// What the families pay by transfer, from the amounts that the program itself works out.
void TChargement::Virements() {
  Etape(u"Virements des familles"_s);
  const auto facture = [this](int index, int mois) {
    const TEleve& eleve = Eleve(index);
    Currency montant = eleve.TotalServices(BornesMois(mois, kAnneeExemple));
    for (const TFraisEleve& ligne : *eleve.GetAllFrais())
      if (ligne.MoisFrais() == mois && !ligne.Previsionnel() && !ligne.EstPaye())
        montant += ligne.MontantFrais();
    return montant;
  };
  std::vector<TMouvementBanque> mouvements;
  for (const TVirementExemple& virement : TirerVirements(ecole_, facture)) {
    TEleve& eleve = Eleve(virement.Eleve);
    if (virement.Date < kDebutReleve) {
      const QString libelle = u"Votre virement du " % virement.Date.toString(u"dd/MM/yyyy"_s);
      eleve.GetAllFrais()->Add(Paiement(libelle, virement.Montant, virement.Mois, 2));
      ++bilan_.Virements;
      continue;
    }
    const TFamilleExemple& famille = Famille(ecole_, virement.Eleve);
    mouvements.push_back(
        {virement.Date, famille.Titulaire, famille.Compte, virement.Montant,
         CommunicationServices(controleur_.Dialogues(), eleve.Id, virement.Mois, kAnneeExemple)});
  }
  for (TEleve* eleve : eleves_) eleve->GetAllFrais()->Save();
  Releve(mouvements);
}

/// What September and October came to, paid in the month that follows by most who have an account.
void TChargement::ReleveAutomne() {
  Etape(u"Virements de l'automne"_s);
  TTirage tirage(ecole_.Graine, 7);
  std::vector<TMouvementBanque> mouvements;
  for (std::size_t e = 0; e < ecole_.Eleves.size(); ++e)
    for (const int mois : {9, 10}) {
      const TEleve& eleve = Eleve(static_cast<int>(e));
      const TFamilleExemple& famille = Famille(ecole_, static_cast<int>(e));
      const Currency montant = eleve.TotalServices(BornesMois(mois, ecole_.Annee));
      const QDate date(ecole_.Annee, mois + 1, tirage.Entier(3, 24));
      if (montant > Currency() && !famille.Compte.isEmpty() && tirage.Chance(850))
        mouvements.push_back({date, famille.Titulaire, famille.Compte, montant,
                              CommunicationServices(controleur_.Dialogues(), eleve.Id, mois, ecole_.Annee)});
    }
  const QString chemin = dossier_ % u"/releve-%1-11.csv"_s.arg(ecole_.Annee);
  EcrireFichier(chemin, TexteReleve(mouvements, u"BE68 5390 0754 7034"_s));
  TImportVirements import(controleur_);
  if (!import.Etape1(chemin)) throw Exception(u"Le relevé écrit n'est pas accepté."_s);
  import.Etape2();
  bilan_.Virements = static_cast<int>(mouvements.size());
}

/// Which of two parents who live apart paid, as the office notes it: by turns.
void TChargement::DirePayeurs() {
  TExtraits& extraits = controleur_.Extraits();
  for (const TEleve* eleve : eleves_) {
    if (!eleve->FlgParentSepare) continue;
    int responsable = 1;
    for (const TFraisEleve& ligne : *eleve->GetAllFrais()) {
      TExtrait* extrait = extraits.TrouverParId(ligne.ExtraitId);
      if (extrait == nullptr) continue;
      extrait->TypeResponsable = responsable;
      responsable = 3 - responsable;
      extraits.Add(*extrait);
    }
  }
  extraits.Save();
}

/// The last statement of the year, in a file of each layout: among the payments that the invoices ask for,
/// words instead of digits, a pupil who is not there, a payment made twice, and what is nobody's payment.
void TChargement::Releve(const std::vector<TMouvementBanque>& mouvements) {
  auto releve = mouvements;
  const std::size_t nombre = releve.size();
  for (std::size_t i = 0; i < nombre; ++i) {
    if (i % 15 == 7) releve[i].Communication = u"Facture de mai " % releve[i].Donneur;
    if (i % 25 == 11)
      releve[i].Communication =
          CommunicationServices(controleur_.Dialogues(), 99900 + static_cast<int>(i % 99), 5, kAnneeExemple);
    if (i % 20 == 3) releve.push_back(mouvements[i]);
  }
  if (releve.empty()) return;
  releve.push_back({QDate(2017, 6, 30), u"Commune de Brumeval"_s, u"BE11 0910 0053 5848"_s,
                    Currency::Euros(1250), u"Subside garderies 2e trimestre"_s});
  releve.push_back({QDate(2017, 6, 30), u"Traiteur Les Saveurs"_s, u"BE43 0682 0467 0001"_s,
                    -Currency::Euros(2318), u"Repas de mai, facture 2017/118"_s});
  for (const auto& [disposition, suffixe] :
       {std::pair(u""_s, u""_s), {u"1"_s, u"-disposition-2"_s}, {u"2"_s, u"-disposition-3"_s}})
    EcrireFichier(dossier_ % u"/releve-2017-06" % suffixe % u".csv",
                  TexteReleve(releve, u"BE68 5390 0754 7034"_s, disposition));
}
