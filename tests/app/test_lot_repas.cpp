// The commands of the meals: what each prints, on a school small enough to count by hand.
#include "lot_essai.h"

namespace {

/// M1 B: pupil 1. P1 A: pupils 2 and 3. One member of the staff: 4.
class TLotRepasEssai : public TProgrammeEssai {
 protected:
  TLotRepasEssai() {
    using namespace Essai;
    ecole_.tarif(FamilleRepas, LundiMardiJeudiVendredi, "11:30", "13:30", Forfait, "2", ScanPresence);
    ecole_.parametre(101, "2,20");
    ecole_.parametre(102, "2,6");
    ecole_.unEleve().enClasse("M1", "B");
    for (int i = 0; i < 2; ++i) ecole_.unEleve().enClasse("P1", "A");
    ecole_.unEleve().enClasse("PROFESSEURS", {});
    base_->Deconnecter();
  }
};

QString Lignes(const QStringList& lignes) { return lignes.join(u'\n') + u'\n'; }

}  // namespace

TEST_F(TLotRepasEssai, Tickets) {
  const QString entete = "ticket_id;eleve_id;date_achat;date_utilisation;valeur;type_paiement";
  Verifier({
      {Mots("ticket manquant 2 --jour 03/10/2016"), 0, {}, {}},
      {Mots("ticket acheter 2 2 --paiement 2 --jour 04/10/2016"), 0, {}, {}},
      {Mots("ticket acheter 1 1 --paiement 1 --prix 3,1 --jour 05/10/2016"), 0, {}, {}},
      {Mots("ticket acheter 4 1 --paiement 2 --prix 1.5 --jour 05/10/2016"), 0, {}, {}},
      Refuse("ticket acheter 1 0 --paiement 1", "de 1 à 999"),
      Refuse("ticket acheter 1 abc --paiement 1", "« abc »"),
      Refuse("ticket acheter 1 1 --paiement 1 --prix deux", "« deux »"),
      Refuse("ticket acheter 1 1 --paiement 1 --prix=-5", "négatif"),
      Refuse("ticket manquant 1 --prix=-0,01", "négatif"),
      Refuse("ticket acheter 9 1 --paiement 1", "d'élève n° 9"),
      Refuse("ticket supprimer 2", "Confirmez-vous la suppression définitive de ce ticket ?"),
      Donne("tickets", {entete, "3;1;2016-10-05;;3.1000;1", "1;2;2016-10-04;2016-10-03;2.6000;2",
                        "2;2;2016-10-04;;2.6000;2", "4;4;2016-10-05;;1.5000;2"}),
      Donne("tickets-soldes", {"eleve_id;solde", "1;1", "2;1", "3;0", "4;1"}),
      Donne("tickets-classes", {"classe;negatif;sans;bas", "M1 B;0;0;1", "P1 A;0;1;1", "PROFESSEURS ;0;0;1"}),
      Donne("tickets-ventes --du 01/10/2016 --au 31/10/2016",
            {u"type;date;eleve_id;nombre_maternelle;prix_maternelle;montant_maternelle;nombre_primaire;"
             "prix_primaire;montant_primaire;total"_s,
             "1;2016-10-05;;1;2,20;3.1000;0;2,6;0.0000;3.1000", "1;2016-10-05;1;1;2,20;3.1000;;;;",
             "2;2016-10-04;;0;2,20;0.0000;2;2,6;5.2000;5.2000", "2;2016-10-04;2;;;;2;2,6;5.2000;",
             "2;2016-10-05;;;;;;;;", "2;2016-10-05;4;;;;;;;"}),
      {Mots("ticket transferer 2 3"), 0, {}, {}},
      Refuse("ticket transferer 99 3", "ticket n° 99"),
      {Mots("--oui ticket supprimer 1"), 0, {}, "Confirmez-vous"},
      Donne("tickets-soldes", {"eleve_id;solde", "1;1", "2;0", "3;1", "4;1"}),
  });
}

