#include "documents/fiche_fiscale.h"
#include "ecole_documents.h"

namespace {

/// A pupil with care in both school years of 2017, of which only May is not paid.
struct TFicheFiscaleEssai : TDocumentsEssai {
  TFicheFiscaleEssai() {
    anne.nomme(u"ADAM"_s, u"Anne"_s).enClasse(u"P5"_s, u"A"_s);
    automne.enClasse(u"P6"_s, u"A"_s);
    Ne(u"2012-05-10"_s);
    Poser(
        u"NUM_NATIONAL = '12051000115', NUM_NATIONAL_RESPONSABLE = '85073003328', NOM_RESPONSABLE = 'UN', "
        "NUM_NATIONAL_RESPONSABLE2 = '90010200487', NOM_RESPONSABLE2 = 'DEUX'"_s);
    ecole.parametre(27, u"2017"_s);
    controleur.Horloge.Moment = EncodeDate(2018, 2, 5);
  }
  // The prices of the school are there once the fixture is set up.
  void SetUp() override {
    TDocumentsEssai::SetUp();
    Scans(anne, {u"matin 2016-12-05"_s, u"matin 2017-02-06"_s, u"midi 2017-02-06"_s, u"repas 2017-02-06"_s,
                 u"matin 2017-03-06"_s, u"matin 2017-05-08"_s});
    anne.mois(12, u"1.2345"_s).mois(2, u"5.2395"_s).paie(u"1.2345"_s, 3, 2, u"Votre virement"_s);
    Scans(automne, {u"matin 2017-10-02"_s, u"matin 2017-10-03"_s});
    automne.paie(u"2.4690"_s, 0, 2, u"Votre virement"_s);
  }
  void Poser(const QString& colonnes) { base.Sql(u"UPDATE ELEVES SET "_s + colonnes); }
  void Ne(const QString& date) { Poser(u"DATE_NAISSANCE = '"_s + date + u'\''); }
  /// The last payment of the autumn comes by that movement.
  void ParVirement(const QString& responsable, const QString& montant = u"2.4690"_s) {
    suivante.mouvement({}, u"2017-10-05"_s, u"99"_s);
    base.Sql(u"UPDATE EXTRAITS SET TYPE_RESPONSABLE = "_s + responsable);
    base.Sql(u"UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 1, FLG_PART = 1 WHERE MONTANT_VERSE = "_s + montant);
  }
  TResultat Etablir(int annee = 2017, const std::vector<int>& autres = {}) {
    Globals = {};
    controleur.Charger(annee);
    TChoixDocument choix;
    choix.Eleves = {Globals.Eleves->TrouverParId(anne.Id)};
    for (const int autre : autres) choix.Eleves.push_back(Globals.Eleves->TrouverParId(autre));
    return FaireDocument(ContexteDesGlobals(controleur.Horloge), *TrouverTitre(u"Fiche fiscale 281.86"),
                         choix);
  }
  /// "1 UN 3 j 5,43: 2 x 1,49 = 2,97 06/02/2017-06/03/2017|..." of each sheet.
  static QString Fiches(const TResultat& resultat) {
    QStringList fiches;
    for (const TRapport& rapport : resultat.Rapports)
      for (const TNoeudRapport& noeud : rapport.Arbre()) {
        const TValeurs& v = noeud.Valeurs;
        QStringList periodes;
        for (const TNoeudRapport& p : noeud.Enfants)
          periodes += p.Valeurs.Valeur(u"Jours") % u" x " % p.Valeurs.Valeur(u"Tarif") % u" = " %
                      p.Valeurs.Valeur(u"MontantPeriode") % u' ' % p.Valeurs.Valeur(u"PeriodeDu") % u'-' %
                      p.Valeurs.Valeur(u"PeriodeAu");
        fiches += v.Valeur(u"NumFiche") % u' ' % v.Valeur(u"NomResponsable") % u' ' %
                  v.Valeur(u"TotalJours") % u" j " % v.Valeur(u"Montant") % u": " % periodes.join(u'|');
      }
    return fiches.join(u'\n');
  }
  /// Of the pupils, or of the school.
  static QString Manques(const TResultat& resultat, bool ecole = false) {
    QStringList manques;
    for (const TManque& manque : resultat.Manques)
      if ((manque.EleveId == 0) == ecole)
        manques += (manque.SansDocument ? u"! "_s : QString()) % manque.Champ % u' ' % manque.Texte;
    return manques.join(u'\n');
  }

