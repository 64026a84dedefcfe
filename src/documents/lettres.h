#pragma once
#include <functional>

#include "documents/contexte.h"
#include "documents/resultat.h"

class IDialogues;

/// What a pupil's letter holds; none when the parents get none.
using TEcrireLettre = std::function<std::optional<TNoeudRapport>(const TEleve&, IDialogues&)>;

/// A letter of the school to the parents, with the variables of its header and no `NomRapport`; so is
/// `MoisReleve`, unless it is empty.
TRapport LettreEcole(const QString& titre, const QString& modele, const TParametres& parametres,
                     const QString& moisReleve);

/// Whether the papers of the school have its logo left.
bool LogoAGauche(const TParametres& parametres);

/// Writes to the parents of each of these pupils, and presents the letters. Sections without lines go, and
/// pupils without sections with them.
TResultat FaireLettres(TRapport lettre, const TElevesChoisis& eleves, const TEcrireLettre& ecrire,
                       const QString& siVide);
