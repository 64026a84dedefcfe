#include <future>
#include <thread>

#include "core/query_internal.h"
#include "core/transaction_commune.h"
#include "pupils/reserver.h"
#include "support/controleur_essai.h"
#include "support/refus.h"
#include "workflows/import_virements.h"
#include "workflows/propositions.h"
#include "workflows/repartition.h"

namespace {

const QString kCompte = u"BE68539007547034"_s;

Currency C(std::int64_t centimes) { return Currency::Brut(centimes * 100); }

/// Three children of one family who owe 20, 10 and nothing; a movement of 24 euros.
struct TRepartitionEssai : TEssaiControleur {
  TRepartitionEssai() {
    const int frais[] = {ecole.frais(u"Piscine"_s, u"20"_s, 10), ecole.frais(u"Sortie"_s, u"10"_s, 10)};
    for (int i = 0; i < 3; ++i) {
      TEleveEssai eleve = ecole.unEleve().enClasse(u"P1"_s, u"A"_s);
      if (i < 2) eleve.doit(frais[i]);
    }
    base.Sql(u"UPDATE COUNTERS SET VALEUR = 6 WHERE TABLE_NAME = 'EXTRAITS'"_s);
    Mouvement(u"24"_s, kCompte, u"DUPONT-LEROY Marie"_s);  // 7
  }
  int Mouvement(const QString& montant, const QString& compte, const QString& donneur) {
    return ecole.mouvement(donneur, u"2016-10-05"_s, montant, compte);
  }
  TExtrait& Charger(int id = 7) {
    Globals = {};
    essai.Charger();
    return *essai.Controleur.Extraits().TrouverParId(id);
  }
  static std::vector<TEleve*> Eleves(const std::vector<int>& cles) {
    std::vector<TEleve*> eleves;
    for (const int cle : cles) eleves.push_back(Globals.Eleves->TrouverParId(cle));
    return eleves;
  }
  QStringList Lignes() {
    return base.Rangees(
        u"SELECT ELEVE_ID, EXTRAIT_ID, MONTANT_VERSE, FLG_PART, TYPE_FAMILLE_FRAIS FROM FRAIS_ELEVE WHERE "
        "EXTRAIT_ID > 0 ORDER BY FRAIS_ELEVE_ID"_s);
  }
  /// "1 8 compte de l'élève|..."
  QString Propositions(const TExtrait& extrait) {
    QStringList textes;
    TPropositions propositions(*Globals.Eleves);
    const auto trouvees = propositions.Pour(extrait);
    for (const TProposition& p : trouvees) textes += QString::number(p.Eleve->Id) % u' ' % p.Raison;
    const TProposition* evidente = TPropositions::Evidente(trouvees);
    return textes.join(u'|') % (evidente != nullptr ? u" => %1"_s.arg(evidente->Eleve->Id) : QString());
  }
};

}  // namespace

TEST(Repartition, AuCentPres) {
  using V = std::vector<Currency>;
  const std::tuple<Currency, V, V> cas[] = {
      {C(3000), {C(2000), C(1000)}, {C(2000), C(1000)}},
      {C(3500), {C(2000), C(1000)}, {C(2500), C(1000)}},
      {C(1000), {C(2000), C(1000)}, {C(667), C(333)}},
      {C(100), {C(1), C(1), C(1000)}, {C(1), C(0), C(99)}},
      {C(1000), {C(0), C(1000), C(2000)}, {C(0), C(334), C(666)}},
      {Currency::Brut(100'050), {C(0), C(1000), C(1000)}, {C(0), Currency::Brut(50'050), C(500)}},
      {C(1000), {C(0), C(0), C(0)}, {C(334), C(333), C(333)}},
      {C(900'000'000'000),
       {C(999'999'999'999), C(999'999'999'999)},
       {C(450'000'000'000), C(450'000'000'000)}},
      {C(5), {}, {}},
  };
  for (const auto& [montant, dus, parts] : cas)
    EXPECT_EQ(RepartirMontant(montant, dus), parts) << montant.EnBrut();
}

