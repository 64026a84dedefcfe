// The year load.
#include <cstdio>

#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "core/curseur.h"

namespace {

/// The rows of a year load, fetched and thrown away.
void LireLesRangees(TEcole& ecole) {
  for (const char* sql :
       {"SELECT * FROM ELEVES_CLASSES WHERE ANNEE_SCOLAIRE=2016",
        "SELECT * FROM ELEVES, ELEVES_CLASSES WHERE ANNEE_SCOLAIRE=2016 AND "
        "ELEVES.ELEVE_ID=ELEVES_CLASSES.ELEVE_ID "
        "ORDER BY CODE_IMPLANTATION, ELEVES_CLASSES.CLASSE, ELEVES_CLASSES.SOUS_CLASSE, NOM, PRENOM",
        "SELECT * FROM PRESENCES WHERE DATE_RELEVE >= '09/01/2016' AND DATE_RELEVE <= '06/30/2017' ORDER BY "
        "DATE_RELEVE, HEURE_ENTREE"}) {
    TCurseur ligne(ecole.Base(), QString::fromLatin1(sql));
    while (ligne.Suivant()) {
    }
  }
}

}  // namespace

void MesurerChargement(TEcole& ecole) {
  std::vector<double> nues, charges;
  double memoire = 0.0;
  std::unique_ptr<TDonneesAnnee> annee;
  for (int i = 0; i < 7; ++i) {
    nues.push_back(Duree([&] { LireLesRangees(ecole); }));
    annee.reset();
    const double avant = Memoire();
    charges.push_back(Duree([&] { annee = ecole.Charger(); }));
    if (i == 0) memoire = Memoire() - avant;
  }
  Barre("year load / bare fetch of the same rows", Mediane(charges) / Mediane(nues), 1.5, true);
  std::fprintf(stderr, "# year load %.3f s, bare fetch %.3f s, memory of a year load %.0f MB\n",
               Mediane(charges), Mediane(nues), memoire);
}
