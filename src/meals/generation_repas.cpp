#include "meals/generation_repas.h"

namespace {

constexpr TGenerationRepas kPremiere{
    .NombreColonnes = 8,
    .Colonnes = {u"Repas", u"Dago", u"Sandwich", u"Jambon", u"Fromage", u"Jamb/From", u"Beurre", u"Mayon."},
    .Abreges = {u"R", u"D", u"S"},
    .PrixParSection = true,
    .AvecVerrou = true,
    .AvecSolde = false,
    .CompteurRepas = u"Repas Chauds :",
    .CompteurSandwichs = u"Sandwichs :",
    .CompteurSansRepas = u"Eleves sans repas :",
    .LigneSandwich = u"Sandwichs",
    .LigneDago = u"Dago",
    .LigneDagoAvecNombre = true,
    .DetailSandwich = u"sandwich",
    .DetailSandwichs = u" sandwich(s)",
    .DetailDago = u"dago",
    .DetailDagos = u" dago(s)",
    .FicheTitreDago = u"Nombre total de dagoberts : ",
    .FicheEntete = u"   -   Nombre de dagos/sandwich : ",
};

constexpr TGenerationRepas kSeconde{
    .NombreColonnes = 3,
    .Colonnes = {u"Repas", u"Soupe", u"Sandwich"},
    .Abreges = {u"R", u"So", u"Sa"},
    .PrixParSection = false,
    .AvecVerrou = false,
    .AvecSolde = true,
    .CompteurRepas = u"Repas Chauds :",
    .CompteurSandwichs = u"Soupe: ",
    .CompteurSansRepas = u"Eleves sans repas :",
    .LigneSandwich = u"Soupe",
    .LigneDago = u"Sandwich",
    .LigneDagoAvecNombre = false,
    .DetailSandwich = u"soupe",
    .DetailSandwichs = u" soupe(s)",
    .DetailDago = u"sandwich",
    .DetailDagos = u" sandwich(s)",
    .FicheTitreDago = u"Nombre total de soupes : ",
    .FicheEntete = u"   -   Nombre de soupe : ",
};

}  // namespace

const TGenerationRepas& GenerationRepas(bool nouvelle) { return nouvelle ? kSeconde : kPremiere; }
