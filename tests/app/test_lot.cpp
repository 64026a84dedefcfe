// What the batch program promises to a script that calls it: output, messages and exit code.
#include <QFileInfo>
#include <QJsonArray>

#include "lot_essai.h"
#include "support/fichier_registre.h"

namespace {

/// A small school in a file that nobody holds open between two calls.
class TLotEssai : public TProgrammeEssai {
 protected:
  TLotEssai() {
    using namespace Essai;
    ecole_.tarif(Matin, TousLesJours, u"07:00"_s, u"08:30"_s, Forfait, u"1.25"_s, ScanPresence);
    const int piscine = ecole_.frais(u"Piscine"_s, u"12.5"_s, 10);
    ecole_.unEleve().enClasse(u"P1"_s, u"A"_s).doit(piscine, u"2.5"_s);
    ecole_.unEleve().enClasse(u"P1"_s, u"A"_s);
    base_->Deconnecter();
  }
};

}  // namespace

TEST_F(TLotEssai, TheFileOfTheDatabase) {
  Fichier("vide.fdb", {});
  const auto creer = [&](const char* nom) { return QStringList{u"--serveur"_s, Chemin(nom), u"creer"_s}; };
  VerifierTels({
      {{u"--serveur"_s, Chemin("neuve.fdb"), u"--oui"_s, u"solde"_s}, 1, {}, u"rien n'y a été créé"_s},
      {creer("neuve.fdb"), 0, {}, u"neuve.fdb » est créée."_s},
      {creer("neuve.fdb"), 0, {}, u"Votre base de données est à jour !"_s},
      {creer("vide.fdb"), 1, {}, u"est vide"_s},
      {Mots(u"creer"_s), 1, {}, u"Aucun serveur de données n'est connu"_s},
      {Mots(u"--serveur 127.0.0.1/1 solde"_s), 1, {}, u"Le serveur de données ne répond pas."_s},
      {Mots(u"danser"_s), 2, {}, u"Usage : calpenne-lot"_s},
      {Mots(u"solde de trop"_s), 2, {}, u"un argument de trop.\nUsage : calpenne-lot solde"_s},
      {Mots(u"registre"_s), 2, {}, u"Il manque un argument"_s},
      {Mots(u"solde --oui --mois 99 --pdf x"_s), 2, {}, u"La commande « solde » n'a pas d'option --mois."_s},
      {Mots(u"parametre 27 --cloturer"_s), 2, {}, u"n'a pas d'option --cloturer."_s},
      {Mots(u"--danser solde"_s), 2, {}, u"Usage : calpenne-lot"_s},
      {Mots(u"--aide"_s), 0, {}, u"Usage : calpenne-lot"_s},
  });
  EXPECT_EQ(QFileInfo(Chemin("vide.fdb")).size(), 0);
}

TEST_F(TLotEssai, Parameters) {
  const QString nom = u"École « ; \" »"_s;
  Verifier({
      {{u"parametre"_s, u"1"_s, nom}, 0, QString(nom + u'\n'), {}},
      {Mots(u"parametre 1"_s), 0, QString(nom + u'\n'), {}},
      {Mots(u"parametre -- 2 -5"_s), 0, u"-5\n"_s, {}},
      {Mots(u"parametre un"_s), 1, {}, u"« un » n'est pas un nombre entier"_s},
      {Mots(u"parametre 27 bientôt"_s), 0, u"bientôt\n"_s, {}},
      {Mots(u"solde"_s), 1, {}, u"Paramètre 27 : "_s},
      {Mots(u"parametre 27 2016"_s), 0, u"2016\n"_s, {}},
  });
  QProcess programme;
  programme.setStandardOutputFile(u"/dev/full"_s);
  Lancer(programme, Serveur() + Mots(u"solde"_s));
  EXPECT_EQ(programme.exitCode(), 1);
  EXPECT_TRUE(
      QString::fromUtf8(programme.readAllStandardError()).contains(u"Le résultat ne peut pas être écrit."_s));
}

TEST_F(TLotEssai, PresencesAndWhatTheyCost) {
  const auto presences = [](const QString& fichier) { return QStringList{u"presences"_s, fichier}; };
  QString couts = u"eleve_id;service;montant\n"_s;
  for (const int eleve : {1, 2})
    for (const QString& service : Mots(u"matin midi soir mercredi etude repas soupe total"_s)) {
      const bool du = eleve == 1 && (service == u"matin" || service == u"total");
      couts += u"%1;%2;%3\n"_s.arg(eleve).arg(service, du ? u"1.2500"_s : u"0.0000"_s);
    }
  const QByteArray scans =
      "11;1;20161003;073015000;1\n\"A;\"\"B\";1;20161005;160000000;2\n11;1;20161004;113000000;1\n";
  Verifier({
      {presences(Fichier("x.txt", "11;x;20161003;0730;1\n")),
       1,
       {},
       u"Ligne 1 : « x » n'est pas un nombre"_s},
      {presences(Fichier("scans.txt", scans)), 0,
       u"etat;matricule;date;type;entree;sortie\nbon;1-1;2016-10-03;1;07:30;\n"
       "inconnu;\"A;\"\"B\";2016-10-05;1;;16:00\nsans_tarif;1-1;2016-10-04;1;11:30;\n"_s,
       u"Des anomalies ont été détectées !\nLes présences ont été mémorisées."_s},
      {Mots(u"couts --mois 10"_s), 0, couts, {}},
      {Mots(u"couts --mois 13"_s), 1, {}, u"Le mois est un nombre de 1 à 12."_s},
      {Mots(u"couts"_s), 1, {}, u"L'option --mois manque."_s},
      {Mots(u"solde"_s),
       0,
       u"eleve_id;frais;services;total\n1;-10.0000;-1.2500;-11.2500\n2;0.0000;0.0000;0.0000\n"_s,
       {}},
  });
}