TEST_F(TLotRepasEssai, OrdersKitchenAndAccounts) {
  const QString drapeaux = "repas;dago;sandwich;jambon;fromage;jambon_fromage;beurre;mayonnaise";
  const auto reservation = [&](const char* nom, const QByteArray& clics) {
    return QStringList{"reservation", Fichier(nom, clics)};
  };
  const QStringList nouvelle{"--nouvelle"};
  Verifier({
      {reservation("mauvais.txt", "03/10/2016;1;1\n03/10/2016;9;1\n"), 1, {}, "Ligne 2 : "},
      Donne("compteurs --jour 03/10/2016",
            {"classe;repas;sandwichs;sans_repas", "M1 B;0;0;1", "P1 A;0;0;2", "PROFESSEURS ;0;0;1"}),
      {reservation("clics.txt",
                   "03/10/2016;1;1\n03/10/2016;2;2\n03/10/2016;3;1\n3/10/16;2;4\n03/10/2016;2;9\n"),
       0,
       Lignes({QString(u"rang;effet;"_s + drapeaux), "1;marque;1;0;0;0;0;0;0;0", "2;marque;0;1;0;0;0;0;0;0",
               "3;verrou;0;0;0;0;0;0;0;0", "4;marque;0;1;0;1;0;0;0;0", "5;ignore;0;1;0;1;0;0;0;0"}),
       "Attention le choix du sandwich est incomplet !"},
      {reservation("neuf.txt", "03/10/2016;3;1\n03/10/2016;3;3\n") + nouvelle, 0,
       Lignes({QString(u"rang;effet;"_s + drapeaux), "1;insuffisant;0;0;0;0;0;0;0;0",
               "2;marque;0;0;1;0;0;0;0;0"}),
       "Solde insuffisant"},
      Donne("commandes --du 01/10/2016 --au 31/10/2016",
            {QString(u"commande_id;eleve_id;date;"_s + drapeaux + u";complet"),
             "1;1;2016-10-03;1;0;0;0;0;0;0;0;1", "2;2;2016-10-03;0;1;0;1;0;0;0;0;1",
             "3;3;2016-10-03;0;0;1;0;0;0;0;0;0"}),
      Donne("cuisine --jour 03/10/2016 --nouvelle",
            {"classe;libelle;nombre", "M1 B;Repas Complet;1", "P1 A;Soupe;1", "P1 A;Sandwich;", ";lblRepas;1",
             ";lblSandwiches;1", ";lblDagobert;1"}),
      {Mots("compte 3 -1,0,0,0,1,x,0,1,0,0,0,0,-1 --jour 03/10/2016"), 0, {}, {}},
      Refuse("compte 3 1,2 --jour 03/10/2016", "13 nombres"),
      Donne("comptes --jour 04/10/2016", {"eleve_id;solde;recu", "1;0.0000;0.0000", "2;0.0000;0.0000",
                                          "3;5.5000;0.0000", "4;0.0000;0.0000"}),
  });
}

TEST_F(TLotRepasEssai, TheTablet) {
  const QString transfert = "eleves;photos;lignes;bons;anomalies;importes;hors_ligne";
  const QString eleves = "annee;classe;eleve_id;matricule;nom;prenom;photo;repas";
  VerifierTels({
      {{"reglage", "DossierPresences", Chemin("presences")}, 0, QString(Chemin("presences") + u'\n'), {}},
      Donne("reglage Offline 1", {"1"}),
      {Mots("tablette eleves"), 0, eleves + u'\n', "faites un transfert"},
      Refuse("tablette toucher 1", "faites un transfert"),
      {Mots("--serveur /nulle/part.fdb tablette transferer"), 1, Lignes({transfert, "0;0;0;0;0;0;1"}),
       "Un problème empêche"},
      {Serveur() + Mots("tablette transferer"), 0, Lignes({transfert, "4;0;0;0;0;0;1"}), "100 %"},
      Refuse("tablette toucher 2 9 --jour 03/10/2016", "n° 9"),
      Donne("tablette toucher 2 3 2 1 --jour 03/10/2016", {"eleve_id;repas", "2;1", "3;1", "2;0", "1;1"}),
      Donne("tablette toucher 3 --jour 05/10/2016", {"eleve_id;repas", "3;1"}),
      Donne("tablette eleves --jour 03/10/2016",
            {eleves, "M1;M1 B;1;1-1;Eleve1;Prenom1;0;1", "P1;P1 A;2;2-1;Eleve2;Prenom2;0;0",
             "P1;P1 A;3;3-1;Eleve3;Prenom3;0;1", "PROFESSEURS;PROFESSEURS ;4;4-1;Eleve4;Prenom4;0;0"}),
      {Serveur() + Mots("tablette transferer"), 1, Lignes({transfert, "4;0;3;2;1;0;0"}),
       "Eleve3 Prenom3, mercredi 5 octobre : Aucun tarif"},
      Refuse("tablette toucher 1", "reliée au serveur"),
      {Serveur() + Mots("--oui tablette transferer"), 0, Lignes({transfert, "4;0;3;2;1;1;1"}), "1 repas"},
  });
  EXPECT_EQ(TBaseEssai(base_.FichierDeDonnees())
                .Rangees("SELECT ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE FROM PRESENCES ORDER BY 1"),
            (QStringList{"1;2;2016-10-03", "3;2;2016-10-03"}));
}
