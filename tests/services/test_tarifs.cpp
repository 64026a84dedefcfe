#include "services/tarifs_garderies.h"
#include "support/ecole_essai.h"

using namespace Essai;

namespace {

constexpr const char *kLundi = "2016-10-03", *kMercredi = "2016-10-05", *kSamedi = "2016-10-08";

struct TTarifsEssai : TEssaiEcole {
  std::unique_ptr<TTarifsGarderies> tarifs;

  void charger() { tarifs = std::make_unique<TTarifsGarderies>(*base); }
  TClassement cherche(TGroupe groupe, const char* entree, const char* sortie, const char* date = kLundi) {
    return tarifs->ChercheFamille(groupe, H(sortie), H(entree), J(date));
  }
  /// Family and start of the row found: "1 07:00"; "0 -" when there is none.
  std::string trouve(TGroupe groupe, const char* entree, const char* sortie, const char* date = kLundi) {
    const TClassement c = cherche(groupe, entree, sortie, date);
    return std::to_string(static_cast<int>(c.Famille)) +
           (c.Tarif == nullptr ? " -"
                               : HeureVersQt(c.Tarif->HeureDebutScan).toString(u" hh:mm"_s).toStdString());
  }
  std::string cout(int famille, int scan, const char* entree, const char* sortie, bool deuxieme = false) {
    return Euros(tarifs->CoutPresence(static_cast<TTypeFamille>(famille), static_cast<TTypeScan>(scan),
                                      deuxieme, H(sortie), H(entree)));
  }
};

std::unique_ptr<TTarifGarderie> Tarif(int famille, const char* debut, const char* fin, int euros) {
  auto tarif = std::make_unique<TTarifGarderie>();
  tarif->TypeFamille = static_cast<TTypeFamille>(famille);
  tarif->TypeJour = TTypeJour::TousLesJours;
  tarif->TypeForfait = TTypeForfait::Periode;
  tarif->TypeScan = TTypeScan::Sortie;
  tarif->HeureDebutScan = H(debut);
  tarif->HeureFinScan = H(fin);
  tarif->Cout = Currency::Euros(euros);
  return tarif;
}

}  // namespace

TEST(TypesTarif, GroupesEtJours) {
  const int groupes[] = {1, 1, 1, 1, 2, 0, 4, 1, 0};
  for (int famille = 0; famille < 9; ++famille)
    EXPECT_EQ(static_cast<int>(GroupeTarif(static_cast<TTypeFamille>(famille))), groupes[famille]) << famille;
  const char* const jours[] = {"", "1", "2", "3", "4", "5", "12345", "1245", ""};
  for (int type = 0; type < 9; ++type) {
    std::string tenus;
    for (int jour = 1; jour <= 7; ++jour)
      if (JourConvient(static_cast<TTypeJour>(type), J(kLundi) + jour - 1)) tenus += std::to_string(jour);
    EXPECT_EQ(tenus, jours[type]) << type;
  }
  EXPECT_EQ(TextesUnite()[static_cast<int>(TTypeForfait::DemiHeure)], u"demi heure");
}

