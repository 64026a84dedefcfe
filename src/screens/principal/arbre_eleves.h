#pragma once
#include "forms/arbre.h"

class TEleve;

/// The pupils of the year on display under their classes, and these under their sites when the school
/// has several; a class without site then has no place. A pupil struck off is crossed out, or left out
/// unless `avecRadies`. Empty without a year on display.
void ConstruireArbre(TArbre& arbre, bool avecEleves, bool avecRadies);

/// Crossed out when the pupil is struck off, and not otherwise.
void MarquerRadie(TNoeud& noeud, const TEleve& eleve);
/// The nodes of the sites take the present names.
void RenommerSites(TArbre& arbre);
