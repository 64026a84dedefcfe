// The statements: actual fees, forecast, meals and soups, and the demand for provision.
#include "ecole_documents.h"

using TRelevesEssai = TDocumentsEssai;

TEST_F(TRelevesEssai, FraisEffectifs) {
  TEleveEssai anne = UnEleve();
  anne.doit(ecole.frais(u"Payé"_s, u"5"_s, 10), u"5"_s)
      .doit(ecole.frais(u"Photo"_s, u"8.5"_s, 10, u"non_obligatoire"_s))
      .doit(ecole.frais(u"Atelier"_s, u"30"_s, 10, u"service"_s))
      .doit(ecole.frais(u"Prévu"_s, u"99"_s, 10, u"previsionnel"_s))
      .doit(ecole.frais(u"Novembre"_s, u"7"_s, 11))
      .mois(10, u"34.7499"_s);  // what October costs: paid, and shown
  Scans(anne, {u"matin 2016-10-03"_s, u"soir 2016-10-03"_s, u"etude 2016-10-04"_s});
  ecole.parametre(26, u"Merci\nbien"_s);
  ecole.parametre(103, u"1"_s);
  const QString titre = u"Relevé des frais effectifs"_s;
  const QString eleve = u"Eleve1 Prenom1: NomEleve=Eleve1 | PrenomEleve=Prenom1 | Classe=P3 A\n"_s;
  const QString frais =
      uR"(  Frais Obligatoire: TypeFrais=Frais obligatoires | TotalFrais=5,00
    Payé: NomService=Payé | Total=5,00
  Frais Non Obligatoire: TypeFrais=Frais non obligatoires | TotalFrais=8,50
    Photo: NomService=Photo | Total=8,50
)"_s;
  const TRapport releve = std::move(Demander(titre, {anne.Id}).Rapports.at(0));
  EXPECT_EQ(releve.Variables().Valeur(u"TexteComplementaire"), u"Merci\nbien"_s);
  EXPECT_EQ(Dessin(releve), eleve % frais %
                                uR"(  Services: TypeFrais=Services | TotalFrais=4,75
    Garderies du matin: NomService=Garderies du matin | Total=1,23
    Garderies du soir: NomService=Garderies du soir | Total=2,01
    Etudes: NomService=Etudes | Total=1,51)"_s);
  // Without the services there is still the study.
  ecole.parametre(24, u"1"_s);
  ecole.parametre(107, u"1"_s);
  const TRapport sans = std::move(Demander(titre, {anne.Id}).Rapports.at(0));
  EXPECT_EQ(releve.Modele() % sans.Modele(), u"ReleveReleveVesper"_s);
  EXPECT_EQ(Dessin(sans), eleve % frais %
                              uR"(  Services: TypeFrais=Services | TotalFrais=1,51
    Etudes: NomService=Etudes | Total=1,51)"_s);
  anne.avec(u"FLG_3E_ENFANT"_s);
  EXPECT_EQ(Dessin(Demander(titre, {anne.Id}).Rapports.at(0)) % u'\n', eleve % frais);
  EXPECT_EQ(Demander(titre, {anne.Id}, "2016-12-01", "2016-12-31").Messages,
            QStringList{u"Aucun relevé n'est à établir pour la période choisie."_s});
}

TEST_F(TRelevesEssai, ListePrevisionnelle) {
  TEleveEssai anne = UnEleve();
  anne.doit(ecole.frais(u"Piscine"_s, u"14"_s, 10))
      .doit(ecole.frais(u"Classe verte"_s, u"120"_s, 10, u"previsionnel non_obligatoire"_s))
      .doit(ecole.frais(u"Atelier"_s, u"0.005"_s, 10, u"previsionnel service non_obligatoire"_s));
  const QString titre = u"Liste prévisionnelle des frais"_s;
  const TResultat resultat = Demander(titre, {anne.Id, UnEleve().Id});
  EXPECT_EQ(Dessin(resultat.Rapports.at(0)),
            uR"(Eleve1 Prenom1: NomEleve=Eleve1 | PrenomEleve=Prenom1 | Classe=P3 A | TotalGeneral=120,01
  Frais Non Obligatoire: TypeFrais=Frais non obligatoires | TotalFrais=120,01
    Classe verte: NomService=Classe verte | Total=120,00
    Atelier: NomService=Atelier | Total=0,01)"_s);
  EXPECT_EQ(Demander(titre, {anne.Id}, "2016-11-01", "2016-11-30").Messages,
            QStringList{u"Aucun frais prévisionnel n'est attribué pour la période choisie."_s});
}