TEST_F(TRepartitionEssai, PlusieursLignesDUnMouvement) {
  TExtrait& extrait = Charger();
  std::vector<TPartVirement> parts = ProposerParts(extrait, Eleves({1, 2}));
  EXPECT_EQ(parts[0].Montant, C(1600));
  EXPECT_EQ(parts[1].Montant, C(800));
  parts[1].Montant = C(801);
  EXPECT_EQ(FauteParts(extrait, parts),
            u"Les parts font 24,01 €, plus que les 24,00 € qui restent de ce mouvement.");
  EXPECT_THROW(CrediterParts(extrait, parts, u"x"_s), Exception);
  EXPECT_EQ(Lignes(), QStringList());
  parts[0].Famille = TTypeFamilleFrais::Frais;
  parts[1].Montant = C(500);
  CrediterParts(extrait, parts, LibelleVirement(extrait));
  QStringList lignes{u"1;7;16.0000;1;1"_s, u"2;7;5.0000;1;0"_s};
  EXPECT_EQ(Lignes(), lignes);
  EXPECT_EQ(EtatExtrait(extrait), TEtatMouvement::Partiel);
  EXPECT_EQ(TexteParts(extrait), u"Eleve1 Prenom1 16,00 €, Eleve2 Prenom2 5,00 €, reste 3,00 €");
  EXPECT_EQ(Eleves({1})[0]->Solde(true, true), C(-400));
  EXPECT_EQ(Eleves({2})[0]->Solde(true, true), C(-500));
  // The rest goes to the third, and nobody can have more.
  CrediterParts(extrait, ProposerParts(extrait, Eleves({3})), {});
  EXPECT_EQ(Lignes(), lignes += u"3;7;3.0000;1;0"_s);
  EXPECT_EQ(EtatExtrait(extrait), TEtatMouvement::Comptabilise);
  for (const auto& trop : {parts, {}})
    EXPECT_EQ(FauteParts(extrait, trop), u"Ce mouvement est déjà attribué en entier.");
  EXPECT_EQ(LireAttributions(*base)[7].size(), 3U);
  // One of them deleted leaves the others, and its part is free again.
  TAllFraisEleve& deux = *Eleves({2})[0]->GetAllFrais();
  deux.Remove(deux[deux.Count() - 1]);
  deux.Save();
  Globals.Eleves->ChargerExtraits = true;
  lignes.removeAt(1);
  EXPECT_EQ(Lignes(), lignes);
  EXPECT_EQ(Globals.Eleves->ResteExtrait(7, extrait.Montant), C(500));
}

// What another workstation has taken meanwhile is seen; what cannot be stored leaves nothing behind.
TEST_F(TRepartitionEssai, ToutesLesPartsOuAucune) {
  TExtrait& extrait = Charger();
  const auto parts = ProposerParts(extrait, Eleves({1, 2}));
  TEleveEssai(ecole, 3).paie(u"24"_s, 0, 0, {});
  base.Sql(u"UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 7 WHERE ELEVE_ID = 3"_s);
  EXPECT_THROW(CrediterParts(extrait, parts, {}), Exception) << "given whole";
  base.Sql(u"DELETE FROM FRAIS_ELEVE WHERE ELEVE_ID = 3"_s);
  for (const QString& obstacle :
       {u"FRAIS_ELEVE ADD CONSTRAINT OBSTACLE CHECK (ELEVE_ID <> 2)"_s,
        u"COUNTERS ADD CONSTRAINT OBSTACLE CHECK (TABLE_NAME <> 'FRAIS_ELEVE' OR VALEUR < %1)"_s.arg(
            base->GetNextId(u"FRAIS_ELEVE"_s) + 3)}) {  // a key for the first part only
    base.Sql(u"ALTER TABLE "_s + obstacle);
    if (obstacle.startsWith(u'C')) base.Dialogues.Attend(u"Operation violates CHECK"_s);
    EXPECT_THROW(CrediterParts(extrait, parts, {}), Exception) << obstacle.toStdString();
    base.Sql(QString(u"ALTER TABLE " % obstacle.section(u' ', 0, 0) % u" DROP CONSTRAINT OBSTACLE"));
    EXPECT_EQ(Lignes(), QStringList());
  }
  EXPECT_EQ(Eleves({1})[0]->GetAllFrais()->Count(), 1);
}

