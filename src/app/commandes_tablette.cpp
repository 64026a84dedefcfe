// The tablet of the canteen, and the settings of this workstation that put it in its mode.
#include "app/commandes.h"
#include "app/csv.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "workflows/copie_locale.h"
#include "workflows/transfert_repas.h"

using namespace Qt::StringLiterals;

namespace {

QString OuiNon(bool oui) { return oui ? u"1"_s : u"0"_s; }

int Reglage(TSession& session) {
  TReglagesPoste reglages;
  const QString nom = session.Arguments[0];
  if (session.Arguments.size() > 1 && !reglages.Ecrire(TRacine::Utilisateur, nom, session.Arguments[1]))
    throw Exception(u"Le réglage « %1 » de cet ordinateur n'a pas pu être enregistré."_s.arg(nom));
  TCsv::EcrireLigne(session.Controleur.Reglages().Lire(TRacine::Utilisateur, nom));
  return 0;
}

int Transferer(TSession& session) {
  TTransfertRepas transfert(session.Controleur);
  transfert.SurAnalyse = [&](const TBilanTransfert&) {
    for (const TAnomalie& anomalie : transfert.Anomalies())
      session.Dialogues.Message(TexteAnomalie(anomalie));
  };
  const TBilanTransfert bilan = transfert.Executer();
  if (!bilan.Connecte)
    session.Dialogues.Message(u"Le serveur de données n'a pas été atteint : rien n'a été transféré."_s);
  const TFichiersTablette fichiers(session.Controleur.Reglages());
  TCsv csv(u"eleves;photos;lignes;bons;anomalies;importes;hors_ligne"_s.split(u';'));
  csv.Ligne({Nombre(NombreLignesLocales(fichiers.Eleves)), Nombre(NombreLignesLocales(fichiers.Photos)),
             Nombre(bilan.Lignes), Nombre(bilan.Bons), Nombre(bilan.Anomalies), OuiNon(bilan.Importe),
             session.Controleur.Reglages().Lire(TRacine::Utilisateur, u"Offline"_s)});
  const bool reussi = bilan.Connecte && bilan.HorsLigne && (bilan.Archive || !bilan.Importe);
  return reussi ? 0 : 1;
}

/// Why there is nothing to serve; "" when there is.
QString Empechement(TSession& session) {
  return PourquoiSansService(session.Controleur.DemarreHorsLigne(), session.Controleur.Reglages());
}

int Eleves(TSession& session) {
  const QString empechement = Empechement(session);
  std::optional<TServiceHorsLigne> service;
  if (empechement.isEmpty()) service.emplace(session.Controleur.Reglages(), session.Dialogues);
  const TDateTime jour = session.Controleur.Horloge().Aujourdhui();
  TCsv csv(u"annee;classe;eleve_id;matricule;nom;prenom;photo;repas"_s.split(u';'));
  if (!service) {
    session.Dialogues.Message(empechement);
    return 0;
  }
  for (const auto& classe : service->Eleves().Classes())
    for (const TEleve* eleve : classe->ListeEleves)
      csv.Ligne({classe->CodeClasse, classe->Libelle(), Nombre(eleve->Id), eleve->Matricule, eleve->Nom,
                 eleve->Prenom, OuiNon(eleve->OctetsPhoto().has_value()),
                 OuiNon(service->EstServi(*eleve, jour))});
  return 0;
}

int Toucher(TSession& session) {
  if (const QString empechement = Empechement(session); !empechement.isEmpty()) throw Exception(empechement);
  TServiceHorsLigne service(session.Controleur.Reglages(), session.Dialogues);
  std::vector<const TEleve*> eleves;
  for (const QString& numero : session.Arguments) {
    eleves.push_back(service.Eleves().TrouverParId(StrToInt(numero)));
    if (eleves.back() == nullptr)
      throw Exception(u"Il n'y a pas d'élève n° %1 sur cette tablette."_s.arg(numero));
  }
  const TDateTime jour = session.Controleur.Horloge().Aujourdhui();
  TCsv csv({u"eleve_id"_s, u"repas"_s});
  for (const TEleve* eleve : eleves) {
    csv.Ligne({Nombre(eleve->Id), OuiNon(service.Toucher(*eleve, jour))});
    std::fflush(stdout);  // who reads it knows what is on the disk
  }
  return 0;
}

}  // namespace

std::span<const TCommandeLot> CommandesTablette() {
  static constexpr TCommandeLot commandes[] = {
      {"reglage", "NOM [VALEUR]", 1, 2, Reglage},
      {"tablette transferer", "[--jour jj/mm/aaaa]", 0, 0, Transferer},
      {"tablette eleves", "[--jour jj/mm/aaaa]", 0, 0, Eleves},
      {"tablette toucher", "ELEVE... [--jour jj/mm/aaaa]", 1, kSansLimite, Toucher},
  };
  return commandes;
}
