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
    for (const auto& [id, valeur] : {std::pair(1, u"École de Brumeval"_s),
                                     {11, u"BE68 5390 0754 7034"_s},
                                     {10, u"Communication : [ComStructParFacture]"_s}})
      ecole_.parametre(id, valeur);
    TEleveEssai anne = ecole_.unEleve().nomme(u"ADAM"_s, u"Anne"_s).enClasse(u"P1"_s, u"A"_s);
    TEleveEssai longue = ecole_.unEleve().nomme(Nom, u"[Total]"_s).enClasse(u"P1"_s, u"A"_s);
    TEleveEssai noe = ecole_.unEleve().nomme(u"ZOLA"_s, u"Noé <b>"_s).enClasse(u"P2"_s, u"A"_s);
    for (int i = 1; i <= 25; ++i) {
      const int cahier = ecole_.frais(u"Cahier %1"_s.arg(i), u"%1.25"_s.arg(i), 10);
      const int sortie =
          ecole_.frais(u"Sortie %1"_s.arg(i), u"%1.10"_s.arg(100 + i), 10, u"non_obligatoire"_s);
      anne.doit(cahier);
      longue.doit(cahier).doit(sortie);
    }
    noe.doit(ecole_.frais(u"Dû : [Total] de <b>tous</b> (50 %) & \"Cie\" \\"_s, u"7"_s, 10));
    base_->Deconnecter();
  }

  const QString Nom = u"VANDENBOSSCHE-DE LA CROIX DE MEULENAERE-VAN CAUWENBERGHE TER"_s;
};

TEST_F(TFacturesEssai, ChaqueEleveATousSesMontants) {
  Imprimer(Mots(u"Facture --mois 10 --classes"_s) + QStringList{u"P1 A,P2 A"_s});
  const QStringList pages = Pages(), suites = Pages({});
  const std::vector<TEntree> signets = Signets();
  const QJsonArray eleves = Json()[u"rapports"_s][0][u"arbre"_s].toArray();
  ASSERT_EQ(pages.size(), 4);
  ASSERT_EQ(signets.size(), 3U);
  ASSERT_EQ(eleves.size(), 3);
  const struct {
    QString Classe, Total;
    int Premiere, Derniere, Lignes;
  } attendus[] = {{u"P1 A"_s, u"331,25"_s, 1, 1, 25},
                  {u"P1 A"_s, u"3158,75"_s, 2, 3, 50},
                  {u"P2 A"_s, u"7,00"_s, 4, 4, 1}};
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
    VerifierLigne(texte, u"Total général :"_s, total);
    EXPECT_TRUE(
        texte.contains(u"somme de " % total % u" € sur le numéro de compte suivant : BE68 5390 0754 7034"));
    const QString communication = eleve[u"valeurs"_s][u"Communication"_s].toString();
    EXPECT_TRUE(communication.contains(QRegularExpression(u"^Communication : \\+{3}[\\d/]+\\+{3}$"_s)));
    EXPECT_EQ(texte.count(communication), 1) << communication.toStdString();
    int lignes = 0;
    for (const QJsonValue& section : eleve[u"enfants"_s].toArray()) {
      VerifierLigne(texte, u"Sous-total"_s, section[u"valeurs"_s][u"TotalFrais"_s].toString());
      for (const QJsonValue& ligne : section[u"enfants"_s].toArray()) {
        const QJsonValue valeurs = ligne[u"valeurs"_s];
        VerifierLigne(texte, valeurs[u"NomService"_s].toString(), valeurs[u"Total"_s].toString());
        ++lignes;
      }
    }
    EXPECT_EQ(lignes, nombre);
  }
  EXPECT_TRUE(pages[3].contains(u"Dû : [Total] de <b>tous</b> (50 %) & \"Cie\" \\ "_s))
      << pages[3].toStdString();

  Imprimer(Mots(u"Facture --mois 10 --eleves 3,1"_s));
  QString choisis;
  for (const TEntree& signet : Signets()) choisis += signet.Classe % signet.Nom % u'|';
  EXPECT_EQ(choisis, u"ZOLA Noé <b>|ADAM Anne|"_s);
}

/// Pupils with register numbers of several forms.
class TCodesEssai : public TPapierEssai {
 protected:
  TCodesEssai() {
    for (const QString& matricule : {u"5537-01207"_s, u"5537-99"_s, u"12-34-56"_s})
      ecole_.unEleve().nomme(u"NOM"_s, u"Zoé"_s).enClasse(u"P1"_s, u"A"_s).matricule(matricule);
    base_->Deconnecter();
  }
  const QString Badge = u"Badge individuel d'identification (85mm x 54mm)"_s;
};

