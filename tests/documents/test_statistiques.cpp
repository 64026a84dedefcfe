#include "documents/statistiques.h"
#include "ecole_documents.h"
#include "workflows/export_balances.h"
#include "workflows/transfert_soldes.h"

namespace {

struct TStatistiquesEssai : TDocumentsEssai {
  void Charger() {
    Globals = {};
    controleur.Charger();
  }
  static QString Montants(const std::vector<TMontantEleve>& lignes) {
    QStringList textes;
    for (const auto& [eleve, montant] : lignes) textes += eleve->Nom % u' ' % FormatNombre(montant);
    return textes.join(u'|');
  }
  static QString Impayes(bool frais, bool services, TEtendue etendue = TEtendue::Annee, int mois = 0) {
    return Montants(::Impayes(*Globals.Eleves, {frais, services, etendue, mois}));
  }
};

}  // namespace

TEST_F(TStatistiquesEssai, QuiDoitEtQuiAPayeTrop) {
  TEleveEssai anne = UnEleve().nomme(u"ADAM"_s, u"Anne"_s);
  Scans(anne, {u"matin 2016-10-03"_s, u"matin 2017-06-05"_s});
  anne.doit(ecole.frais(u"Piscine"_s, u"14"_s, 10), u"4"_s).doit(ecole.frais(u"Fin"_s, u"3"_s, 6));
  anne.mois(10, u"1"_s);
  UnEleve(u"FLG_RADIE"_s).nomme(u"BODART"_s, u"Max"_s).paie(u"5"_s, 9, 1, {});
  UnEleve().nomme(u"CLAES"_s, u"Zoé"_s);
  Charger();
  EXPECT_EQ(Impayes(true, true), u"ADAM 14,469"_s);
  EXPECT_EQ(Impayes(true, false), u"ADAM 13"_s);
  EXPECT_EQ(Impayes(false, true), u"ADAM 1,469"_s);
  EXPECT_EQ(Impayes(false, false), QString());
  EXPECT_EQ(Impayes(false, true, TEtendue::Mois, 10), u"ADAM 0,2345"_s);
  EXPECT_EQ(Impayes(true, false, TEtendue::Mois, 10), u"ADAM 10"_s);
  EXPECT_EQ(Impayes(true, true, TEtendue::Mois, 11), QString());
  EXPECT_EQ(Impayes(true, true, TEtendue::Jusque, 6), u"ADAM 14,469"_s);
  EXPECT_EQ(Impayes(true, true, TEtendue::Jusque, 5), u"ADAM 10,2345"_s);
  EXPECT_EQ(Impayes(true, true, TEtendue::Jusque, 9), QString());
  EXPECT_EQ(Impayes(true, true, TEtendue::Jusque), QString()) << "no month, no row";
  EXPECT_EQ(Montants(BalancesPositives(*Globals.Eleves, true, false)), u"BODART 5"_s);
  ecole.parametre(25, u"1"_s);
  Charger();
  EXPECT_EQ(Impayes(true, true, TEtendue::Mois, 11), u"ADAM 19,469"_s) << "the whole balance, by provision";

  base.Sql(u"UPDATE ELEVES SET NOM_RESPONSABLE = 'A \"B\"', ADRESSE = 'Rue', NUMERO = '1'"_s);
  Charger();
  const QString chemin = base.Chemin(u"export.csv"_s);
  ExporterImpayes(::Impayes(*Globals.Eleves, {}), chemin);
  const QByteArray octets = LireFichier(chemin);
  EXPECT_TRUE(octets.startsWith("\xEF\xBB\xBF"));
  EXPECT_EQ(QString::fromUtf8(octets),
            u"Matricule;Nom;Prénom;Classe;Montant;Nom du responsable;Prénom du responsable;Adresse;"
            "Code postal;Localite\r\n"
            "\"1-1\";\"ADAM\";\"Anne\";\"P3 A\";\"19,47\";\"A \"\"B\"\"\";\"\";\"Rue, 1\";\"\";\"\"\r\n"_s);
}

TEST_F(TStatistiquesEssai, CeQuiEstPayeDeLaGarde) {
  TEleveEssai anne = UnEleve().nomme(u"ADAM"_s, u"Anne"_s);
  Scans(anne, {u"matin 2016-10-03"_s, u"midi 2016-10-03"_s});
  anne.mois(10, u"1.2345"_s).mois(11, u"2"_s).paie(u"0.5"_s, 10, 2, {}).paie(u"9"_s, 10, 1, {});
  Charger();
  const auto du = [&](const char* premier, const char* dernier) {
    QStringList textes;
    for (const auto& [eleve, cout, paye] : StatistiquesFiscales(*Globals.Eleves, {J(premier), J(dernier)}))
      textes += FormatNombre(cout) % u' ' % FormatNombre(paye);
    return textes.join(u'|');
  };
  EXPECT_EQ(du("2016-10-01", "2016-10-31"), u"1,2345 1,7345"_s);
  EXPECT_EQ(du("2016-10-02", "2016-10-31"), QString()) << "October does not start there";
  EXPECT_EQ(du("2016-09-01", "2017-06-30"), u"1,2345 3,7345"_s);
  EXPECT_EQ(du("2017-06-30", "2016-09-01"), QString());
}

