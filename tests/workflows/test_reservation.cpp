#include <future>
#include <thread>

#include "core/query_internal.h"
#include "core/transaction_commune.h"
#include "meals/caisse.h"
#include "meals/commandes.h"
#include "meals/generation_repas.h"
#include "pupils/reserver.h"
#include "support/controleur_essai.h"
#include "support/refus.h"
#include "workflows/jour_cuisine.h"
#include "workflows/reservation.h"
#include "workflows/vente_tickets.h"
#include "workflows/ventes_tickets.h"

namespace {

/// A nursery pupil (1), two of the primary (2, 3) and one of the staff (4).
struct TReservationEssai : TEssaiControleur {
  TReservationEssai() {
    ecole.parametre(101, "2,20");
    ecole.parametre(102, "2,60");
    ecole.unEleve().enClasse("M1", "B");
    ecole.unEleve().enClasse("P1", "A");
    ecole.unEleve().enClasse("P1", "A");
    ecole.unEleve().enClasse("PROFESSEURS", {});
  }

  void Payer(const QString& eleve, const QString& montant, const QString& jour = "'2016-09-05'") {
    ecole.Ajouter("REPAS_PAIEMENT", "REPAS_PAIEMENT_ID, ELEVE_ID, MONTANT, TYPE_PAIEMENT, DATE_PAIEMENT",
                  {eleve, montant, "0", jour});
  }
  /// Clicks "pupil column [day of October]", and what each did.
  QString Cliquer(bool nouvelle, const QString& clics) {
    TGrilleCommandes grille(base.Dialogues, GenerationRepas(nouvelle));
    QString effets;
    for (const QString& clic : clics.split(u'|')) {
      const QStringList mots = clic.split(u' ');
      const int jour = mots.size() > 2 ? mots[2].toInt() : 3;
      effets += u"MEVI-A"_s[static_cast<int>(
          grille.Cliquer(Eleve(mots[0].toInt()), EncodeDate(2016, 10, jour), mots[1].toInt()))];
    }
    return effets;
  }

  QString Commandes() {
    const QString sql =
        "SELECT ELEVE_ID || ':' || FLG_REPAS || FLG_DAGO || FLG_SANDWICH || FLG_JAMBON || FLG_FROMAGE || "
        "FLG_JAMBON_FROMAGE || FLG_BEURRE || FLG_MAYONNAISE FROM COMMANDE ORDER BY ELEVE_ID, DATE_COMMANDE";
    return base.Rangees(sql).join(u'|');
  }
  QString Tickets() {
    const QString sql =
        "SELECT ELEVE_ID || ':' || EXTRACT(DAY FROM DATE_UTILISATION) || ' ' || CAST(VALEUR AS DECIMAL(9,2)) "
        "FROM TICKET ORDER BY ELEVE_ID, DATE_UTILISATION";
    return base.Rangees(sql).join(u'|');
  }
};

const QString kIncomplet = "Attention le choix du sandwich est incomplet !";

}  // namespace

TEST_F(TReservationEssai, Clicks) {
  const struct {
    const char* Nom;
    bool Nouvelle;
    const char *Clics, *Effets, *Commandes, *Tickets;
    int Messages;
  } cas[] = {
      {"a meal, then bread: one ticket, and the row holds until it has a filling", false,
       "2 1|2 3|3 1|2 4|3 1", "MMVMM", "2:00110000|3:10000000", "2:3 2.60|3:3 2.60", 1},
      {"the lock holds other days and classes too, and a refused click does not release it", false,
       "2 7|1 1|2 1 4|1 1", "MVVV", "2:00000010", "", 3},
      {"butter clears a hot meal and frees its ticket", false, "1 1|1 7", "MM", "1:00000010", "", 0},
      {"clearing bread leaves its filling, which locks", false, "1 2|1 5|1 2|2 1", "MMEV", "1:00001000", "",
       1},
      {"the row stays with eight zeros, each price by its section, staff at 0", false, "1 1|2 1|4 1|2 1",
       "MMME", "1:10000000|2:00000000|4:10000000", "1:3 2.20|4:3 0.00", 0},
      {"columns that are none", false, "2 0|2 9", "--", "", "", 0},
      {"second generation: money for the first two columns, the price of the primary for all, no lock", true,
       "1 1|1 2|1 3|3 1|3 2|3 4|3 2", "IIMMM-E", "1:00100000|3:00000000", "1:3 2.60", 2},
  };
  Payer("3", "2.60");
  Payer("1", "2.59", "'2015-09-01'");
  Payer("1", "99", "'2015-08-31'");
  for (const auto& c : cas) {
    SCOPED_TRACE(c.Nom);
    for (const char* table : {"COMMANDE", "TICKET"}) base.Sql(u"DELETE FROM "_s + QString::fromLatin1(table));
    essai.Charger();
    for (int i = 0; i < c.Messages; ++i) base.Dialogues.Attend(c.Nouvelle ? "Solde insuffisant" : kIncomplet);
    EXPECT_EQ(Cliquer(c.Nouvelle, c.Clics), c.Effets);
    EXPECT_EQ(Commandes(), c.Commandes);
    EXPECT_EQ(Tickets(), c.Tickets);
  }
}

