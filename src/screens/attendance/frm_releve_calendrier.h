#pragma once
#include <set>

#include "core/calendrier_scolaire.h"
#include "screens/contexte_ecran.h"

class TEleve;

/// What the calendar last showed, so that it opens there again.
struct TVuCalendrier {
  TDateTime Date = 0.0;  ///< 0: today
  int Type = -1;         ///< 0 study, 1 meals; -1 for none
};

/// "Relevé des services": study and meals of a pupil, added day by day on a calendar of the school year.
/// Modal.
class TFrmReleveCalendrier : public TForm {
 public:
  /// `vu` is read and kept up to date.
  TFrmReleveCalendrier(const TContexteEcran& contexte, const TEleve& eleve, TVuCalendrier& vu);

  const QString& NomEleve() const { return nom_; }
  /// "etudes", "repas"
  static QStringList Types();
  int Type() const { return vu_.Type; }
  void TypeChange(int type);
  /// First and last day that can be shown.
  const TPeriode& Etendue() const { return annee_; }
  TDateTime Date() const { return vu_.Date; }
  void DateChange(TDateTime date);
  bool EstMarque(TDateTime date) const { return marques_.contains(date); }
  /// The days that are marked.
  const std::set<TDateTime>& Marques() const { return marques_; }
  /// Adds the service on the chosen day.
  void PlannerCalendar1DblClick();
  void btnFermerClick() { Fermer(); }
  /// The last thing done, or why it was not.
  const QString& Note() const { return note_; }

 private:
  void Marquer();
  void Noter(const QString& texte);

  const TContexteEcran& contexte_;
  const TEleve& eleve_;
  TVuCalendrier& vu_;
  QString nom_;
  TPeriode annee_;
  std::set<TDateTime> marques_;
  QString note_;
};