TEST_F(TStatistiquesEssai, LesSoldesPassentUneFois) {
  TEleveEssai anne = UnEleve().nomme(u"ADAM"_s, u"Anne"_s).paie(u"12.3456"_s, 10, 1, {});
  UnEleve().paie(u"5"_s, 10, 1, {});
  TEleveEssai leo = UnEleve().nomme(u"LEO"_s, u"Léo"_s).doit(ecole.frais(u"Piscine"_s, u"14"_s, 10));
  TEcoleEssai suivante(base, 2017);
  for (const int id : {anne.Id, leo.Id}) TEleveEssai(suivante, id).enClasse(u"P4"_s, u"A"_s);
  ecole.parametre(27, u"2017"_s);
  controleur.Charger(2016);
  const auto transferer = [&](TSensTransfert sens) {
    std::vector<TMontantEleve> reportes;
    TransfererSoldes(*Globals.Eleves, 2017, Globals.Eleves->Tous(), sens,
                     [&](const auto& un) { reportes.push_back(un); });
    return Montants(reportes);
  };
  EXPECT_EQ(RefusTransfert(*Globals.Eleves, 2017), QString());
  EXPECT_FALSE(RefusTransfert(*Globals.Eleves, 2016).isEmpty());
  for (const QString& sql :
       {u"INSERT INTO PAIEMENTS (PAIEMENT_ID, ELEVE_ID, TYPE_PAIEMENT, MOIS, MONTANT, ANNEE_SCOLAIRE) "
        "VALUES (99, 1, 7, 9, 1, 2016)"_s,
        u"UPDATE FRAIS_ELEVE SET MONTANT_VERSE = 10 WHERE ELEVE_ID = 1"_s}) {
    base.Sql(sql);
    EXPECT_THROW(transferer(TSensTransfert::Positifs), Exception) << "paid elsewhere: " << sql.toStdString();
    EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM FRAIS_ELEVE WHERE ELEVE_ID = 1"_s), u"1");
    base.Sql(u"DELETE FROM PAIEMENTS"_s);
  }
  base.Sql(u"UPDATE FRAIS_ELEVE SET MONTANT_VERSE = 12.3456 WHERE ELEVE_ID = 1"_s);
  EXPECT_EQ(transferer(TSensTransfert::Positifs), u"ADAM 12,3456"_s) << "who left keeps his";
  EXPECT_EQ(transferer(TSensTransfert::Positifs), QString()) << "carried once";
  EXPECT_EQ(transferer(TSensTransfert::Negatifs), u"LEO -14"_s);
  EXPECT_EQ(base.Rangees(u"SELECT ELEVE_ID, ANNEE_SCOLAIRE, LISTEFRAIS_ID, TYPE_FAMILLE_FRAIS, MOIS, "
                         "MONTANT_VERSE, REMARQUE FROM FRAIS_ELEVE WHERE REMARQUE LIKE '%année scolaire%' "
                         "ORDER BY FRAIS_ELEVE_ID"_s)
                .join(u'|')
                .remove(u".0000"_s),
            u"1;2017;-;1;9;12.3456;Transfert de l'année scolaire 2016-2017|"
            "1;2016;-;1;6;-12.3456;Transfert vers l'année scolaire 2017-2018|"
            "3;2017;-;1;9;-14;Report de l'année scolaire 2016-2017|"
            "3;2016;-;1;6;14;Report vers l'année scolaire 2017-2018"_s);
  controleur.Charger(2017);
  EXPECT_EQ(Montants(BalancesPositives(*Globals.Eleves, true, true)), u"ADAM 12,3456"_s);
  ecole.parametre(25, u"1"_s);
  TEleveEssai(suivante, 2).enClasse(u"P4"_s, u"A"_s);
  Globals = {};
  controleur.Charger(2016);
  base.Sql(
      u"INSERT INTO PAIEMENTS (PAIEMENT_ID, ELEVE_ID, TYPE_PAIEMENT, MOIS, MONTANT, ANNEE_SCOLAIRE) "
      "VALUES (99, 2, 7, 9, 1, 2016)"_s);
  EXPECT_TRUE(transferer(TSensTransfert::Positifs).endsWith(u" 5"_s)) << "services are no part of it";
}