TEST_F(TRelevesEssai, RepasEtSoupes) {
  const auto eleve = [&](const QString& classe, const QStringList& scans) {
    TEleveEssai nouveau = ecole.unEleve().enClasse(classe, u"A"_s);
    Scans(nouveau, scans);
    return nouveau.Id;
  };
  const std::vector<int> eleves{
      eleve(u"P3"_s, {u"repas 2016-10-03"_s, u"soupe 2016-10-03"_s, u"soupe 2016-10-04"_s,
                      u"soupe 2016-10-06"_s, u"soupe 2016-10-06"_s, u"repas 2016-11-03"_s}),
      eleve(u"M1"_s, {u"soupe 2016-10-03"_s}), eleve(u"P3"_s, {u"repas 2016-10-03"_s, u"repas 2016-10-04"_s}),
      eleve(u"PROFESSEURS"_s, {u"repas 2016-10-03"_s}), eleve(u"P1"_s, {u"matin 2016-10-03"_s})};
  const QString titre = u"Comptabilisation des repas et des soupes"_s;
  const TResultat resultat = Demander(titre, eleves);
  const TRapport& rapport = resultat.Rapports.at(0);
  EXPECT_EQ(Dessin(rapport),
            uR"(P3 A: Classe=P3 A | TotRepasClasse=3 repas chauds. | TotSoupeClasse=3 soupes.
  Eleve1 Prenom1: NomEleve=Eleve1 | PrenomEleve=Prenom1 | NombreRepasSoupe=1 repas chaud + 3 soupes
  Eleve3 Prenom3: NomEleve=Eleve3 | PrenomEleve=Prenom3 | NombreRepasSoupe=2 repas chauds
M1 A: Classe=M1 A | TotRepasClasse=0 repas chauds. | TotSoupeClasse=1 soupe.
  Eleve2 Prenom2: NomEleve=Eleve2 | PrenomEleve=Prenom2 | NombreRepasSoupe=1 soupe
PROFESSEURS A: Classe=PROFESSEURS A | TotRepasClasse=1 repas chaud. | TotSoupeClasse=0 soupes.
  Eleve4 Prenom4: NomEleve=Eleve4 | PrenomEleve=Prenom4 | NombreRepasSoupe=1 repas chaud)"_s);
  QStringList sommes;
  for (const QString& qui : {u"Maternelle"_s, u"Primaire"_s, u"General"_s})
    sommes += rapport.Variables().Valeur(QString(u"TotRepas" % qui)) % u' ' %
              rapport.Variables().Valeur(QString(u"TotSoupe" % qui));
  EXPECT_EQ(sommes, (QStringList{u"0 1"_s, u"3 3"_s, u"4 4"_s}));
  EXPECT_EQ(Demander(titre, {eleves[4]}).Messages, QStringList{u"Aucune information à imprimer"_s});
}

TEST_F(TRelevesEssai, DemandeDeProvision) {
  const int anne = UnEleve().Id;
  ASSERT_EQ(anne, 1);
  const struct {
    const char *Vrais, *Garderie, *Frais;
    QString Attendu;
    int Avertissements;
  } cas[] = {
      {"", "50", "30", u"DocumentProvisionVESPER 50 80 +++100/0001/01680+++ [      5000]"_s, 0},
      {"107", "50", "30", u"DocumentProvisionVESPER 50 80 +++100/0001/01680+++ [          ]"_s, 0},
      // What is no whole number is left out of the sum, and still is an amount.
      {"108", "12,5", "30", u"DocumentProvision 12,5 30 +++300/0001/01651+++ [      1250]"_s, 1},
      {"107 108", "12,5", "", u"DocumentProvision 12,5 0 +++300/0001/01651+++ [      1250]"_s, 1},
      {"114 108", "", "1e2", u"DocumentProvisionUniversel  0 +++300/0001/00035+++ [          ]"_s, 2},
      {"107 114", "50", "30", u"DocumentProvisionUniversel 50 80 +++300/0001/00035+++ [          ]"_s, 0},
  };
  for (const auto& [vrais, garderie, frais, attendu, avertissements] : cas) {
    base.Sql(u"DELETE FROM PARAMETRE WHERE PARAMETRE_ID IN (56, 57, 107, 108, 114)"_s);
    for (const QString& id : QString::fromLatin1(vrais).split(u' ', Qt::SkipEmptyParts))
      ecole.parametre(id.toInt(), u"1"_s);
    ecole.parametre(56, QString::fromLatin1(garderie));
    ecole.parametre(57, QString::fromLatin1(frais));
    const TResultat resultat = Demander(u"Document de provision de compte", {anne});
    const TRapport& rapport = resultat.Rapports.at(0);
    const TValeurs& valeurs = rapport.Arbre().at(0).Valeurs;
    QString montant;
    for (int i = 1; i <= 10; ++i) montant += valeurs.Valeur(QString(u"EURO" % QString::number(i)));
    const QString obtenu = rapport.Modele() % u' ' % valeurs.Valeur(u"ProvisionGarderie") % u' ' %
                           valeurs.Valeur(u"ProvisionGlobale") % u' ' %
                           valeurs.Valeur(u"CommunicationEleve") % u" [" % montant % u']';
    EXPECT_EQ(obtenu, attendu) << vrais;
    EXPECT_EQ(rapport.Avertissements.size(), avertissements)
        << rapport.Avertissements.join(u'|').toStdString();
    EXPECT_EQ(valeurs.Valeur(u"Matricule") % rapport.Variables().Valeur(u"DateJour"), u"1-103/10/2016"_s);
  }
}
