// The bank's file, and the movements of the year.
#include "app/commandes.h"
#include "app/csv.h"
#include "core/fichiers.h"
#include "core/formats.h"
#include "payments/communication_structuree.h"
#include "payments/releve_bancaire.h"
#include "workflows/import_virements.h"

using namespace Qt::StringLiterals;

namespace {

/// The booked movements of a file that tells its own form, without a database.
int ReleveSec(const TSession& session) {
  const auto releve = LireReleveBancaire(LireFichier(session.Arguments[0]));
  if (!releve) throw Exception(u"Ce fichier n'est ni un relevé CODA, ni un relevé camt.053."_s);
  const QString preuves = releve->Preuves.join(u'\n');
  if (!preuves.isEmpty() && !session.A(u"sans-preuve"_s)) throw Exception(preuves);
  if (!preuves.isEmpty()) session.Dialogues.Information(preuves);
  TCsv csv(u"date;montant;compte;donneur;communication"_s.split(u';'));
  for (const TMouvement& m : releve->Mouvements)
    csv.Ligne({DateIso(m.Date), FormatQuatreDecimales(m.Montant), m.Compte, m.Donneur,
               CommunicationNormalisee(m.Communication)});
  return 0;
}

/// All of them or none: here they cannot be ticked one by one.
void ProposerDejaImportes(TImportVirements& import, IDialogues& dialogues) {
  const int nombre = import.NombreDejaImportes();
  if (nombre == 0 || !dialogues.ConfirmerGrave(
                         TexteDejaImportes(nombre) %
                         u" : même jour, même montant et même compte qu'un autre.\nMémoriser quand même ?"))
    return;
  for (int i = 0; i < static_cast<int>(import.Rangees().size()); ++i) import.Cocher(i, true);
}

int Releve(TSession& session) {
  if (session.A(u"sec"_s)) return ReleveSec(session);
  if (session.A(u"sans-preuve"_s)) throw Exception(u"L'option --sans-preuve demande --sec."_s);
  session.Ouvrir();
  TImportVirements import(session.Controleur);
  if (!import.Etape1(session.Arguments[0])) return 1;
  ProposerDejaImportes(import, session.Dialogues);
  try {
    import.Etape2();
  } catch (...) {
    TCsv::EcrireLigne(import.Statut());
    throw;
  }
  TCsv::EcrireLigne(import.Statut());
  return 0;
}

QString NomEtat(TEtatMouvement etat) {
  if (etat == TEtatMouvement::Cache) return u"cache"_s;
  return etat == TEtatMouvement::Inconnu ? u"inconnu"_s : u"comptabilise"_s;
}

/// Pupil, month and family of a movement; of one that was shared out, in step.
QStringList Pour(const std::vector<TAttribution>& attributions) {
  QStringList eleves, mois, familles;
  for (const TAttribution& attribution : attributions) {
    eleves += Nombre(attribution.EleveId);
    mois += Nombre(attribution.Mois);
    familles += Nombre(static_cast<int>(attribution.Famille));
  }
  return {eleves.join(u','), mois.join(u','), familles.join(u',')};
}

int Extraits(TSession& session) {
  session.Ouvrir();
  const auto attributions = LireAttributions(session.Base);
  TCsv csv(u"extrait_id;donneur;date;montant;communication;compte;etat;eleve_id;mois;famille"_s.split(u';'));
  for (const TExtrait& extrait : session.Controleur.Extraits()) {
    const auto credit = attributions.find(extrait.Id);
    const QStringList pour = credit != attributions.end() ? Pour(credit->second) : QStringList(3);
    csv.Ligne(QStringList{Nombre(extrait.Id), extrait.DonneurOrdre, DateIso(extrait.DateVirement),
                          FormatQuatreDecimales(extrait.Montant), extrait.Communication,
                          extrait.NumCptDonneur, NomEtat(EtatExtrait(extrait))} +
              pour);
  }
  return 0;
}

}  // namespace

std::span<const TCommandeLot> CommandesBanque() {
  static constexpr TCommandeLot commandes[] = {
      {"releve", "FICHIER [--sec [--sans-preuve]]", 1, 1, Releve},
      {"extraits", "", 0, 0, Extraits},
  };
  return commandes;
}
