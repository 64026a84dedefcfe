#include "support/controleur_essai.h"
#include "workflows/total_ecole.h"

// Morning 0.75, evening counts 2 + 2, a short and a long Wednesday 2 + 8, midday flat rate 15, a meal 3.10,
// study flat rate 25: each belongs to the month or not by the pupil's flag and markers.
TEST(TotalEcole, AMonthOfEachKindOfPupil) {
  using namespace Essai;
  TBaseEssai base;
  TEcoleEssai ecole(base);
  ecole.parametre(102, "3,10");
  ecole.tarif(Matin, TousLesJours, "07:00", "08:00", Forfait, "0.75", ScanPresence);
  const auto vivre = [&] {
    TEleveEssai eleve = ecole.unEleve().enClasse("P1", "A");
    return eleve.scan(Garderie, "2017-01-09", "07:30")
        .scan(Garderie, "2017-01-09", "16:00", "18:00")
        .scan(Garderie, "2017-01-11", "12:30", "14:00")
        .scan(Garderie, "2017-01-18", "12:30", "17:00")
        .scan(Repas, "2017-01-10", "12:00");
  };
  const int ordinaire = vivre().marque(3, 2).Id;
  const int troisieme = vivre().avec("FLG_3E_ENFANT").marque(2, 1).Id;
  const int rentre = vivre().marque(1, 1).marque(2, 1).Id;
  TControleurEssai essai(base);
  essai.Charger();
  const Currency total = CalculTotalEcole(1);
  const auto mois = [](int id) {
    return CalculTotalEleve(*Globals.Eleves->TrouverParId(id), 1, *Globals.Presences,
                            *Globals.PresencesParticulieres);
  };
  // Both evening rows take the stay of 16:00 to 18:00: each is overlapped from its start to its end.
  EXPECT_EQ(FormatQuatreDecimales(mois(ordinaire)), u"32.8500");  // 0.75 + 2 + 2 + 10 + 15 + 3.10
  EXPECT_EQ(FormatQuatreDecimales(mois(troisieme)), u"28.1000");  // 3.10 + 25
  EXPECT_EQ(FormatQuatreDecimales(mois(rentre)), u"40.8500");     // 0.75 + 0 + 2 + 10 + 3.10 + 25
  EXPECT_EQ(FormatQuatreDecimales(total), u"101.8000");
  EXPECT_EQ(CalculTotalEcole(2).EnBrut(), 15 * 10000) << "one midday flat rate, without a presence";
}
