#include "attendance/parametres_service.h"

#include "attendance/presences.h"

namespace {

struct TConstante {
  const char16_t *Libelle, *Debut, *Fin;
  int Valeur, Maximum;
};

constexpr std::array<TConstante, 5> kServices{{
    {u"Garderie du matin", u"07:00", u"08:00", 2, 18},
    {u"Garderie du soir 1", u"16:00", u"17:00", 2, 18},
    {u"Garderie du soir 2", u"17:00", u"18:00", 2, 18},
    {u"Garderie du mercredi 1", u"12:30", u"14:00", 2, 18},
    {u"Garderie du mercredi 2", u"12:30", u"18:00", 8, 18},
}};

}  // namespace

void InitialiseTableParametreService(TPresences& presences) {
  for (std::size_t i = 0; i < kServices.size(); ++i) {
    const TConstante& service = kServices[i];
    presences.SetParametreService(
        static_cast<TLigneParametreService>(i),
        {QString::fromUtf16(service.Libelle), QString::fromUtf16(service.Debut),
         QString::fromUtf16(service.Fin), 0.0, 0.0, service.Valeur, service.Maximum});
  }
}
