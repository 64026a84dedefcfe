#include "documents/caisse_repas.h"
#include "documents/cuisine.h"
#include "documents/tickets.h"
#include "ecole_documents.h"
#include "meals/generation_repas.h"
#include "workflows/jour_cuisine.h"

namespace {

/// M1 B: one who ate meals with and without tickets (1). P1 A: a ham dago with both dressings (2), and a
/// cheese sandwich (3). P3 B: a hot meal (4). Staff: a hot meal (5).
struct TDocumentsRepasEssai : TEssaiEcole {
  TDocumentsRepasEssai() {
    for (const char* classe : {"M1 B", "P1 A", "P1 A", "P3 B", "PROFESSEURS "}) {
      const QStringList noms = QString::fromLatin1(classe).split(u' ');
      ecole.unEleve().enClasse(noms[0], noms[1]);
    }
    ecole.parametre(1, "École");
    const auto commande = [&](int eleve, const QString& drapeaux, const QString& jour = "2016-11-24") {
      QStringList valeurs{QString::number(eleve), u"'"_s + jour + u"'"_s};
      for (const QChar c : drapeaux) valeurs += QString(c);
      ecole.Ajouter("COMMANDE",
                    u"COMMANDE_ID, ELEVE_ID, DATE_COMMANDE, FLG_REPAS, FLG_DAGO, FLG_SANDWICH, FLG_JAMBON, "
                    "FLG_FROMAGE, FLG_JAMBON_FROMAGE, FLG_BEURRE, FLG_MAYONNAISE"_s,
                    valeurs);
    };
    commande(2, "01010011");
    commande(3, "00101000");
    commande(4, "10000000");
    commande(5, "10000000");
    commande(1, "00100000", "2016-11-03");
    const auto ticket = [&](const char* achat, const char* utilisation) {
      ecole.Ajouter("TICKET", "TICKET_ID, ELEVE_ID, DATE_ACHAT, DATE_UTILISATION, VALEUR, TYPE_PAIEMENT",
                    {"1", achat, utilisation, "2.2", "1"});
    };
    ticket("'2016-11-02'", "'2016-11-03'");
    ticket("'2016-11-02'", "NULL");
    ticket("NULL", "'2016-11-04'");
    ticket("NULL", "'2016-11-07'");
    controleur.Charger();
  }

  TContexteDocument Contexte() { return ContexteDesGlobals(controleur.Horloge); }
  TJourCuisine Jour() { return JourDeCuisine(*Globals.Eleves, J("2016-11-24")); }
  /// Lays the report out, so that its template is tried too; the text of its pages.
  static QString Page(const TRapport& rapport) {
    const TDocumentPrepare document = Pages(rapport);
    QString texte;
    for (int i = 0; i < static_cast<int>(document.Pages.size()); ++i)
      texte += document.TexteDePage(i) + u'\n';
    return texte;
  }

  TControleurEssai controleur{base};
};

}  // namespace

TEST_F(TDocumentsRepasEssai, PreparationSheet) {
  const TResultat fiche = FichePreparation(Contexte(), Jour(), GenerationRepas(false));
  const TRapport& rapport = fiche.Rapports.at(0);
  EXPECT_EQ(rapport.Variables().Valeur(u"DateJour"), u"jeudi 24 novembre 2016");
  const QString dessin = Dessin(rapport);
  for (const char* ligne :
       {"TitreCol1=Nombre de repas chauds : 2   -   Nombre de dagos/sandwich : 2 | ColonneLarge=2 | "
        "Conclusion1=Total de repas chauds : 1\n",
        "  M1 B: LibelleCol1=M1 B | LibelleCol2=0 | LibelleCol4=0\n",
        "  P1 A: LibelleCol1=P1 A | LibelleCol3=0 | LibelleCol5=2\n",
        "  PROFESSEURS : LibelleCol1=PROFESSEURS \n",
        "  TotRepasPrimaire: LibelleCol1=<b>Total en primaire</b> | LibelleCol3=<b>1</b> | "
        "LibelleCol5=<b>2</b>\n",
        "  3e service: LibelleCol1=3e service | LibelleCol2=1 repas\n",
        "TitreCol1=Nombre total de dagoberts : 1 | ", "  dago jambon: LibelleCol1=0 jambon\n",
        "  dago jambon beurre: LibelleCol1=1 jambon beurre | LibelleCol2=Eleve2 Prenom2 | LibelleCol3=P1 A\n",
        "  dago jambon mayonnaise: LibelleCol1=1 jambon mayonnaise | LibelleCol2=Eleve2 Prenom2",
        "TitreCol1=Nombre total de sandwichs : 1 | ColonneLarge=1\n",
        "  sandwich fromage: LibelleCol1=1 fromage | LibelleCol2=Eleve3 Prenom3"})
    EXPECT_TRUE(dessin.contains(ligne)) << ligne << "\n" << dessin.toStdString();
  EXPECT_EQ(dessin.count(u"Total de repas chauds : 1"), 2);
  const QString nouvelle = Dessin(FichePreparation(Contexte(), Jour(), GenerationRepas(true)).Rapports.at(0));
  EXPECT_TRUE(nouvelle.contains(u"   -   Nombre de soupe : 2"));
  EXPECT_TRUE(nouvelle.contains(u"Nombre total de soupes : 1"));
  const QString page = Page(rapport);
  EXPECT_TRUE(page.contains(u"Fiche de préparation du jeudi 24 novembre 2016"));
  EXPECT_TRUE(page.contains(u"Total en primaire"));
}

