// The main window: what a school does first, and again in a new year.
#include <QRegularExpression>
#include <algorithm>

#include "core/mois.h"
#include "screens/principal/frm_main.h"
#include "services/tarifs_garderies.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kPremiereAnnee = 2000;
// The year in which the school does without the step, among the workstation's settings.
const QString kAnneeSansFrais = u"AnneeSansFrais"_s;
const QString kAnneeSansReglages = u"AnneeSansReglages"_s;

/// A meal costs what the settings say, whatever its tariff: it must not be free by an oversight.
bool RepasSansPrix() {
  if (std::ranges::any_of(Globals.Presences->Regles.PrixRepas,
                          [](Currency prix) { return prix != Currency(); }))
    return false;
  for (const TTarifGarderie& tarif : *Globals.TarifsGarderies)
    if (tarif.TypeFamille == TTypeFamille::Repas) return true;
  return false;
}

/// "2026" or "2026 - 2027"; 0 for a text that is no school year, or one too far away to be meant.
int AnneeDuTexte(const QString& texte, int proposee) {
  static const QRegularExpression kAnnee(u"^\\s*(\\d{4})(?:\\s*-\\s*(\\d{4}))?\\s*$"_s);
  const QRegularExpressionMatch lue = kAnnee.match(texte);
  const int annee = lue.captured(1).toInt();
  const bool suite = lue.captured(2).isEmpty() || lue.captured(2).toInt() == annee + 1;
  return suite && annee >= kPremiereAnnee && annee <= proposee + 1 ? annee : 0;
}

}  // namespace

bool TFrmMain::EstBureau() const { return !Globals.ModeProfesseur && !Globals.ModeTablette; }

bool TFrmMain::SansEleve() const { return EstRelie() && EstBureau() && Globals.Eleves->Count() == 0; }

TVide TFrmMain::ArbreVide() const {
  if (!SansEleve()) return {};
  return {u"Aucun élève en " % AnneeEnTexte(AnneeCochee()),
          AnneeDeTravailAffichee()
              ? u"Importez l'export du registre SIEL pour créer les classes et les élèves."_s
              : u"Le menu des années (Ctrl+0) montre les autres."_s};
}

TVide TFrmMain::Accueil() const {
  const QString travail = AnneeEnTexte(AnneeTravail());
  if (!SansEleve()) return {u"Année scolaire " % travail, u"Il reste à préparer cette année scolaire."_s};
  if (AnneeCochee() == AnneeTravail())
    return {u"Bienvenue dans Calpenne"_s,
            u"La base est prête et ne contient encore aucun élève. Voici par où commencer."_s};
  return {u"Aucun élève en " % AnneeEnTexte(AnneeCochee()),
          u"L'importation remplit l'année de travail, " % travail %
              u". Pour revoir une autre année : le menu des années (Ctrl+0)."};
}

TVide TFrmMain::SansEcran() const {
  if (!EstRelie()) return {};
  const auto fiches =
      std::ranges::find(Commandes, TGestionnaire::AdvGlowButton2Click, &TCommandePrincipale::Gestionnaire);
  const bool ouvrables = PageVisible(TPage::PgEleve) && CommandeActive(*fiches);
  return {u"Aucun écran ouvert"_s, u"Choisissez un écran dans la barre de commandes."_s,
          ouvrables ? u"Fiches des élèves"_s : QString()};
}

bool TFrmMain::ResteAFaire() const {
  if (SansEleve()) return true;
  return EstRelie() && EstBureau() && anneeCochee_ == Globals.AnneeScolaire &&
         !std::ranges::all_of(Etapes(), &TEtapeAccueil::Faite);
}

bool TFrmMain::PremiereUtilisation() const {
  return (accueilDevant_ || Panneau.Courante() == nullptr) && ResteAFaire();
}

TEtapeAccueil TFrmMain::EtapeDe(TGestionnaire gestionnaire, const QString& explication, const QString& bouton,
                                bool faite) const {
  const TCommandePrincipale& commande = Commande(gestionnaire);
  const QString raison = RaisonInactive(commande);
  return {gestionnaire, commande.Nom(),   commande.Icone, explication, bouton,
          faite,        raison.isEmpty(), raison,         false};
}

// The year comes first: the register is taken into it. Once somebody is enrolled it only changes at a
// closing.
TEtapeAccueil TFrmMain::EtapeAnnee() const {
  const bool inscrit = Globals.Eleves->Count() > 0 || Controleur.EleveInscrit();
  const QString raison =
      inscrit ? u"Des élèves sont inscrits : l'année de travail change à sa clôture"_s : QString();
  return {{},
          u"Année scolaire"_s,
          u"view-calendar-day"_s,
          u"Année de travail : " % AnneeEnTexte(Globals.AnneeScolaire) % u". Les élèves y seront inscrits.",
          u"Choisir l'année"_s,
          inscrit || Globals.AnneeScolaire >= Controleur.AnneeProposee(),
          !inscrit && !enTravail_,
          raison,
          false};
}