  TEcoleEssai suivante{base, 2017};
  TEleveEssai anne = ecole.unEleve();
  TEleveEssai automne{suivante, anne.Id};
};

const QString kPrintemps = u"2 x 1,49 = 2,97 06/02/2017-06/03/2017"_s;
const QString kAutomne = u"2 x 1,23 = 2,46 02/10/2017-03/10/2017"_s;
const QString kMai = u" 1 jour de garde impayé, le 08/05/2017 : pas sur la fiche"_s;

}  // namespace

TEST_F(TFicheFiscaleEssai, CeQuiEstPayeParTrimestre) {
  const TResultat resultat = Etablir();
  const QString entiere = u"1 UN 4 j 5,43: "_s + kPrintemps + u'|' + kAutomne;
  EXPECT_EQ(Fiches(resultat), entiere);
  EXPECT_EQ(Fiches(Etablir(2017, {anne.Id})), entiere) << "enrolled twice";
  EXPECT_EQ(Manques(resultat), kMai);
  EXPECT_EQ(Variable(resultat, u"AnneeRevenus"), u"2017");
  const TValeurs& valeurs = resultat.Rapports[0].Arbre()[0].Valeurs;
  EXPECT_EQ(valeurs.Valeur(u"NumNationalEleve"), u"12.05.10-001.15");
  EXPECT_EQ(valeurs.Valeur(u"NumNationalResponsable"), u"85.07.30-033.28");
  EXPECT_EQ(Pages(resultat.Rapports[0]).Pages.size(), 1U);
  // The school year before has the same sheet, with the same number, for who has left since.
  EXPECT_EQ(Fiches(Etablir(2016)), entiere);
  Poser(u"FLG_IMPOT_RESPONS2 = 1"_s);
  EXPECT_TRUE(Fiches(Etablir()).startsWith(u"2 DEUX")) << "another debtor's is another sheet";
  Poser(u"FLG_IMPOT_RESPONS2 = NULL"_s);
  EXPECT_EQ(Fiches(Etablir()), entiere);
  controleur.Horloge.Moment = EncodeDate(2019, 2, 5);
  EXPECT_EQ(Fiches(Etablir(2016)), entiere) << "the year before the last one";
  EXPECT_EQ(Fiches(Etablir()), entiere) << "the school has opened no later year";
}

