// What the office asks of the whole school: lists, grids, tax papers.
#include "app/commandes.h"
#include "app/csv.h"
#include "app/sortie_documents.h"
#include "attendance/presences.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/mois.h"
#include "documents/accueil_extrascolaire.h"
#include "documents/periode.h"
#include "documents/statistiques.h"
#include "pupils/eleves.h"
#include "workflows/attestations.h"
#include "workflows/export_balances.h"
#include "workflows/transfert_soldes.h"

using namespace Qt::StringLiterals;

namespace {

TContexteDocument Contexte(const TSession& session) {
  return ContexteDesGlobals(session.Controleur.Horloge());
}

/// The report is made only when a file of it is asked for.
template <class TFaire>
int Sortir(TSession& session, const QString& titre, TFaire faire) {
  if (!session.A(u"json"_s) && !session.A(u"pdf"_s)) return 0;
  const TResultat resultat = faire();
  const int code = SortirDocument(session, titre, resultat);
  return resultat.Rapports.empty() ? 0 : code;  // nothing to print is no failure
}

int Accueil(TSession& session) {
  const int mois = session.Mois();
  session.Ouvrir();
  return SortirDocument(session, u"Accueil extrascolaire"_s, AccueilExtraScolaire(Contexte(session), mois));
}

TCriteresImpayes Criteres(const TSession& session) {
  const QString choix = session.UneSeule({u"annee-scolaire"_s, u"mois"_s, u"jusque"_s});
  TCriteresImpayes criteres{session.A(u"frais"_s), session.A(u"services"_s), TEtendue::Annee, 0};
  if (choix == u"annee-scolaire") return criteres;
  criteres.Etendue = choix == u"mois" ? TEtendue::Mois : TEtendue::Jusque;
  criteres.Mois = StrToInt(session.Option(choix));
  if (IndiceMoisScolaire(criteres.Mois) < 0)
    throw Exception(u"Le mois est un mois de l'année scolaire : de 9 à 12, ou de 1 à 6."_s);
  return criteres;
}

QStringList DebutLigne(const TEleve& eleve) {
  return {Nombre(eleve.Id), eleve.Nom, eleve.Prenom, eleve.LibelleClasse()};
}

void Exporter(TSession& session, const std::vector<TMontantEleve>& lignes,
              void (*exporter)(const std::vector<TMontantEleve>&, const QString&)) {
  if (!session.A(u"export"_s)) return;
  exporter(lignes, session.Option(u"export"_s));
  session.Dialogues.Information(u"L'exportation des informations est terminée."_s);
}

int ListeImpayes(TSession& session) {
  const TCriteresImpayes criteres = Criteres(session);
  session.Ouvrir();
  const std::vector<TMontantEleve> lignes = Impayes(*Globals.Eleves, criteres);
  TCsv csv(u"eleve_id;nom;prenom;classe;montant"_s.split(u';'));
  for (const auto& [eleve, montant] : lignes)
    csv.Ligne(DebutLigne(*eleve) + QStringList{FormatQuatreDecimales(montant)});
  Exporter(session, lignes, ExporterImpayes);
  const QString titre = TitreImpayes(criteres.Frais, criteres.Services);
  return Sortir(session, titre, [&] {
    TGrille grille = GrilleImpayes();
    Remplir(grille, lignes);
    return ImprimerListe(Contexte(session), titre, TexteCriteres(criteres), grille);
  });
}

int ListePositives(TSession& session) {
  session.Ouvrir();
  const bool frais = session.A(u"frais"_s), services = session.A(u"services"_s);
  const std::vector<TMontantEleve> lignes = BalancesPositives(*Globals.Eleves, frais, services);
  TCsv csv(u"eleve_id;nom;prenom;classe;montant;compte;titulaire"_s.split(u';'));
  for (const auto& [eleve, montant] : lignes)
    csv.Ligne(DebutLigne(*eleve) +
              QStringList{FormatQuatreDecimales(montant), eleve->NumCompte, eleve->NomTitulaireCompte});
  Exporter(session, lignes, ExporterBalancesPositives);
  const QString titre = u"Liste des balances positives"_s;
  return Sortir(session, titre, [&] {
    TGrille grille = GrilleBalancesPositives();
    RemplirAvecCompte(grille, lignes);
    return ImprimerListe(Contexte(session), titre, TexteBalances(frais, services), grille);
  });
}

/// The lists of a period back to front are empty.
void DireFaute(TSession& session, const TPeriode& periode) {
  if (const QString faute = FautePeriode(periode); !faute.isEmpty()) session.Dialogues.Message(faute);
}

int Passages(TSession& session) {
  const TPeriode periode = session.LirePeriode();
  session.Ouvrir();
  DireFaute(session, periode);
  TCsv csv(u"eleve_id;date;type;entree;sortie"_s.split(u';'));
  for (const TEleve* eleve : ElevesPresents(*Globals.Eleves, periode))
    for (const TPresence* p : Globals.Presences->PresencesEleve(eleve->Id, periode))
      csv.Ligne({Nombre(eleve->Id), DateIso(p->DateReleve), Nombre(static_cast<int>(p->TypePresence)),
                 FormatHeureCourte(p->HeureEntree), FormatHeureCourte(p->HeureSortie)});
  return 0;
}

int Annuel(TSession& session) {
  session.Ouvrir();
  const TReleveAnnuel releve = ReleveAnnuel();
  TCsv csv(u"rubrique;valeur"_s.split(u';'));
  for (const auto& [mois, montant] : releve.Mois) csv.Ligne({Nombre(mois), FormatQuatreDecimales(montant)});
  csv.Ligne({u"total"_s, FormatQuatreDecimales(releve.Total)});
  csv.Ligne({u"repas_maternelle"_s, Nombre(releve.RepasMaternelle)});
  csv.Ligne({u"repas_primaire"_s, Nombre(releve.RepasPrimaire)});
  return Sortir(session, u"Relevé annuel"_s, [&] {
    TGrille grille = GrilleAnnuelle();
    Remplir(grille, releve);
    return ImprimerListe(Contexte(session), u"Relevé annuel"_s, {}, grille);
  });
}

int Paiements(TSession& session) {
  const QString libelle = session.Option(u"groupe"_s);
  session.Ouvrir();
  TGroupeFrais* groupe = nullptr;
  for (TGroupeFrais& g : *Globals.GroupesFrais)
    if (groupe == nullptr && g.Libelle == libelle) groupe = &g;
  if (groupe == nullptr) throw Exception(u"Il n'y a pas de groupe de paiement « %1 »."_s.arg(libelle));
  const std::vector<TPaiementsEleve> lignes = PaiementsDuGroupe(*Globals.Eleves, *groupe);
  TCsv csv(u"eleve_id;classe;total;remarque;montant"_s.split(u';'));
  for (const TPaiementsEleve& ligne : lignes)
    for (const TGroupeFraisDetailPaiement* detail : ligne.Details)
      csv.Ligne({Nombre(ligne.Eleve->Id), ligne.Eleve->LibelleClasse(), FormatQuatreDecimales(ligne.Total),
                 detail->Remarque, FormatQuatreDecimales(detail->MontantVerse)});
  return Sortir(session, u"Relevé des paiements"_s,
                [&] { return ImprimerPaiements(Contexte(session), libelle, lignes); });
}

int Fiscales(TSession& session) {
  const TPeriode periode = session.LirePeriode();
  session.Ouvrir();
  DireFaute(session, periode);
  const std::vector<TLigneFiscale> lignes = StatistiquesFiscales(*Globals.Eleves, periode);
  TCsv csv(u"eleve_id;nom;prenom;classe;du;paye"_s.split(u';'));
  for (const auto& [eleve, du, paye] : lignes)
    csv.Ligne(DebutLigne(*eleve) + QStringList{FormatQuatreDecimales(du), FormatQuatreDecimales(paye)});
  return Sortir(session, u"Statistiques fiscales"_s, [&] {
    TGrille grille = GrilleFiscale();
    Remplir(grille, lignes);
    return ImprimerListe(Contexte(session), u"Statistiques fiscales"_s, TextePeriode(periode), grille);
  });
}

/// The fees of --coches, in the order of the list. Raises Exception for one that is not of the year.
std::vector<TLigneFrais> Coches(const TSession& session, const std::vector<TLigneFrais>& lignes) {
  QSet<int> cles;
  for (const QString& cle : session.Options.value(u"coches"_s).split(u',', Qt::SkipEmptyParts)) {
    if (Globals.ListeFrais->ParCle(StrToInt(cle)) == nullptr)
      throw Exception(u"Il n'y a pas de frais n° %1 cette année-là."_s.arg(cle));
    cles += StrToInt(cle);
  }
  std::vector<TLigneFrais> coches = lignes;
  std::erase_if(coches, [&](const TLigneFrais& ligne) { return !cles.contains(ligne.Frais->Id); });
  return coches;
}

int Frais(TSession& session) {
  session.Ouvrir();
  const std::vector<TLigneFrais> lignes = StatistiqueFrais(*Globals.ListeFrais);
  const std::vector<TLigneFrais> coches = Coches(session, lignes);
  TCsv csv(u"listefrais_id;libelle;eleves;mois;cout;total"_s.split(u';'));
  for (const auto& [frais, eleves, total] : lignes)
    csv.Ligne({Nombre(frais->Id), frais->Libelle, Nombre(eleves), Nombre(frais->Mois),
               FormatQuatreDecimales(frais->Cout), FormatQuatreDecimales(total)});
  return Sortir(session, u"Statistique des frais"_s,
                [&] { return ImprimerFrais(Contexte(session), coches); });
}

/// "9/3/2017" as "2017-03-09": the paper has days that no calendar has.
QString JourIso(const QString& jour) {
  const QStringList parties = jour.split(u'/');
  return u"%1-%2-%3"_s.arg(parties[2]).arg(parties[1], 2, u'0').arg(parties[0], 2, u'0');
}

int Attestations(TSession& session) {
  session.Ouvrir();
  TAttestations attestations(*Globals.Eleves, *Globals.Parametres, Globals.AnneeScolaire);
  QStringList messages;
  const std::vector<TFeuilleAttestation> feuilles = attestations.Feuilles(Globals.Eleves->Tous(), messages);
  for (const QString& message : messages) session.Dialogues.Message(message);
  TCsv csv(u"eleve_id;responsable;numero;montant;debut;fin;remarque"_s.split(u';'));
  for (const TFeuilleAttestation& f : feuilles)
    csv.Ligne({Nombre(f.Eleve->Id), Nombre(f.Responsable), Nombre(f.Eleve->NumAttestation),
               FormatQuatreDecimales(f.Montant), JourIso(f.DateDebut), JourIso(f.DateFinReel),
               f.Remarques.join(u" ; "_s)});
  return 0;
}

/// Carries the balances of that sign, after a question.
int Transferer(TSession& session, TSensTransfert sens) {
  session.Ouvrir();
  const int travail = Globals.AnneeScolaire;
  const QString refus = RefusTransfert(*Globals.Eleves, travail);
  if (!refus.isEmpty()) throw Exception(refus);
  if (!session.Dialogues.Confirmer(QuestionTransfert(sens, u"tous les élèves"_s, travail))) {
    session.Dialogues.Message(u"Rien n'a été transféré."_s);
    return 1;
  }
  TCsv csv(u"eleve_id;montant"_s.split(u';'));
  TransfererSoldes(*Globals.Eleves, travail, Globals.Eleves->Tous(), sens, [&](const TMontantEleve& reporte) {
    csv.Ligne({Nombre(reporte.Eleve->Id), FormatQuatreDecimales(reporte.Montant)});
  });
  return 0;
}

int TransfererPositifs(TSession& session) { return Transferer(session, TSensTransfert::Positifs); }
int TransfererNegatifs(TSession& session) { return Transferer(session, TSensTransfert::Negatifs); }

}  // namespace

