#pragma once
#include "forms/signal.h"
#include "ui/commun/dialogue_base.h"

class MarqueEtat;
class QCalendarWidget;
class TFrmReleveCalendrier;

/// Study and meals of a pupil on a calendar: Enter or a double click adds the chosen day.
class VueReleveCalendrier : public DialogueBase {
  Q_OBJECT
 public:
  VueReleveCalendrier(TFrmReleveCalendrier& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  void Actualiser();
  /// The chosen day and whether it is marked, for a screen reader.
  void DireLeJour();

  TFrmReleveCalendrier& form_;
  QCalendarWidget* calendrier_;
  MarqueEtat* note_;
  TLien lien_;
};
