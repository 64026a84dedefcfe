#include <QRegularExpression>

#include "ecole_documents.h"

namespace {

struct TReleveDetailleEssai : TDocumentsEssai {
  TResultat Relever(const std::vector<int>& eleves) {
    return Demander(u"Relevé détaillé des services", eleves);
  }
  int AvecUnMatin(const QString& drapeau = {}) {
    TEleveEssai eleve = UnEleve(drapeau);
    Scans(eleve, {u"matin 2016-10-03"_s});
    return eleve.Id;
  }
};

}  // namespace

TEST_F(TReleveDetailleEssai, LesJoursDeChaqueService) {
  TEleveEssai anne = UnEleve();
  Scans(anne, {u"matin 2016-10-03 07:12"_s, u"matin 2016-10-04 07:20 07:40"_s, u"midi 2016-10-04"_s,
               u"soir 2016-10-03  17:05"_s, u"soir 2016-10-06 16:10 16:50"_s, u"soir 2016-10-05  15:40"_s,
               u"etude 2016-10-04"_s, u"repas 2016-10-03"_s, u"repas 2016-10-08"_s /* a Saturday */,
               u"soupe 2016-10-05"_s, u"matin 2016-11-07"_s});
  TResultat resultat = Relever({anne.Id});
  const TRapport& releve = resultat.Rapports.at(0);
  EXPECT_EQ(releve.Modele(), u"DetailService"_s);
  EXPECT_EQ(releve.Variables().Trouver(u"NomRapport"), nullptr);
  EXPECT_EQ(releve.Valeur(u"MoisReleve", {}), u"Détails des services du 1 octobre 2016 au 31 octobre 2016"_s);
  EXPECT_EQ(Dessin(releve).remove(QRegularExpression(u"JourService=[^|]*\\| "_s)),
            uR"(Eleve1 Prenom1: NomEleve=Eleve1 | PrenomEleve=Prenom1 | Classe=P3 A
  Garderie du matin: TypeFrais=Garderie du matin
    lundi 3 octobre: HeureDebut=07:12 | HeureFin=08:00 | Montant=1,23
    mardi 4 octobre: HeureDebut=07:20 | HeureFin=07:40 | Montant=1,23
  Garderie du midi: TypeFrais=Garderie du midi
    mardi 4 octobre: HeureDebut=12:15 | HeureFin=13:00 | Montant=0,51
  Garderie du soir: TypeFrais=Garderie du soir
    lundi 3 octobre: HeureDebut=16:00 | HeureFin=17:05 | Montant=2,01
    jeudi 6 octobre: HeureDebut=16:10 | HeureFin=16:50 | Montant=2,01
  Garderie du mercredi: TypeFrais=Garderie du mercredi
    mercredi 5 octobre: HeureDebut=12:30 | HeureFin=15:40 | Montant=3,01
  Etudes: TypeFrais=Etudes | HideHeure=1
    mardi 4 octobre: Montant=1,51
  Repas: TypeFrais=Repas | HideHeure=1
    lundi 3 octobre: Montant=3,50
  Soupe: TypeFrais=Soupe | HideHeure=1
    mercredi 5 octobre: Montant=0,70)"_s);
  EXPECT_EQ(releve.Valeur(u"JourService", {3}), u"mardi 4 octobre"_s);

  anne.avec(u"FLG_3E_ENFANT"_s);
  resultat = Relever({anne.Id});
  const TNoeudRapport& troisieme = resultat.Rapports.at(0).Arbre()[0];
  EXPECT_EQ(troisieme.Enfants.size(), 2U);
  EXPECT_EQ(troisieme.Enfants[0].Texte, u"Repas"_s);
}

TEST_F(TReleveDetailleEssai, MessagesEtModele) {
  const int sans = UnEleve().Id;
  const int radie = AvecUnMatin(u"FLG_RADIE"_s);
  EXPECT_EQ(Relever({}).Messages, QStringList{u"Veuillez sélectionner des élèves dans la liste."_s});
  EXPECT_EQ(Relever({sans, radie}).Messages, QStringList{u"Aucun relevé à imprimer."_s});
  ecole.parametre(107, u"1"_s);
  EXPECT_EQ(Relever({radie}).Rapports.at(0).Modele(), u"DetailServiceVesper"_s);
  ecole.parametre(110, u"1"_s);
  EXPECT_EQ(Relever({radie}).Rapports.at(0).Modele(), u"DetailService"_s);
}

TEST_F(TReleveDetailleEssai, ApresUneFacture) {
  const int detaille = AvecUnMatin(u"FLG_FACTURE_DETAIL"_s);
  const int simple = AvecUnMatin();
  const int radie = AvecUnMatin(u"FLG_RADIE"_s);
  const int radieDetaille = AvecUnMatin(u"FLG_RADIE"_s);
  base.Sql(u"UPDATE ELEVES SET FLG_FACTURE_DETAIL = 1 WHERE ELEVE_ID = 4"_s);
  const int vide = UnEleve(u"FLG_FACTURE_DETAIL"_s).doit(ecole.frais(u"Livre"_s, u"2"_s, 10)).Id;
  const std::pair<std::vector<int>, QString> cas[] = {
      {{simple}, {}},
      {{detaille}, u"Eleve1"_s},
      {{detaille, detaille}, u"Eleve1 Eleve1"_s},
      {{radieDetaille}, {}},
      {{radie, simple, detaille, radieDetaille}, u"Eleve1"_s},
      {{vide}, {}},  // nothing to print: silence
  };
  for (const auto& [factures, details] : cas) {
    const TResultat resultat = Facturer(factures);
    EXPECT_EQ(resultat.Messages, QStringList());
    QStringList noms;
    if (resultat.Rapports.size() > 1)
      for (const TNoeudRapport& eleve : resultat.Rapports[1].Arbre())
        noms += eleve.Valeurs.Valeur(u"NomEleve");
    EXPECT_EQ(noms.join(u' '), details);
  }
}
