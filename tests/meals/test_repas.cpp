#include "core/exceptions.h"
#include "meals/commandes.h"
#include "meals/repas_paiements.h"
#include "meals/tickets.h"
#include "support/ecole_essai.h"

namespace {

struct TRepasEssai : TEssaiEcole {
  /// Rows "achat utilisation", "-" for none, of pupil 1; days of September 2016.
  void Tickets(const QString& rangees) {
    base.Sql(u"DELETE FROM TICKET"_s);
    base.Sql(u"UPDATE COUNTERS SET VALEUR = 0 WHERE TABLE_NAME = 'TICKET'"_s);
    const auto date = [](const QString& jour) {
      return jour == u"-" ? u"NULL"_s : u"'2016-09-%1'"_s.arg(jour, 2, u'0');
    };
    for (const QString& rangee : rangees.split(u", "_s)) {
      const QStringList jours = rangee.split(u' ');
      ecole.Ajouter(u"TICKET"_s, u"TICKET_ID, ELEVE_ID, DATE_ACHAT, DATE_UTILISATION, VALEUR"_s,
                    {u"1"_s, date(jours[0]), date(jours[1]), u"2"_s});
    }
  }
  QString Rangees() {
    return base
        .Rangees(
            u"SELECT TICKET_ID || ':' || COALESCE(EXTRACT(DAY FROM DATE_ACHAT), '-') || ' ' || "
            "COALESCE(EXTRACT(DAY FROM DATE_UTILISATION), '-') FROM TICKET ORDER BY TICKET_ID"_s)
        .join(u", "_s);
  }
};

TDateTime Sept(int jour) { return EncodeDate(2016, 9, jour); }

}  // namespace

TEST_F(TRepasEssai, TicketsAreBoughtUsedAndFreed) {
  using TGeste = void (*)(TTickets&);
  const struct {
    const char *Nom, *Avant;
    TGeste Geste;
    const char* Apres;
    int Solde;
  } cas[] = {
      {"the latest bought is used, even after the meal; equal dates by key", "1 -, 9 -, 9 -, - 3",
       [](TTickets& t) { t.Consommer(Sept(5), {}); }, "1:1 -, 2:9 5, 3:9 -, 4:- 3", 1},
      {"one a day", "1 5, 1 -", [](TTickets& t) { t.Consommer(Sept(5), {}); }, "1:1 5, 2:1 -", 1},
      {"none free", "1 5", [](TTickets& t) { t.Consommer(Sept(6), {}); }, "1:1 5, 2:- 6", -1},
      {"a bought one is freed", "1 5", [](TTickets& t) { t.Liberer(Sept(5)); }, "1:1 -", 1},
      {"a missing one disappears", "- 5, - 6", [](TTickets& t) { t.Liberer(Sept(5)); }, "2:- 6", -1},
      {"a bought one is freed before a missing one of the day", "- 5, 1 5",
       [](TTickets& t) { t.Liberer(Sept(5)); }, "1:- 5, 2:1 -", 0},
      {"missing ones are settled first and keep their day", "- 5, 1 4, - 6",
       [](TTickets& t) { t.Acheter(5, TPaiementTicket::Comptant, Currency::Euros(3), Sept(8)); },
       "1:8 5, 2:1 4, 3:8 6, 4:8 -, 5:8 -, 6:8 -", 3},
      {"bought in this session is used as after a restart", "1 -",
       [](TTickets& t) {
         t.Acheter(1, TPaiementTicket::Virement, {}, Sept(8));
         t.Save();
         t.Consommer(Sept(9), {});
       },
       "1:1 -, 2:8 9", 1},
  };
  for (const auto& [nom, avant, geste, apres, solde] : cas) {
    SCOPED_TRACE(nom);
    Tickets(avant);
    TTickets tickets(*base, 1);
    geste(tickets);
    tickets.Save();
    EXPECT_EQ(Rangees(), QString::fromLatin1(apres));
    EXPECT_EQ(tickets.Solde(), solde);
    EXPECT_EQ(TTickets(*base, 1).Solde(), solde);
  }
}

TEST_F(TRepasEssai, TheListsOfManyAreThoseOfEach) {
  Tickets(u"1 2, 9 -, - 3, 9 4, - 7"_s);
  base.Sql(u"UPDATE TICKET SET ELEVE_ID = 2, TYPE_PAIEMENT = 2 WHERE TICKET_ID = 4"_s);
  const auto ensemble = TTickets::LireEnsemble(*base, {1, 2, 3});
  for (const int eleve : {1, 2, 3}) {
    const TTickets seul(*base, eleve);
    const auto cles = [](const TTickets& tickets) {
      QStringList liste;
      for (const TTicket* t : tickets.Liste()) liste += QString::number(t->Id);
      return liste.join(u' ');
    };
    EXPECT_EQ(cles(*ensemble.at(eleve)), cles(seul));
    EXPECT_EQ(TTickets::LireSoldes(*base, {1, 2, 3}).at(eleve), seul.Solde());
  }
  const TTickets& un = *ensemble.at(1);
  EXPECT_EQ(un.DatesAchat(), (std::vector<TDateTime>{Sept(9), Sept(1), 0.0}));
  EXPECT_EQ(un.NombreManquants(), 2);
  const auto ventes = ensemble.at(2)->Ventes({Sept(9), Sept(9)}, TPaiementTicket::Comptant);
  ASSERT_EQ(ventes.size(), 1u);
  EXPECT_EQ(Euros(ventes.at(Sept(9)).Montant), "2.0000");
  EXPECT_TRUE(ensemble.at(2)->Ventes({Sept(9), Sept(8)}, TPaiementTicket::Comptant).empty());
}