TEST_F(TLotEssai, ARegisterClosesTheYearOnlyWhenTold) {
  const QString court = TFichierRegistre(1, 2).Ecrire(base_, u"court.csv"_s);
  const QStringList nouvelle{u"registre"_s, TFichierRegistre(1).Mettre(1, 16, u"2017/07/01"_s).Ecrire(base_)};
  const QString refus = u"L'année scolaire n'est pas clôturée : rien n'a été transféré."_s;
  Verifier({
      {{u"registre"_s, court}, 1, {}, u"Le fichier ne compte que 2 élève(s)"_s},
      {nouvelle, 1, {}, refus},
      {QStringList{u"--oui"_s} + nouvelle, 1, {}, refus},
      {Mots(u"parametre 27"_s), 0, u"2016\n"_s, {}},
      {nouvelle + QStringList{u"--cloturer"_s}, 0, u"lignes;crees;modifies\n9;9;0\n"_s,
       u"L'année scolaire est clôturée."_s},
      {Mots(u"parametre 27"_s), 0, u"2017\n"_s, {}},
      {nouvelle, 0, u"lignes;crees;modifies\n9;0;9\n"_s, u"100 % : Nom"_s},
  });
}

TEST_F(TLotEssai, Documents) {
  const QStringList facture =
      Mots(u"document Facture --mois 10 --json"_s) + QStringList{Chemin("document.json")};
  const QStringList tous = facture + Mots(u"--tous"_s);
  Verifier({
      {facture, 1, {}, u"Donnez une seule des options --tous, --eleves, --classes."_s},
      {Mots(u"document Facture --mois 10 --eleves 77"_s), 1, {}, u"élève n° 77"_s},
      {Mots(u"document Facture --mois 10 --classes X"_s), 1, {}, u"classe « X »"_s},
      {Mots(u"document Facture --tous"_s), 1, {}, u"--mois, --du"_s},
      {Mots(u"document Facture --mois 10 --au 01/11/2016 --tous"_s), 1, {}, u"--au demande --du"_s},
      {Mots(u"document Rien --tous"_s), 1, {}, u"pas de document « Rien »"_s},
      {tous + QStringList{u"--pdf"_s, Chemin("./document.json")}, 1, {}, u"deux fichiers différents"_s},
      {Mots(u"statistiques positives --json x --export x"_s), 1, {}, u"deux fichiers différents"_s},
      {Mots(u"accueil --mois 10 --pdf"_s) + Serveur().last(1), 1, {}, u"base de données"_s},
      {Mots(u"statistiques passages --du 02/10/2016 --au 01/10/2016"_s), 0,
       u"eleve_id;date;type;entree;sortie\n"_s, u"après la seconde"_s},
      {Mots(u"document Facture --du 2/10/2016 --au 1/10/2016 --tous"_s), 0, {}, u"Aucune facture"_s},
      {Mots(u"--annee 2015 transferer positifs"_s), 1, {}, u"Rien n'a été transféré."_s},
  });
  EXPECT_FALSE(QFile::exists(Chemin("document.json"))) << "a refusal writes nothing";
  Verifier({{tous, 0, {}, {}}});
  EXPECT_EQ(Json().keys(), (QStringList{"messages", "rapports", "titre"}));
  EXPECT_EQ(Json()[u"titre"].toString(), u"Facture");
  ASSERT_EQ(Json()[u"rapports"].toArray().size(), 1);
  EXPECT_EQ(Json()[u"rapports"].toArray()[0].toObject().keys(),
            (QStringList{"arbre", "modele", "variables"}));

  // With parameter 32 the date is asked for: without the option the dialog is given up.
  Verifier({{Mots(u"parametre 32 1"_s), 0, u"1\n"_s, {}}, {tous, 0, {}, {}}});
  EXPECT_TRUE(Json()[u"rapports"].toArray().isEmpty());
  Verifier({{tous + Mots(u"--date-paiement 14/11/2016"_s), 0, {}, {}}});
  ASSERT_EQ(Json()[u"rapports"].toArray().size(), 1);
  EXPECT_TRUE(QJsonDocument(Json()).toJson().contains("lundi 14 novembre 2016"));
}