TEST_F(TReservationEssai, TwoWorkstationsOrderTheSameMeal) {
  essai.Charger();
  EXPECT_EQ(Eleve(2).GetCommande(EncodeDate(2016, 10, 3)), nullptr);
  ecole.Ajouter("COMMANDE", "COMMANDE_ID, ELEVE_ID, DATE_COMMANDE, FLG_SANDWICH, FLG_JAMBON",
                {"2", "'2016-10-03'", "1", "1"});
  base.Dialogues.Attend("Un autre poste vient de commander");
  EXPECT_EQ(Cliquer(false, "2 1"), u"A");
  EXPECT_TRUE(Eleve(2).GetCommande(EncodeDate(2016, 10, 3))->FlgSandwich);
  EXPECT_EQ(Cliquer(false, "2 1"), u"M");
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM COMMANDE WHERE FLG_REPAS = 1 AND FLG_JAMBON = 0"), u"1");
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM TICKET"), u"1");
}

TEST_F(TReservationEssai, WhatCannotBeStoredWholeIsNotStored) {
  essai.Charger();
  // A missing ticket that another workstation has settled and deleted does not take a sale with it.
  Eleve(2).AjouterCredit({}, EncodeDate(2016, 10, 3));
  base.Sql("DELETE FROM TICKET");
  EXPECT_THROW(Eleve(2).AcheterTickets(3, TPaiementTicket::Comptant, {}, EncodeDate(2016, 10, 4)),
               EDistributor);
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM TICKET"), u"0");
  Eleve(2).AcheterTickets(3, TPaiementTicket::Comptant, {}, EncodeDate(2016, 10, 4));
  EXPECT_EQ(Eleve(2).SoldeTickets(), 3);
  // No order without its ticket.
  base.Sql("ALTER TABLE TICKET ADD CONSTRAINT CHER CHECK (VALEUR < 100)");
  const auto commander = [](TCommande& commande) { commande.FlgRepas = true; };
  EXPECT_THROW(Eleve(3).SetCommande(EncodeDate(2016, 10, 3), Currency::Euros(200), commander), EDistributor);
  EXPECT_EQ(Eleve(3).GetCommande(EncodeDate(2016, 10, 3)), nullptr);
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM COMMANDE"_s), u"0");
  // Nor a ticket without its order: the row is gone.
  EXPECT_TRUE(Eleve(3).SetCommande(EncodeDate(2016, 10, 3), {}, commander));
  base.Sql(u"DELETE FROM COMMANDE"_s);
  const auto decommander = [](TCommande& commande) { commande.FlgRepas = false; };
  EXPECT_THROW(Eleve(3).SetCommande(EncodeDate(2016, 10, 3), {}, decommander), EDistributor);
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM TICKET WHERE ELEVE_ID = 3"_s), u"1");
  // No money without what it was made of.
  base.Sql(u"DELETE FROM COUNTERS WHERE TABLE_NAME = 'DETAIL_PAIEMENT_LIQUIDE'"_s);
  base.Dialogues.Attend(u"Le compteur de table DETAIL_PAIEMENT_LIQUIDE n'existe pas !"_s);
  EXPECT_THROW(Eleve(3).EncaisserRepas(EncodeDate(2016, 10, 3), TComptage{1}), EDistributor);
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM REPAS_PAIEMENT"_s), u"0");
}