// Who came in September and who left in June are printed with the whole school, or with their class,
// whichever year is on display.
TEST_F(TFicheFiscaleEssai, PersonneDeLAnneeDesRevenusNEstOublie) {
  TEleveEssai parti = ecole.unEleve().nomme(u"PARTI"_s, {}).enClasse(u"P6"_s, u"A"_s);
  Scans(parti, {u"matin 2017-02-06"_s});
  parti.mois(2, u"1.2345"_s);
  TEleveEssai venu = suivante.unEleve().nomme(u"VENU"_s, {}).enClasse(u"P1"_s, u"A"_s);
  Scans(venu, {u"matin 2017-10-02"_s});
  venu.mois(10, u"1.2345"_s);
  suivante.unEleve().nomme(u"MAITRE"_s, {}).enClasse(u"PROFESSEURS"_s, {});
  Ne(u"2012-05-10"_s);
  Poser(u"NUM_NATIONAL = '12051000115', NUM_NATIONAL_RESPONSABLE = '85073003328', NOM_RESPONSABLE = NOM"_s);
  QString portee;
  const auto noms = [&](int affichee, const QString& classe, int revenus = 2017) {
    Globals = {};
    controleur.Charger(affichee);
    TChoixDocument choix;
    choix.AnneeRevenus = revenus;
    choix.TouteLEcole = classe.isEmpty();
    if (choix.TouteLEcole) choix.Eleves = Globals.Eleves->Tous();
    for (const auto& sienne : Globals.Eleves->Classes())
      if (sienne->Libelle() == classe) choix.Classes.push_back(sienne.get());
    const TContexteDocument contexte = ContexteDesGlobals(controleur.Horloge);
    portee = PorteeFiches(contexte, choix);
    const TResultat fait = FaireDocument(contexte, *TrouverTitre(u"Fiche fiscale 281.86"), choix);
    QStringList faites;
    for (const QString& fiche : Fiches(fait).split(u'\n')) faites += fiche.section(u' ', 0, 1);
    return faites.join(u' ');
  };
  EXPECT_EQ(noms(2017, {}), u"1 VENU 2 ADAM 3 PARTI");
  EXPECT_EQ(portee,
            u"Garde du 1er janvier au 31 décembre 2017. Compris aussi : 1 élève de 2016 - 2017 qui n'est pas "
            "en 2017 - 2018.");
  EXPECT_EQ(noms(2016, {}), u"2 ADAM 3 PARTI 1 VENU") << "the same numbers";
  EXPECT_EQ(noms(2018, {}), u"1 VENU 2 ADAM 3 PARTI") << "nobody is on display";
  EXPECT_TRUE(portee.contains(u"3 élèves de 2016 - 2017 ou 2017 - 2018 qui ne sont pas en 2018 - 2019"_s));
  EXPECT_EQ(noms(2017, u"P6 A"_s), u"2 ADAM 3 PARTI") << "the class in which the child was last";
  EXPECT_EQ(noms(2017, u"P1 A"_s), u"1 VENU");
  EXPECT_TRUE(portee.endsWith(
      u"Pas compris : 1 élève de 2016 - 2017 qui n'est pas en 2017 - 2018 ; il s'imprime quand toute l'école "
      "est choisie."_s));
  EXPECT_EQ(noms(2017, {}, 2018), QString()) << "another year of income";
  EXPECT_EQ(
      portee,
      u"Garde du 1er janvier au 31 décembre 2018. Tous les enfants inscrits cette année-là sont en 2017 - "
      "2018.");
  const auto annees = [&] { return AnneesRevenus(ContexteDesGlobals(controleur.Horloge)); };
  EXPECT_EQ(annees(), (std::vector<int>{2018, 2017, 2016}));
  controleur.Horloge.Moment = EncodeDate(2017, 6, 30);
  EXPECT_EQ(annees(), (std::vector<int>{2017, 2016})) << "2018 has not begun";
}

TEST_F(TFicheFiscaleEssai, CeQuiManqueALEcoleEstDitDAbord) {
  const QString maximum = u" le maximum par jour de 2017 est inconnu du programme : vérifiez-le"_s;
  EXPECT_EQ(
      Manques(Etablir(), true),
      maximum %
          u"\nedNumeroEntreprise le numéro d'entreprise de l'école manque (Mon école, « N° d'entreprise »)");
  ecole.parametre(117, u"BE 0999.999.921"_s);
  EXPECT_TRUE(Manques(Etablir(), true).contains(u"« BE 0999.999.921 », est incorrect"_s));
  ecole.parametre(117, u"0999999922"_s);
  const TResultat resultat = Etablir();
  EXPECT_EQ(Manques(resultat, true), maximum);
  EXPECT_EQ(resultat.Manques.front().EleveId, 0);
  EXPECT_EQ(Variable(resultat, u"NumEntreprise"), u"0999.999.922");
}

TEST_F(TFicheFiscaleEssai, JusqueLaVeilleDeLAnniversaire) {
  Ne(u"2003-03-06"_s);
  EXPECT_EQ(Fiches(Etablir()), u"1 UN 1 j 1,73: 1 x 1,73 = 1,73 06/02/2017-06/02/2017");
  Poser(u"FLG_HANDICAP = 1"_s);
  EXPECT_EQ(Fiches(Etablir()), u"1 UN 4 j 5,43: "_s + kPrintemps + u'|' + kAutomne);
  Ne(u"1995-01-01"_s);
  EXPECT_EQ(Etablir().Messages, QStringList{u"Aucune information à imprimer"_s});
}