TEST_F(TTarifsEssai, ChercheFamilleLesDeuxEtapes) {
  ecole.tarif(Matin, TousLesJours, "07:00", "08:00", Forfait, "1", ScanEntree);
  ecole.tarif(Matin, LundiMardiJeudiVendredi, "08:00", "09:00", Forfait, "1", ScanEntree);
  ecole.tarif(0, TousLesJours, "10:00", "10:30", Forfait, "1", ScanPresence);
  ecole.tarif(Soir, TousLesJours, "15:30", "17:00", Forfait, "1", ScanSortie);
  ecole.tarif(Soir, TousLesJours, "17:00", "18:00", Forfait, "1", ScanSortie);
  ecole.tarif(FamilleEtude, TousLesJours, "15:30", "16:30", Forfait, "1", ScanSortie);
  ecole.tarif(FamilleRepas, TousLesJours, "11:30", "13:30", Forfait, "1", ScanPresence);
  charger();
  const struct {
    TGroupe groupe;
    const char *entree, *sortie, *date, *trouve;
  } cas[] = {
      {TGroupe::Garderie, "08:00", "", kLundi, "1 08:00"},  // of two windows the one that starts last
      {TGroupe::Garderie, "08:00", "", kMercredi, "1 07:00"},
      {TGroupe::Garderie, "08:01", "", kMercredi, "0 -"},  // after the end of the last window
      {TGroupe::Garderie, "06:59", "", kLundi, "0 -"},
      {TGroupe::Garderie, "07:30", "", kSamedi, "0 -"},
      {TGroupe::Garderie, "10:10", "", kLundi, "0 10:00"},  // a row of no family
      {TGroupe::Garderie, "", "16:00", kLundi, "2 15:30"},
      {TGroupe::Garderie, "", "17:00", kLundi, "2 15:30"},
      {TGroupe::Garderie, "", "14:00", kLundi, "0 -"},
      {TGroupe::Garderie, "", "", kLundi, "0 -"},
      {TGroupe::Garderie, "07:30", "16:00", kLundi, "2 15:30"},  // the exit decides
      {TGroupe::Garderie, "07:30", "14:00", kLundi, "0 07:00"},  // and overrules, but not the row
      {TGroupe::Garderie, "17:30", "19:00", kLundi, "2 17:00"},  // no window reaches the exit
      {TGroupe::Garderie, "18:30", "19:00", kLundi, "2 17:00"},  // not even the entry
      {TGroupe::Etude, "", "16:00", kLundi, "4 15:30"},
      {TGroupe::Repas, "12:00", "", kLundi, "5 11:30"},
      {TGroupe::Soupe, "12:00", "", kLundi, "0 -"},
  };
  for (const auto& c : cas)
    EXPECT_EQ(trouve(c.groupe, c.entree, c.sortie, c.date), c.trouve)
        << c.entree << " " << c.sortie << " " << c.date;
  EXPECT_EQ(cherche(TGroupe::Garderie, "07:30", "14:00").Scan, TTypeScan::Entree);
  EXPECT_EQ(cherche(TGroupe::Garderie, "18:30", "").Scan, TTypeScan::Aucun);
  EXPECT_TRUE(tarifs->TarifExiste(TGroupe::Garderie, H("16:00"), 0.0, J(kLundi)));
  EXPECT_FALSE(tarifs->TarifExiste(TGroupe::Garderie, 0.0, H("10:10"), J(kLundi)));
}

TEST_F(TTarifsEssai, ChercheFamilleDepartageDansLOrdreDeLaCollection) {
  ecole.tarif(Mercredi, 3, "12:00", "18:00", Forfait, "1", ScanSortie);
  ecole.tarif(Midi, TousLesJours, "12:00", "13:30", Forfait, "1", ScanPresence);
  ecole.tarif(Soir, TousLesJours, "15:30", "18:00", Forfait, "1", ScanSortie);
  ecole.tarif(Matin, TousLesJours, "00:00", "07:00", Forfait, "1", ScanEntree);
  charger();
  // The highest family stands first.
  EXPECT_EQ(trouve(TGroupe::Garderie, "12:30", "", kMercredi), "7 12:00");
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "17:00", kMercredi), "3 12:00");
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "17:00", kLundi), "2 15:30");
  // A window that starts at midnight is never an entry's.
  EXPECT_EQ(trouve(TGroupe::Garderie, "06:30", ""), "0 -");
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "06:30"), "1 00:00");
  // A new row stands last until it is saved.
  tarifs->Add(Tarif(Midi, "15:30", "18:00", 1));
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "17:00"), "2 15:30");
  tarifs->Save();
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "17:00"), "7 15:30") << "as after a restart";
  charger();
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "17:00"), "7 15:30");
}

TEST_F(TTarifsEssai, LeMontantSuitLaTable) {
  charger();
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "16:30"), "0 -");
  TTarifGarderie& tarif = tarifs->Add(Tarif(Soir, "16:00", "17:00", 1));
  EXPECT_EQ(cout(Soir, ScanSortie, "", "16:30"), "1.0000");
  tarif.HeureDebutScan = H("16:45");
  tarif.Cout = Currency::Euros(2);
  tarifs->Add(tarif);
  EXPECT_EQ(trouve(TGroupe::Garderie, "", "16:30"), "0 -");
  EXPECT_EQ(cout(Soir, ScanSortie, "", "16:50"), "2.0000");
  tarifs->Remove(tarif);
  EXPECT_EQ(cout(Soir, ScanSortie, "", "16:50"), "0.0000");
}

