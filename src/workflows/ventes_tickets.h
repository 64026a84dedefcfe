#pragma once
#include <vector>

#include "core/calendrier_scolaire.h"
#include "forms/valeur.h"
#include "meals/tickets.h"
#include "pupils/classe.h"

class TEleve;
class TEleves;

/// What a pupil bought on a day.
struct TVenteEleve {
  const TEleve* Eleve = nullptr;
  TCategorie Section{};  ///< a pupil of neither section has no figures and is in no total
  TVentes Ventes;
};

/// The sales of a day, of one way of paying.
struct TVentesJour {
  TDateTime Jour = 0.0;
  std::vector<TVenteEleve> Eleves;
  TVentes Maternelle;
  TVentes Primaire;

  Currency Total() const { return Maternelle.Montant + Primaire.Montant; }
  /// Staff alone leave a day without figures.
  bool AvecChiffres() const { return Total() > Currency(); }
};

/// The days of the period on which a pupil paid more than 0, in order. None when it ends before it starts.
std::vector<TVentesJour> VentesDeTickets(const TEleves& eleves, const TPeriode& periode,
                                         TPaiementTicket type);

/// A line of the list of sales: its columns from "Date de vente" on. Nothing where no figure is shown; a
/// price is the text of its parameter.
TCellules LigneVentesJour(const TVentesJour& jour);
TCellules LigneVenteEleve(const TVenteEleve& vente);
/// The titles of those columns.
QStringList ColonnesVentes();
