// The commands of the meals: what each prints, on a school small enough to count by hand.
#include "lot_essai.h"

namespace {

/// M1 B: pupil 1. P1 A: pupils 2 and 3. One member of the staff: 4.
class TLotRepasEssai : public TProgrammeEssai {
 protected:
  TLotRepasEssai() {
    using namespace Essai;
    ecole_.tarif(FamilleRepas, LundiMardiJeudiVendredi, u"11:30"_s, u"13:30"_s, Forfait, u"2"_s,
                 ScanPresence);
    ecole_.parametre(101, u"2,20"_s);
    ecole_.parametre(102, u"2,6"_s);
    ecole_.unEleve().enClasse(u"M1"_s, u"B"_s);
    for (int i = 0; i < 2; ++i) ecole_.unEleve().enClasse(u"P1"_s, u"A"_s);
    ecole_.unEleve().enClasse(u"PROFESSEURS"_s, {});
    base_->Deconnecter();
  }
};

QString Lignes(const QStringList& lignes) { return lignes.join(u'\n') + u'\n'; }

}  // namespace

TEST_F(TLotRepasEssai, Tickets) {
  const QString entete = u"ticket_id;eleve_id;date_achat;date_utilisation;valeur;type_paiement"_s;
  Verifier({
      {Mots(u"ticket manquant 2 --jour 03/10/2016"_s), 0, {}, {}},
      {Mots(u"ticket acheter 2 2 --paiement 2 --jour 04/10/2016"_s), 0, {}, {}},
      {Mots(u"ticket acheter 1 1 --paiement 1 --prix 3,1 --jour 05/10/2016"_s), 0, {}, {}},
      {Mots(u"ticket acheter 4 1 --paiement 2 --prix 1.5 --jour 05/10/2016"_s), 0, {}, {}},
      {Mots(u"ticket acheter 1 0 --paiement 1"_s), 1, {}, u"de 1 à 999"_s},
      {Mots(u"ticket acheter 1 abc --paiement 1"_s), 1, {}, u"« abc »"_s},
      {Mots(u"ticket acheter 1 1 --paiement 1 --prix deux"_s), 1, {}, u"« deux »"_s},
      {Mots(u"ticket acheter 1 1 --paiement 1 --prix=-5"_s), 1, {}, u"négatif"_s},
      {Mots(u"ticket manquant 1 --prix=-0,01"_s), 1, {}, u"négatif"_s},
      {Mots(u"ticket acheter 9 1 --paiement 1"_s), 1, {}, u"d'élève n° 9"_s},
      {Mots(u"ticket supprimer 2"_s), 1, {}, u"Confirmez-vous la suppression définitive de ce ticket ?"_s},
      {Mots(u"tickets"_s),
       0,
       Lignes({entete, u"3;1;2016-10-05;;3.1000;1"_s, u"1;2;2016-10-04;2016-10-03;2.6000;2"_s,
               u"2;2;2016-10-04;;2.6000;2"_s, u"4;4;2016-10-05;;1.5000;2"_s}),
       {}},
      {Mots(u"tickets-soldes"_s),
       0,
       Lignes({u"eleve_id;solde"_s, u"1;1"_s, u"2;1"_s, u"3;0"_s, u"4;1"_s}),
       {}},
      {Mots(u"tickets-classes"_s),
       0,
       Lignes({u"classe;negatif;sans;bas"_s, u"M1 B;0;0;1"_s, u"P1 A;0;1;1"_s, u"PROFESSEURS ;0;0;1"_s}),
       {}},
      {Mots(u"tickets-ventes --du 01/10/2016 --au 31/10/2016"_s),
       0,
       Lignes({u"type;date;eleve_id;nombre_maternelle;prix_maternelle;montant_maternelle;nombre_primaire;"
               "prix_primaire;montant_primaire;total"_s,
               u"1;2016-10-05;;1;2,20;3.1000;0;2,6;0.0000;3.1000"_s, u"1;2016-10-05;1;1;2,20;3.1000;;;;"_s,
               u"2;2016-10-04;;0;2,20;0.0000;2;2,6;5.2000;5.2000"_s, u"2;2016-10-04;2;;;;2;2,6;5.2000;"_s,
               u"2;2016-10-05;;;;;;;;"_s, u"2;2016-10-05;4;;;;;;;"_s}),
       {}},
      {Mots(u"ticket transferer 2 3"_s), 0, {}, {}},
      {Mots(u"ticket transferer 99 3"_s), 1, {}, u"ticket n° 99"_s},
      {Mots(u"--oui ticket supprimer 1"_s), 0, {}, u"Confirmez-vous"_s},
      {Mots(u"tickets-soldes"_s),
       0,
       Lignes({u"eleve_id;solde"_s, u"1;1"_s, u"2;0"_s, u"3;1"_s, u"4;1"_s}),
       {}},
  });
}

