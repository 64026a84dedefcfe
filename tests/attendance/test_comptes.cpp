#include "attendance/presences_particulieres.h"
#include "garderies_essai.h"

using namespace Essai;

namespace {

struct TComptesEssai : TGarderiesEssai {
  std::unique_ptr<TPresencesParticulieres> marques;

  void charger() {
    TGarderiesEssai::charger();
    marques = std::make_unique<TPresencesParticulieres>(*base, 2016);
    InitialiseTableParametreService(*presences);
  }
  int soir1(int eleve) { return presences->ServiceSoir1(eleve, 10, 2016, *marques, lignes); }
  int soir2(int eleve) { return presences->ServiceSoir2(eleve, 10, 2016, lignes); }
  void valeurs(TLigneParametreService ligne, int valeur, int maximum) {
    TParametreService service = presences->ParametreService(ligne);
    service.ServiceValeur = valeur;
    service.ServiceMaximum = maximum;
    presences->SetParametreService(ligne, service);
  }
};

constexpr auto kSoir1 = TLigneParametreService::Soir1, kSoir2 = TLigneParametreService::Soir2,
               kMercredi1 = TLigneParametreService::Mercredi1;

}  // namespace

TEST_F(TComptesEssai, FenetresDuSoir) {
  // What a single stay comes to: "-" when it gives no line at all.
  const struct {
    const char *date, *entree, *sortie, *soir1, *soir2;
  } cas[] = {
      {"2016-10-03", "15:45", "16:59", "2", "-"}, {"2016-10-03", "15:44", "16:59", "-", "-"},
      {"2016-10-03", "15:44", "17:00", "2", "-"}, {"2016-10-03", "", "16:59", "-", "-"},
      {"2016-10-03", "", "17:30", "2", "2"},      {"2016-10-04", "16:30", "17:30", "2", "2"},
      {"2016-10-06", "17:00", "18:15", "-", "2"}, {"2016-10-07", "17:00", "18:16", "-", "2"},
      {"2016-10-07", "17:01", "18:16", "-", "-"}, {"2016-10-03", "16:00", "18:16", "2", "2"},
      {"2016-10-03", "17:00", "", "-", "-"},      {"2016-10-03", "16:30", "16:34", "0", "-"},
      {"2016-10-03", "17:30", "17:34", "-", "0"}, {"2016-10-05", "16:00", "17:30", "-", "-"},
      {"2016-10-08", "16:00", "17:30", "-", "-"}, {"2016-11-03", "16:00", "17:30", "-", "-"},
  };
  for (const auto& c : cas) ecole.unEleve().scan(Garderie, c.date, c.entree, c.sortie);
  auto etude = ecole.unEleve().scan(Etude, "2016-10-03", "16:00", "17:30");
  charger();
  for (int i = 0; i < static_cast<int>(std::size(cas)); ++i) {
    const int un = soir1(i + 1);
    EXPECT_EQ(lignes.empty() ? "-" : textes(), cas[i].soir1) << i;
    EXPECT_EQ(un, cas[i].soir1[0] == '2' ? 2 : 0) << i;
    const int deux = soir2(i + 1);
    EXPECT_EQ(lignes.empty() ? "-" : textes(), cas[i].soir2) << i;
    EXPECT_EQ(deux, cas[i].soir2[0] == '2' ? 2 : 0) << i;
  }
  EXPECT_EQ(soir1(etude.Id) + soir2(etude.Id), 0);
  EXPECT_EQ(presences->ParametreService(TLigneParametreService::Mercredi2).ServiceHeureFin, H("18:00"));
}

TEST_F(TComptesEssai, PlafondEtLignesDuSoir) {
  auto eleve = ecole.unEleve();
  // A short stay before the one that counts repeats the last line; one after it gives no line.
  eleve.scan(Garderie, "2016-10-03", "16:00", "16:04").scan(Garderie, "2016-10-03", "16:10", "17:30");
  eleve.scan(Garderie, "2016-10-03", "16:20", "17:30");
  for (const char* jour : {"04", "06", "07", "10", "11", "13", "14", "17", "18"})
    eleve.scan(Garderie, (std::string("2016-10-") + jour).c_str(), "16:00", "17:30");
  eleve.scan(Garderie, "2016-10-20", "16:00", "16:04");
  auto etudiant = ecole.unEleve().scan(Garderie, "2016-10-03", "16:00", "17:30").marque(2, 10);
  charger();
  EXPECT_EQ(soir1(1), 18);  // ten days make 20
  EXPECT_EQ(textes(), "0 2 2 2 2 2 2 2 2 2 0 0");
  EXPECT_EQ(soir1(etudiant.Id), 0);
  EXPECT_EQ(textes(), "0");
  EXPECT_EQ(soir2(etudiant.Id), 2);
  // The second evening adds its own amount, but shows and is cut by that of the first.
  valeurs(kSoir1, 2, 7);
  valeurs(kSoir2, 3, 100);
  EXPECT_EQ(soir2(1), 7);
  EXPECT_EQ(textes(), "2 2 0 0 0 0 0 0 0 0");
}

TEST_F(TComptesEssai, Mercredis) {
  const auto mercredis = [&](const char* entree, const char* sortie) {
    auto eleve = ecole.unEleve();
    for (const char* jour : {"2016-10-05", "2016-10-12", "2016-10-19", "2016-10-26"})
      eleve.scan(Garderie, jour, entree, sortie);
    return eleve.Id;
  };
  const int courts = mercredis("12:15", "14:00"), longs = mercredis("12:30", "14:01");
  const int tropTot = mercredis("12:14", "14:00"), sansEntree = mercredis("", "17:00");
  auto melange = ecole.unEleve();
  melange.scan(Garderie, "2016-10-05", "12:30", "13:00").scan(Garderie, "2016-10-05", "13:10", "18:00");
  melange.scan(Garderie, "2016-10-12", "12:30", "12:34").scan(Garderie, "2016-10-12", "12:40", "18:00");
  melange.scan(Garderie, "2016-10-13", "12:40", "18:00").scan(Repas, "2016-10-19", "12:40", "18:00");
  charger();
  const auto compte = [&](int eleve) {
    const TMercrediMois m = presences->ServiceMercredi(eleve, 10, 2016, lignes);
    return u"%1 %2 %3"_s.arg(m.Total).arg(m.Longs).arg(m.Courts).toStdString() + ": " + textes();
  };
  EXPECT_EQ(compte(courts), "8 0 4: 2 2 2 2");
  EXPECT_EQ(compte(longs), "18 2 0: 8 8 8 0");  // the third reaches over 18
  EXPECT_EQ(compte(tropTot), "0 0 0: ");
  EXPECT_EQ(compte(sansEntree), "0 0 0: ");
  EXPECT_EQ(compte(melange.Id), "10 1 1: 2 2 8");
  valeurs(kMercredi1, 2, 5);
  EXPECT_EQ(compte(courts), "5 0 2: 2 2 0 0");
  EXPECT_EQ(compte(longs), "5 2 0: 8 8 8 0");  // the ceiling is that of the short row
}
