#include "core/exceptions.h"
#include "forms/champs.h"
#include "support/valeurs.h"

namespace {

struct TFiche {
  QString Nom = {};
  int Code = 0;
  Currency Prix = {};
  TDateTime Date = 0.0;
  TDateTime Heure = 0.0;
  bool Coche = false;
};

enum { Nom, Code, Prix, Date, Heure, Coche };

TTableChamps<TFiche> Table() {
  using enum TGenreChamp;
  return {{{.Nom = u"edNom"_s, .Longueur = 5}, Membre(&TFiche::Nom)},
          {{.Nom = u"edCode"_s, .Genre = Entier}, Membre(&TFiche::Code)},
          {{.Nom = u"edPrix"_s, .Genre = Montant, .Obligatoire = true}, Membre(&TFiche::Prix)},
          {{.Nom = u"edDate"_s, .Genre = TGenreChamp::Date, .Refus = u"Date incorrecte."_s},
           Membre(&TFiche::Date)},
          {{.Nom = u"edHeure"_s, .Genre = TGenreChamp::Heure}, Membre(&TFiche::Heure)},
          {{.Nom = u"cbCoche"_s, .Genre = TGenreChamp::Coche}, Membre(&TFiche::Coche)}};
}

struct Champs : testing::Test {
  Champs() {
    champs.SurEnregistrer = [this](const TChamp& champ) {
      if (!panne.isEmpty()) throw Exception(panne);
      gestes += champ.Nom;
    };
    champs.SurRefus = [this](const TChamp&, const QString& faute) { gestes += u"refus " % faute; };
    champs.Montrer(&fiche);
  }
  bool Quitter(int champ, const char* texte) {
    champs.Taper(champ, QString::fromUtf8(texte));
    return champs.Quitter(champ);
  }
  TFiche fiche{u"Léa"_s, 5000, StrToCurr(u"0,0125"_s), 0.0, 0.0, false};
  QString panne;
  QStringList gestes;
  TChampsDe<TFiche> champs{Table(), TChamps::Aussitot};
};

}  // namespace

TEST_F(Champs, UnTexteSeConvertitOuResteAvecSaFaute) {
  const std::tuple<int, const char*, const char*, const char*> cas[] = {
      {Nom, "Zoé", "Zoé", ""},
      {Nom, "Zoé-Marie", "Zoé-Marie", "Ce texte compte 9 caractères : 5 au plus."},
      {Code, " 4000", "4000", ""},
      {Code, "", "", ""},
      {Code, "B-4000", "B-4000", "« B-4000 » n'est pas un nombre entier."},
      {Prix, "2,2", "2,20", ""},
      {Prix, "0,0125", "0,0125", ""},
      {Prix, "2.20", "2.20", "« 2.20 » n'est pas un montant (par exemple 2,20)."},
      {Prix, "1e3", "1e3", "« 1e3 » n'est pas un montant (par exemple 2,20)."},
      {Prix, "", "", "Ce champ doit être rempli."},
      {Date, "1/9/16", "01/09/2016", ""},
      {Date, "31/02/2016", "31/02/2016", "Date incorrecte."},
      {Date, " ", "", ""},
      {Heure, "7h30", "07:30", ""},
      {Heure, "25:00", "25:00", "« 25:00 » n'est pas une heure (hh:mm)."},
  };
  for (const auto& [champ, tape, montre, faute] : cas) {
    EXPECT_EQ(Quitter(champ, tape), *faute == '\0') << tape;
    EXPECT_EQ(champs.Texte(champ), QString::fromUtf8(montre));
    EXPECT_EQ(champs.Faute(champ), QString::fromUtf8(faute));
  }
  EXPECT_EQ(fiche.Nom, u"Zoé");
  EXPECT_EQ(fiche.Code, 0) << "an empty one is none, a refused one changes nothing";
  EXPECT_EQ(fiche.Prix, StrToCurr(u"0,0125"_s));
  EXPECT_EQ(fiche.Date, 0.0);
}

