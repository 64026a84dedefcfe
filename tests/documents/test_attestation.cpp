#include "ecole_documents.h"
#include "workflows/attestations.h"

namespace {

/// A pupil of 2016 and 2017 whose care and payments tell every way of computing from the others.
struct TAttestationEssai : TDocumentsEssai {
  TAttestationEssai() {
    anne.nomme(u"ADAM"_s, u"Anne"_s).enClasse(u"P5"_s, u"A"_s);
    Scans(anne, {u"matin 2017-02-06"_s, u"matin 2017-03-06"_s, u"matin 2017-04-03"_s});  // 3.7035
    anne.mois(2, u"1"_s).mois(3, u"1"_s).mois(4, u"1"_s);
    anne.paie(u"3.5"_s, 5, 2, {}).paie(u"0.1"_s, 3, 0, {});
    TEleveEssai(automne, anne.Id).enClasse(u"P6"_s, u"A"_s);
    TEleveEssai suite(automne, anne.Id);
    Scans(suite, {u"matin 2017-10-02"_s, u"matin 2017-10-03"_s});  // 2.4690
    suite.mois(10, u"2"_s).paie(u"1.5"_s, 10, 2, {}).paie(u"0.25"_s, 10, 1, {});
    base.Sql(
        u"UPDATE ELEVES SET NOM_RESPONSABLE = 'UN', NOM_RESPONSABLE2 = 'DEUX', ADRESSE = 'Rue', NUMERO = '1'"_s);
    ecole.parametre(27, u"2017"_s);
  }
  void Ne(const QString& date) { base.Sql(u"UPDATE ELEVES SET DATE_NAISSANCE = '"_s + date + u"'"_s); }
  TResultat Attester(const QString& parametre, int annee = 2017) {
    ecole.parametre(40, parametre);
    Globals = {};
    controleur.Charger(annee);
    TChoixDocument choix;
    choix.Eleves = {Globals.Eleves->TrouverParId(anne.Id)};
    return FaireDocument(ContexteDesGlobals(controleur.Horloge), *TrouverTitre(u"Attestation fiscale"),
                         choix);
  }
  /// "4,50 01/01/2017 31/12/2017" of each sheet.
  static QString Feuilles(const TResultat& resultat) {
    QStringList feuilles;
    for (const TRapport& rapport : resultat.Rapports)
      for (const TNoeudRapport& noeud : rapport.Arbre())
        feuilles += noeud.Valeurs.Valeur(u"Montant") % u' ' % noeud.Valeurs.Valeur(u"DateDebut") % u' ' %
                    noeud.Valeurs.Valeur(u"DateFinReel");
    return feuilles.join(u'|');
  }

  TEcoleEssai automne{base, 2017};
  TEleveEssai anne = ecole.unEleve();
};

}  // namespace

TEST_F(TAttestationEssai, QuatreFaconsDeCompter) {
  const struct {
    const char16_t *Parametre, *Enfant, *Douze, *Printemps, *PrintempsDouze;
  } cas[] = {
      {u"1", u"4,50", u"4,50", u"3,00", u"2,00"},
      {u"2", u"6,17", u"2,47", u"3,70", u"2,47"},
      {u"3", u"5,00", u"3,97", u"3,50", u"2,47"},
      {u"4", u"5,35", u"4,22", u"3,60", u"2,47"},
  };
  for (const auto& [parametre, enfant, douze, printemps, printempsDouze] : cas) {
    SCOPED_TRACE(QString::fromUtf16(parametre).toStdString());
    const QString p = QString::fromUtf16(parametre);
    Ne(u"2010-05-05"_s);
    EXPECT_EQ(Feuilles(Attester(p)), QString::fromUtf16(enfant) + u" 01/01/2017 31/12/2017"_s);
    EXPECT_EQ(Feuilles(Attester(p, 2016)), QString::fromUtf16(printemps) + u" 01/01/2017 30/06/2017"_s);
    Ne(u"2005-03-10"_s);
    const TResultat resultat = Attester(p);
    EXPECT_EQ(Feuilles(resultat), QString::fromUtf16(douze) + u" 01/01/2017 9/3/2017"_s);
    EXPECT_EQ(resultat.Rapports.at(0).Avertissements.size(), p == u"2" ? 0 : 1);
    EXPECT_EQ(Feuilles(Attester(p, 2016)), QString::fromUtf16(printempsDouze) + u" 01/01/2017 9/3/2017"_s);
    Ne(u"2004-12-31"_s);
    EXPECT_EQ(Attester(p).Messages, QStringList{u"Aucune information à imprimer"_s});
  }
  Ne(u"2010-05-05"_s);
  for (const char16_t* autre : {u"", u"5"})
    EXPECT_EQ(Attester(QString::fromUtf16(autre)).Messages,
              (QStringList{u"Le paramètre de calcul d'attestation d'impôt n'a pas été défini."_s,
                           u"Aucune information à imprimer"_s}));
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM ELEVES WHERE NUM_ATTEST_2015 IS NOT NULL"_s), u"1"_s);
  // Without a number, or without a date of birth, there is none, and that is told.
  base.Sql(u"UPDATE ELEVES SET NUM_ATTEST_2015 = NULL"_s);
  base.Sql(u"DELETE FROM COUNTERS WHERE TABLE_NAME = 'VIRTUAL_ATTESTATION_2015'"_s);
  anne.avec(u"FLG_PARENT_SEPARE"_s);
  for (int feuille = 0; feuille < 2; ++feuille)
    base.Dialogues.Attend(u"Le compteur de table VIRTUAL_ATTESTATION_2015 n'existe pas !"_s);
  const TResultat sans = Attester(u"1"_s);
  EXPECT_TRUE(sans.Rapports.empty());
  EXPECT_EQ(sans.Manques.size(), 1U);
  base.Sql(u"UPDATE ELEVES SET DATE_NAISSANCE = NULL"_s);
  EXPECT_EQ(Attester(u"1"_s).Manques.at(0).Champ, u"lblDateNaissance");
  base.Sql(u"UPDATE ELEVES_CLASSES SET CLASSE = 'PROFESSEURS'"_s);
  EXPECT_TRUE(Attester(u"1"_s).Manques.empty()) << "no pupil";
}

