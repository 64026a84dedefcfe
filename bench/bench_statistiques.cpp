// What the office asks of the whole school, beside what it costs to open the year.
#include <cstdio>
#include <functional>

#include "application/globals.h"
#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "documents/catalogue.h"
#include "pupils/eleves.h"
#include "workflows/attestations.h"
#include "workflows/statistiques.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTours = 5;

double Tours(const std::function<void()>& travail) {
  std::vector<double> durees;
  for (int i = 0; i < kTours; ++i) durees.push_back(Duree(travail));
  return Mediane(durees);
}

/// The quarter of the Office, from the database to its tree.
void Trimestre(TEcole& ecole, const TDonneesAnnee& annee) {
  TChoixDocument choix;
  choix.DateDebut = EncodeDate(TEcole::kAnnee, 10, 1);
  choix.DateFin = EncodeDate(TEcole::kAnnee, 12, 31);
  choix.Eleves = annee.Eleves->Tous();
  FaireDocument({*annee.Eleves, ecole.Parametres()},
                *TrouverTitre(u"Detail O.N.E. des accueils extrascolaires"), choix);
}

/// The sheets of all pupils; they open the year once more. The memory of the process with them.
double Attester(TEcole& ecole, const TDonneesAnnee& annee) {
  const std::vector<TEleve*> tous = annee.Eleves->Tous();
  QStringList messages;
  TAttestations attestations(*annee.Eleves, ecole.Parametres(), kAnneeFiscale);
  if (attestations.Feuilles(tous, messages).size() != tous.size() || !messages.isEmpty())
    throw Exception(u"Il manque des attestations."_s);
  return Memoire();
}

}  // namespace

void MesurerStatistiques(TEcole& ecole) {
  std::unique_ptr<TDonneesAnnee> annee;
  const double vide = Memoire();
  annee = ecole.Charger();
  const double memoire = Memoire() - vide;
  const double charge = Tours([&] { annee = ecole.Charger(); });
  const auto barre = [&](const char* nom, double duree, double sur, double limite) {
    Barre(nom, duree / sur, limite, true);
    std::fprintf(stderr, "# %s: %.3f s, %.3f s\n", nom, duree, sur);
  };

  const double soldes = Tours([&] {
    for (const TEleve& eleve : *annee->Eleves) eleve.Solde(true, true);
  });
  const double jusque = Tours([&] { Impayes(*annee->Eleves, {.Etendue = TEtendue::Jusque, .Mois = 9}); });
  barre("unpaid until September, all pupils / their balances", jusque, soldes, 3.0);
  barre("a quarter / year load", Tours([&] { Trimestre(ecole, *annee); }), charge, 0.5);
  barre("entries and exits of the year, closed / year load",
        Tours([&] { ElevesPresents(*annee->Eleves, BornesAnnee(TEcole::kAnnee)); }), charge, 1.0);

  Globals.TarifsGarderies = std::make_unique<TTarifsGarderies>(ecole.Base());
  ecole.Regler(TParam::CalculAttestation, u"1"_s);
  for (TEleve& eleve : *annee->Eleves) eleve.DateNaissance = EncodeDate(2008, 5, 1);
  const double avant = Memoire();
  double avec = 0.0;
  barre("attestations of all pupils / year load", Tours([&] { avec = Attester(ecole, *annee); }), charge,
        2.5);
  Barre("their memory / that of a year load", (avec - avant) / memoire, 2.0, true);
  Globals.TarifsGarderies.reset();
}