TEST_F(TDocumentsRepasEssai, DetailOfOrders) {
  EXPECT_EQ(
      Dessin(DetailCommandes(Contexte(), Jour(), GenerationRepas(true)).Rapports.at(0)),
      u"repas chaud: TypeRepas=2 repas chauds\n"
      "  P3 B: Classe=P3 B\n    Eleve4 Prenom4: NomEleve=Eleve4 Prenom4\n"
      "  PROFESSEURS : Classe=PROFESSEURS \n    Eleve5 Prenom5: NomEleve=Eleve5 Prenom5\n"
      "soupe: TypeRepas=1 soupe(s)\n  P1 A: Classe=P1 A\n    Eleve3 Prenom3: NomEleve=Eleve3 Prenom3\n"
      "sandwich: TypeRepas=1 sandwich(s)\n  P1 A: Classe=P1 A\n    Eleve2 Prenom2: NomEleve=Eleve2 Prenom2"_s);
  const TResultat detail = DetailCommandes(Contexte(), Jour(), GenerationRepas(false));
  EXPECT_TRUE(Page(detail.Rapports.at(0)).contains(u"1 dago(s)"));
  EXPECT_TRUE(
      DetailCommandes(Contexte(), JourDeCuisine(*Globals.Eleves, J("2016-11-25")), GenerationRepas(false))
          .Rapports.at(0)
          .Arbre()
          .empty());
  const TResultat choix = ChoixDeRepas(Contexte(), Globals.Eleves->GetClasse(1), J("2016-11-24"));
  EXPECT_EQ(Dessin(choix.Rapports.at(0)),
            u"Eleve2 Prenom2: NomEleve=Eleve2 Prenom2\nEleve3 Prenom3: NomEleve=Eleve3 Prenom3");
  EXPECT_TRUE(Page(choix.Rapports.at(0)).contains(u"jeudi 24 novembre 2016"));
  base.Sql("UPDATE ELEVES SET NOM = CASE ELEVE_ID WHEN 2 THEN 'Zorn' ELSE 'Éloy' END");
  controleur.Charger();
  const TResultat classe = ChoixDeRepas(Contexte(), Globals.Eleves->GetClasse(1), J("2016-11-24"));
  EXPECT_TRUE(Dessin(classe.Rapports.at(0)).startsWith(u"Éloy Prenom3: ")) << "É with E on paper too";
}

