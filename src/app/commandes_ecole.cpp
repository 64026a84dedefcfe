// The pupils of the year, their presences, and what these cost.
#include "app/commandes.h"
#include "app/csv.h"
#include "core/formats.h"
#include "pupils/service.h"
#include "workflows/import_presences.h"
#include "workflows/import_registre.h"

using namespace Qt::StringLiterals;

namespace {

int Registre(TSession& session) {
  session.Ouvrir();
  TImportRegistre import(session.Controleur);
  session.Dialogues.Oui = session.Options.isSet(u"cloturer"_s);
  if (!import.Etape1(session.Arguments[0])) {
    session.Dialogues.Message(
        import.NombreEleves() < TImportRegistre::kElevesMinimum
            ? u"Le fichier ne compte que %1 élève(s) : il en faut au moins %2. Rien n'a été transféré."_s
                  .arg(import.NombreEleves())
                  .arg(TImportRegistre::kElevesMinimum)
            : u"L'année scolaire n'est pas clôturée : rien n'a été transféré."_s);
    return 1;
  }
  const TBilanRegistre bilan = import.Etape2();
  TCsv csv({u"lignes"_s, u"crees"_s, u"modifies"_s});
  csv.Ligne({Nombre(bilan.Lignes), Nombre(bilan.Crees), Nombre(bilan.Modifies)});
  return 0;
}

QStringList LignePresence(const QString& etat, const QString& matricule, const TPresence& presence) {
  return {etat,
          matricule,
          DateIso(presence.DateReleve),
          Nombre(static_cast<int>(presence.TypePresence)),
          FormatHeureCourte(presence.HeureEntree),
          FormatHeureCourte(presence.HeureSortie)};
}

int Presences(TSession& session) {
  session.Ouvrir();
  TImportPresences import(session.Controleur);
  import.ImporterFichier(session.Arguments[0]);
  {
    TCsv csv(u"etat;matricule;date;type;entree;sortie"_s.split(u';'));
    for (const auto& bon : import.Bons())
      csv.Ligne(LignePresence(u"bon"_s, Globals.Eleves->TrouverParId(bon->EleveId)->Matricule, *bon));
    for (const TAnomalie& a : import.Anomalies()) {
      if (a.Presence)
        csv.Ligne(LignePresence(u"sans_tarif"_s, a.Matricule, *a.Presence));
      else
        csv.Ligne({u"inconnu"_s, a.Matricule, DateIso(a.Date), Nombre(a.TypePresence),
                   FormatHeureCourte(a.Entree), FormatHeureCourte(a.Sortie)});
    }
  }
  import.Etape2();
  return 0;
}

struct TServiceCsv {
  const char* code;
  TService service;
};

constexpr TServiceCsv kServices[] = {{"matin", TService::Matin}, {"midi", TService::Midi},
                                     {"soir", TService::Soir},   {"mercredi", TService::Mercredi},
                                     {"etude", TService::Etude}, {"repas", TService::Repas},
                                     {"soupe", TService::Soupe}};

int Couts(TSession& session) {
  const int mois = session.Mois();
  session.Ouvrir();
  const TPeriode periode = BornesMois(mois, Globals.Eleves->AnneeScolaire);
  TCsv csv(u"eleve_id;service;montant"_s.split(u';'));
  for (const TEleve& eleve : *Globals.Eleves) {
    const auto ligne = [&](const QString& service, Currency montant) {
      csv.Ligne({Nombre(eleve.Id), service, FormatQuatreDecimales(montant)});
    };
    TLignesService lignes;
    for (const TServiceCsv& service : kServices)
      ligne(QString::fromLatin1(service.code), eleve.CoutService(service.service, periode, lignes));
    ligne(u"total"_s, eleve.TotalServices(periode));
  }
  return 0;
}

int Solde(TSession& session) {
  session.Ouvrir();
  TCsv csv(u"eleve_id;frais;services;total"_s.split(u';'));
  for (TEleve& eleve : *Globals.Eleves)
    csv.Ligne({Nombre(eleve.Id), FormatQuatreDecimales(eleve.Solde(true, false)),
               FormatQuatreDecimales(eleve.Solde(false, true)),
               FormatQuatreDecimales(eleve.Solde(true, true))});
  return 0;
}

}  // namespace

std::span<const TCommandeLot> CommandesEcole() {
  static constexpr TCommandeLot commandes[] = {
      {"registre", "FICHIER [--cloturer]", 1, 1, Registre},
      {"presences", "FICHIER", 1, 1, Presences},
      {"couts", "--mois M", 0, 0, Couts},
      {"solde", "", 0, 0, Solde},
  };
  return commandes;
}
