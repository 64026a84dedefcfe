// What the batch program promises to a script that calls it: output, messages and exit code.
#include <QDir>
#include <QJsonArray>

#include "lot_essai.h"

namespace {

/// A small school in a file that nobody holds open between two calls.
class TLotEssai : public TProgrammeEssai {
 protected:
  TLotEssai() {
    using namespace Essai;
    ecole_.tarif(Matin, TousLesJours, QStringLiteral("07:00"), QStringLiteral("08:30"), Forfait,
                 QStringLiteral("1.25"), ScanPresence);
    const int piscine = ecole_.frais(QStringLiteral("Piscine"), QStringLiteral("12.5"), 10);
    const QString p1 = QStringLiteral("P1"), a = QStringLiteral("A");
    ecole_.unEleve().enClasse(p1, a).doit(piscine, QStringLiteral("2.5"));
    ecole_.unEleve().enClasse(p1, a);
    base_->Deconnecter();
  }
};

/// A register in the first layout, of which the pupils entered on that day.
QByteArray Registre(int eleves, const QString& entree) {
  QStringList lignes{QStringLiteral("en-tête")};
  for (int n = 1; n <= eleves; ++n) {
    QStringList champs(46);
    champs[2] = QStringLiteral("500%1-7").arg(n);
    champs[3] = QStringLiteral("Nom");
    champs[6] = QStringLiteral("20080602");
    champs[14] = QStringLiteral("5537");
    champs[16] = entree;
    champs[17] = QStringLiteral("P1");
    lignes += champs.join(u';');
  }
  return lignes.join(u'\n').toUtf8();
}

}  // namespace

TEST_F(TLotEssai, TheFileOfTheDatabase) {
  ASSERT_TRUE(QDir().mkpath(Chemin("dossier.fdb")));
  Fichier("hasard.fdb", QByteArray(20000, 'x'));
  Fichier("vide.fdb", {});
  const auto creer = [&](const char* nom) {
    return QStringList{QStringLiteral("--serveur"), Chemin(nom), QStringLiteral("creer")};
  };
  VerifierTels({
      {creer("neuve.fdb"), 0, {}, QStringLiteral("neuve.fdb » est créée.")},
      {creer("neuve.fdb"), 0, {}, QStringLiteral("Votre base de données est à jour !")},
      {creer("dossier.fdb"), 1, {}, QStringLiteral("est un dossier")},
      {creer("hasard.fdb"), 1, {}, QStringLiteral("n'est pas une base de données de Calpenne")},
      {creer("vide.fdb"), 1, {}, QStringLiteral("est vide")},
      {Mots(QStringLiteral("creer")), 1, {}, QStringLiteral("Aucun serveur de données n'est connu")},
      {Mots(QStringLiteral("--serveur 127.0.0.1/1 solde")),
       1,
       {},
       QStringLiteral("Le serveur de données ne répond pas.")},
      {Mots(QStringLiteral("danser")), 2, {}, QStringLiteral("Usage : calpenne-lot")},
      {Mots(QStringLiteral("solde de trop")), 2, {}, QStringLiteral("Usage : calpenne-lot")},
      {Mots(QStringLiteral("--danser solde")), 2, {}, QStringLiteral("Usage : calpenne-lot")},
      {Mots(QStringLiteral("--aide")), 0, {}, QStringLiteral("Usage : calpenne-lot")},
  });
  EXPECT_EQ(QFileInfo(Chemin("vide.fdb")).size(), 0);
}

TEST_F(TLotEssai, Parameters) {
  const QString nom = QStringLiteral("École « ; \" »");
  const QString vingtSept = QStringLiteral("Paramètre 27 : ");
  Verifier({
      {{QStringLiteral("parametre"), QStringLiteral("1"), nom}, 0, QString(nom + u'\n'), {}},
      {Mots(QStringLiteral("parametre 1")), 0, QString(nom + u'\n'), {}},
      {Mots(QStringLiteral("parametre -- 2 -5")), 0, QStringLiteral("-5\n"), {}},
      {Mots(QStringLiteral("parametre un")), 1, {}, QStringLiteral("« un » n'est pas un nombre entier")},
      {Mots(QStringLiteral("parametre 27 bientôt")), 0, QStringLiteral("bientôt\n"), {}},
      {Mots(QStringLiteral("solde")), 1, {}, vingtSept},
      {Mots(QStringLiteral("parametre 27 2016")), 0, QStringLiteral("2016\n"), {}},
  });
  QProcess programme;
  programme.setStandardOutputFile(QStringLiteral("/dev/full"));
  Lancer(programme, Serveur() + Mots(QStringLiteral("solde")));
  EXPECT_EQ(programme.exitCode(), 1);
  EXPECT_TRUE(QString::fromUtf8(programme.readAllStandardError())
                  .contains(QStringLiteral("Le résultat ne peut pas être écrit.")));
}

