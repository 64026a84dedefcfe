#pragma once
#include "documents/contexte.h"
#include "documents/sections.h"

class IDialogues;

/// Said when there is nobody to bill.
inline constexpr QStringView kAucuneFacture = u"Aucune facture n'est à établir pour la période choisie.";

/// One of the generators of payments/communication_structuree.h.
using TCommunicationMois = QString (*)(IDialogues&, int eleveId, int mois, int anneeScolaire);
/// The structured communication of a period that is exactly one month; "" for another.
QString CommunicationDuMois(TCommunicationMois generer, const TEleve& eleve, const TPeriodeDocument& periode,
                            IDialogues& dialogues);

/// The communication that the school prints on its invoices, with the structured one and the payment date
/// at their places; an empty date leaves its place as it stands.
QString TexteCommunication(const TParametres& parametres, const QString& structuree,
                           const QString& datePaiement = {});

/// The node of a pupil's invoice, with `SoldeFacture`, `SoldeFacture2` and `Communication`.
TNoeudRapport NoeudFacture(const TEleve& eleve, Currency solde, const QString& communication);