TEST_F(TCodesEssai, UnScannerLesRelitSansTirets) {
  const QString liste = u"Liste d'identification par classe"_s;
  for (const auto& [type, debut, fin] : {std::tuple(u"1"_s, u"Codabar:A"_s, u"A"_s),
                                         {u"2"_s, u"CODE-39:"_s, u""_s},
                                         {u""_s, u"Codabar:A"_s, u"A"_s}}) {
    base_->Connecter();
    ecole_.parametre(28, type);
    base_->Deconnecter();
    for (const QString& titre : {Badge, u"Badge individuel Xerox DocuCard (1 carte)"_s, liste,
                                 QString(liste % u" - grand format")}) {
      SCOPED_TRACE(qPrintable(QString(titre % u", type " % type)));
      Imprimer({titre, u"--tous"_s});
      EXPECT_EQ(Codes(),
                (QStringList{debut + u"123456" + fin, debut + u"553701207" + fin, debut + u"553799" + fin}));
      EXPECT_TRUE(Pages().join(QString()).contains(u"5537-01207"_s)) << "in clear with its dash";
    }
  }
}

TEST_F(TCodesEssai, LesEtiquettesOntLeurPage) {
  const struct {
    QString Titre, Taille;
  } modeles[] = {
      {u"Etiquettes d'identification 89mm x 36mm (Etiquette Dymo 99012)"_s, u"252.28 x 102.05 pts"_s},
      {u"Etiquettes d'identification 54mm x 25mm (Etiquette Dymo 11352)"_s, u"153.07 x 70.87 pts"_s}};
  for (const auto& [titre, taille] : modeles) {
    SCOPED_TRACE(qPrintable(titre));
    Imprimer({titre, u"--tous"_s});
    EXPECT_EQ(Codes(), (QStringList{u"CODE-39:123456"_s, u"CODE-39:553701207"_s, u"CODE-39:553799"_s}));
    EXPECT_EQ(Pages().size(), 3) << "a page a label";
    EXPECT_EQ(Pages()[0].split(u'\n', Qt::SkipEmptyParts).replaceInStrings(u" "_s, QString()),
              (QStringList{u"NOMZoé"_s, u"P1A"_s, u"5537-01207"_s}));
    EXPECT_TRUE(Sortie(u"pdfinfo"_s, {Pdf()}).contains(taille))
        << Sortie(u"pdfinfo"_s, {Pdf()}).toStdString();
  }
}

TEST_F(TCodesEssai, LesModelesDuPoste) {
  const QDir dossier(qEnvironmentVariable("XDG_DATA_HOME") + u"/Calpenne/Presences/modeles"_s);
  ASSERT_TRUE(QDir().mkpath(dossier.path()));
  const auto ecrire = [&](const QString& nom, const QString& texte) {
    QFile fichier(dossier.filePath(nom));
    EXPECT_TRUE(fichier.open(QIODevice::WriteOnly) && fichier.write(texte.toUtf8()) > 0);
  };
  ecrire(
      u"carte_eleve.xml"_s,
      u"<partie><bande sorte='maitre' nom='MasterData1' hauteur='99' nouvellePage='oui'>"
      "<texte x='9' y='9' largeur='300' hauteur='18'>De notre école : [PrenomEleve]</texte></bande></partie>"_s);
  const QStringList badge{Badge, u"--eleves"_s, u"1"_s};
  Imprimer(badge);
  EXPECT_EQ(Pages().join(u'|').simplified(), u"De notre école : Zoé"_s);
  ecrire(u"Badge.xml"_s, u"<modele>\n<bande/></modele>"_s);
  Verifier({{EnPdf(badge), 1, {}, dossier.filePath(u"Badge.xml"_s) + u", ligne 2 : "}});
  EXPECT_TRUE(QDir(dossier).removeRecursively());
  // Nobody left to print.
  base_->Connecter();
  base_.Sql(u"UPDATE ELEVES SET FLG_RADIE = 1"_s);
  base_->Deconnecter();
  QFile::remove(Pdf());
  Verifier(
      {{EnPdf({Badge, u"--tous"_s}), 1, {}, u"Il n'y a rien à imprimer"_s},
       {{u"document"_s, u"Etiquettes d'identification 54mm x 25mm (Etiquette Dymo 11352)"_s, u"--tous"_s},
        1,
        {},
        u"Impossible d'initialiser les pilotes d'impression."_s}});
  EXPECT_FALSE(QFile::exists(Pdf()));
}
