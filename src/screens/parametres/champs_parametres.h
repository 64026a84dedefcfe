#pragma once
#include "core/parametres.h"
#include "forms/champs.h"
#include "screens/contexte_ecran.h"

/// What a field does with its setting: the text, trimmed; "1" or "0" of a box; one text for each choice of a
/// list, whose first one stands for any other text.
TAcces<TParametres> Reglage(TParam param);
TAcces<TParametres> ReglageCoche(TParam param);
TAcces<TParametres> ReglageChoix(TParam param, const QStringList& valeurs);

/// Fields that are settings of the school. Each writes its own, and saves, as soon as it is left or clicked,
/// also when it holds what it held.
class TChampsParametres : public TChampsDe<TParametres> {
 public:
  TChampsParametres(TContexteEcran& contexte, TTableChamps<TParametres> table);

  /// Fills every field from its setting; what is being typed stays.
  void Remplir() { Montrer(Globals.Parametres.get()); }
  /// Saves the settings. Raises EDistributor after memory is again what the table holds.
  static void Sauver();

  /// Before a field is saved; raises EConvertError to refuse it.
  std::function<void(const TChamp&)> Avant;
  /// What a text that was stored will not do; "" for nothing.
  std::function<QString(const TChamp&, const QString&)> Avis;

 private:
  void Enregistrer(const TChamp& champ);

  TContexteEcran& contexte_;
};
