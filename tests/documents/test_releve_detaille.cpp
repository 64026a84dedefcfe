#include "ecole_documents.h"

namespace {

struct TReleveDetailleEssai : TDocumentsEssai {
  TResultat Relever(const std::vector<int>& eleves) {
    return Demander(QStringLiteral("Relevé détaillé des services"), eleves, "2016-10-01", "2016-10-31");
  }
  /// A pupil with one morning in October.
  TEleveEssai AvecMatin(const QString& drapeaux = {}) {
    TEleveEssai eleve = UnEleve();
    UnMatin(eleve, "2016-10-03");
    for (const QString& drapeau : drapeaux.split(u' ', Qt::SkipEmptyParts)) eleve.avec(drapeau);
    return eleve;
  }
};

const QString kDetail = QStringLiteral("FLG_FACTURE_DETAIL");
const QString kRadie = QStringLiteral("FLG_RADIE");

QStringList Noms(const TRapport& rapport) {
  QStringList noms;
  for (const TNoeudRapport& eleve : rapport.Arbre()) noms += eleve.Valeurs.Valeur(u"NomEleve");
  return noms;
}

}  // namespace

TEST_F(TReleveDetailleEssai, LesJoursDeChaqueService) {
  TEleveEssai anne = UnEleve();
  Scan(anne, Essai::Garderie, "2016-10-03", "07:12", "");
  Scan(anne, Essai::Garderie, "2016-10-04", "07:20", "07:40");
  Scan(anne, Essai::Garderie, "2016-10-04", "12:15", "");
  Scan(anne, Essai::Garderie, "2016-10-03", "", "17:05");
  Scan(anne, Essai::Garderie, "2016-10-06", "16:10", "16:50");
  Scan(anne, Essai::Garderie, "2016-10-05", "", "15:40");
  UnEtude(anne, "2016-10-04");
  UnRepas(anne, "2016-10-03");
  UnRepas(anne, "2016-10-08");  // a Saturday
  UnSoupe(anne, "2016-10-05");
  UnMatin(anne, "2016-11-07");

  const TResultat resultat = Relever({anne.Id});
  ASSERT_EQ(resultat.Rapports.size(), 1U);
  const TRapport& releve = resultat.Rapports[0];
  EXPECT_EQ(releve.Modele(), QStringLiteral("DetailService"));
  EXPECT_EQ(releve.Variables().Trouver(u"NomRapport"), nullptr);
  EXPECT_EQ(releve.Valeur(u"MoisReleve", {}),
            QStringLiteral("Détails des services du 1 octobre 2016 au 31 octobre 2016"));
  EXPECT_EQ(Dessin(releve).join(u'\n'),
            QString::fromUtf8("Eleve1 Prenom1 | NomEleve=Eleve1 | PrenomEleve=Prenom1 | Classe=P3 A\n"
                              "  Garderie du matin | TypeFrais=Garderie du matin\n"
                              "    lundi 3 octobre | JourService=lundi 3 octobre | HeureDebut=07:12 | "
                              "HeureFin=08:00 | Montant=1,23\n"
                              "    mardi 4 octobre | JourService=mardi 4 octobre | HeureDebut=07:20 | "
                              "HeureFin=07:40 | Montant=1,23\n"
                              "  Garderie du midi | TypeFrais=Garderie du midi\n"
                              "    mardi 4 octobre | JourService=mardi 4 octobre | HeureDebut=12:15 | "
                              "HeureFin=13:00 | Montant=0,51\n"
                              "  Garderie du soir | TypeFrais=Garderie du soir\n"
                              "    lundi 3 octobre | JourService=lundi 3 octobre | HeureDebut=16:00 | "
                              "HeureFin=17:05 | Montant=2,01\n"
                              "    jeudi 6 octobre | JourService=jeudi 6 octobre | HeureDebut=16:10 | "
                              "HeureFin=16:50 | Montant=2,01\n"
                              "  Garderie du mercredi | TypeFrais=Garderie du mercredi\n"
                              "    mercredi 5 octobre | JourService=mercredi 5 octobre | HeureDebut=12:30 | "
                              "HeureFin=15:40 | Montant=3,01\n"
                              "  Etudes | TypeFrais=Etudes | HideHeure=1\n"
                              "    mardi 4 octobre | JourService=mardi 4 octobre | Montant=1,51\n"
                              "  Repas | TypeFrais=Repas | HideHeure=1\n"
                              "    lundi 3 octobre | JourService=lundi 3 octobre | Montant=3,50\n"
                              "  Soupe | TypeFrais=Soupe | HideHeure=1\n"
                              "    mercredi 5 octobre | JourService=mercredi 5 octobre | Montant=0,70"));

  anne.avec(QStringLiteral("FLG_3E_ENFANT"));
  const TResultat troisieme = Relever({anne.Id});
  ASSERT_EQ(troisieme.Rapports.at(0).Arbre()[0].Enfants.size(), 2U);
  EXPECT_EQ(troisieme.Rapports[0].Arbre()[0].Enfants[0].Texte, QStringLiteral("Repas"));
}

TEST_F(TReleveDetailleEssai, MessagesEtModele) {
  const int sans = UnEleve().Id;
  const int radie = AvecMatin(kRadie).Id;
  EXPECT_EQ(Relever({}).Messages,
            QStringList{QStringLiteral("Veuillez sélectionner des élèves dans la liste.")});
  EXPECT_EQ(Relever({sans}).Messages, QStringList{QStringLiteral("Aucun relevé à imprimer.")});
  EXPECT_EQ(Relever({sans, radie}).Messages, QStringList{QStringLiteral("Aucun relevé à imprimer.")});
  ecole.parametre(107, QStringLiteral("1"));
  EXPECT_EQ(Relever({radie}).Rapports.at(0).Modele(), QStringLiteral("DetailServiceVesper"));
  ecole.parametre(110, QStringLiteral("1"));
  EXPECT_EQ(Relever({radie}).Rapports.at(0).Modele(), QStringLiteral("DetailService"));
}

TEST_F(TReleveDetailleEssai, ApresUneFacture) {
  const int detaille = AvecMatin(kDetail).Id;
  const int simple = AvecMatin().Id;
  const int radie = AvecMatin(kRadie).Id;
  const int radieDetaille = AvecMatin(kRadie % u' ' % kDetail).Id;
  const auto detail = [&](const std::vector<int>& eleves) {
    const TResultat resultat = Facturer(eleves, "2016-10-01", "2016-10-31");
    EXPECT_EQ(resultat.Messages, QStringList());
    return resultat.Rapports.size() == 2 ? Noms(resultat.Rapports[1]).join(u' ') : QStringLiteral("aucun");
  };
  EXPECT_EQ(detail({simple}), QStringLiteral("aucun"));
  EXPECT_EQ(detail({detaille}), QStringLiteral("Eleve1"));
  EXPECT_EQ(detail({detaille, detaille}), QStringLiteral("Eleve1 Eleve1"));
  EXPECT_EQ(detail({radieDetaille}), QStringLiteral("aucun"));
  EXPECT_EQ(detail({radie, simple, detaille, radieDetaille}), QStringLiteral("Eleve3 Eleve1 Eleve4"));
  // Nothing to print: silence.
  const int vide =
      UnEleve().avec(kDetail).doit(ecole.frais(QStringLiteral("Livre"), QStringLiteral("2"), 10)).Id;
  EXPECT_EQ(detail({vide}), QStringLiteral("aucun"));
}