// What another workstation has changed since the tickets were shown.
TEST_F(TReservationEssai, TicketsAreSoldAndDeletedAsTheyWereShown) {
  ecole.Ajouter("TICKET", "TICKET_ID, ELEVE_ID, DATE_UTILISATION, VALEUR", {"2", "'2016-10-03'", "2.6"});
  essai.Charger();
  const TDateTime jour = EncodeDate(2016, 10, 4);
  const std::function<void()> gestes[] = {
      [&] { Eleve(2).AcheterTickets(1, TPaiementTicket::Comptant, Currency::Euros(3), jour); },
      [&] { Eleve(2).SupprimerTicket(*Eleve(2).GetTickets().Liste()[0]); },
      [&] { Globals.Eleves->DeplacerTicket(2, 3, 1); }};
  for (const auto& geste : gestes) {
    Globals.Eleves->LibererCommandes();
    Eleve(2).GetTickets();  // shown
    base.Sql("UPDATE TICKET SET VALEUR = VALEUR + 1");
    const QStringList avant = base.Rangees("SELECT * FROM TICKET");
    EXPECT_THROW(geste(), EDistributor);
    EXPECT_EQ(base.Rangees("SELECT * FROM TICKET"), avant);
    EXPECT_EQ(Euros(Eleve(2).GetTickets().Liste()[0]->Valeur),
              base.Valeur("SELECT VALEUR FROM TICKET").toStdString())
        << "read again";
  }
  EXPECT_NO_THROW(gestes[0]());
  // An order takes a ticket that was sold meanwhile, and never the one that was used meanwhile.
  Eleve(3).GetTickets();
  ecole.Ajouter("TICKET", "TICKET_ID, ELEVE_ID, DATE_ACHAT, VALEUR", {"3", "'2016-10-01'", "2"});
  EXPECT_EQ(Cliquer(false, "3 1"), u"M");
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM TICKET WHERE ELEVE_ID = 3"), u"1");
}

TEST_F(TReservationEssai, CashIsNotCountedOverTheCountOfAnother) {
  essai.Charger();
  const TDateTime jour = EncodeDate(2016, 10, 3);
  const auto caisse = [&] {
    const TCaisse c = LireCaisse(*base, jour);
    return Euros(c.Montant()) + " " + Euros(c.SansDetail) + " " + std::to_string(c.Comptage[5]);
  };
  Eleve(2).EncaisserRepas(jour, TComptage{0, 0, 0, 0, 0, 2});
  EXPECT_EQ(caisse(), "4.0000 0.0000 2");
  for (const char* sql : {"UPDATE DETAIL_PAIEMENT_LIQUIDE SET TOT_2_EUR = 1, TOT_1_EUR = 2",
                          "UPDATE REPAS_PAIEMENT SET MONTANT = 9", "DELETE FROM REPAS_PAIEMENT",
                          "INSERT INTO REPAS_PAIEMENT (REPAS_PAIEMENT_ID, ELEVE_ID, MONTANT, TYPE_PAIEMENT, "
                          "DATE_PAIEMENT) VALUES (77, 2, 5, 0, '2016-10-03')"}) {
    Eleve(2).RecuLe(jour);  // shown
    base.Sql(sql);
    EXPECT_THROW(Eleve(2).EncaisserRepas(jour, TComptage{1}), EDistributor) << sql;
  }
  EXPECT_EQ(caisse(), "5.0000 5.0000 0");
  Eleve(2).EncaisserRepas(jour, TComptage{1});
  EXPECT_EQ(caisse(), "100.0000 0.0000 0");
  for (const int pieces : {1, 2}) {  // outside what is read, by two runs of the program
    essai.Charger();
    Eleve(2).EncaisserRepas(jour + 1000, TComptage{0, 0, 0, 0, 0, pieces});
  }
  EXPECT_EQ(Euros(Eleve(2).RecuLe(jour + 1000)), "4.0000");
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM REPAS_PAIEMENT WHERE DATE_PAIEMENT > '2018-01-01'"), u"1");
}