TEST_F(TLotEssai, TheBank) {
  const QByteArray entete = QByteArray(";\n").repeated(13);
  const QString credite = Fichier("a.csv", entete +
                                               "x;05/10/2016;;;BE68;ZOÉ;;;;;12,50;EUR;;;000011016166\n"
                                               "x;06/10/2016;;;BE69;X;;;;;-3;EUR;;;\"a;b\"\n");
  const QString faux = Fichier("b.csv", entete + "x;06/10/2016;;;BE69;Y;;;;;3;EUR;;;+++00x/0110/16104+++\n");
  const QString illisible = Fichier("c.csv", entete + "x;06/10/2016;;;BE69;Z;;;;;trois;EUR;;;\n");
  const auto releve = [](const QString& fichier) { return QStringList{u"releve"_s, fichier}; };
  const QString rangees =
      u"extrait_id;donneur;date;montant;communication;compte;etat;eleve_id;mois;famille\n"
      "1;ZOÉ;2016-10-05;12.5000;+++000/0110/16166+++;BE68;comptabilise;1;10;2\n"
      "2;X;2016-10-06;-3.0000;\"a;b\";BE69;inconnu;;;\n"_s;
  Verifier({
      {releve(illisible), 1, {}, u"Ligne 14 : « trois » n'est pas un montant"_s},
      {releve(credite), 0,
       u"Le fichier compte 2 mouvements.\n\n1 mouvements ont été comptabilisés.\n1 mouvements sont "
       u"inconnus.\n"
       "0 mouvements sont des régularisations.\n"_s,
       u"100 % : X"_s},
      {Mots(u"extraits"_s), 0, rangees, {}},
      {releve(faux), 1, u"Le fichier compte 1 mouvements.\n"_s, u"« 00x01 » n'est pas un nombre"_s},
      {Mots(u"extraits"_s),
       0,
       QString(rangees % u"3;Y;2016-10-06;3.0000;+++00x/0110/16104+++;BE69;inconnu;;;\n"),
       {}},
      {releve(Chemin("rien.csv")), 1, {}, u"Le code d'erreur est :"_s},
      {releve(credite) + QStringList{u"--sec"_s}, 1, {}, u"ni un relevé CODA, ni un relevé camt.053"_s},
  });
}

TEST_F(TLotEssai, ADryStatement) {
  const QString camt =
      u"<Document xmlns='urn:iso:std:iso:20022:tech:xsd:camt.053.001.08'><BkToCstmrStmt><Stmt><Id>1</Id>"
      "<Bal><Tp><CdOrPrtry><Cd>OPBD</Cd></CdOrPrtry></Tp><Amt "
      "Ccy='EUR'>5</Amt><CdtDbtInd>CRDT</CdtDbtInd></Bal>"
      "<Bal><Tp><CdOrPrtry><Cd>CLBD</Cd></CdOrPrtry></Tp><Amt "
      "Ccy='EUR'>%1</Amt><CdtDbtInd>CRDT</CdtDbtInd></Bal>"
      "<Ntry><Amt Ccy='EUR'>12.5</Amt><CdtDbtInd>DBIT</CdtDbtInd><ValDt><Dt>2016-10-05</Dt></ValDt>"
      "<AddtlNtryInf>000011016166</AddtlNtryInf></Ntry></Stmt></BkToCstmrStmt></Document>"_s;
  const QString juste = Fichier(
      "juste.xml",
      camt.arg(u"-7.5"_s).replace(u"-7.5</Amt><CdtDbtInd>CRDT"_s, u"7.5</Amt><CdtDbtInd>DBIT"_s).toUtf8());
  const QString faux = Fichier("faux.xml", camt.arg(u"1"_s).toUtf8());
  const QString lues =
      u"date;montant;compte;donneur;communication\n2016-10-05;-12.5000;;;+++000/0110/16166+++\n"_s;
  const auto sec = [](const QString& fichier, const char* options) {
    return QStringList{u"releve"_s, fichier} + Mots(QString::fromLatin1(options));
  };
  VerifierTels({
      {sec(juste, "--sec"), 0, lues, {}},
      {sec(faux, "--sec"), 1, {}, u"le nouveau solde est 1,00"_s},
      {sec(faux, "--sec --sans-preuve"), 0, lues, u"le nouveau solde est 1,00"_s},
  });
  Verifier({
      {sec(faux, "--sans-preuve"), 1, {}, u"--sans-preuve demande --sec"_s},
      {sec(faux, ""), 1, {}, u"Rien n'a été mémorisé."_s},
      {sec(juste, ""), 0,
       u"Le fichier compte 1 mouvements.\n\n0 mouvements ont été comptabilisés.\n1 mouvements sont "
       u"inconnus.\n"
       "0 mouvements sont des régularisations.\n"_s,
       u"100 %"_s},
      {Mots(u"extraits"_s),
       0,
       u"extrait_id;donneur;date;montant;communication;compte;etat;eleve_id;mois;famille\n"
       "1;;2016-10-05;-12.5000;+++000/0110/16166+++;;inconnu;;;\n"_s,
       {}},
  });
}