TEST_F(TLotRepasEssai, OrdersKitchenAndAccounts) {
  const QString drapeaux = u"repas;dago;sandwich;jambon;fromage;jambon_fromage;beurre;mayonnaise"_s;
  const auto reservation = [&](const char* nom, const QByteArray& clics) {
    return QStringList{u"reservation"_s, Fichier(nom, clics)};
  };
  const QStringList nouvelle{u"--nouvelle"_s};
  Verifier({
      {reservation("mauvais.txt", "03/10/2016;1;1\n03/10/2016;9;1\n"), 1, {}, u"Ligne 2 : "_s},
      {Mots(u"compteurs --jour 03/10/2016"_s),
       0,
       Lignes({u"classe;repas;sandwichs;sans_repas"_s, u"M1 B;0;0;1"_s, u"P1 A;0;0;2"_s,
               u"PROFESSEURS ;0;0;1"_s}),
       {}},
      {reservation("clics.txt",
                   "03/10/2016;1;1\n03/10/2016;2;2\n03/10/2016;3;1\n3/10/16;2;4\n03/10/2016;2;9\n"),
       0,
       Lignes({QString(u"rang;effet;"_s + drapeaux), u"1;marque;1;0;0;0;0;0;0;0"_s,
               u"2;marque;0;1;0;0;0;0;0;0"_s, u"3;verrou;0;0;0;0;0;0;0;0"_s, u"4;marque;0;1;0;1;0;0;0;0"_s,
               u"5;ignore;0;1;0;1;0;0;0;0"_s}),
       u"Attention le choix du sandwich est incomplet !"_s},
      {reservation("neuf.txt", "03/10/2016;3;1\n03/10/2016;3;3\n") + nouvelle, 0,
       Lignes({QString(u"rang;effet;"_s + drapeaux), u"1;insuffisant;0;0;0;0;0;0;0;0"_s,
               u"2;marque;0;0;1;0;0;0;0;0"_s}),
       u"Solde insuffisant"_s},
      {Mots(u"commandes --du 01/10/2016 --au 31/10/2016"_s),
       0,
       Lignes({QString(u"commande_id;eleve_id;date;"_s + drapeaux + u";complet"),
               u"1;1;2016-10-03;1;0;0;0;0;0;0;0;1"_s, u"2;2;2016-10-03;0;1;0;1;0;0;0;0;1"_s,
               u"3;3;2016-10-03;0;0;1;0;0;0;0;0;0"_s}),
       {}},
      {Mots(u"cuisine --jour 03/10/2016 --nouvelle"_s),
       0,
       Lignes({u"classe;libelle;nombre"_s, u"M1 B;Repas Complet;1"_s, u"P1 A;Soupe;1"_s, u"P1 A;Sandwich;"_s,
               u";lblRepas;1"_s, u";lblSandwiches;1"_s, u";lblDagobert;1"_s}),
       {}},
      {Mots(u"compte 3 -1,0,0,0,1,x,0,1,0,0,0,0,-1 --jour 03/10/2016"_s), 0, {}, {}},
      {Mots(u"compte 3 1,2 --jour 03/10/2016"_s), 1, {}, u"13 nombres"_s},
      {Mots(u"comptes --jour 04/10/2016"_s),
       0,
       Lignes({u"eleve_id;solde;recu"_s, u"1;0.0000;0.0000"_s, u"2;0.0000;0.0000"_s, u"3;5.5000;0.0000"_s,
               u"4;0.0000;0.0000"_s}),
       {}},
  });
}

TEST_F(TLotRepasEssai, TheTablet) {
  const QString transfert = u"eleves;photos;lignes;bons;anomalies;importes;hors_ligne"_s;
  const QString eleves = u"annee;classe;eleve_id;matricule;nom;prenom;photo;repas"_s;
  VerifierTels({
      {{u"reglage"_s, u"DossierPresences"_s, Chemin("presences")},
       0,
       QString(Chemin("presences") + u'\n'),
       {}},
      {Mots(u"reglage Offline 1"_s), 0, u"1\n"_s, {}},
      {Mots(u"tablette eleves"_s), 0, eleves + u'\n', u"faites un transfert"_s},
      {Mots(u"tablette toucher 1"_s), 1, {}, u"faites un transfert"_s},
      {Mots(u"--serveur /nulle/part.fdb tablette transferer"_s), 1, Lignes({transfert, u"0;0;0;0;0;0;1"_s}),
       u"Un problème empêche"_s},
      {Serveur() + Mots(u"tablette transferer"_s), 0, Lignes({transfert, u"4;0;0;0;0;0;1"_s}), u"100 %"_s},
      {Mots(u"tablette toucher 2 9 --jour 03/10/2016"_s), 1, {}, u"n° 9"_s},
      {Mots(u"tablette toucher 2 3 2 1 --jour 03/10/2016"_s),
       0,
       Lignes({u"eleve_id;repas"_s, u"2;1"_s, u"3;1"_s, u"2;0"_s, u"1;1"_s}),
       {}},
      {Mots(u"tablette toucher 3 --jour 05/10/2016"_s), 0, Lignes({u"eleve_id;repas"_s, u"3;1"_s}), {}},
      {Mots(u"tablette eleves --jour 03/10/2016"_s),
       0,
       Lignes({eleves, u"M1;M1 B;1;1-1;Eleve1;Prenom1;0;1"_s, u"P1;P1 A;2;2-1;Eleve2;Prenom2;0;0"_s,
               u"P1;P1 A;3;3-1;Eleve3;Prenom3;0;1"_s,
               u"PROFESSEURS;PROFESSEURS ;4;4-1;Eleve4;Prenom4;0;0"_s}),
       {}},
      {Serveur() + Mots(u"tablette transferer"_s), 1, Lignes({transfert, u"4;0;3;2;1;0;0"_s}),
       u"Eleve3 Prenom3, mercredi 5 octobre : Aucun tarif"_s},
      {Mots(u"tablette toucher 1"_s), 1, {}, u"reliée au serveur"_s},
      {Serveur() + Mots(u"--oui tablette transferer"_s), 0, Lignes({transfert, u"4;0;3;2;1;1;1"_s}),
       u"1 repas"_s},
  });
  EXPECT_EQ(TBaseEssai(base_.FichierDeDonnees())
                .Rangees(u"SELECT ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE FROM PRESENCES ORDER BY 1"_s),
            (QStringList{u"1;2;2016-10-03"_s, u"3;2;2016-10-03"_s}));
}