// What a click on each column leaves of an order with every flag set.
TEST(Commande, ColumnsAndCompleteness) {
  const auto texte = [](const TCommande& c) {
    QString t;
    for (int i = 0; i < 8; ++i) t += c.*ColonnesCommande()[static_cast<std::size_t>(i)].Flag ? u'1' : u'0';
    return t;
  };
  const auto depuis = [](TCommande& c, const char* drapeaux) {
    for (std::size_t i = 0; i < 8; ++i) c.*ColonnesCommande()[i].Flag = drapeaux[i] == '1';
  };
  const char* const apres[] = {"10000000", "01011111", "00111111", "01110011",
                               "01101011", "01100111", "01111110", "01111101"};
  for (int colonne = 1; colonne <= 8; ++colonne) {
    TCommande tout;
    depuis(tout, "11111111");
    Marquer(tout, colonne);
    EXPECT_EQ(texte(tout), QString::fromLatin1(apres[colonne - 1])) << colonne;
  }
  const std::pair<const char*, bool> completes[] = {
      {"00000000", true},  {"10000000", true},  {"01000000", false}, {"00100000", false},
      {"01010000", true},  {"00100100", true},  {"00010000", false}, {"00000010", false},
      {"00100001", false}, {"10000001", false}, {"01001010", true}};
  for (const auto& [drapeaux, complete] : completes) {
    TCommande commande;
    depuis(commande, drapeaux);
    EXPECT_EQ(commande.EstComplete(), complete) << drapeaux;
  }
}

TEST_F(TRepasEssai, OrdersOfADay) {
  ecole.Ajouter(u"COMMANDE"_s, u"COMMANDE_ID, ELEVE_ID, DATE_COMMANDE, FLG_REPAS, FLG_DAGO"_s,
                {u"1"_s, u"'2016-09-05'"_s, u"2"_s, u"1"_s});
  TCommandes ici(*base);
  TCommande* lue = ici.Trouver(1, Sept(5));
  ASSERT_NE(lue, nullptr);
  EXPECT_FALSE(lue->FlgRepas);  // true only at 1
  EXPECT_TRUE(lue->FlgDago);
  EXPECT_EQ(ici.Trouver(1, Sept(6)), nullptr);
  EXPECT_EQ(ici.Periode({Sept(1), Sept(30)}).size(), 1u);
}

TEST_F(TRepasEssai, CashTakesThePlaceOfWhatWasCountedThatDay) {
  const auto rangees = [&] {
    return base.Rangees(
        u"SELECT P.ELEVE_ID, P.TYPE_PAIEMENT, P.MONTANT, P.REMARQUE, D.TOT_2_EUR, "
        "D.TOT_50_CNT FROM REPAS_PAIEMENT P LEFT JOIN DETAIL_PAIEMENT_LIQUIDE D ON D.REPAS_PAIEMENT_ID = "
        "P.REPAS_PAIEMENT_ID ORDER BY P.REPAS_PAIEMENT_ID"_s);
  };
  for (const char* type : {"1", "0"})
    ecole.Ajouter(u"REPAS_PAIEMENT"_s,
                  u"REPAS_PAIEMENT_ID, ELEVE_ID, MONTANT, TYPE_PAIEMENT, DATE_PAIEMENT, REMARQUE"_s,
                  {u"1"_s, u"10"_s, QString::fromLatin1(type), u"'2016-09-05'"_s, u"'x'"_s});
  TRepasPaiements paiements(*base, {EncodeDate(2016, 8, 1), EncodeDate(2017, 6, 30)});
  TComptage comptage{};
  comptage[5] = 2;
  comptage[7] = 1;
  EXPECT_EQ(Euros(Total(comptage)), "4.5000");
  paiements.Encaisser(1, Sept(5), comptage);  // the transfer of the day stays, the detail that lacks is made
  comptage[7] = 3;
  paiements.Encaisser(2, Sept(5), comptage);
  paiements.Encaisser(2, Sept(5), TComptage{0, 0, 0, 0, 0, 1});
  EXPECT_EQ(rangees(), (QStringList{u"1;1;10.0000;x;-;-"_s, u"1;0;4.5000;;2;1"_s, u"2;0;2.0000;;1;0"_s}));
  EXPECT_EQ(Euros(paiements.Recu(1, {Sept(5), Sept(5)})), "14.5000");
  const std::pair<const char*, int> saisies[] = {{"12", 12}, {"deux", 0}, {"-3", 0},    {"9999", 9999},
                                                 {"", 0},    {" 4 ", 4},  {"10000", 0}, {"99999999999", 0}};
  for (const auto& [texte, nombre] : saisies)
    EXPECT_EQ(LireNombreCoupures(QString::fromLatin1(texte)), nombre) << texte;
}
