// The papers of the batch program, read back from the PDF by programs that know nothing of it.
#include "papier_essai.h"

namespace {

/// What stands on a pupil's lines: "Piscine    12,50 €".
void VerifierLigne(const QString& texte, const QString& libelle, const QString& montant) {
  const QRegularExpression motif(
      u"^ *%1 +%2 €$"_s.arg(QRegularExpression::escape(libelle), QRegularExpression::escape(montant)),
      QRegularExpression::MultilineOption);
  EXPECT_EQ(texte.count(motif), 1) << libelle.toStdString() << ' ' << montant.toStdString();
}

}  // namespace

/// Two pupils of one class and one of another; the second one has two pages, and the odd names.
class TFacturesEssai : public TPapierEssai {
 protected:
  TFacturesEssai() {
    ecole_.parametres(
        u"1=École de Brumeval|11=BE68 5390 0754 7034|10=Communication : [ComStructParFacture]"_s);
    TEleveEssai anne = ecole_.unEleve().nomme("ADAM", "Anne").enClasse("P1", "A");
    TEleveEssai longue = ecole_.unEleve().nomme(Nom, "[Total]").enClasse("P1", "A");
    TEleveEssai noe = ecole_.unEleve().nomme("ZOLA", "Noé <b>").enClasse("P2", "A");
    for (int i = 1; i <= 25; ++i) {
      const int cahier = ecole_.frais(u"Cahier %1"_s.arg(i), u"%1.25"_s.arg(i), 10);
      const int sortie = ecole_.frais(u"Sortie %1"_s.arg(i), u"%1.10"_s.arg(100 + i), 10, "non_obligatoire");
      anne.doit(cahier);
      longue.doit(cahier).doit(sortie);
    }
    noe.doit(ecole_.frais("Dû : [Total] de <b>tous</b> (50 %) & \"Cie\" \\", "7", 10));
    base_->Deconnecter();
  }

  const QString Nom = "VANDENBOSSCHE-DE LA CROIX DE MEULENAERE-VAN CAUWENBERGHE TER";
};

TEST_F(TFacturesEssai, ChaqueEleveATousSesMontants) {
  Imprimer(Mots("Facture --mois 10 --classes") + QStringList{"P1 A,P2 A"});
  const QStringList pages = Pages(), suites = Pages({});
  const std::vector<TEntree> signets = Signets();
  const QJsonArray eleves = Json()[u"rapports"_s][0][u"arbre"_s].toArray();
  ASSERT_EQ(pages.size(), 4);
  ASSERT_EQ(signets.size(), 3U);
  ASSERT_EQ(eleves.size(), 3);
  const struct {
    QString Classe, Total;
    int Premiere, Derniere, Lignes;
  } attendus[] = {{"P1 A", "331,25", 1, 1, 25}, {"P1 A", "3158,75", 2, 3, 50}, {"P2 A", "7,00", 4, 4, 1}};
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    const auto& [classe, total, premiere, derniere, nombre] = attendus[i];
    const TEntree& signet = signets[static_cast<size_t>(i)];
    const QJsonValue eleve = eleves[i];
    EXPECT_EQ(signet.Classe % signet.Nom, QString(classe % eleve[u"texte"_s].toString()));
    EXPECT_EQ(signet.Page, premiere);
    for (int page = premiere; page <= derniere; ++page)
      EXPECT_TRUE(suites[page - 1].simplified().contains(signet.Nom)) << suites[page - 1].toStdString();

    const QString texte = pages.mid(premiere - 1, derniere - premiere + 1).join(u'\n');
    VerifierLigne(texte, "Total général :", total);
    EXPECT_TRUE(
        texte.contains(u"somme de " % total % u" € sur le numéro de compte suivant : BE68 5390 0754 7034"));
    const QString communication = eleve[u"valeurs"_s][u"Communication"_s].toString();
    EXPECT_TRUE(communication.contains(QRegularExpression("^Communication : \\+{3}[\\d/]+\\+{3}$")));
    EXPECT_EQ(texte.count(communication), 1) << communication.toStdString();
    int lignes = 0;
    for (const QJsonValue& section : eleve[u"enfants"_s].toArray()) {
      VerifierLigne(texte, "Sous-total", section[u"valeurs"_s][u"TotalFrais"_s].toString());
      for (const QJsonValue& ligne : section[u"enfants"_s].toArray()) {
        const QJsonValue valeurs = ligne[u"valeurs"_s];
        VerifierLigne(texte, valeurs[u"NomService"_s].toString(), valeurs[u"Total"_s].toString());
        ++lignes;
      }
    }
    EXPECT_EQ(lignes, nombre);
  }
  EXPECT_TRUE(pages[3].contains("Dû : [Total] de <b>tous</b> (50 %) & \"Cie\" \\ "))
      << pages[3].toStdString();

  Imprimer(Mots("Facture --mois 10 --eleves 3,1"));
  QString choisis;
  for (const TEntree& signet : Signets()) choisis += signet.Classe % signet.Nom % u'|';
  EXPECT_EQ(choisis, "ZOLA Noé <b>|ADAM Anne|");
}