// A day is paid whole or not at all, and no money is lost: what does not pay February pays in its order.
TEST_F(TFicheFiscaleEssai, LArgentPaieLesJoursEntiers) {
  base.Sql(u"UPDATE PAIEMENTS SET MONTANT = 5.2394 WHERE MOIS = 2"_s);
  EXPECT_EQ(Fiches(Etablir()), u"1 UN 3 j 3,69: 1 x 1,23 = 1,23 06/03/2017-06/03/2017|"_s + kAutomne);
  anne.paie(u"0.0001"_s, 0, 2, {});
  EXPECT_EQ(Manques(Etablir()), kMai);
  // General payments pay the fees first, catalogue fees in both ways.
  anne.doit(ecole.frais(u"Piscine"_s, u"3"_s, 10)).paie(u"4.2344"_s, 0, 0, {});
  EXPECT_EQ(Manques(Etablir()), kMai);
  anne.paie(u"0.0001"_s, 0, 0, {});
  EXPECT_EQ(Fiches(Etablir()),
            u"1 UN 5 j 6,66: "_s + kPrintemps + u"|1 x 1,23 = 1,23 08/05/2017-08/05/2017|"_s + kAutomne);
}

// What was owed in June and carried over is nobody's payment until the next year's money has paid it.
TEST_F(TFicheFiscaleEssai, LaDetteReporteeNEstPasPayee) {
  anne.paie(u"1.2345"_s, 6, 1, u"Report vers l'année scolaire 2017-2018"_s);
  automne.paie(u"-1.2345"_s, 9, 1, u"Report de l'année scolaire 2016-2017"_s);
  const TResultat courte = Etablir();
  EXPECT_EQ(Fiches(courte),
            u"1 UN 4 j 5,43: "_s + kPrintemps +
                u"|1 x 1,23 = 1,23 08/05/2017-08/05/2017|1 x 1,23 = 1,23 02/10/2017-02/10/2017"_s);
  EXPECT_EQ(Manques(courte), u" 1 jour de garde impayé, le 03/10/2017 : pas sur la fiche");
  ParVirement(u"2"_s);
  Poser(u"FLG_PARENT_SEPARE = 1"_s);
  EXPECT_EQ(Fiches(Etablir()),
            u"1 UN 2 j 2,97: "_s + kPrintemps +
                u"\n2 DEUX 2 j 2,46: 1 x 1,23 = 1,23 08/05/2017-08/05/2017|1 x 1,23 = 1,23 "
                "02/10/2017-02/10/2017"_s);
  Poser(u"FLG_PARENT_SEPARE = NULL"_s);
  automne.paie(u"1.2345"_s, 0, 2, {});
  EXPECT_EQ(Manques(Etablir()), QString());
  // The fees that were owed with it come first.
  anne.doit(ecole.frais(u"Piscine"_s, u"2.4691"_s, 5));
  base.Sql(
      u"UPDATE FRAIS_ELEVE SET MONTANT_VERSE = SIGN(MONTANT_VERSE) * 3.7036 WHERE REMARQUE LIKE 'Report%'"_s);
  EXPECT_EQ(Manques(Etablir()), u" 3 jours de garde impayés, du 08/05/2017 au 03/10/2017 : pas sur la fiche");
}

TEST_F(TFicheFiscaleEssai, LaPlusVieilleDetteEstPayeeDAbord) {
  anne.paie(u"-10"_s, 9, 1, u"Report de l'année scolaire 2015-2016"_s);
  anne.paie(u"11.2345"_s, 6, 1, u"Report vers l'année scolaire 2017-2018"_s);
  automne.paie(u"-11.2345"_s, 9, 1, u"Report de l'année scolaire 2016-2017"_s);
  EXPECT_EQ(Manques(Etablir()), u" 3 jours de garde impayés, du 08/05/2017 au 03/10/2017 : pas sur la fiche");
}

