// The pricing of a whole school.
#include <cstdio>

#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "core/calendrier_scolaire.h"
#include "pupils/service.h"

namespace {

Currency ToutFacturer(const TDonneesAnnee& annee) {
  Currency total;
  TLignesService lignes;
  for (const TEleve& eleve : *annee.Eleves)
    for (const int mois : {9, 10, 11, 12, 1, 2, 3, 4, 5, 6})
      for (const TService service : kServices)
        total += eleve.CoutService(service, BornesMois(mois, TEcole::kAnnee), lignes);
  return total;
}

/// The day-care amounts of a pupil's months, each by a walk over all the records of the school.
Currency FacturerEnMarchant(const TDonneesAnnee& annee, const TTarifsGarderies& tarifs, const TEleve& eleve) {
  Currency total;
  for (const int mois : {9, 10, 11, 12, 1, 2, 3, 4, 5, 6}) {
    const TPeriode periode = BornesMois(mois, TEcole::kAnnee);
    for (const TTypeFamille famille :
         {TTypeFamille::Matin, TTypeFamille::Midi, TTypeFamille::Soir, TTypeFamille::Mercredi,
          TTypeFamille::Etude, TTypeFamille::Repas, TTypeFamille::Soupe})
      for (const TPresence& p : *annee.Presences) {
        if (p.EleveId != eleve.Id || p.DateReleve < periode.Premier || p.DateReleve > periode.Dernier)
          continue;
        const TClassement classement =
            tarifs.ChercheFamille(GroupeDe(p.TypePresence), p.HeureSortie, p.HeureEntree, p.DateReleve);
        if (classement.Famille != famille) continue;
        total +=
            tarifs.CoutPresence(famille, classement.Scan, eleve.Flg2eEnfant, p.HeureSortie, p.HeureEntree);
      }
  }
  return total;
}

}  // namespace

void MesurerTarification(TEcole& ecole, const QTemporaryDir& dossier) {
  const auto annee = ecole.Charger();
  TEcole grande(dossier, 1000, 500000);
  const auto grandeAnnee = grande.Charger();
  std::vector<double> entiers, doubles;
  for (int i = 0; i < 9; ++i) {  // in turns, so that a busy machine slows both
    entiers.push_back(Duree([&] { ToutFacturer(*annee); }));
    doubles.push_back(Duree([&] { ToutFacturer(*grandeAnnee); }));
  }
  const double moteur = Mediane(entiers);
  constexpr int kEchantillon = 5;  // pupils; a walk costs the same for each
  const double marche = Duree([&] {
    for (int i = 0; i < kEchantillon; ++i)
      FacturerEnMarchant(*annee, ecole.Tarifs(), (*annee->Eleves)[i * 97]);
  });
  Barre("plain walk / pricing seven services of every pupil and month", marche * 500 / kEchantillon / moteur,
        100.0, false);
  Barre("pricing 1,000 pupils and twice the records / 500 pupils", Mediane(doubles) / moteur, 2.2, true);
  std::fprintf(stderr, "# pricing %.3f s\n", moteur);
}