TEST_F(TTarifsEssai, CoutUnites) {
  // A price of 1 euro: the number of units. Some spans are a hair above or below what the eye sees.
  const struct {
    const char *de, *a;
    int periode, heure, demi, quart, minute;
  } cas[] = {
      {"15:30", "16:00", 1, 1, 1, 2, 30},    {"16:00", "16:30", 1, 1, 2, 3, 30},
      {"16:30", "16:00", 1, 1, 2, 3, 30},    {"16:00", "17:00", 1, 1, 3, 5, 60},
      {"16:00", "16:15", 1, 1, 1, 2, 15},    {"16:15", "16:30", 1, 1, 1, 1, 15},
      {"16:00", "17:00:59", 1, 1, 3, 5, 61}, {"16:00", "17:01", 1, 2, 3, 5, 61},
      {"", "00:00:30", 1, 0, 1, 1, 0},       {"", "00:01:30", 1, 1, 1, 1, 2},
      {"", "00:02:30", 1, 1, 1, 1, 2},       {"16:00", "16:00", 1, 0, 0, 0, 0},
  };
  for (const auto& c : cas) {
    const int unites[] = {0, c.periode, c.heure, c.demi, c.quart, c.minute, 0};
    for (int forfait = 0; forfait < 7; ++forfait) {
      TTarifGarderie tarif;
      tarif.TypeForfait = static_cast<TTypeForfait>(forfait);
      tarif.Cout = Currency::Euros(1);
      tarif.Cout2eEnfant = Currency::Brut(1);
      EXPECT_EQ(CoutUnites(tarif, false, H(c.de), H(c.a)), Currency::Euros(unites[forfait]))
          << c.de << " " << c.a << " " << forfait;
      EXPECT_EQ(CoutUnites(tarif, true, H(c.de), H(c.a)), Currency::Brut(unites[forfait]));
    }
  }
}

TEST_F(TTarifsEssai, CoutPresenceCompleteLHeureQuiManque) {
  ecole.tarif(Matin, TousLesJours, "07:00", "08:00", QuartHeure, "0.5", ScanEntree, "0.3");
  ecole.tarif(Soir, TousLesJours, "16:00", "17:00", Forfait, "1", ScanSortie);
  ecole.tarif(Soir, TousLesJours, "17:00", "18:00", Forfait, "2", ScanSortie);
  ecole.tarif(Mercredi, 3, "13:00", "15:00", QuartHeure, "0.25", ScanSortie);
  ecole.tarif(Midi, TousLesJours, "13:00", "15:00", Minute, "0.1", ScanSortie);
  charger();
  const struct {
    int famille, scan;
    const char *entree, *sortie, *montant;
  } cas[] = {
      {Matin, ScanEntree, "07:30", "", "1.0000"},
      {Matin, ScanPresence, "07:30", "", "1.0000"},  // the exit becomes the entry, the charge the window's
      {Matin, ScanPresence, "", "07:30", "1.0000"},
      {Matin, ScanSortie, "", "07:30", "1.0000"},   // from 07:00
      {Matin, ScanEntree, "", "07:30", "2.0000"},   // no entry: the whole window
      {Matin, ScanSortie, "07:30", "", "15.0000"},  // from midnight to the entry
      {Matin, ScanEntree, "06:00", "07:30", "2.0000"},
      {Matin, ScanSortie, "06:00", "07:30", "1.0000"},
      {Matin, 0, "07:30", "07:31", "1.0000"},  // an unknown type charges like an entry
      {Soir, ScanSortie, "", "16:30", "1.0000"},
      {Soir, ScanSortie, "", "17:00", "1.0000"},
      {Soir, ScanSortie, "", "17:30", "3.0000"},
      {Soir, ScanSortie, "", "18:30", "3.0000"},
      {Soir, ScanSortie, "15:00", "18:30", "3.0000"},
      {Soir, ScanSortie, "17:30", "18:30", "3.0000"},  // the window before the entry counts too
      {Soir, ScanEntree, "17:30", "", "2.0000"},
      {Soir, ScanEntree, "16:30", "18:30", "1.0000"},  // a window spanned on both sides adds nothing
      {Soir, ScanEntree, "15:00", "18:30", "0.0000"},
      {Mercredi, ScanSortie, "12:00", "13:00", "0.2500"},  // at the very start: one unit
      {Midi, ScanSortie, "12:00", "13:00", "0.0000"},      // one second is no minute
      {FamilleEtude, ScanSortie, "", "16:00", "0.0000"},
  };
  for (const auto& c : cas)
    EXPECT_EQ(cout(c.famille, c.scan, c.entree, c.sortie), c.montant)
        << c.famille << " " << c.scan << " " << c.entree << " " << c.sortie;
  EXPECT_EQ(cout(Matin, ScanEntree, "07:30", "", true), "0.6000");
  EXPECT_EQ(tarifs->CoutPresence(TTypeFamille::Matin, TTypeScan::Entree, false, 0.3, -0.1), Currency());
}

