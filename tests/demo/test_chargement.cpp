#include <QTemporaryDir>

#include "core/conversions.h"
#include "core/fichiers.h"
#include "demo/annee_suivante.h"
#include "demo/chargement.h"
#include "demo/fichiers.h"
#include "demo/releve_banque.h"
#include "demo/terminal.h"
#include "documents/factures.h"
#include "workflows/attestations.h"
#include "workflows/import_presences.h"
#include "workflows/import_registre.h"
#include "workflows/import_virements.h"

using namespace Qt::StringLiterals;

namespace {

/// A tenth of the school, loaded into a database of its own.
struct TEcoleChargee {
  TEcoleChargee() {
    Base.ServerName = Dossier.filePath(u"ecole.fdb"_s);
    Base.Connecter();
    Base.Deconnecter();
    Base.EcrituresForcees(false);
    Base.Connecter();
    Bilan = TChargement(Controleur, Ecole, Dossier.path()).Tout();
  }
  ~TEcoleChargee() { Globals = {}; }

  TBilanRegistre Registre(const QString& disposition, const QString& fichier) {
    Globals.Parametres->SetParametre(TParam::DispositionRegistre, disposition);
    TImportRegistre import(Controleur);
    EXPECT_TRUE(import.Etape1(fichier));
    return import.Etape2();
  }

  QTemporaryDir Dossier;
  const TEcoleExemple Ecole = CreerEcoleExemple(5, true);
  TDialoguesDemo Dialogues;
  TReglagesPoste Reglages;
  TDataModule1 Base{Dialogues, Reglages};
  TSansFenetre Fenetre;
  THorloge Horloge;
  TControleur Controleur{Base, Reglages, Fenetre, Horloge};
  TBilanChargement Bilan;
};

QString Petit(const char* nom) { return QStringLiteral(CALPENNE_PETITS "/") + QString::fromLatin1(nom); }

}  // namespace

TEST(Chargement, LesImportsAcceptentToutCeQuiEstEcrit) {
  TEcoleChargee ecole;
  EXPECT_EQ(Globals.Eleves->NombreEleves(), 54);  // and the staff
  EXPECT_TRUE(Globals.Eleves->PlusieursImplantations());
  EXPECT_LT(ecole.Bilan.Anomalies, ecole.Bilan.LignesPresences / 50);
  EXPECT_GT(ecole.Bilan.Presences, ecole.Bilan.LignesPresences * 95 / 100);

  // Most pupils owe for October what a family expects to owe, and nobody owes less than nothing.
  int attendus = 0;
  for (const TEleve& eleve : *Globals.Eleves) {
    const Currency montant = eleve.CoutServicesPeriode(BornesMois(10, 2016));
    EXPECT_GE(montant, Currency());
    attendus += montant > Currency::Euros(5) && montant < Currency::Euros(90) ? 1 : 0;
  }
  EXPECT_GT(attendus, 35);

  // The second layout carries the same pupils, and those who have left are dropped.
  const auto bilan = ecole.Registre(u"2"_s, ecole.Dossier.filePath(u"registre-disposition-2.csv"_s));
  EXPECT_EQ(bilan.Lignes, 50);
  EXPECT_EQ(bilan.Crees, 0);

  // The small files give what the text beside them announces.
  EXPECT_EQ(ecole.Registre({}, Petit("registre-disposition-1.csv")).Crees, 12);
  const int avant = Globals.Presences->Count();
  TImportPresences import(ecole.Controleur);
  import.ImporterFichier(Petit("presences-centre-04-10.txt"));
  EXPECT_EQ(import.Bons().size(), 12U);
  EXPECT_EQ(import.Anomalies().size(), 8U);
  import.Etape2();
  EXPECT_EQ(Globals.Presences->Count() - avant, 8);
  const auto second = ecole.Registre(u"2"_s, Petit("registre-disposition-2.csv"));
  EXPECT_EQ(second.Crees, 1);
  EXPECT_EQ(second.Modifies, 10);
}

