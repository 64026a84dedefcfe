#include "application/controleur.h"

#include "core/exceptions.h"
#include "core/mois.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kDureeBulles = 5000;
constexpr int kMoisPreparation = 7;  // from July on a school prepares the year that begins

// Settings of the workstation. A transfer puts it on-line for a while: kTransfert says that it is to be
// off-line again, wherever the transfer ends.
const QString kHorsLigne = u"Offline"_s;
const QString kTransfert = u"Transfert"_s;
const QString kTablette = u"Tablette"_s;

TExtraits& LireAuBesoin(std::unique_ptr<TExtraits>& extraits, TDataModule1& base, int annee) {
  if (!extraits) extraits = std::make_unique<TExtraits>(base, annee);
  return *extraits;
}

/// The tree's selection changes nothing for as long as it lives.
class TSuspension {
 public:
  explicit TSuspension(IFenetrePrincipale& fenetre) : fenetre_(fenetre) { fenetre_.SuspendreArbre(true); }
  ~TSuspension() { fenetre_.SuspendreArbre(false); }
  TSuspension(const TSuspension&) = delete;
  TSuspension& operator=(const TSuspension&) = delete;

 private:
  IFenetrePrincipale& fenetre_;
};

}  // namespace

TControleur::TControleur(TDataModule1& base, TReglagesPoste& reglages, IFenetrePrincipale& fenetre,
                         const THorloge& horloge)
    : base_(base), reglages_(reglages), fenetre_(fenetre), horloge_(horloge) {}

void TControleur::FormShow() {
  Globals.Montrer(nullptr);  // it follows the settings
  Globals.Parametres.reset();
  Globals.ModeHorsLigne = DemarreHorsLigne();
  Globals.DatePhoto = reglages_.Lire(TRacine::Utilisateur, u"Photo"_s);
  if (Globals.ModeHorsLigne) {
    PagesTablette();
    fenetre_.OuvrirReservationTablette();
    return;
  }
  if (!Demarrer() || !base_.EstConnecte()) return;
  if (Globals.ModeProfesseur)
    PagesProfesseur();
  else if (!Globals.ModeTablette)
    fenetre_.ActiverPage(TPage::PgEleve);
  if (Globals.ModeTablette) fenetre_.OuvrirReservationTablette();
}

// False ends the program. True does not promise a connection: see Connecter.
bool TControleur::Demarrer() {
  if (!Connecter()) {
    fenetre_.Terminer();
    return false;
  }
  if (base_.EstConnecte()) Preparer(false);
  return true;
}

void TControleur::Preparer(bool pagesTablette) {
  Globals.ModeProfesseur = EstUn(u"Mode"_s);
  Globals.ModeTablette = EstUn(kTablette);
  fenetre_.DureeBulles(kDureeBulles);
  ChargerParametres();
  if (Globals.ModeTablette || pagesTablette)
    PagesTablette();
  else
    PagesBureau();
  ChargerAnnee(Globals.AnneeScolaire);
}

bool TControleur::EstUn(const QString& nom) const {
  return reglages_.Lire(TRacine::Utilisateur, nom) == u"1";
}

bool TControleur::DemarreHorsLigne() {
  if (EstUn(kTransfert)) {
    EcrireReglage(kHorsLigne, u"1"_s);
    EcrireReglage(kTransfert, u"0"_s);
    return true;
  }
  return EstUn(kHorsLigne);
}

// The settings stay when the year among them is none: it is mended where they are shown.
void TControleur::ChargerParametres() {
  if (Globals.Parametres && Globals.TarifsGarderies) return;
  if (!Globals.Parametres) Globals.Parametres = std::make_unique<TParametres>(base_);
  Globals.AnneeScolaire = Globals.Parametres->Entier(TParam::AnneeScolaire);
  Globals.TarifsGarderies = std::make_unique<TTarifsGarderies>(base_);
  Globals.DossierTemporaire = ::DossierTemporaire();
}

// The value of an inner attempt is not passed on: only giving up at the first failure ends the
// program; giving up later leaves an empty window, from which the user can still see what is wrong.
bool TControleur::Connecter() {
  try {
    return base_.ConnectToServer();
  } catch (const Exception& e) {
    TReessai reessai;
    reessai.Titre = u"Erreur de connexion au serveur de données"_s;
    reessai.Texte =
        u"Un problème empêche le logiciel de se connecter au serveur de base de donnée nommé : "_s +
        base_.ServerName;
    reessai.Explication =
        u"Veuillez vérifier si :\n"
        "1. Le nom du serveur est correctement orthographié.\n"
        "2. Le serveur est allumé et accessible via le réseau.\n"
        "3. Les paramètres réseau de votre ordinateur sont corrects\n"
        "Actions:"_s;
    reessai.Lien = u"Cliquez ici afin de modifier le nom du serveur de données."_s;
    reessai.SurLien = [this] { base_.AskServerName(); };
    if (base_.EstLocal()) reessai.SurFichier = [this] { return base_.AskDataFile(); };
    reessai.Cause = e.Message;
    if (!Dialogues().Reessayer(reessai)) return false;
    Dialogues().TraiterEvenements();
    if (!Connecter() && base_.ServerName.trimmed().isEmpty()) return false;
    return true;
  }
}

