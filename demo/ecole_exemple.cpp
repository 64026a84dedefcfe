#include "demo/ecole_exemple.h"

#include "demo/catalogue.h"
#include "demo/familles.h"
#include "demo/habitudes.h"
#include "demo/tirage.h"

TEcoleExemple CreerEcoleExemple(std::uint64_t graine, bool petite) {
  TEcoleExemple ecole;
  ecole.Graine = graine;
  RemplirCatalogue(ecole);
  TTirage familles(graine, 1), professeurs(graine, 2), habitudes(graine, 3), frais(graine, 4),
      comptes(graine, 5);
  PeuplerEcole(ecole, familles, petite);
  EngagerProfesseurs(ecole, professeurs, petite);
  DonnerHabitudes(ecole, habitudes);
  AttribuerFrais(ecole, frais);
  RemplirComptes(ecole, comptes);
  return ecole;
}
