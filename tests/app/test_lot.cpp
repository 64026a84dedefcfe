// What the batch program promises to a script that calls it: output, messages and exit code.
#include <QFileInfo>
#include <QJsonArray>

#include "lot_essai.h"
#include "support/fichier_camt.h"
#include "support/fichier_registre.h"

namespace {

/// A small school in a file that nobody holds open between two calls.
class TLotEssai : public TProgrammeEssai {
 protected:
  TLotEssai() {
    using namespace Essai;
    ecole_.tarif(Matin, TousLesJours, "07:00", "08:30", Forfait, "1.25", ScanPresence);
    const int piscine = ecole_.frais("Piscine", "12.5", 10);
    ecole_.unEleve().enClasse("P1", "A").doit(piscine, "2.5");
    ecole_.unEleve().enClasse("P1", "A");
    base_->Deconnecter();
  }
};

const QString kExtraits = "extrait_id;donneur;date;montant;communication;compte;etat;eleve_id;mois;famille";

}  // namespace

TEST_F(TLotEssai, TheFileOfTheDatabase) {
  Fichier("vide.fdb", {});
  const auto creer = [&](const char* nom) { return QStringList{"--serveur", Chemin(nom), "creer"}; };
  VerifierTels({
      {{"--serveur", Chemin("neuve.fdb"), "--oui", "solde"}, 1, {}, "rien n'y a été créé"},
      {creer("neuve.fdb"), 0, {}, "neuve.fdb » est créée."},
      {creer("neuve.fdb"), 0, {}, "Votre base de données est à jour !"},
      {creer("vide.fdb"), 1, {}, "est vide"},
      Refuse("creer", "Aucun serveur de données n'est connu"),
      Refuse("--serveur 127.0.0.1/1 solde", "Le serveur de données ne répond pas."),
      Refuse("danser", "Usage : calpenne-lot", 2),
      Refuse("solde de trop", "un argument de trop.\nUsage : calpenne-lot solde", 2),
      Refuse("registre", "Il manque un argument", 2),
      Refuse("solde --oui --mois 99 --pdf x", "La commande « solde » n'a pas d'option --mois.", 2),
      Refuse("parametre 27 --cloturer", "n'a pas d'option --cloturer.", 2),
      Refuse("--danser solde", "Usage : calpenne-lot", 2),
      {Mots("--aide"), 0, {}, "Usage : calpenne-lot"},
  });
  EXPECT_EQ(QFileInfo(Chemin("vide.fdb")).size(), 0);
}

TEST_F(TLotEssai, Parameters) {
  const QString nom = "École « ; \" »";
  Verifier({
      {{"parametre", "1", nom}, 0, QString(nom + u'\n'), {}},
      {Mots("parametre 1"), 0, QString(nom + u'\n'), {}},
      Donne("parametre -- 2 -5", {"-5"}),
      Refuse("parametre un", "« un » n'est pas un nombre entier"),
      Donne("parametre 27 bientôt", {"bientôt"}),
      Refuse("solde", "Paramètre 27 : "),
      Donne("parametre 27 2016", {"2016"}),
  });
  QProcess programme;
  programme.setStandardOutputFile("/dev/full");
  Lancer(programme, Serveur() + Mots("solde"));
  EXPECT_EQ(programme.exitCode(), 1);
  EXPECT_TRUE(
      QString::fromUtf8(programme.readAllStandardError()).contains("Le résultat ne peut pas être écrit."));
}

