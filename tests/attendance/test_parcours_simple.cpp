// The engine's look-ups against a plain walk over all records and rows for each amount, on random data
// that changes between the rounds. The price of a presence, once it is classed, is another test's.

#include <random>

#include "garderies_essai.h"

namespace {

constexpr int kEleves = 12;

int Groupe(int famille) { return famille < 4 || famille == 7 ? 1 : famille == 4 ? 2 : famille == 6 ? 4 : 0; }

bool Tient(TTypeJour type, TDateTime date) {
  const int jour = JourLundi1(date), t = static_cast<int>(type);
  return jour < 6 && (t == 6 || t == jour || (t == 7 && jour != 3));
}

struct TParcours {
  const TTarifsGarderies& tarifs;
  const TPresences& presences;

  std::pair<int, int> familleEtScan(int groupe, const TPresence& p) const {
    const TTarifGarderie *ligne = nullptr, *resultat = nullptr;
    double debut = 0, fin = 1;  // of the best row so far
    const auto convient = [&](const TTarifGarderie& t) {
      return Groupe(static_cast<int>(t.TypeFamille)) == groupe && Tient(t.TypeJour, p.DateReleve);
    };
    for (const TTarifGarderie& t : tarifs)
      if (p.HeureEntree > 0 && convient(t) && t.HeureDebutScan <= p.HeureEntree && t.HeureDebutScan > debut) {
        ligne = &t;
        debut = t.HeureDebutScan;
      }
    if (ligne && p.HeureEntree <= ligne->HeureFinScan) resultat = ligne;
    for (const TTarifGarderie& t : tarifs)
      if (p.HeureSortie > 0 && convient(t) && t.HeureFinScan >= p.HeureSortie && t.HeureFinScan < fin) {
        ligne = &t;
        fin = t.HeureFinScan;
      }
    if (p.HeureSortie > 0 && ligne) resultat = p.HeureSortie < ligne->HeureDebutScan ? nullptr : ligne;
    if (!resultat) return {0, 0};
    return {static_cast<int>(resultat->TypeFamille), static_cast<int>(resultat->TypeScan)};
  }

  bool autre(const TPresence& p, int famille) const {
    for (const TPresence& q : presences) {
      const int type = static_cast<int>(q.TypePresence), groupe = type == 1 ? 1 : type == 4 ? 2 : 0;
      if (q.EleveId == p.EleveId && q.DateReleve == p.DateReleve && familleEtScan(groupe, q).first == famille)
        return true;
    }
    return false;
  }

  /// A family of 1 to 7; meals cost 3 euro.
  std::int64_t service(int famille, int eleve, const TPeriode& periode, bool deux) const {
    const int types[] = {0, 1, 1, 1, 4, 2, 3, 1};
    const auto f = static_cast<TTypeFamille>(famille);
    std::int64_t total = 0;
    std::vector<TDateTime> vues;
    for (const TPresence& p : presences) {
      if (p.EleveId != eleve || p.DateReleve < periode.Premier || p.DateReleve > periode.Dernier) continue;
      const auto [trouvee, scan] = familleEtScan(Groupe(famille), p);
      if (static_cast<int>(p.TypePresence) != types[famille] || (famille != 5 && trouvee != famille))
        continue;
      std::int64_t a = 30000;
      if (famille != 5)
        a = tarifs
                .CoutPresence(f, static_cast<TTypeScan>(scan), deux && famille != 6, p.HeureSortie,
                              p.HeureEntree)
                .EnBrut();
      if (famille == 5 || famille == 6) {
        if (std::ranges::count(vues, p.DateReleve) > 0 || JourLundi1(p.DateReleve) > 5) a = 0;
        vues.push_back(p.DateReleve);
      }
      const bool venu = (famille == 2 && (autre(p, 1) || autre(p, 7))) || (famille == 7 && autre(p, 1));
      total += presences.Regles.GarderieUnique && a > 0 && venu ? a - 10000 : a;
    }
    return total;
  }
};

struct TParcoursSimple : TGarderiesEssai {
  std::mt19937 hasard{20160901};
  int factures = 0;