TEST_F(TTarifsEssai, LePrixNeRegardePasLeJour) {
  ecole.tarif(Matin, TousLesJours, "07:30", "08:30", Forfait, "1", ScanEntree);
  ecole.tarif(Matin, 3, "07:00", "09:00", Forfait, "5", ScanEntree);
  ecole.tarif(Soir, TousLesJours, "16:00", "17:00", Forfait, "1", ScanSortie);
  ecole.tarif(Soir, TousLesJours, "16:00", "18:00", Forfait, "2", ScanSortie);
  charger();
  EXPECT_EQ(trouve(TGroupe::Garderie, "07:45", ""), "1 07:30");
  EXPECT_EQ(cout(Matin, ScanEntree, "07:45", ""), "5.0000");
  EXPECT_EQ(cout(Soir, ScanSortie, "", "16:30"), "2.0000");  // equal starts: as in the collection
  ecole.tarif(Midi, 3, "12:00", "13:00", Forfait, "3", ScanEntree);
  ecole.tarif(Midi, TousLesJours, "12:00", "13:00", Forfait, "4", ScanEntree);
  charger();
  EXPECT_EQ(cout(Midi, ScanEntree, "12:30", ""), "4.0000") << "the greater set of days stands first";
}

TEST_F(TTarifsEssai, HeuresDUneFamille) {
  charger();
  EXPECT_EQ(tarifs->PremiereHeureFamille(TTypeFamille::Etude), 1.0);
  EXPECT_EQ(tarifs->DerniereHeureFamille(TTypeFamille::Etude), 0.0);
  EXPECT_EQ(tarifs->DebutFamille(TTypeFamille::Etude), 99999.0);
  EXPECT_EQ(tarifs->FinCreneau(TTypeFamille::Etude, H("16:00")), 0.0);
  ecole.tarif(FamilleEtude, TousLesJours, "16:00", "17:00", Forfait, "1", ScanSortie);
  ecole.tarif(FamilleEtude, TousLesJours, "15:30", "16:30", Forfait, "1", ScanSortie);
  ecole.tarif(Soir, TousLesJours, "15:00", "18:00", Forfait, "1", ScanSortie);
  charger();
  EXPECT_EQ(tarifs->PremiereHeureFamille(TTypeFamille::Etude), H("15:30"));
  EXPECT_EQ(tarifs->DebutFamille(TTypeFamille::Etude), H("15:30"));
  EXPECT_EQ(tarifs->FinFamille(TTypeFamille::Etude), H("17:00"));
  EXPECT_EQ(tarifs->FinCreneau(TTypeFamille::Etude, H("16:00")), H("16:30"));  // the last row that holds it
  EXPECT_EQ(tarifs->FinCreneau(TTypeFamille::Etude, H("16:31")), H("17:00"));
  EXPECT_EQ(tarifs->FinCreneau(TTypeFamille::Etude, H("17:01")), 0.0);
}

TEST_F(TTarifsEssai, AllerEtRetour) {
  charger();
  auto tarif = Tarif(Soir, "", "17:00:30", 1);
  tarif->Cout = Currency::Brut(12345);
  tarif->Cout2eEnfant = Currency::Brut(-1);
  tarifs->Add(std::move(tarif));
  tarifs->Save();
  EXPECT_EQ(base.Rangees("SELECT * FROM TARIF_GARDERIE"),
            QStringList("1;2;6;00:00:00.000;17:00:30.000;1;1.2345;3;-0.0001"));
  base.Sql("UPDATE TARIF_GARDERIE SET TYPE_FORFAIT = NULL, COUT_2E_ENFANT = NULL");
  charger();
  EXPECT_EQ((*tarifs)[0].TypeForfait, TTypeForfait::Aucun);
  EXPECT_EQ((*tarifs)[0].HeureFinScan, H("17:00:30"));
  EXPECT_EQ((*tarifs)[0].Cout, Currency::Brut(12345));
  EXPECT_EQ((*tarifs)[0].Cout2eEnfant, Currency());
}