TEST_F(TLotEssai, PresencesAndWhatTheyCost) {
  QFile enorme(Chemin("enorme.txt"));
  ASSERT_TRUE(enorme.open(QIODevice::WriteOnly) && enorme.resize(65LL * 1024 * 1024));
  const auto presences = [](const QString& fichier) {
    return QStringList{QStringLiteral("presences"), fichier};
  };
  const QString entete = QStringLiteral("etat;matricule;date;type;entree;sortie\n");
  QString couts = QStringLiteral("eleve_id;service;montant\n");
  for (const QString& eleve : {QStringLiteral("1"), QStringLiteral("2")})
    for (const char* service : {"matin", "midi", "soir", "mercredi", "etude", "repas", "soupe", "total"}) {
      const QString nom = QString::fromLatin1(service);
      const bool du = eleve == u"1" && (nom == u"matin" || nom == u"total");
      couts += eleve % u';' % nom % u';' % (du ? u"1.2500\n" : u"0.0000\n");
    }
  const QByteArray scans =
      "11;1;20161003;073015000;1\n\"A;\"\"B\";1;20161005;160000000;2\n11;1;20161004;113000000;1\n";
  Verifier({
      {presences(Chemin("enorme.txt")), 1, {}, QStringLiteral("est trop grand (plus de 64 Mo)")},
      {presences(Chemin("")), 1, {}, QStringLiteral("est un dossier et non un fichier.")},
      {presences(Fichier("vide.txt", {})), 1, {}, QStringLiteral("vide.txt » est vide.")},
      {presences(Fichier("lettres.txt", "11;x;20161003;0730;1\n")),
       1,
       {},
       QStringLiteral("Ligne 1 : « x » n'est pas un nombre entier")},
      {presences(Fichier("scans.txt", scans)), 0,
       QString(entete + QStringLiteral("bon;1-1;2016-10-03;1;07:30;\n"
                                       "inconnu;\"A;\"\"B\";2016-10-05;1;;16:00\n"
                                       "sans_tarif;1-1;2016-10-04;1;11:30;\n")),
       QStringLiteral("Des anomalies ont été détectées !\nLes présences ont été mémorisées.")},
      {Mots(QStringLiteral("couts --mois 10")), 0, couts, {}},
      {Mots(QStringLiteral("couts --mois 13")), 1, {}, QStringLiteral("Le mois est un nombre de 1 à 12.")},
      {Mots(QStringLiteral("couts")), 1, {}, QStringLiteral("L'option --mois manque.")},
      {Mots(QStringLiteral("solde")),
       0,
       QStringLiteral("eleve_id;frais;services;total\n"
                      "1;-10.0000;-1.2500;-11.2500\n"
                      "2;0.0000;0.0000;0.0000\n"),
       {}},
  });
}

TEST_F(TLotEssai, ARegisterClosesTheYearOnlyWhenTold) {
  const QStringList nouvelle{QStringLiteral("registre"),
                             Fichier("registre.csv", Registre(9, QStringLiteral("2017/07/01")))};
  const QString refus = QStringLiteral("L'année scolaire n'est pas clôturée : rien n'a été transféré.");
  Verifier({
      {{QStringLiteral("registre"), Fichier("court.csv", Registre(2, QStringLiteral("2016/09/01")))},
       1,
       {},
       QStringLiteral("Le fichier ne compte que 2 élève(s)")},
      {nouvelle, 1, {}, refus},
      {QStringList{QStringLiteral("--oui")} + nouvelle, 1, {}, refus},
      {Mots(QStringLiteral("parametre 27")), 0, QStringLiteral("2016\n"), {}},
      {nouvelle + QStringList{QStringLiteral("--cloturer")}, 0,
       QStringLiteral("lignes;crees;modifies\n9;9;0\n"), QStringLiteral("L'année scolaire est clôturée.")},
      {Mots(QStringLiteral("parametre 27")), 0, QStringLiteral("2017\n"), {}},
      {nouvelle, 0, QStringLiteral("lignes;crees;modifies\n9;0;9\n"), QStringLiteral("100 % : Nom")},
  });
}

TEST_F(TLotEssai, Documents) {
  const QStringList facture =
      Mots(QStringLiteral("document Facture --mois 10 --json")) + QStringList{Chemin("document.json")};
  const QStringList tous = facture + Mots(QStringLiteral("--tous"));
  Verifier({
      {facture, 1, {}, QStringLiteral("Donnez une seule des options --tous, --eleves, --classes.")},
      {Mots(QStringLiteral("document Facture --mois 10 --eleves 77")), 1, {}, QStringLiteral("élève n° 77")},
      {Mots(QStringLiteral("document Facture --mois 10 --classes X")), 1, {}, QStringLiteral("classe « X »")},
      {Mots(QStringLiteral("document Facture --tous")), 1, {}, QStringLiteral("--mois, --du")},
      {Mots(QStringLiteral("document Rien --tous")), 1, {}, QStringLiteral("pas de document « Rien »")},
      {tous + QStringList{QStringLiteral("--pdf"), Chemin("./document.json")},
       1,
       {},
       QStringLiteral("Donnez deux fichiers différents")},
  });
  EXPECT_FALSE(QFile::exists(Chemin("document.json"))) << "a refusal writes nothing";
  Verifier({{tous, 0, {}, {}}});
  EXPECT_EQ(Json().keys(), (QStringList{"messages", "rapports", "titre"}));
  EXPECT_EQ(Json()[u"titre"].toString(), u"Facture");
  ASSERT_EQ(Json()[u"rapports"].toArray().size(), 1);
  EXPECT_EQ(Json()[u"rapports"].toArray()[0].toObject().keys(),
            (QStringList{"arbre", "modele", "variables"}));

  // With parameter 32 the date is asked for: without the option the dialog is given up.
  Verifier({{Mots(QStringLiteral("parametre 32 1")), 0, QStringLiteral("1\n"), {}}, {tous, 0, {}, {}}});
  EXPECT_TRUE(Json()[u"rapports"].toArray().isEmpty());
  Verifier({{tous + Mots(QStringLiteral("--date-paiement 14/11/2016")), 0, {}, {}}});
  ASSERT_EQ(Json()[u"rapports"].toArray().size(), 1);
  EXPECT_TRUE(QJsonDocument(Json()).toJson().contains("lundi 14 novembre 2016"));

  Verifier({{{QStringLiteral("document"), QStringLiteral("Attestation fiscale"), QStringLiteral("--tous")},
             1,
             {},
             QStringLiteral("n'est pas encore disponible.")}});
}
