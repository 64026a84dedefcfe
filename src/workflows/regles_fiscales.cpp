#include "workflows/regles_fiscales.h"

namespace {

/// By year of income, with the limits that the tax administration publishes for it. In each, in the order of
/// the services: morning, midday, evening, Wednesday and study are care; meal and soup are not. An amount
/// that is not known is written on no sheet.
constexpr TReglesFiscales kRegles[] = {
    {0, 14, 21, Currency(), {true, true, true, true, true, false, false}},
    {2020, 14, 21, Currency::Brut(130000), {true, true, true, true, true, false, false}},
    {2021, 14, 21, Currency::Brut(137000), {true, true, true, true, true, false, false}},
    {2022, 14, 21, Currency::Brut(144000), {true, true, true, true, true, false, false}},
    {2023, 14, 21, Currency::Brut(157000), {true, true, true, true, true, false, false}},
    {2024, 14, 21, Currency::Brut(164000), {true, true, true, true, true, false, false}},
    {2025, 14, 21, Currency::Brut(169000), {true, true, true, true, true, false, false}},
    {2026, 14, 21, Currency(), {true, true, true, true, true, false, false}},
};

}  // namespace

const TReglesFiscales& ReglesFiscales(int anneeRevenus) {
  const TReglesFiscales* regles = &kRegles[0];
  for (const TReglesFiscales& suivantes : kRegles)
    if (suivantes.Depuis <= anneeRevenus) regles = &suivantes;
  return *regles;
}