std::span<const TCommandeLot> CommandesStatistiques() {
  static constexpr TCommandeLot commandes[] = {
      {"accueil", "--mois M [--pdf FICHIER] [--json FICHIER]", 0, 0, Accueil},
      {"statistiques impayes",
       "(--annee-scolaire | --mois M | --jusque M) [--frais] [--services] [--export FICHIER] "
       "[--pdf FICHIER] [--json FICHIER]",
       0, 0, ListeImpayes},
      {"statistiques positives", "[--frais] [--services] [--export FICHIER] [--pdf FICHIER] [--json FICHIER]",
       0, 0, ListePositives},
      {"statistiques passages", "--du jj/mm/aaaa --au jj/mm/aaaa", 0, 0, Passages},
      {"statistiques annuel", "[--pdf FICHIER] [--json FICHIER]", 0, 0, Annuel},
      {"statistiques paiements", "--groupe LIBELLE [--pdf FICHIER] [--json FICHIER]", 0, 0, Paiements},
      {"statistiques fiscales", "--du jj/mm/aaaa --au jj/mm/aaaa [--pdf FICHIER] [--json FICHIER]", 0, 0,
       Fiscales},
      {"statistiques frais", "[--coches ID,ID] [--pdf FICHIER] [--json FICHIER]", 0, 0, Frais},
      {"transferer positifs", "", 0, 0, TransfererPositifs},
      {"transferer negatifs", "", 0, 0, TransfererNegatifs},
      {"attestations", "", 0, 0, Attestations},
  };
  return commandes;
}
