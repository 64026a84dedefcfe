#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

class TClasse;
struct TGenerationRepas;
struct TJourCuisine;

/// "Détail des commandes": kind of meal, class, pupils.
TResultat DetailCommandes(const TContexteDocument& contexte, const TJourCuisine& jour,
                          const TGenerationRepas& generation);
/// "Fiche de préparation": hot meals by class and by service, then each variety with its pupils.
TResultat FichePreparation(const TContexteDocument& contexte, const TJourCuisine& jour,
                           const TGenerationRepas& generation);
/// "Choix de repas": the pupils of a class, to be filled in by hand.
TResultat ChoixDeRepas(const TContexteDocument& contexte, const TClasse& classe, TDateTime jour);

// The same as the catalogue asks for them: the day and the words are those of the request.
TResultat DetailCommandes(const TContexteDocument& contexte, const TDemandeDocument& demande);
TResultat FichePreparation(const TContexteDocument& contexte, const TDemandeDocument& demande);
/// Of exactly one class.
TResultat ChoixDeRepas(const TContexteDocument& contexte, const TDemandeDocument& demande);
