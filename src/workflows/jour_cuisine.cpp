#include "workflows/jour_cuisine.h"

#include "meals/commandes.h"
#include "meals/generation_repas.h"
#include "pupils/eleves.h"

namespace {

constexpr bool TCommande::*kGarnitures[] = {&TCommande::FlgJambon, &TCommande::FlgFromage,
                                            &TCommande::FlgJambonFromage};

constexpr const char16_t* kTextes[kVarietes] = {
    u"jambon",         u"jambon beurre",         u"jambon mayonnaise",
    u"fromage",        u"fromage beurre",        u"fromage mayonnaise",
    u"jambon fromage", u"jambon fromage beurre", u"jambon fromage mayonnaise",
};

bool AAccompagnement(const TCommande& c, std::size_t accompagnement) {
  if (accompagnement == 1) return c.FlgBeurre;
  if (accompagnement == 2) return c.FlgMayonnaise;
  return !c.FlgBeurre && !c.FlgMayonnaise;
}

void Ajouter(TSandwichsDuJour& sandwichs, TEleve& eleve, const TCommande& commande) {
  sandwichs.Eleves.push_back(&eleve);
  for (std::size_t v = 0; v < kVarietes; ++v) sandwichs.Varietes[v] += EstDeVariete(commande, v);
}

void Compter(TJourCuisine& jour, TClasseDuJour& classe, TEleve& eleve, const TCommande& commande) {
  classe.Repas += commande.FlgRepas;
  classe.Dagos += commande.FlgDago;
  classe.Sandwichs += commande.FlgSandwich;
  classe.Autres += commande.FlgDago || commande.FlgSandwich;
  if (commande.FlgDago) Ajouter(jour.DagosDuJour, eleve, commande);
  if (commande.FlgSandwich) Ajouter(jour.SandwichsDuJour, eleve, commande);
  if (!commande.EstComplete()) ++jour.Incompletes;
}

}  // namespace

bool EstDeVariete(const TCommande& commande, std::size_t variete) {
  return commande.*kGarnitures[variete / 3] && AAccompagnement(commande, variete % 3);
}

QString TexteVariete(std::size_t variete) { return QString::fromUtf16(kTextes[variete]); }

TJourCuisine JourDeCuisine(const TEleves& eleves, TDateTime date) {
  TJourCuisine jour;
  jour.Jour = date;
  TCommandes& commandes = eleves.Commandes();
  for (const auto& classe : eleves.Classes()) {
    TClasseDuJour& compte = jour.Classes.emplace_back();
    compte.Classe = classe.get();
    for (TEleve* eleve : classe->ListeEleves)
      if (const TCommande* commande = commandes.Trouver(eleve->Id, date))
        Compter(jour, compte, *eleve, *commande);
    jour.Repas += compte.Repas;
    jour.Dagos += compte.Dagos;
    jour.Sandwichs += compte.Sandwichs;
  }
  return jour;
}

QString TLigneCuisine::Texte() const {
  const QString libelle = QString::fromUtf16(Libelle);
  return AvecNombre ? QString(libelle % u';' % QString::number(Nombre)) : libelle;
}

std::vector<TLigneCuisine> LignesDeClasse(const TClasseDuJour& classe, const TGenerationRepas& generation) {
  std::vector<TLigneCuisine> lignes = {
      {u"Repas Complet", classe.Repas, true},
      {generation.LigneSandwich, classe.Sandwichs, true},
      {generation.LigneDago, classe.Dagos, generation.LigneDagoAvecNombre},
  };
  std::erase_if(lignes, [](const TLigneCuisine& ligne) { return ligne.Nombre <= 0; });
  return lignes;
}
