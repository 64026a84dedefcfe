#pragma once
#include "core/parametres.h"
#include "forms/champs.h"
#include "screens/contexte_ecran.h"

/// Characters that a setting keeps.
inline constexpr int kParametreMaximum = 1000;

/// The field of a setting, edited and stored as the kind of the setting says: a text, trimmed; "1" or "0" of
/// a box. A number is typed as a text, which its screen judges.
TChampDe<TParametres> Reglage(TParam param, TChamp champ);
/// One text for each choice of a list; the first one stands for any other text.
TChampDe<TParametres> ReglageChoix(TParam param, const QStringList& valeurs, TChamp champ);

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
  TLien refus_;
};
