#include "screens/principal/frm_main.h"

#include <QFileInfo>
#include <algorithm>

#include "core/accord.h"
#include "core/mois.h"
#include "screens/parametres/frm_mon_ecole.h"
#include "screens/principal/arbre_eleves.h"
#include "screens/pupils/frm_signaletique.h"

using namespace Qt::StringLiterals;

namespace {

const QString kDernierEleve = u"DernierEleve"_s;
const QString kDernierEcran = u"DernierEcran"_s;
const QString kTravailEnCours = u"Travail en cours"_s;
const QString kFermetureRefusee =
    u"Un travail est en cours : la fenêtre pourra être fermée quand il sera terminé."_s;
constexpr int kPremiereAnnee = 2015;
constexpr int kDerniereAnneeFixe = 2018;

template <class T>
bool Contient(const std::vector<T>& liste, T valeur) {
  return std::ranges::find(liste, valeur) != liste.end();
}

const TOutilPrincipal& OutilDe(TOutil outil) {
  return *std::ranges::find(OutilsPrincipaux(), outil, &TOutilPrincipal::Outil);
}

TCodeMessage CodeDe(TOutil outil) { return OutilDe(outil).Code; }

/// Two pages have a command of one name.
QString NomDePlace(const TCommandePrincipale& commande) {
  return QString::number(static_cast<int>(commande.Page)) % u' ' % commande.Nom();
}

QString CombienEleves(int annee, int nombre) {
  if (nombre == 0) return u"Aucun élève en " % AnneeEnTexte(annee);
  return u"Année " % AnneeEnTexte(annee) % u" : " % CompterEleves(nombre);
}

}  // namespace

TFrmMain::TFrmMain(TDataModule1& base, TReglagesPoste& reglages, const THorloge& horloge,
                   IFenetreModale& modale, IApercu& apercu)
    : Controleur(base, reglages, *this, horloge),
      Contexte{Controleur, modale, apercu, *this, nullptr},
      reglages_(reglages) {
  liens_ += Arbre.SurSelection.Suivre([this] {
    SurSelection();
    tvEleveChange();
  });
  liens_ += Panneau.SurEtape.Suivre([this](TForm& form, TEtapeForm etape) {
    if (etape == TEtapeForm::Affichee) {
      accueilDevant_ = false;
      RenommerSites(Arbre);  // the screen that names them may stand behind, and is not closed yet
      ecran_ = form.SurCommandes.Suivre([this] { SurOutils(); });
    }
    SurEtape(form, etape);
    Annoncer();
  });
}

TFrmMain::~TFrmMain() { Panneau.Vider(); }

void TFrmMain::FormShow() {
  try {
    Controleur.FormShow();
  } catch (...) {  // what it is about is shown to the user by who catches it
    Etat(
        TNiveauEtat::Erreur,
        PeutChoisirAnnee()
            ? u"Aucune année scolaire n'a pu être chargée : corrigez le paramètre en cause, puis choisissez l'année."_s
            : u"Aucune année scolaire n'a pu être chargée : fermez le programme et recommencez."_s);
    Annoncer();
    throw;
  }
  if (EstRelie()) {
    RouvrirPlace();
    Etat(TNiveauEtat::Neutre, CombienEleves(anneeCochee_, NombreEleves()));
  } else if (!Globals.ModeHorsLigne)
    Etat(TNiveauEtat::Erreur,
         u"Pas de connexion au serveur de données : fermez le programme et recommencez."_s);
  Annoncer();
}

// Where the hand was when the program was closed: the pupil first, whom the screen then takes up.
void TFrmMain::RouvrirPlace() {
  if (Globals.ModeProfesseur || Globals.ModeTablette || SansEleve()) return;
  const TReglagesPoste& reglages = Controleur.Reglages();
  Rouvrir(reglages.Lire(TRacine::Utilisateur, kDernierEleve).toInt(),
          reglages.Lire(TRacine::Utilisateur, kDernierEcran));
}

void TFrmMain::Rouvrir(int eleve, const QString& place) {
  if (TEleve* dernier = Globals.Eleves->TrouverParId(eleve)) ChoisirEleve(*dernier);
  for (const TCommandePrincipale& commande : Commandes)
    if (!place.isEmpty() && NomDePlace(commande) == place && PageVisible(commande.Page) &&
        CommandeActive(commande))
      return Executer(commande.Gestionnaire);
}