void TControleur::ChargerAnnee(int annee) {
  if (!Globals.Parametres || !base_.EstConnecte())
    throw Exception(u"Le programme n'est pas relié à ses données : fermez-le et recommencez."_s);
  const TSuspension suspension(fenetre_);
  const TAttente attente(Dialogues());
  auto donnees = ChargerDonneesAnnee(base_, annee, *Globals.Parametres, *Globals.TarifsGarderies);
  auto groupes = std::make_unique<TGroupesFrais>(base_);
  Globals.Parametres->RelireRegles();
  Globals.Montrer(std::move(donnees));
  Globals.GroupesFrais = std::move(groupes);
  fenetre_.IntitulerAnnee(u"Année scolaire " % AnneeEnTexte(annee));
  fenetre_.ConstruireArbre();
  fenetre_.CocherAnnee(annee);
}

void TControleur::ChoisirAnnee(int annee) {
  ChargerAnnee(annee);
  fenetre_.FermerEcran();
}

TExtraits& TControleur::Extraits() {
  return LireAuBesoin(Globals.Extraits, base_, Globals.Eleves->AnneeScolaire);
}

TExtraits& TControleur::ExtraitsPrecedents() {
  return LireAuBesoin(Globals.ExtraitsPrecedents, base_, Globals.Eleves->AnneeScolaire - 1);
}

void TControleur::FormClose() {
  fenetre_.QuitterChamp();
  Globals.Liberer();
}

int TControleur::AnneeProposee() const {
  const TJour jour = DecodeDate(horloge_.Aujourdhui());
  return jour.Mois >= kMoisPreparation ? jour.Annee : jour.Annee - 1;
}

bool TControleur::EleveInscrit() const {
  return TCurseur(base_, u"SELECT FIRST 1 ELEVE_ID FROM ELEVES_CLASSES"_s).Suivant();
}

void TControleur::CommencerAnnee(int annee) {
  TParametres& parametres = *Globals.Parametres;
  parametres.SetParametre(TParam::AnneeScolaire, QString::number(annee));
  try {
    parametres.Save();
  } catch (...) {
    parametres.Remettre();
    throw;
  }
  Globals.AnneeScolaire = annee;
  ChargerAnnee(annee);
}

bool TControleur::EcrireReglage(const QString& nom, const QString& valeur) {
  const bool ecrit = reglages_.Ecrire(TRacine::Utilisateur, nom, valeur);
  if (!ecrit)
    Dialogues().Message(u"Le réglage « %1 » de cet ordinateur n'a pas pu être enregistré."_s.arg(nom));
  return ecrit;
}

bool TControleur::ActiverModeProfesseur() { return EcrireReglage(u"Mode"_s, u"1"_s); }

void TControleur::ExigerReglage(const QString& nom, const QString& valeur) {
  if (!reglages_.Ecrire(TRacine::Utilisateur, nom, valeur))
    throw Exception(u"Le réglage « %1 » de cet ordinateur n'a pas pu être enregistré."_s.arg(nom));
}

// A lazy reading would ask a closed connection, and a new one brings parameters and year as they are then.
void TControleur::OublierDonnees() {
  const TSuspension suspension(fenetre_);
  Globals.Liberer();
  fenetre_.ConstruireArbre();
}

void TControleur::PasserHorsLigne() {
  EcrireReglage(kHorsLigne, u"1"_s);
  EcrireReglage(kTransfert, u"0"_s);
  OublierDonnees();
  base_.Deconnecter();
  Globals.ModeHorsLigne = true;
  fenetre_.IntitulerAnnee({});
  PagesTablette();
}

bool TControleur::PasserEnLigne() {
  ExigerReglage(kTransfert, u"1"_s);
  ExigerReglage(kHorsLigne, u"0"_s);
  EcrireReglage(kTablette, u"1"_s);  // stopped half-way it is a tablet still, and no office
  Globals.ModeHorsLigne = false;
  Globals.DatePhoto = reglages_.Lire(TRacine::Utilisateur, u"Photo"_s);
  OublierDonnees();
  if (!Connecter() || !base_.EstConnecte()) return false;
  Preparer(true);
  return true;
}

void TControleur::AbandonnerTransfert() { EcrireReglage(kTransfert, u"0"_s); }

void TControleur::MemoriserDatePhoto() {
  if (!Globals.Parametres) return;
  Globals.DatePhoto = Globals.Parametres->GetParametre(TParam::DatePhoto);
  EcrireReglage(u"Photo"_s, Globals.DatePhoto);
}

void TControleur::PagesTablette() {
  for (const TPage page : {TPage::PgEleve, TPage::PgParametre, TPage::pgRepas, TPage::pgRepasNew})
    fenetre_.MontrerPage(page, false);
  fenetre_.MontrerArbre(false);
  fenetre_.MontrerPage(TPage::pgRepas3, true);
  fenetre_.ActiverPage(TPage::pgRepas3);
}

void TControleur::PagesBureau() {
  const QString repas = Globals.Parametres->GetParametre(TParam::ModuleRepas);
  fenetre_.MontrerPage(TPage::pgRepas, !repas.isEmpty() && repas != u"0");
  fenetre_.MontrerPage(TPage::pgRepas3, false);
}

void TControleur::PagesProfesseur() {
  for (const TPage page : {TPage::PgEleve, TPage::PgParametre, TPage::pgRepasNew})
    fenetre_.MontrerPage(page, false);
  fenetre_.MontrerPage(TPage::pgRepas, true);
  fenetre_.ActiverPage(TPage::pgRepas);
  for (const TCommandePage commande :
       {TCommandePage::btnTicket, TCommandePage::btnCuisine, TCommandePage::btnComptabilite})
    fenetre_.MontrerCommande(commande, false);
  fenetre_.OuvrirReservation();
}
