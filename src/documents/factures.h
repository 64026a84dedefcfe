#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// How a school bills.
enum class TGeneration { PostesOuverts, Provision, Activites, CompteCourant };

/// The invoices of the school, in the order in which they are made, by parameters 107, 25 and 108.
std::vector<TGeneration> GenerationsFacture(const TParametres& parametres);

/// Whether that template is one of the invoices', whatever their title.
bool EstModeleFacture(QStringView modele);

/// Whether the user is asked for a payment date before the document "Facture".
bool FactureDemandeDate(const TParametres& parametres);

/// The document "Facture": the invoices of the school, and the detail of the services for the pupils who
/// get one. When a payment date is asked for and not given, the user has given up: nothing is printed and
/// nothing said. One that is not asked for is left aside.
TResultat Factures(const TContexteDocument& contexte, const TDemandeDocument& demande);
