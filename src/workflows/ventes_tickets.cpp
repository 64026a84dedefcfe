#include "workflows/ventes_tickets.h"

#include <map>

#include "core/formats.h"
#include "pupils/eleves.h"
#include "workflows/prix_repas.h"

using namespace Qt::StringLiterals;

namespace {

void Cumuler(TVentes& total, const TVentes& ventes) {
  total.Nombre += ventes.Nombre;
  total.Montant += ventes.Montant;
}

void Ajouter(TVentesJour& jour, const TEleve& eleve, const TVentes& ventes) {
  const TCategorie section = eleve.Categorie();
  jour.Eleves.push_back({&eleve, section, ventes});
  if (section == TCategorie::Maternelle) Cumuler(jour.Maternelle, ventes);
  if (section == TCategorie::Primaire) Cumuler(jour.Primaire, ventes);
}

/// Number, price and amount of a section; three empty cells when it is not shown.
void AjouterChiffres(TCellules& cellules, bool montres, TCategorie section, const TVentes& ventes) {
  if (montres)
    cellules.insert(cellules.end(),
                    {ventes.Nombre, QString(TextePrixSection(section) % u" €"), ventes.Montant});
  else
    cellules.resize(cellules.size() + 3);
}

}  // namespace

std::vector<TVentesJour> VentesDeTickets(const TEleves& eleves, const TPeriode& periode,
                                         TPaiementTicket type) {
  eleves.LireTickets(eleves.Tous());
  std::map<TDateTime, TVentesJour> jours;
  for (const TEleve& eleve : eleves)
    for (const auto& [date, ventes] : eleve.GetTickets().Ventes(periode, type)) {
      if (ventes.Montant <= Currency()) continue;
      TVentesJour& jour = jours[date];
      jour.Jour = date;
      Ajouter(jour, eleve, ventes);
    }
  std::vector<TVentesJour> liste;
  for (auto& [date, jour] : jours) liste.push_back(std::move(jour));
  return liste;
}

QStringList ColonnesVentes() {
  return {u"Date de vente"_s,    u"Tickets maternelle"_s, u"Prix unitaire"_s,    u"Montant maternelle"_s,
          u"Tickets primaire"_s, u"Prix unitaire"_s,      u"Montant primaire"_s, u"Total général"_s};
}

TCellules LigneVentesJour(const TVentesJour& jour) {
  TCellules cellules{FormatDate(jour.Jour)};
  AjouterChiffres(cellules, jour.AvecChiffres(), TCategorie::Maternelle, jour.Maternelle);
  AjouterChiffres(cellules, jour.AvecChiffres(), TCategorie::Primaire, jour.Primaire);
  cellules.push_back(jour.AvecChiffres() ? TValeurVue(jour.Total()) : TValeurVue());
  return cellules;
}

TCellules LigneVenteEleve(const TVenteEleve& vente) {
  TCellules cellules{vente.Eleve->NomComplet()};
  for (const TCategorie section : {TCategorie::Maternelle, TCategorie::Primaire})
    AjouterChiffres(cellules, vente.Section == section, section, vente.Ventes);
  cellules.emplace_back();
  return cellules;
}
