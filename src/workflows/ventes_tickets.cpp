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

QString Euros(const QString& montant) { return montant % u" €"; }

/// Number, price and amount of a section.
QStringList Chiffres(TCategorie section, const TVentes& ventes) {
  return {QString::number(ventes.Nombre), Euros(TextePrixSection(section)),
          Euros(FormatDeuxDecimales(ventes.Montant))};
}

const QStringList kSansChiffres(3, QString());

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

QStringList LigneVentesJour(const TVentesJour& jour) {
  const QString date = FormatDate(jour.Jour);
  if (!jour.AvecChiffres()) return QStringList(date) + kSansChiffres + kSansChiffres + QStringList(QString());
  return QStringList(date) + Chiffres(TCategorie::Maternelle, jour.Maternelle) +
         Chiffres(TCategorie::Primaire, jour.Primaire) +
         QStringList(Euros(FormatDeuxDecimales(jour.Total())));
}

QStringList LigneVenteEleve(const TVenteEleve& vente) {
  const auto si = [&](TCategorie section) {
    return vente.Section == section ? Chiffres(section, vente.Ventes) : kSansChiffres;
  };
  return QStringList(vente.Eleve->NomComplet()) + si(TCategorie::Maternelle) + si(TCategorie::Primaire) +
         QStringList(QString());
}