  int tire(int de, int a) { return de + static_cast<int>(hasard() % static_cast<unsigned>(a - de + 1)); }

  void tarif() {
    auto t = std::make_unique<TTarifGarderie>();
    t->TypeFamille = static_cast<TTypeFamille>(tire(0, 7));
    t->TypeJour = static_cast<TTypeJour>(tire(0, 2) != 0 ? tire(6, 7) : tire(1, 5));
    t->TypeForfait = static_cast<TTypeForfait>(tire(1, 5));
    t->TypeScan = static_cast<TTypeScan>(tire(1, 3));
    const int debut = tire(7 * 12, 17 * 12), fin = debut + tire(0, 48);
    t->HeureDebutScan = EncodeTime(debut / 12, debut % 12 * 5);
    t->HeureFinScan = EncodeTime(fin / 12, fin % 12 * 5);
    t->Cout = Currency::Brut(tire(1, 99) * 137);
    t->Cout2eEnfant = Currency::Brut(tire(1, 99) * 71);
    tarifs->Add(std::move(t));
  }
  void remplir(TPresence& p) {
    const auto heure = [&] { return tire(0, 2) != 0 ? EncodeTime(tire(7, 19), tire(0, 11) * 5) : 0.0; };
    p.EleveId = tire(1, kEleves);
    p.TypePresence = static_cast<TTypePresence>(tire(0, 1) != 0 ? 1 : tire(2, 4));
    p.DateReleve = J("2016-10-01") + tire(0, 60);
    p.HeureEntree = heure();
    p.HeureSortie = heure();
  }
  void comparer() {
    const TPresences& p = *presences;
    const TParcours simple{*tarifs, p};
    constexpr auto kAucune = TTypeActivitesExt::Aucune;
    for (int i = 0; i < 2 * kEleves; ++i) {
      const int eleve = i / 2 + 1;
      const bool deux = eleve % 3 == 0;
      const TPeriode b = BornesMois(10 + i % 2, 2016);
      const Currency montants[] = {p.CoutGarderieMatin(eleve, b, deux, lignes),
                                   p.CoutGarderieSoir(eleve, b, deux, kAucune, nullptr, lignes),
                                   p.CoutGarderieMercredi(eleve, b, deux, kAucune, nullptr, lignes),
                                   p.CoutEtude(eleve, b, deux, lignes),
                                   p.CoutRepas(eleve, b, 1, lignes),
                                   p.CoutSoupe(eleve, b, lignes),
                                   p.CoutGarderieMidi(eleve, b, deux, lignes)};
      for (int f = 1; f <= 7; ++f) {
        if (f == 3 && p.Regles.GarderieUnique) continue;
        ASSERT_EQ(montants[f - 1].EnBrut(), simple.service(f, eleve, b, deux)) << f << " " << eleve;
        factures += montants[f - 1] != Currency() ? 1 : 0;
      }
    }
  }
};

}  // namespace

TEST_F(TParcoursSimple, MemesMontants) {
  charger();
  regles.PrixRepas[1] = Currency::Euros(3);
  TCollection<TPresence>& releves = *presences;
  for (int i = 0; i < 24; ++i) tarif();
  for (int i = 0; i < 1500; ++i) {
    auto p = std::make_unique<TPresence>();
    remplir(*p);
    releves.Add(std::move(p));
  }
  for (int tour = 0; tour < 6; ++tour) {
    regles.GarderieUnique = tour % 2 == 1;
    comparer();
    for (int i = 0; i < 60; ++i) {
      TPresence& p = releves[tire(0, releves.Count() - 1)];
      if (i % 3 == 0) {
        presences->Remove(p);
      } else {
        remplir(p);
        presences->Add(p);
      }
    }
    tarifs->Remove((*tarifs)[tire(0, tarifs->Count() - 1)]);
    tarif();
  }
  EXPECT_GT(factures, 400);
}