TEST_F(TStatistiquesEssai, LesRapports) {
  TEleveEssai zoe = ecole.unEleve().nomme(u"CLAES"_s, u"Zoé"_s).enClasse(u"M1"_s, u"B"_s, u"2"_s);
  TEleveEssai anne = UnEleve().nomme(u"ADAM"_s, u"Anne"_s);
  const int frais = ecole.frais(u"Piscine"_s, u"14.5"_s, 10);
  zoe.doit(frais).paie(u"5"_s, 10, 0, u"Fancy-fair"_s).paie(u"1"_s, 10, 0, u"Tombola"_s);
  anne.doit(frais).paie(u"2"_s, 11, 0, u"Tombola"_s);
  Scans(anne, {u"repas 2016-10-03"_s, u"repas 2016-10-03 13:00 "_s, u"repas 2016-10-08"_s});
  base.Sql(u"INSERT INTO GROUPE_FRAIS (GROUPE_FRAIS_ID, LIBELLE) VALUES (3, 'Fête')"_s);
  base.Sql(u"UPDATE FRAIS_ELEVE SET GROUPE_FRAIS_ID = 3 WHERE LISTEFRAIS_ID IS NULL"_s);
  ecole.parametre(1, u"École"_s);
  ecole.parametre(9, u"Haut"_s);
  Charger();
  const TContexteDocument contexte = ContexteDesGlobals(controleur.Horloge);
  const auto lignes = PaiementsDuGroupe(*Globals.Eleves, *Globals.GroupesFrais->ParCle(3));
  const TResultat paiements = ImprimerPaiements(contexte, u"Fête"_s, lignes);
  EXPECT_EQ(Dessin(paiements.Rapports.at(0)),
            u"M1 B: Classe=M1 B\n"
            "  CLAES Zoé: NomEleve=CLAES Zoé | MontantTotal=6,00\n"
            "    Fancy-fair: LibellePaiement=Fancy-fair | Montant=5,00\n"
            "    Tombola: LibellePaiement=Tombola | Montant=1,00\n"
            "P3 A: Classe=P3 A\n"
            "  ADAM Anne: NomEleve=ADAM Anne | MontantTotal=2,00\n"
            "    Tombola: LibellePaiement=Tombola | Montant=2,00"_s);
  EXPECT_EQ(Variables(paiements.Rapports[0]),
            u"NomRapport=Relevé des paiements : Fête|NomRapportSSTitre=|NomEcole=École (Haut)|"
            "AnneeScolaire=2016-2017|AdresseEcole=|CPEcole=|LocaliteEcole=|TelEcole="_s);
  EXPECT_EQ(ImprimerPaiements(contexte, u"Fête"_s, {}).Messages, QStringList{u"Aucun relevé à imprimer."_s});

  const TResultat cout = ImprimerFrais(contexte, StatistiqueFrais(*Globals.ListeFrais));
  EXPECT_EQ(Dessin(cout.Rapports.at(0)),
            u"Piscine: LibelleFrais=Piscine | NombreEleves=2 | MoisFrais=Octobre | "
            "CoutUnitaire=14,50 | TotalFrais=29,00"_s);
  EXPECT_EQ(Variable(cout, u"TotalGeneral"), u"29,00"_s);
  EXPECT_EQ(ImprimerFrais(contexte, {}).Messages,
            QStringList{u"Veuillez cocher un ou plusieurs frais dans la liste."_s});

  TGrille annuel = GrilleAnnuelle();
  Remplir(annuel, ReleveAnnuel());
  ASSERT_EQ(annuel.NombreLignes(), 13);
  EXPECT_EQ(annuel.Texte(1, 0) % annuel.Texte(12, 1), QString(u"Octobre :1"_s)) << "one meal is charged";
  TGrille impayes = GrilleImpayes();
  EXPECT_EQ(ImprimerListe(contexte, u"L"_s, {}, impayes).Messages,
            QStringList{u"Aucune information à imprimer"_s});
  Remplir(impayes, ::Impayes(*Globals.Eleves, {}));
  const TResultat liste = ImprimerListe(contexte, TitreImpayes(true, true),
                                        TexteCriteres({true, true, TEtendue::Jusque, 10}), impayes);
  EXPECT_EQ(Variable(liste, u"NomRapport"), u"Liste des services et frais"_s);
  EXPECT_EQ(Variable(liste, u"NomRapportSSTitre"), u"Jusqu'au mois d'octobre"_s);
  EXPECT_EQ(liste.Rapports[0].Arbre().size(), 2U);
  for (const TResultat* resultat : {&paiements, &cout, &liste})
    for (const TRapport& rapport : resultat->Rapports)
      EXPECT_EQ(Pages(rapport).Pages.size(), 1U) << rapport.Modele().toStdString();
}