TEST_F(TDocumentsRepasEssai, TicketsOfParentsAndClasses) {
  const TElevesChoisis tous = Globals.Eleves->Tous();
  const TDateTime jour = J("2016-11-24");
  const TResultat parents = TicketsParents(Contexte(), tous, jour);
  const QString dessin = Dessin(parents.Rapports.at(0));
  EXPECT_TRUE(
      dessin.startsWith(u"Eleve1 Prenom1: NomEleve=Eleve1 | PrenomEleve=Prenom1 | Classe=M1 B | "
                        "DateJour=24 novembre 2016 | SoldeTicket=-1"));
  EXPECT_EQ(dessin.section(u'\n', 1),
            u"  02/11/2016 : Achat de 2 tickets: DateAchatTicket=02/11/2016 : Achat de 2 tickets\n"
            "    jeudi 3 novembre 2016: DateUtilisationTicket=jeudi 3 novembre 2016 | TypeRepas=Sandwich\n"
            "    Non utilisé: DateUtilisationTicket=Non utilisé | TypeRepas=\n"
            "  Tickets manquants: DateAchatTicket=Tickets manquants\n"
            "    vendredi 4 novembre 2016: DateUtilisationTicket=vendredi 4 novembre 2016 | TypeRepas=\n"
            "    lundi 7 novembre 2016: DateUtilisationTicket=lundi 7 novembre 2016 | TypeRepas="_s);
  const std::pair<int, const char*> soldes[] = {{0, "Vous devez 1 ticket"},
                                                {1, "Il ne vous reste plus de ticket"},
                                                {1, "Il vous reste 1 ticket"},
                                                {2, "Il vous reste 3 tickets"}};
  for (const auto& [achat, phrase] : soldes) {
    if (achat > 0) tous[0]->AcheterTickets(achat, TPaiementTicket::Comptant, {}, jour);
    EXPECT_TRUE(Page(TicketsParents(Contexte(), tous, jour).Rapports.at(0)).contains(phrase)) << phrase;
  }
  const TResultat classes = TicketsParClasse(Contexte(), tous, jour);
  EXPECT_TRUE(
      Dessin(classes.Rapports.at(0))
          .startsWith(u"M1 B: Classe=M1 B\n  Eleve1 Prenom1: NomEleve=Eleve1 Prenom1 | TotalTicket=3\n"));
  EXPECT_TRUE(Page(classes.Rapports.at(0)).contains(u"Récapitulatif des tickets disponibles en P3 B"));
  EXPECT_EQ(TicketsParents(Contexte(), {tous[1]}, jour).Messages, QStringList("Aucun relevé à imprimer."));
  EXPECT_EQ(TicketsParents(Contexte(), {}, jour).Messages,
            QStringList("Veuillez sélectionner des élèves dans la liste."));
}

TEST_F(TDocumentsRepasEssai, TicketsSold) {
  const TResultat vendus = TicketsVendus(Contexte(), {J("2016-11-01"), J("2016-11-30")});
  ASSERT_EQ(vendus.Rapports.size(), 1u);  // nothing was paid in cash
  const TRapport& rapport = vendus.Rapports[0];
  EXPECT_EQ(rapport.Titre(), u"Tickets payés via le compte bancaire");
  EXPECT_EQ(rapport.Variables().Valeur(u"NomRapportSSTitre"),
            u"Relevé du 1 novembre 2016 au 30 novembre 2016");
  EXPECT_EQ(rapport.Arbre().size(), 1u);
  EXPECT_TRUE(Page(rapport).contains(u"4,40 €"));
  EXPECT_EQ(TicketsVendus(Contexte(), {J("2016-11-03"), J("2016-11-02")}).Messages,
            QStringList("Il n'y a aucune information à imprimer"));
}

TEST_F(TDocumentsRepasEssai, TheTillHoldsWhatWasReceived) {
  for (const char* montant : {"4", "1.5"})
    ecole.Ajouter("REPAS_PAIEMENT", "REPAS_PAIEMENT_ID, ELEVE_ID, MONTANT, TYPE_PAIEMENT, DATE_PAIEMENT",
                  {"1", montant, "0", "'2016-11-24'"});
  ecole.Ajouter("DETAIL_PAIEMENT_LIQUIDE", "DETAIL_PAIEMENT_LIQUIDE_ID, REPAS_PAIEMENT_ID, TOT_2_EUR",
                {"1", "2"});
  const QString page = Page(CaisseDesRepas(Contexte(), J("2016-11-24")).Rapports[0]).simplified();
  EXPECT_TRUE(page.contains(u"2 euros 2 4,00 €") && page.contains(u"Sans détail 1,50 €") &&
              page.contains(u"Total 5,50 €"))
      << page.toStdString();
  EXPECT_FALSE(Page(CaisseDesRepas(Contexte(), J("2016-11-25")).Rapports[0]).contains(u"Sans détail"));
}