TEST(Chargement, ThePaymentsOfTheYearInEveryLayout) {
  TEcoleChargee ecole;
  int extraits = 0;
  for (const auto& [disposition, fichier] : {std::pair(u""_s, u"releve-2017-06.csv"_s),
                                             {u"1"_s, u"releve-2017-06-disposition-2.csv"_s},
                                             {u"2"_s, u"releve-2017-06-disposition-3.csv"_s}}) {
    Globals.Parametres->SetParametre(TParam::TypeCompteBancaire, disposition);
    TImportVirements import(ecole.Controleur);
    ASSERT_TRUE(import.Etape1(ecole.Dossier.filePath(fichier)));
    import.Etape2();
    if (extraits == 0) extraits = Globals.Extraits->Count();
    EXPECT_EQ(Globals.Extraits->Count(), extraits) << "the same movements";
    EXPECT_GE(import.Rangees().size(), static_cast<std::size_t>(extraits) - 1) << "layout 3 has no debit";
  }
  EXPECT_GT(extraits, 20);
}

TEST(Chargement, WhoPaysTheLastInvoiceOwesNothing) {
  TEcoleChargee ecole;
  const TPeriode juin = BornesMois(6, 2016);
  TDemandeDocument demande{{}, {2016, juin.Premier, juin.Dernier}, EncodeDate(2017, 7, 5)};
  demande.Eleves = Globals.Eleves->Tous();
  const TResultat factures = Factures(ContexteDesGlobals(ecole.Horloge), demande);
  std::vector<TMouvementBanque> versements;
  int famille = 0;
  for (const TNoeudRapport& facture : factures.Rapports.at(0).Arbre()) {
    const Currency total = StrToCurr(facture.Valeurs.Valeur(u"SoldeFacture"));
    const QString communication = facture.Valeurs.Valeur(u"Communication").section(u" : "_s, 1);
    if (total > Currency() && ++famille % 7 != 0)  // one in seven does not pay
      versements.push_back({QDate(2017, 7, 3), u"Famille"_s, u"BE71 0961 2345 6769"_s, total, communication});
  }
  ASSERT_GT(versements.size(), 20U);
  EcrireFichier(ecole.Dossier.filePath(u"juillet.csv"_s), TexteReleve(versements, u"BE68"_s));
  TImportVirements import(ecole.Controleur);
  ASSERT_TRUE(import.Etape1(ecole.Dossier.filePath(u"juillet.csv"_s)));
  import.Etape2();
  for (const TRangeeVirement& rangee : import.Rangees()) {
    ASSERT_EQ(rangee.Etat, TEtatMouvement::Comptabilise) << rangee.Lu.Communication.toStdString();
    const TEleve& eleve = *Globals.Eleves->TrouverParId(rangee.EleveId);
    if (eleve.PaiementsAnnee() == Currency()) {  // a month settled at the office is billed again
      EXPECT_EQ(eleve.Solde(true, true).TronqueAuCent(), Currency()) << eleve.NomComplet().toStdString();
    }
  }
}

TEST(Chargement, TheAutumnThatFollowsGivesAttestationsOfTwoYears) {
  TEcoleChargee ecole;
  const TEcoleExemple suite = AnneeSuivante(ecole.Ecole);
  const TBilanChargement bilan = TChargement(ecole.Controleur, suite, ecole.Dossier.path()).Automne();
  EXPECT_EQ(Globals.AnneeScolaire, 2017);
  EXPECT_EQ(Globals.Eleves->NombreEleves(), bilan.Eleves + 4) << "and the staff";
  EXPECT_LT(bilan.Anomalies, bilan.LignesPresences / 40);
  EXPECT_GT(bilan.Virements, bilan.Eleves / 2);
  Globals.Parametres->SetParametre(TParam::CalculAttestation, u"3"_s);
  const std::vector<TEleve*> tous = Globals.Eleves->Tous();
  QStringList messages;
  int deuxMoities = 0, seconds = 0, coupees = 0;
  for (const auto& feuille :
       TAttestations(*Globals.Eleves, *Globals.Parametres, 2017).Feuilles(tous, messages)) {
    const auto& parties = feuille.Detail.Parties;
    const auto paye = [](const TPartieAttestation& partie) { return partie.Montant > Currency(); };
    deuxMoities += parties.size() == 2 && std::ranges::all_of(parties, paye);
    seconds += feuille.Responsable == 2 && paye(parties[0]);
    coupees += feuille.DateFinReel == u"9/11/2017";
  }
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_GT(deuxMoities, 10);
  EXPECT_GT(seconds, 0) << "a parent who lives apart has paid";
  EXPECT_GT(coupees, 0) << "one turns twelve, with a sheet for each parent";
}