void TFrmMain::MemoriserPlace() {
  if (!EstRelie()) return;
  const auto [eleve, place] = Place();
  reglages_.Ecrire(TRacine::Utilisateur, kDernierEleve, eleve > 0 ? QString::number(eleve) : QString());
  reglages_.Ecrire(TRacine::Utilisateur, kDernierEcran, place);
}

// The pupil, 0 for none, and the open screen.
std::pair<int, QString> TFrmMain::Place() const {
  const TCommandePrincipale* ouverte = CommandeOuverte();
  return {Globals.EleveCourant != nullptr ? Globals.EleveCourant->Id : 0,
          ouverte != nullptr ? NomDePlace(*ouverte) : QString()};
}

void TFrmMain::FormClose() {
  QuitterChamp();
  MemoriserPlace();
  Panneau.Vider();
  Arbre.Vider();
  Arbre.Annoncer();
  Controleur.FormClose();
}

bool TFrmMain::FormCloseQuery() {
  if (!enTravail_) {
    QuitterChamp();
    return EcranAccepte();
  }
  Etat(TNiveauEtat::Alerte, kFermetureRefusee);
  return false;
}

// A screen with something unsaved asks, once; also one that stands behind another.
bool TFrmMain::EcranAccepte() {
  if (Panneau.AccepteDeFermer()) return true;
  if (const TCommandePrincipale* ouverte = CommandeOuverte()) {  // it may have come to the front
    page_ = ouverte->Page;
    outils_ = ouverte->Outils.value_or(outils_);
  }
  Annoncer();
  return false;
}

// Bar.

bool TFrmMain::PageVisible(TPage page) const { return !Contient(pagesCachees_, page); }

TPage TFrmMain::PageActive() const {
  if (PageVisible(page_)) return page_;
  const auto pages = Pages();
  return pages.empty() ? page_ : pages.front().Page;
}

std::vector<TPagePrincipale> TFrmMain::Pages() const {
  std::vector<TPagePrincipale> pages;
  for (const TPagePrincipale& page : PagesPrincipales())
    if (PageVisible(page.Page)) pages.push_back(page);
  if (PageVisible(TPage::pgRepasNew))  // two pages of one name would be one too many
    for (TPagePrincipale& page : pages)
      if (page.Page == TPage::pgRepas) page.Titre = u"Repas (tickets)"_s;
  return pages;
}

void TFrmMain::PageClick(TPage page) {
  accueilDevant_ = page == TPage::PgEleve && ResteAFaire();
  ActiverPage(page);
}

const TCommandePrincipale& TFrmMain::Commande(TGestionnaire gestionnaire) const {
  return *std::ranges::find(Commandes, gestionnaire, &TCommandePrincipale::Gestionnaire);
}

bool TFrmMain::CommandeVisible(const TCommandePrincipale& commande) const {
  return commande.Page == PageActive() && !Contient(commandesCachees_, commande.Gestionnaire);
}

QString TFrmMain::RaisonInactive(const TCommandePrincipale& commande) const {
  if (enTravail_) return u"Un travail est en cours"_s;
  if (commande.Gestionnaire == TGestionnaire::AdvGlowButton4Click) return {};
  if (!commande.Ecran) return u"Pas encore disponible dans cette version"_s;
  const bool horsLigne = Globals.ModeHorsLigne && commande.Page == TPage::pgRepas3;
  const bool reglages = commande.SansAnnee && PeutChoisirAnnee();
  if (!EstRelie() && !horsLigne && !reglages)
    return Controleur.Base().EstConnecte() ? u"Aucune année scolaire n'est chargée"_s
                                           : u"Pas de connexion au serveur de données"_s;
  return {};
}

bool TFrmMain::CommandeActive(const TCommandePrincipale& commande) const {
  return RaisonInactive(commande).isEmpty();
}

const TCommandePrincipale* TFrmMain::CommandeOuverte() const {
  const TForm* form = Panneau.Courante();
  if (form == nullptr || accueilDevant_) return nullptr;
  const auto ouverte = std::ranges::find_if(Commandes, [&](const auto& commande) {
    return commande.Ecran && commande.Ecran->Classe == form->Classe();
  });
  return ouverte == Commandes.end() ? nullptr : &*ouverte;
}