TEST_F(Champs, UneFauteNEstDiteQuUneFoisEtTientJusquALaFiche) {
  EXPECT_FALSE(Quitter(Date, "hier"));
  EXPECT_FALSE(champs.Quitter(Date));
  EXPECT_FALSE(champs.QuitterTout());
  EXPECT_EQ(gestes, QStringList{u"refus Date incorrecte."_s});
  champs.Montrer(&fiche);  // a refresh
  EXPECT_EQ(champs.Texte(Date), u"hier");
  champs.Taper(Date, u"demain"_s);
  EXPECT_EQ(champs.Faute(Date), u"") << "it is being mended";
  TFiche autre;
  champs.Montrer(&autre);
  EXPECT_EQ(champs.Texte(Date) + champs.Faute(Date), u"");
  EXPECT_FALSE(champs.Modifies());
  champs.Montrer(nullptr);
  EXPECT_TRUE(Quitter(Nom, "x"));
  EXPECT_EQ(autre.Nom, u"");
}

TEST_F(Champs, UnEchecRendLaValeurEtGardeLeTexte) {
  panne = u"serveur absent"_s;
  EXPECT_FALSE(Quitter(Nom, "Ana"));
  EXPECT_EQ(fiche.Nom, u"Léa");
  EXPECT_EQ(champs.Texte(Nom), u"Ana");
  EXPECT_EQ(champs.Faute(Nom), u"serveur absent");
  EXPECT_FALSE(champs.Choisir(Coche, 1));
  EXPECT_FALSE(fiche.Coche);
  EXPECT_EQ(champs.Entier(Coche), 0) << "the box goes back";
  champs.Abandonner(Nom);
  EXPECT_EQ(champs.Texte(Nom) + champs.Faute(Nom), u"Léa");
  panne.clear();
  EXPECT_TRUE(champs.Choisir(Coche, 1));
  EXPECT_TRUE(fiche.Coche);
  gestes.clear();
  EXPECT_TRUE(champs.Quitter(Nom) && Quitter(Nom, "Léa"));
  EXPECT_EQ(gestes, QStringList()) << "the same value is not stored";
  champs.EcrireToujours = true;
  EXPECT_TRUE(champs.Quitter(Nom));
  EXPECT_EQ(gestes, QStringList{u"edNom"_s});
}

// The message of a failure takes the focus: the field is left a second time meanwhile.
TEST_F(Champs, QuitterPendantQuOnEnregistreNeFaitRien) {
  int fois = 0;
  champs.SurEnregistrer = [&](const TChamp&) {
    ++fois;
    EXPECT_TRUE(champs.Quitter(Nom));
    throw Exception(u"panne"_s);
  };
  EXPECT_FALSE(Quitter(Nom, "Ana"));
  EXPECT_EQ(fois, 1);
}

TEST(ChampsDUnPanneau, SEcriventEnsemble) {
  TFiche fiche{u"Léa"_s};
  TChampsDe<TFiche> champs(Table(), TChamps::TousALaFois);
  std::vector<int> foyers;
  const TLien lien = champs.SurFoyer.Suivre([&](int champ) { foyers.push_back(champ); });
  champs.Nouveau();
  EXPECT_EQ(champs.Texte(Prix), u"");
  EXPECT_FALSE(champs.Verifier()) << "a price nobody touched does not convert";
  EXPECT_EQ(foyers, std::vector<int>{Prix});
  champs.Montrer(&fiche);
  bool modifies = false;
  const TLien suite = champs.SurChangement.Suivre([&](int) { modifies = champs.Modifies(); });
  champs.Taper(Nom, u"Zoé"_s);
  EXPECT_TRUE(champs.Quitter(Nom) && modifies) << "who follows sees that it is not stored";
  champs.Taper(Prix, u"3"_s);
  EXPECT_TRUE(champs.Verifier() && champs.Modifies());
  EXPECT_EQ(fiche.Nom, u"Léa");
  TFiche neuve;
  champs.EcrireDans(neuve);
  EXPECT_EQ(neuve.Nom, u"Zoé");
  EXPECT_EQ(neuve.Prix, Currency::Euros(3));
  champs.AbandonnerTout();
  EXPECT_EQ(champs.Texte(Nom), u"Léa");
  EXPECT_FALSE(champs.Refuser(u"edCode"_s, u"pris"_s));
  EXPECT_EQ(champs.Faute(Code), u"pris");
  EXPECT_EQ(foyers.back(), Code);
}