TEST_F(TReservationEssai, WhatIsBeingStoredElsewhereIsWaitedForAndSeen) {
  essai.Charger();
  const TDateTime jour = EncodeDate(2016, 10, 3);
  TDataModule1 poste(base.Dialogues, base.Reglages);
  poste.ServerName = base.FichierDeDonnees();
  poste.Connecter();
  const TEleves ailleurs(poste, 2016);
  Eleve(2).GetTickets();
  Eleve(2).RecuLe(jour);
  const std::pair<const char*, std::function<void()>> gestes[] = {
      {"INSERT INTO TICKET (TICKET_ID, ELEVE_ID, VALEUR) VALUES (77, 2, 2)",
       [&] { Eleve(2).AcheterTickets(1, TPaiementTicket::Comptant, {}, jour); }},
      {"INSERT INTO REPAS_PAIEMENT (REPAS_PAIEMENT_ID, ELEVE_ID, MONTANT, TYPE_PAIEMENT, DATE_PAIEMENT) "
       "VALUES (77, 2, 5, 0, '2016-10-03')",
       [&] { Eleve(2).EncaisserRepas(jour, TComptage{1}); }}};
  for (const auto& [sql, geste] : gestes) {
    TTransactionCommune autre(poste);
    Reserver(*ailleurs.TrouverParId(2));
    TQueryInternal(poste, sql).Executer();
    const auto fin = std::async(std::launch::async, [&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      autre.Valider();
    });
    EXPECT_TRUE(Refus<EDistributor>(geste).startsWith("Un autre poste a changé")) << sql;
  }
}

TEST_F(TReservationEssai, OrdersAreTakenOverFromAnotherDay) {
  Payer("3", "2.60");
  essai.Charger();
  const TClasse& classe = *Eleve(2).Classe;
  const auto reprendre = [&](bool nouvelle, int jour) {
    TGrilleCommandes grille(base.Dialogues, GenerationRepas(nouvelle));
    return RepeterCommandes(grille, classe, EncodeDate(2016, 10, 3), EncodeDate(2016, 10, jour)).Texte();
  };
  Cliquer(false, "2 2|2 4|2 8|3 1");
  EXPECT_EQ(reprendre(false, 4), u"2 commandes reprises");
  EXPECT_EQ(reprendre(false, 4), u"0 commande reprise") << "who eats already keeps the order";
  EXPECT_EQ(reprendre(true, 5), u"1 commande reprise  ·  solde insuffisant : Eleve2 Prenom2");
  base.Sql("UPDATE COMMANDE SET FLG_JAMBON = 0 WHERE ELEVE_ID = 2");
  Globals.Eleves->LibererCommandes();
  EXPECT_EQ(reprendre(false, 6), u"1 commande reprise  ·  1 incomplète");
  EXPECT_EQ(
      base.Rangees(u"SELECT ELEVE_ID, EXTRACT(DAY FROM DATE_COMMANDE), FLG_REPAS || FLG_DAGO || FLG_JAMBON "
                   "|| FLG_MAYONNAISE FROM COMMANDE ORDER BY 2, 1"_s),
      (QStringList{"2;3;0101", "3;3;1000", "2;4;0101", "3;4;1000", "3;5;1000", "3;6;1000"}));
}