void TFrmMain::Executer(TGestionnaire gestionnaire) {
  const TCommandePrincipale& commande = Commande(gestionnaire);
  const QString raison = RaisonInactive(commande);
  if (!raison.isEmpty()) {
    Etat(TNiveauEtat::Alerte, commande.Nom() % u" : " % raison);
    return;
  }
  if (gestionnaire == TGestionnaire::AdvGlowButton4Click) {
    if (Contexte.Dialogues().Confirmer(u"Souhaitez-vous quitter Calpenne ?"_s)) Terminer();
    return;
  }
  const TEtatPrincipal avant = etat_;
  OublierEcran();  // what leaving the field says now stays
  QuitterChamp();
  const TEcran& ecran = *commande.Ecran;
  TForm* form = Panneau.Ouvrir(
      ecran.Classe, [&] { return ecran.Creer(Contexte); }, {}, ecran.Remplacement);
  if (form == nullptr) {  // the screen stays, and so does what it said
    if (etat_.Texte.isEmpty()) Etat(avant.Niveau, avant.Texte);
    return;
  }
  page_ = commande.Page;
  outils_ = commande.Outils.value_or(outils_);
  if (commande.PrendEleve) ::Diffuser(TCodeMessage::EleveChange, *form);
  Annoncer();
}

void TFrmMain::AllerAEcole(const QString& champ) {
  Executer(TGestionnaire::AdvGlowButton3Click);
  if (const auto* form = dynamic_cast<TFrmMonEcole*>(Panneau.Courante()))
    form->Ecole.SurFoyer(form->Ecole.Indice(champ));
}

void TFrmMain::AllerAEleve(int annee, int eleveId, const QString& champ) {
  ensuite_ = [this, annee, eleveId, champ] {
    if (!ChoisirAnnee(annee)) return;
    TEleve* eleve = Globals.Eleves->TrouverParId(eleveId);
    if (eleve == nullptr)
      return EtatApresEcran(TNiveauEtat::Alerte, u"Cet élève n'est plus inscrit en " % AnneeEnTexte(annee));
    ChoisirEleve(*eleve);
    Executer(TGestionnaire::AdvGlowButton2Click);
    if (auto* fiche = dynamic_cast<TFrmSignaletique*>(Panneau.Courante())) fiche->AllerAuChamp(*eleve, champ);
    EtatApresEcran(TNiveauEtat::Neutre,
                   u"Année " % AnneeEnTexte(annee) % u", celle de " % eleve->NomComplet());
  };
}

void TFrmMain::AllerAuTransfert() { Executer(TGestionnaire::btnTransfertRepasClick); }

bool TFrmMain::OutilVisible(TOutil outil) const { return (outils_ & static_cast<int>(outil)) != 0; }

bool TFrmMain::OutilActif(TOutil outil) const {
  return OutilVisible(outil) && OutilDe(outil).Raison.isEmpty() && !enTravail_ &&
         CommandeOuverte() != nullptr && Panneau.Courante()->Accepte(CodeDe(outil));
}

bool TFrmMain::OutilEmpeche(TOutil outil) const {
  return OutilVisible(outil) && !OutilDe(outil).Raison.isEmpty() && !enTravail_;
}

void TFrmMain::OutilClick(TOutil outil) {
  if (OutilEmpeche(outil))
    return Etat(TNiveauEtat::Alerte, OutilDe(outil).Libelle % u" : " % OutilDe(outil).Raison);
  if (!OutilActif(outil)) return;
  QuitterChamp();
  ensuite_ = nullptr;  // of a command that failed
  Diffuser(CodeDe(outil));
  if (const auto ensuite = std::exchange(ensuite_, nullptr)) ensuite();
}

void TFrmMain::Diffuser(TCodeMessage code) {
  if (TForm* form = Panneau.Courante()) ::Diffuser(code, *form);
}

// Years.

std::vector<int> TFrmMain::Annees() const {
  std::vector<int> annees;
  const int derniere = std::max(kDerniereAnneeFixe, Globals.AnneeScolaire + 1);
  for (int annee = kPremiereAnnee; annee <= derniere; ++annee) annees.push_back(annee);
  return annees;
}

bool TFrmMain::PeutChoisirAnnee() const {
  return EstRelie() || (EstBureau() && Globals.Parametres && Controleur.Base().EstConnecte());
}