TEST_F(TAttestationEssai, LesSupplementsDuMidi) {
  Ne(u"2010-05-05"_s);
  const auto midi = [&](const QString& libelle, const QString& drapeau, int mois) {
    return automne.frais(libelle, u"7"_s, mois, drapeau);
  };
  TEleveEssai suite(automne, anne.Id);
  suite.doit(midi(u"Garderie du midi"_s, u"service"_s, 11), u"7"_s)
      .doit(midi(u"Garderie du midi"_s, u"service"_s, 12), u"6"_s)  // not paid exactly
      .doit(midi(u"Midi"_s, {}, 11), u"7"_s)
      .doit(midi(u"Soir"_s, u"service"_s, 11), u"7"_s)
      .doit(midi(u"MIDI"_s, u"service"_s, 8), u"7"_s);
  EXPECT_EQ(Feuilles(Attester(u"2"_s)), u"13,17 01/01/2017 31/12/2017"_s);
  // The month of the birthday is compared with the place of the line, from 0: the fourth is too far.
  Ne(u"2005-02-10"_s);
  for (int i = 0; i < 2; ++i) anne.doit(ecole.frais(u"Garderie midi"_s, u"7"_s, 3, u"service"_s), u"7"_s);
  EXPECT_EQ(Feuilles(Attester(u"2"_s, 2016)), u"8,23 01/01/2017 9/2/2017"_s);
}

TEST_F(TAttestationEssai, ParentsSepares) {
  Ne(u"2010-05-05"_s);
  anne.avec(u"FLG_PARENT_SEPARE"_s);
  automne.mouvement({}, u"2017-10-05"_s, u"10"_s);
  base.Sql(u"UPDATE EXTRAITS SET TYPE_RESPONSABLE = 2"_s);
  base.Sql(u"UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 1 WHERE MONTANT_VERSE = 1.5"_s);
  const TResultat deux = Attester(u"3"_s);
  EXPECT_EQ(Feuilles(deux), u"3,50 01/01/2017 31/12/2017|13,50 01/01/2017 31/12/2017"_s);
  const TArbreRapport& arbre = deux.Rapports.at(0).Arbre();
  EXPECT_EQ(arbre[0].Valeurs.Valeur(u"NomResponsable") % arbre[1].Valeurs.Valeur(u"NomResponsable"),
            QString(u"UNDEUX"_s));
  EXPECT_EQ(arbre[0].Valeurs.Valeur(u"AdresseResponsable"), u"Rue, 1"_s);
  EXPECT_EQ(arbre[0].Valeurs.Valeur(u"NumAttestation"), arbre[1].Valeurs.Valeur(u"NumAttestation"));
  EXPECT_EQ(deux.Rapports[0].Avertissements.size(), 1);
  const TDocumentPrepare document =
      MettreEnPage(deux.Rapports[0], *ModeleDocument(deux.Rapports[0].Modele()));
  EXPECT_EQ(document.Pages.size(), 4U);
  EXPECT_EQ(document.Defauts.size(), 1U) << "the warning";
  base.Sql(u"UPDATE FRAIS_ELEVE SET FLG_PART = 1 WHERE EXTRAIT_ID = 1"_s);
  EXPECT_EQ(Feuilles(Attester(u"3"_s)), u"3,50 01/01/2017 31/12/2017|5,00 01/01/2017 31/12/2017"_s)
      << "of a movement that was shared out, its own part";
  // Without the spring the first parent has paid nothing: no sheet for either, and the office is told.
  base.Sql(u"DELETE FROM ELEVES_CLASSES WHERE ANNEE_SCOLAIRE = 2016"_s);
  EXPECT_EQ(Attester(u"3"_s).Messages, QStringList{u"Aucune information à imprimer"_s});
  TAttestations attestations(*Globals.Eleves, *Globals.Parametres, 2017);
  QStringList messages;
  const auto feuilles = attestations.Feuilles({Globals.Eleves->TrouverParId(anne.Id)}, messages);
  ASSERT_EQ(feuilles.size(), 2U);
  EXPECT_EQ(feuilles[1].Responsable, 1);
  EXPECT_EQ(feuilles[0].Remarques.size(), 1);
}

TEST_F(TAttestationEssai, LAnneeOuverteEstUneAutre) {
  Ne(u"2010-05-05"_s);
  ecole.parametre(27, u"2018"_s);
  const TResultat resultat = Attester(u"1"_s);  // 2017 on display: its spring is still found
  EXPECT_EQ(Feuilles(resultat), u"4,50 01/01/2018 30/06/2018"_s);
  EXPECT_EQ(resultat.Messages.size(), 1);
  EXPECT_EQ(Variable(resultat, u"DateFin"), u"30/06/2018"_s);
  ecole.parametre(111, u"1"_s);
  const std::pair<const char16_t*, const char16_t*> modeles[] = {{u"1", u"AttestationContributionValmonde"},
                                                                 {u"4", u"AttestationContributionASBL"},
                                                                 {u"2", u"AttestationContributionASBL"}};
  for (const auto& [parametre, modele] : modeles)
    EXPECT_EQ(Attester(QString::fromUtf16(parametre)).Rapports.at(0).Modele(), QString::fromUtf16(modele));
}