TEST_F(TReservationEssai, CountersKitchenAndSteps) {
  essai.Charger();
  Cliquer(false, "1 2|1 4|1 7|2 1|4 3|4 6");
  base.Sql("UPDATE COMMANDE SET FLG_MAYONNAISE = 1 WHERE ELEVE_ID = 1");
  Globals.Eleves->LibererCommandes();
  const TDateTime jour = EncodeDate(2016, 10, 3);
  const TClasse& primaire = Globals.Eleves->GetClasse(1);
  EXPECT_EQ(primaire.NombreRepas(jour) * 100 + primaire.NombreSandwichs(jour) * 10 +
                primaire.NombreSansCommande(jour),
            101);
  const TJourCuisine cuisine = JourDeCuisine(*Globals.Eleves, jour);
  EXPECT_EQ(cuisine.Repas * 100 + cuisine.Dagos * 10 + cuisine.Sandwichs, 111);
  // Ham with both dressings counts in both, and no longer as plain ham.
  EXPECT_EQ(cuisine.DagosDuJour.Varietes, (TVarietes{0, 1, 1, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(cuisine.SandwichsDuJour.Varietes, (TVarietes{0, 0, 0, 0, 0, 0, 1, 0, 0}));
  const auto lignes = [&](std::size_t classe, bool nouvelle) {
    QStringList textes;
    for (const TLigneCuisine& l : LignesDeClasse(cuisine.Classes[classe], GenerationRepas(nouvelle)))
      textes += l.Texte();
    return textes.join(u'|');
  };
  EXPECT_EQ(lignes(0, false), u"Dago;1");
  EXPECT_EQ(lignes(0, true), u"Sandwich");
  EXPECT_EQ(lignes(1, false), u"Repas Complet;1");
  EXPECT_EQ(lignes(2, true), u"Soupe;1");
  const std::pair<const char*, const char*> pas[] = {{"2016-10-07", "2016-10-10"},
                                                     {"2016-10-08", "2016-10-09"},
                                                     {"2016-10-05", "2016-10-06"},
                                                     {"2016-10-09", "2016-10-10"}};
  for (const auto& [de, a] : pas) EXPECT_EQ(JourSuivant(J(de)), J(a)) << de;
  EXPECT_EQ(JourPrecedent(J("2016-10-10")), J("2016-10-07"));
  EXPECT_EQ(JourPrecedent(J("2016-10-09")), J("2016-10-08"));
  const char* const soldes[] = {"2 tickets manquants", "1 ticket manquant", "Aucun ticket disponible",
                                "1 ticket disponible", "2 tickets disponibles"};
  for (int solde = -2; solde <= 2; ++solde)
    EXPECT_EQ(TexteSoldeTickets(solde), QString::fromUtf8(soldes[solde + 2]));
}

TEST_F(TReservationEssai, Sales) {
  essai.Charger();
  const TDateTime jour = EncodeDate(2016, 10, 3);
  Eleve(1).AcheterTickets(2, TPaiementTicket::Comptant, Currency::Brut(22000), jour);
  Eleve(2).AcheterTickets(1, TPaiementTicket::Comptant, {}, jour);  // sold for nothing
  Eleve(4).AcheterTickets(3, TPaiementTicket::Comptant, Currency::Euros(1), jour);
  Eleve(4).AcheterTickets(1, TPaiementTicket::Comptant, Currency::Euros(1), jour + 1);
  Eleve(3).AcheterTickets(1, TPaiementTicket::Virement, Currency::Euros(3), jour + 2);
  const auto texte = [](const TCellules& cellules) {  // the values, so that the kind of each is seen
    QStringList textes;
    for (const TValeurVue& v : cellules)
      textes += TexteDe(std::holds_alternative<Currency>(v) ? TGenre::Montant : TGenre::Entier, v);
    return textes.join(u';');
  };
  const auto lignes = [&](const TPeriode& periode) {
    QStringList textes;
    for (const TVentesJour& j : VentesDeTickets(*Globals.Eleves, periode, TPaiementTicket::Comptant)) {
      textes += texte(LigneVentesJour(j));
      for (const TVenteEleve& v : j.Eleves) textes += texte(LigneVenteEleve(v));
    }
    return textes;
  };
  EXPECT_EQ(
      lignes({jour, jour + 2}),
      (QStringList{"03/10/2016;2;2,20 €;4,40 €;0;2,60 €;0,00 €;4,40 €", "Eleve1 Prenom1;2;2,20 €;4,40 €;;;;",
                   "Eleve4 Prenom4;;;;;;;", "04/10/2016;;;;;;;", "Eleve4 Prenom4;;;;;;;"}));
  EXPECT_EQ(lignes({jour, jour - 1}), QStringList());
  EXPECT_EQ(CompterTickets(*Eleve(2).Classe).Bas, 2);
  for (const char* texte : {"0", "-1", "1000000000", "abc", "1000"})
    EXPECT_THROW(LireNombreTickets(texte), EConvertError) << texte;
}