TEST_F(TFicheFiscaleEssai, UneRemiseEstAuDebiteur) {
  Poser(u"FLG_IMPOT_RESPONS2 = 1"_s);
  anne.doit(ecole.frais(u"Remise"_s, u"-1.2345"_s, 5));
  EXPECT_TRUE(Fiches(Etablir()).startsWith(u"1 DEUX 5 j"));
}

// Who owes nothing has paid the care, on whatever line.
TEST_F(TFicheFiscaleEssai, LeSurplusDesFraisPaieLaGardeDeQuiNeDoitRien) {
  anne.doit(ecole.frais(u"Piscine"_s, u"10"_s, 5)).paie(u"11.2344"_s, 0, 1, {});
  EXPECT_EQ(Manques(Etablir()), kMai);
  anne.paie(u"0.0001"_s, 0, 1, {});
  EXPECT_EQ(Manques(Etablir()), QString());
}

// What was paid too much on fees is in the balance that was carried, and takes nothing from the care.
TEST_F(TFicheFiscaleEssai, LeSurplusReporteEtaitSurLesFrais) {
  anne.paie(u"1.2345"_s, 0, 2, {}).paie(u"10"_s, 0, 1, {});
  anne.paie(u"-10"_s, 6, 1, u"Transfert vers l'année scolaire 2017-2018"_s);
  EXPECT_EQ(Manques(Etablir()), QString());
}

TEST_F(TFicheFiscaleEssai, ChaqueParentASaFiche) {
  ParVirement(u"2"_s);
  EXPECT_TRUE(Fiches(Etablir()).startsWith(u"1 UN 4 j")) << "they live together";
  Poser(u"FLG_PARENT_SEPARE = 1"_s);
  EXPECT_EQ(Fiches(Etablir()), u"1 UN 2 j 2,97: "_s + kPrintemps + u"\n2 DEUX 2 j 2,46: "_s + kAutomne);
  base.Sql(u"UPDATE EXTRAITS SET TYPE_RESPONSABLE = NULL"_s);
  const TResultat inconnu = Etablir();
  EXPECT_EQ(Fiches(inconnu), QString());
  EXPECT_TRUE(Manques(inconnu).startsWith(u"!  débiteur inconnu : ")) << Manques(inconnu).toStdString();
  EXPECT_TRUE(inconnu.Messages.isEmpty());
}

TEST_F(TFicheFiscaleEssai, CeQuiManqueEstDitLesAutresSontImprimees) {
  TEleveEssai autre = ecole.unEleve().nomme(u"BABEL"_s, {}).enClasse(u"P1"_s, {});
  TEleveEssai sienne(suivante, autre.Id);
  Scans(sienne.enClasse(u"P2"_s, {}), {u"matin 2017-10-02"_s});
  sienne.mois(10, u"1.2345"_s);
  const TResultat resultat = Etablir(2017, {autre.Id});
  EXPECT_TRUE(Fiches(resultat).startsWith(u"1 UN 4 j"));
  EXPECT_EQ(Manques(resultat), kMai +
                                   u"\n! lblDateNaissance la date de naissance de l'enfant manque\n"
                                   "! edNumNational le numéro national de l'enfant manque\n"
                                   "! edNomResponsable débiteur : le nom du responsable manque\n"
                                   "! edNumNationalResponsable le numéro national du responsable manque"_s);
  Poser(u"NUM_NATIONAL = '12051000116'"_s);
  EXPECT_TRUE(Manques(Etablir()).startsWith(u"! edNumNational le numéro national de l'enfant est incorrect"));
  Poser(u"NUM_NATIONAL = '12051000115'"_s);
  anne.avec(u"FLG_RADIE"_s);
  EXPECT_EQ(Etablir(2017, {autre.Id}).Rapports.size(), 0U);
  EXPECT_TRUE(Fiches(Etablir()).startsWith(u"1 UN 4 j"));
}