bool TFrmMain::ChoisirAnnee(int annee) {
  if (enTravail_ || !PeutChoisirAnnee()) return false;
  QuitterChamp();
  if (!EcranAccepte()) return false;
  Controleur.ChargerParametres();
  Controleur.ChoisirAnnee(annee);
  return true;
}

// Pupil, screen and month stay where they were.
void TFrmMain::RechargerAnnee() {
  if (!EstRelie()) return;
  const auto [eleve, place] = Place();
  const auto fiche = [this] { return dynamic_cast<TFrmSignaletique*>(Panneau.Courante()); };
  const int mois = fiche() != nullptr ? fiche()->IndiceMois() : 0;
  if (!ChoisirAnnee(anneeCochee_)) return;
  Rouvrir(eleve, place);
  if (fiche() != nullptr) fiche()->cmbMoisChange(mois);
  EtatApresEcran(TNiveauEtat::Succes, u"Données relues · " % CombienEleves(anneeCochee_, NombreEleves()));
}

void TFrmMain::mnuAnneeClick(int annee) {
  if (!ChoisirAnnee(annee)) return;
  EtatApresEcran(TNiveauEtat::Neutre, CombienEleves(annee, NombreEleves()));
}

// Messages.

bool TFrmMain::RecevoirMessage(const TMessage& message) {
  TNoeud* noeud = Arbre.TrouverObjet(Globals.EleveCourant);
  switch (message.Code) {
    case TCodeMessage::EleveRadie:
      if (noeud != nullptr) {
        MarquerRadie(*noeud, *Globals.EleveCourant);
        Arbre.Annoncer();
      }
      Annoncer();  // they are counted
      return true;
    case TCodeMessage::EleveChange:
      if (noeud != nullptr && noeud == Arbre.Selection())
        SurSelection();  // it may stand in a class that the user has shut
      else if (noeud != nullptr)
        Arbre.Selectionner(noeud);
      return true;
    case TCodeMessage::ImplantationsChange:
      RenommerSites(Arbre);
      return true;
    default:
      return false;
  }
}

void TFrmMain::Etat(TNiveauEtat niveau, const QString& texte) {
  etat_ = {niveau, texte};
  SurEtat();
}

// What a screen did, refused or told by the way is no word about the next one. A failure stays until
// something else is said.
void TFrmMain::OublierEcran() {
  if (etat_.Niveau != TNiveauEtat::Erreur) Etat(TNiveauEtat::Neutre, {});
}

void TFrmMain::EtatApresEcran(TNiveauEtat niveau, const QString& fait) {
  enSuspens_.isEmpty() ? Etat(niveau, fait) : Etat(TNiveauEtat::Alerte, fait % u" · " % enSuspens_);
}

// State.

bool TFrmMain::EstRelie() const { return Globals.Eleves != nullptr && Controleur.Base().EstConnecte(); }

QString TFrmMain::Serveur() const {
  const TDataModule1& base = Controleur.Base();
  if (!base.EstConnecte()) return {};
  const bool fichier = base.EstLocal() && base.ServerName.trimmed().endsWith(u".fdb", Qt::CaseInsensitive);
  return fichier ? QFileInfo(base.FichierLocal()).fileName() : base.ServerName.trimmed();
}

QString TFrmMain::TexteServeur() const {
  const QString serveur = Serveur();
  if (!serveur.isEmpty()) return u"Serveur : " % serveur;
  return Globals.ModeHorsLigne ? u"Hors ligne"_s : u"Non connecté"_s;
}

QString TFrmMain::TexteTravail() const {
  const TCommandePrincipale* ouverte = CommandeOuverte();
  return ouverte == nullptr ? kTravailEnCours : QString(kTravailEnCours % u" : " % ouverte->Nom());
}

// The numbers stand on the sheet of the progress; the status bar, which is read aloud, says it once.
void TFrmMain::Travail(int total) {
  const bool enTravail = total > 0;
  if (enTravail == enTravail_) return;
  enTravail_ = enTravail;
  if (enTravail)
    Etat(TNiveauEtat::Neutre, TexteTravail());
  else if (etat_.Texte.startsWith(kTravailEnCours) || etat_.Texte == kFermetureRefusee)
    Etat(TNiveauEtat::Neutre, {});
  Annoncer();
}
