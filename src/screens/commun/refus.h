#pragma once
#include "forms/champs.h"
#include "screens/contexte_ecran.h"

/// The status bar says what a field refuses, and names the field; the word goes as soon as the fault does.
/// The fields outlive the connection.
TLien AnnoncerRefus(TChamps& champs, ILienPrincipal& principal);
