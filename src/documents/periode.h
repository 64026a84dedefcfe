#pragma once
#include <QString>

#include "core/calendrier_scolaire.h"

/// "La première date est après la seconde."; "" for a period whose days are in order.
QString FautePeriode(const TPeriode& periode);

/// The days that a document is about, both included, and the school year they are taken in.
struct TPeriodeDocument {
  int Annee = 0;
  TDateTime DateDebut = 0.0;
  TDateTime DateFin = 0.0;

  /// The first day of the month lies in the period; false for what is no month.
  bool Commence(int mois) const;
  /// The whole month lies in the period; false for what is no month.
  bool Contient(int mois) const;
  TPeriode Jours() const { return {DateDebut, DateFin}; }
  /// From the start of the school year to the day before; the last day may lie before the first.
  TPeriode Avant() const { return {BornesAnnee(Annee).Premier, DateDebut - 1}; }
  /// The month that the period is, 1 to 12; 0 when it is not exactly one.
  int MoisFacture() const { return MoisExact(Annee, DateDebut, DateFin); }
  /// As shown to the reader: "du mois d'octobre 2016", "de l'année scolaire 2016 - 2017" or
  /// "du 3 octobre 2016 au 2 novembre 2016".
  QString PeriodeTexte() const;
};