TEST_F(TLotEssai, PresencesAndWhatTheyCost) {
  const auto presences = [](const QString& fichier) { return QStringList{"presences", fichier}; };
  QString couts = "eleve_id;service;montant\n";
  for (const int eleve : {1, 2})
    for (const QString& service : Mots("matin midi soir mercredi etude repas soupe total")) {
      const bool du = eleve == 1 && (service == u"matin" || service == u"total");
      couts += u"%1;%2;%3\n"_s.arg(eleve).arg(service, du ? "1.2500" : "0.0000");
    }
  const QByteArray scans =
      "11;1;20161003;073015000;1\n\"A;\"\"B\";1;20161005;160000000;2\n11;1;20161004;113000000;1\n";
  Verifier({
      {presences(Fichier("x.txt", "11;x;20161003;0730;1\n")), 1, {}, "Ligne 1 : « x » n'est pas un nombre"},
      {presences(Fichier("scans.txt", scans)), 0,
       u"etat;matricule;date;type;entree;sortie\nbon;1-1;2016-10-03;1;07:30;\n"
       "inconnu;\"A;\"\"B\";2016-10-05;1;;16:00\nsans_tarif;1-1;2016-10-04;1;11:30;\n"_s,
       "Des anomalies ont été détectées !\nLes présences ont été mémorisées."},
      {Mots("couts --mois 10"), 0, couts, {}},
      Refuse("couts --mois 13", "Le mois est un nombre de 1 à 12."),
      Refuse("couts", "L'option --mois manque."),
      Donne("solde",
            {"eleve_id;frais;services;total", "1;-10.0000;-1.2500;-11.2500", "2;0.0000;0.0000;0.0000"}),
  });
}

TEST_F(TLotEssai, ARegisterClosesTheYearOnlyWhenTold) {
  const QString court = TFichierRegistre(1, 2).Ecrire(base_, "court.csv");
  const QStringList nouvelle{"registre", TFichierRegistre(1).Mettre(1, 16, "2017/07/01").Ecrire(base_)};
  const QString refus = "L'année scolaire n'est pas clôturée : rien n'a été transféré.";
  Verifier({
      {{"registre", court}, 1, {}, "Le fichier ne compte que 2 élève(s)"},
      {nouvelle, 1, {}, refus},
      {QStringList{"--oui"} + nouvelle, 1, {}, refus},
      Donne("parametre 27", {"2016"}),
      {nouvelle + QStringList{"--cloturer"}, 0, "lignes;crees;modifies\n9;9;0\n",
       "L'année scolaire est clôturée."},
      Donne("parametre 27", {"2017"}),
      {nouvelle, 0, "lignes;crees;modifies\n9;0;9\n", "100 % : Nom"},
  });
}