std::vector<TEtapeAccueil> TFrmMain::Etapes() const {
  if (!EstRelie()) return {};
  using enum TGestionnaire;
  std::vector<TEtapeAccueil> etapes{
      EtapeAnnee(),
      EtapeDe(AdvGlowButton3Click, u"Nom, adresse et compte bancaire : ce que les documents impriment."_s,
              u"Ouvrir"_s, !Globals.Parametres->GetParametre(TParam::NomEcole).trimmed().isEmpty()),
      EtapeImportation(),
      EtapeDe(AdvGlowButton5Click, u"Horaires et tarifs des garderies, de l'étude et des repas."_s,
              u"Encoder les tarifs"_s, Globals.TarifsGarderies->Count() > 0),
      EtapeReglages(),
      EtapeFrais(),
  };
  const auto prochaine =
      std::ranges::find_if(etapes, [](const TEtapeAccueil& e) { return !e.Faite && e.Possible; });
  if (prochaine != etapes.end()) prochaine->Prochaine = true;
  return etapes;
}

bool TFrmMain::EstEcartee(const QString& reglage) const {
  return reglages_.Lire(TRacine::Utilisateur, reglage).toInt() == Globals.AnneeScolaire;
}

// Without a communication on the invoices no transfer finds its pupil.
TEtapeAccueil TFrmMain::EtapeReglages() const {
  const bool donnes =
      !Globals.Parametres->GetParametre(TParam::CommunicationFacture).trimmed().isEmpty() && !RepasSansPrix();
  const bool sans = !donnes && EstEcartee(kAnneeSansReglages);
  TEtapeAccueil etape =
      EtapeDe(TGestionnaire::AdvGlowButton6Click,
              u"Communication des factures, à laquelle la banque reconnaît l'élève, et prix des repas."_s,
              u"Ouvrir"_s, donnes || sans);
  if (!etape.Faite) {
    etape.Ecarter = u"S'en passer cette année"_s;
    etape.ReglageEcarte = kAnneeSansReglages;
  }
  return etape;
}

// The register is taken into the working year, whichever is looked at.
TEtapeAccueil TFrmMain::EtapeImportation() const {
  TEtapeAccueil etape = EtapeDe(TGestionnaire::AdvGlowButton8Click,
                                u"Élèves, classes et implantations, depuis l'export du registre SIEL."_s,
                                u"Importer les élèves"_s, Globals.Eleves->Count() > 0);
  if (etape.Possible && !AnneeDeTravailAffichee()) {
    etape.Possible = false;
    etape.RaisonInactive = u"Le registre entre dans l'année de travail, " %
                           AnneeEnTexte(Globals.AnneeScolaire) % u" : affichez-la d'abord";
  }
  return etape;
}

// Not every school has fees every year.
TEtapeAccueil TFrmMain::EtapeFrais() const {
  const bool encodes = Globals.ListeFrais->Count() > 0;
  const bool sans = !encodes && EstEcartee(kAnneeSansFrais);
  TEtapeAccueil etape =
      EtapeDe(TGestionnaire::AdvGlowButton16Click,
              sans ? u"Cette année se passe sans frais scolaires. Vous pouvez en encoder à tout moment."_s
                   : u"Frais scolaires de l'année : photocopies, natation, excursions."_s,
              u"Encoder les frais"_s, encodes || sans);
  if (!etape.Faite) {
    etape.Ecarter = u"Pas de frais cette année"_s;
    etape.ReglageEcarte = kAnneeSansFrais;
  }
  return etape;
}

void TFrmMain::EcarterClick(const TEtapeAccueil& etape) {
  reglages_.Ecrire(TRacine::Utilisateur, etape.ReglageEcarte, QString::number(Globals.AnneeScolaire));
  Etat(TNiveauEtat::Succes, u"Année " % AnneeEnTexte(Globals.AnneeScolaire) % u" : " % etape.Ecarter);
  Annoncer();
}

void TFrmMain::EtapeClick(const TEtapeAccueil& etape) {
  etape.Gestionnaire ? Executer(*etape.Gestionnaire) : ChoisirPremiereAnnee();
}

void TFrmMain::ChoisirPremiereAnnee() {
  if (!EtapeAnnee().Possible) return;
  QuitterChamp();
  if (!EcranAccepte()) return;
  const int proposee = Controleur.AnneeProposee();
  const auto refus = [proposee](const QString& texte) {
    if (AnneeDuTexte(texte, proposee) != 0) return QString();
    return u"« %1 » n'est pas une année scolaire. Introduisez par exemple %2."_s.arg(texte,
                                                                                     AnneeEnTexte(proposee));
  };
  const auto reponse =
      Contexte.Dialogues().Saisir({.Titre = u"Année scolaire"_s,
                                   .Invite = u"Quelle année scolaire voulez-vous commencer ?"_s,
                                   .Valeur = AnneeEnTexte(proposee),
                                   .Refus = refus});
  if (!reponse) return;
  const int annee = AnneeDuTexte(*reponse, proposee);
  Controleur.CommencerAnnee(annee);
  FermerEcran();
  Etat(TNiveauEtat::Succes, u"Année de travail : " % AnneeEnTexte(annee));
}