// The second waits for the first, and then sees what he has given.
TEST_F(TRepartitionEssai, DeuxPostesDonnentLeMemeMouvement) {
  TExtrait& extrait = Charger();
  TEleve* un = Eleves({1})[0];
  un->GetAllFrais();
  TDataModule1 poste(base.Dialogues, base.Reglages);
  poste.ServerName = base.FichierDeDonnees();
  poste.Connecter();
  const auto refus = [&](const QString& fait, const std::function<void()>& geste) {
    TTransactionCommune autre(poste);
    ReserverExtrait(poste, extrait.Id);
    TQueryInternal(poste, fait).Executer();
    const auto fin = std::async(std::launch::async, [&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      autre.Valider();
    });
    return Refus(geste);
  };
  const auto entier = [&] { CrediterEntier(extrait, {un, extrait.Montant}, u"x"_s); };
  EXPECT_EQ(refus(u"UPDATE EXTRAITS SET FLG_IGNORE = 1"_s, entier),
            u"Ce mouvement a été caché par un autre poste.");
  const QString ligne =
      u"INSERT INTO FRAIS_ELEVE (FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, EXTRAIT_ID, MONTANT_VERSE, "
      "FLG_PART) VALUES (77, 2, 2016, 7, %1)"_s;
  const QString donne = ligne.arg(u"24, NULL"_s);
  EXPECT_EQ(refus(donne, entier), u"Ce mouvement est déjà attribué à Eleve2 Prenom2.");
  base.Sql(u"DELETE FROM FRAIS_ELEVE WHERE EXTRAIT_ID = 7"_s);
  EXPECT_EQ(refus(donne,
                  [&] {
                    CrediterParts(extrait, {{un, C(100)}}, {});
                  }),
            u"Ce mouvement est déjà attribué en entier.");
  EXPECT_EQ(Lignes(), QStringList{u"2;7;24.0000;-;-"_s});
  TAllFraisEleve& lignes = *un->GetAllFrais();
  EXPECT_EQ(lignes.Count(), 1) << "nothing stays behind in memory";
  // A payment that is made more, and one that was deleted and comes back.
  base.Sql(u"DELETE FROM FRAIS_ELEVE WHERE EXTRAIT_ID = 7"_s);
  CrediterParts(extrait, {{un, C(100)}}, {});
  const auto plus = [&] {
    lignes[1].MontantVerse = C(200);
    RangerPaiement(lignes, lignes.Add(lignes[1]));
  };
  EXPECT_EQ(refus(ligne.arg(u"23, 1"_s), plus),
            u"Il ne reste que 0,00 € de ce mouvement de la banque : il manque 1,00 €.");
  EXPECT_EQ(lignes[1].MontantVerse, C(100));
  base.Sql(u"UPDATE FRAIS_ELEVE SET MONTANT_VERSE = IIF(ELEVE_ID = 1, 0.5, 23.5) WHERE EXTRAIT_ID = 7"_s);
  lignes[1].MontantVerse = Currency::Brut(7500);
  EXPECT_THROW(RangerPaiement(lignes, lignes.Add(lignes[1])), ERefusMouvement) << "lowered by another, full";
  base.Sql(u"DELETE FROM FRAIS_ELEVE WHERE EXTRAIT_ID = 7"_s);
  const auto retour = [&] {
    auto ligne = std::make_unique<TFraisEleve>();
    ligne->ExtraitId = 7;
    ligne->MontantVerse = C(2400);
    RangerPaiement(lignes, lignes.Add(std::move(ligne)));
  };
  EXPECT_EQ(refus(donne, retour), u"Le mouvement de la banque a été attribué autrement entre-temps.");
  base.Sql(u"DELETE FROM FRAIS_ELEVE WHERE EXTRAIT_ID = 7"_s);
  EXPECT_EQ(refus(u"UPDATE EXTRAITS SET FLG_IGNORE = 1"_s, retour),
            u"Le mouvement de la banque a été caché entre-temps.");
  EXPECT_EQ(Lignes(), QStringList());
}

TEST_F(TRepartitionEssai, QuiAPuPayerEtPourquoi) {
  EXPECT_EQ(Propositions(Charger()), QString());
  base.Sql(u"UPDATE ELEVES SET NUM_COMPTE = 'be68 5390 0754 7034' WHERE ELEVE_ID = 2"_s);
  base.Sql(
      u"UPDATE ELEVES SET NOM_RESPONSABLE = 'Dupont', PRENOM_RESPONSABLE = 'Marie' WHERE ELEVE_ID = 1"_s);
  base.Sql(u"UPDATE ELEVES SET NOM_RESPONSABLE = 'Dupont', PRENOM_RESPONSABLE = 'Paul' WHERE ELEVE_ID = 3"_s);
  TEleveEssai(ecole, 2).enClasse(u"P2"_s, u"B"_s);
  EXPECT_EQ(Propositions(Charger()), u"2 compte de l'élève|1 nom d'un adulte => 2") << "enrolled twice, once";
  EXPECT_EQ(ElevesUneFois(*Globals.Eleves).size(), 3U);
  Mouvement(u"21"_s, kCompte, u"X"_s);  // 8
  TEleveEssai(ecole, 3).paie(u"1"_s, 0, 0, {});
  base.Sql(u"UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 8, FLG_PART = 1 WHERE ELEVE_ID = 3"_s);
  EXPECT_EQ(Propositions(Charger()),
            u"2 compte de l'élève|3 a déjà payé par ce compte|1 nom d'un adulte => 2");
  EXPECT_EQ(Propositions(Charger(8)), u"2 compte de l'élève|3 a déjà payé par ce compte|1 doit 20,00 € => 2")
      << "what is left of it";
  base.Sql(u"UPDATE FRAIS_ELEVE SET FLG_PART = NULL"_s);
  EXPECT_EQ(Propositions(Charger(8)), QString()) << "given whole";
  base.Sql(u"UPDATE ELEVES SET NUM_COMPTE = NULL"_s);
  EXPECT_EQ(Propositions(Charger(Mouvement(u"-20"_s, kCompte, u"X"_s))), QString()) << "the school pays";
  EXPECT_EQ(Propositions(Charger(Mouvement(u"3"_s, {}, u"MARIE DUPONT ET P. DUPONT"_s))),
            u"1 nom d'un adulte|3 nom d'un adulte")
      << "nobody stands out";
  for (int i = 0; i < 3; ++i)
    base.Sql(u"UPDATE ELEVES SET NUM_COMPTE = 'BE68539007547034' WHERE ELEVE_ID = "_s +
             QString::number(ecole.unEleve().enClasse(u"P1"_s, {}).Id));
  EXPECT_NE(Propositions(Charger()), QString()) << "four pupils";
  base.Sql(u"UPDATE ELEVES SET NUM_COMPTE = 'BE68539007547034' WHERE ELEVE_ID = 1"_s);
  EXPECT_EQ(Propositions(Charger()), QString()) << "a public service";
}