TEST_F(TLotEssai, Documents) {
  const QStringList facture =
      Mots("document Facture --mois 10 --json") + QStringList{Chemin("document.json")};
  const QStringList tous = facture + Mots("--tous");
  Verifier({
      {facture, 1, {}, "Donnez une seule des options --tous, --eleves, --classes."},
      Refuse("document Facture --mois 10 --eleves 77", "élève n° 77"),
      Refuse("document Facture --mois 10 --classes X", "classe « X »"),
      Refuse("document Facture --tous", "--mois, --du"),
      Refuse("document Facture --mois 10 --au 01/11/2016 --tous", "--au demande --du"),
      Refuse("document Rien --tous", "pas de document « Rien »"),
      Refuse("document Facture --mois 10 --tous --annee-revenus 2016", "« Facture » n'a pas d'option", 2),
      {{"document", "Fiche fiscale 281.86", "--tous", "--annee-revenus", "2014"},
       1,
       {},
       "les années connues sont 2017, 2016."},
      {{"document", "Fiche fiscale 281.86", "--tous", "--annee-revenus", "2017"},
       0,
       {},
       "Garde du 1er janvier au 31 décembre 2017."},
      {{"--annee", "2017", "document", "Fiche fiscale 281.86", "--tous"},
       0,
       {},
       "Compris aussi : 2 élèves de 2016 - 2017 qui ne sont pas en 2017 - 2018."},
      {tous + QStringList{"--pdf", Chemin("./document.json")}, 1, {}, "deux fichiers différents"},
      Refuse("statistiques positives --json x --export x", "deux fichiers différents"),
      {Mots("accueil --mois 10 --pdf") + Serveur().last(1), 1, {}, "base de données"},
      {Mots("statistiques passages --du 02/10/2016 --au 01/10/2016"), 0, "eleve_id;date;type;entree;sortie\n",
       "après la seconde"},
      {Mots("document Facture --du 2/10/2016 --au 1/10/2016 --tous"), 0, {}, "Aucune facture"},
      Refuse("--annee 2015 transferer positifs", "Rien n'a été transféré."),
  });
  EXPECT_FALSE(QFile::exists(Chemin("document.json"))) << "a refusal writes nothing";
  Verifier({{tous, 0, {}, {}}});
  EXPECT_EQ(Json().keys(), (QStringList{"messages", "rapports", "titre"}));
  EXPECT_EQ(Json()[u"titre"].toString(), u"Facture");
  ASSERT_EQ(Json()[u"rapports"].toArray().size(), 1);
  EXPECT_EQ(Json()[u"rapports"].toArray()[0].toObject().keys(),
            (QStringList{"arbre", "modele", "variables"}));

  // With parameter 32 the date is asked for: without the option the dialog is given up.
  Verifier({Donne("parametre 32 1", {"1"}), {tous, 0, {}, {}}});
  EXPECT_TRUE(Json()[u"rapports"].toArray().isEmpty());
  Verifier({{tous + Mots("--date-paiement 14/11/2016"), 0, {}, {}}});
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
  const auto releve = [](const QString& fichier) { return QStringList{"releve", fichier}; };
  QStringList rangees{kExtraits, "1;ZOÉ;2016-10-05;12.5000;+++000/0110/16166+++;BE68;comptabilise;1;10;2",
                      "2;X;2016-10-06;-3.0000;\"a;b\";BE69;inconnu;;;"};
  Verifier({
      {releve(illisible), 1, {}, "Ligne 14 : « trois » n'est pas un montant"},
      {releve(credite), 0,
       u"Le fichier compte 2 mouvements.\n\n1 mouvements ont été comptabilisés.\n1 mouvements "
       "sont inconnus.\n0 mouvements sont des régularisations.\n"_s,
       "100 % : X"},
      Donne("extraits", rangees),
      {releve(faux), 1, "Le fichier compte 1 mouvements.\n", "« 00x01 » n'est pas un nombre"},
      Donne("extraits", rangees += "3;Y;2016-10-06;3.0000;+++00x/0110/16104+++;BE69;inconnu;;;"),
      {releve(Chemin("rien.csv")), 1, {}, "Le code d'erreur est :"},
      {releve(credite) + QStringList{"--sec"}, 1, {}, "ni un relevé CODA, ni un relevé camt.053"},
  });
}

TEST_F(TLotEssai, ADryStatement) {
  using namespace FichierCamt;
  const auto releve = [](const QString& nouveau, const QString& sens) {
    return Camt(Releve(1, {},
                       Solde("OPBD", "5") + Solde("CLBD", nouveau, sens) +
                           Ecriture("12.5", "DBIT",
                                    Valeur("2016-10-05") + "<AddtlNtryInf>000011016166</AddtlNtryInf>")),
                "08");
  };
  const QString juste = Fichier("juste.xml", releve("7.5", "DBIT"));
  const QString faux = Fichier("faux.xml", releve("1", "CRDT"));
  const QString lues =
      "date;montant;compte;donneur;communication\n2016-10-05;-12.5000;;;+++000/0110/16166+++\n";
  const auto sec = [](const QString& fichier, const char* options) {
    return QStringList{"releve", fichier} + Mots(QString::fromLatin1(options));
  };
  VerifierTels({
      {sec(juste, "--sec"), 0, lues, {}},
      {sec(faux, "--sec"), 1, {}, "le nouveau solde est 1,00"},
      {sec(faux, "--sec --sans-preuve"), 0, lues, "le nouveau solde est 1,00"},
  });
  Verifier({
      {sec(faux, "--sans-preuve"), 1, {}, "--sans-preuve demande --sec"},
      {sec(faux, ""), 1, {}, "Rien n'a été mémorisé."},
      {sec(juste, ""), 0,
       u"Le fichier compte 1 mouvements.\n\n0 mouvements ont été comptabilisés.\n1 mouvements "
       "sont inconnus.\n0 mouvements sont des régularisations.\n"_s,
       "100 %"},
      Donne("extraits", {kExtraits, "1;;2016-10-05;-12.5000;+++000/0110/16166+++;;inconnu;;;"}),
  });
}