/// Pupils with register numbers of several forms.
class TCodesEssai : public TPapierEssai {
 protected:
  TCodesEssai() {
    for (const char* matricule : {"5537-01207", "5537-99", "12-34-56"})
      ecole_.unEleve().nomme("NOM", "Zoé").enClasse("P1", "A").matricule(matricule);
    base_->Deconnecter();
  }
  const QString Badge = "Badge individuel d'identification (85mm x 54mm)";
};

TEST_F(TCodesEssai, UnScannerLesRelitSansTirets) {
  const QString liste = "Liste d'identification par classe";
  for (const auto& [type, debut, fin] :
       {std::tuple("1", u"Codabar:A"_s, u"A"_s), {"2", u"CODE-39:"_s, u""_s}, {"", u"Codabar:A"_s, u"A"_s}}) {
    base_->Connecter();
    ecole_.parametre(28, type);
    base_->Deconnecter();
    for (const QString& titre : {Badge, u"Badge individuel Xerox DocuCard (1 carte)"_s, liste,
                                 QString(liste % u" - grand format")}) {
      SCOPED_TRACE(qPrintable(QString(titre % u", type " % type)));
      Imprimer({titre, "--tous"});
      EXPECT_EQ(Codes(),
                (QStringList{debut + u"123456" + fin, debut + u"553701207" + fin, debut + u"553799" + fin}));
      EXPECT_TRUE(Pages().join(QString()).contains("5537-01207")) << "in clear with its dash";
    }
  }
}

TEST_F(TCodesEssai, LesEtiquettesOntLeurPage) {
  const std::pair<QString, QString> modeles[] = {
      {"Etiquettes d'identification 89mm x 36mm (Etiquette Dymo 99012)", "252.28 x 102.05 pts"},
      {"Etiquettes d'identification 54mm x 25mm (Etiquette Dymo 11352)", "153.07 x 70.87 pts"}};
  for (const auto& [titre, taille] : modeles) {
    SCOPED_TRACE(qPrintable(titre));
    Imprimer({titre, "--tous"});
    EXPECT_EQ(Codes(), (QStringList{"CODE-39:123456", "CODE-39:553701207", "CODE-39:553799"}));
    EXPECT_EQ(Pages().size(), 3) << "a page a label";
    EXPECT_EQ(Pages()[0].split(u'\n', Qt::SkipEmptyParts).replaceInStrings(" ", QString()),
              (QStringList{"NOMZoé", "P1A", "5537-01207"}));
    EXPECT_TRUE(Sortie("pdfinfo", {Pdf()}).contains(taille)) << Sortie("pdfinfo", {Pdf()}).toStdString();
  }
}

TEST_F(TCodesEssai, LesModelesDuPoste) {
  const QDir dossier(qEnvironmentVariable("XDG_DATA_HOME") + u"/Calpenne/Presences/modeles"_s);
  ASSERT_TRUE(QDir().mkpath(dossier.path()));
  const auto ecrire = [&](const QString& nom, const QString& texte) {
    EcrireFichier(dossier.filePath(nom), texte.toUtf8());
  };
  ecrire(
      "carte_eleve.xml",
      u"<partie><bande sorte='maitre' nom='MasterData1' hauteur='99' nouvellePage='oui'>"
      "<texte x='9' y='9' largeur='300' hauteur='18'>De notre école : [PrenomEleve]</texte></bande></partie>"_s);
  const QStringList badge{Badge, "--eleves", "1"};
  Imprimer(badge);
  EXPECT_EQ(Pages().join(u'|').simplified(), "De notre école : Zoé");
  ecrire("Badge.xml", "<modele>\n<bande/></modele>");
  Verifier({{EnPdf(badge), 1, {}, dossier.filePath("Badge.xml") + u", ligne 2 : "}});
  EXPECT_TRUE(QDir(dossier).removeRecursively());
  // Nobody left to print.
  base_->Connecter();
  base_.Sql("UPDATE ELEVES SET FLG_RADIE = 1");
  base_->Deconnecter();
  QFile::remove(Pdf());
  Verifier({{EnPdf({Badge, "--tous"}), 1, {}, "Il n'y a rien à imprimer"},
            {{"document", "Etiquettes d'identification 54mm x 25mm (Etiquette Dymo 11352)", "--tous"},
             1,
             {},
             "Impossible d'initialiser les pilotes d'impression."}});
  EXPECT_FALSE(QFile::exists(Pdf()));
}
