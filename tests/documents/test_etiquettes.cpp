#include "documents/etiquettes.h"

#include <QCoreApplication>

#include "documents/moteur_etiquettes.h"
#include "ecole_documents.h"

namespace {

/// Labels by the program's own engine, from models of the test.
struct TEtiquettesEssai : TDocumentsEssai {
  TEtiquettesEssai() {
    anne = ecole.unEleve().nomme(u"ADAM"_s, u"Anne"_s).enClasse(u"P3"_s, u"A"_s).matricule(u"5537-1"_s).Id;
    radie = UnEleve(u"FLG_RADIE"_s).nomme(u"BODART"_s, u"Max"_s).Id;
  }
  /// A model that shows these objects, one below the other, below its own number.
  void Modele(const QString& numero, const QStringList& objets) {
    QString textes = u"<texte largeur='300' hauteur='18'>%1</texte>"_s.arg(numero);
    for (int i = 0; i < objets.size(); ++i)
      textes +=
          u"<texte nom='%1' y='%2' largeur='300' hauteur='18'>[%1]</texte>"_s.arg(objets[i]).arg(20 * i + 20);
    const QString page = u"<page nom='P' largeur='336' hauteur='136' marge='0'><bande sorte='maitre' "_s;
    base.Fichier(u"EtiquetteEleve-%1.label"_s.arg(numero),
                 (u"<modele nom='M'>"_s + page + u"nom='MasterData1' hauteur='136'>" + textes +
                  u"</bande></page></modele>")
                     .toUtf8());
  }
  /// The document at index 0 or 1 of the catalogue; `imprimees` gets a line a label.
  TResultat Demander(std::size_t indice, const std::vector<int>& eleves) {
    Globals = {};
    controleur.Charger();
    TChoixDocument choix;
    for (const int eleve : eleves) choix.Eleves.push_back(Globals.Eleves->TrouverParId(eleve));
    TContexteDocument contexte = ContexteDesGlobals(controleur.Horloge);
    contexte.Etiquettes = &etiquettes;
    imprimees.clear();
    TResultat resultat = FaireDocument(contexte, *TitresOfferts(TListeTitres::Eleves)[indice].Fait, choix);
    EXPECT_EQ(base.Dialogues.Attentes, 0) << "the wait cursor stays";
    EXPECT_TRUE(resultat.Rapports.empty());
    return resultat;
  }
  std::unique_ptr<IMoteurEtiquettes> CreerMoteur() {
    ++moteurs;
    if (!installe) return nullptr;
    return std::make_unique<TMoteurEtiquettes>(
        [this](const TDocumentPrepare& page, const TTravailEtiquette& t) {
          EXPECT_EQ(base.Dialogues.Attentes, 1);
          imprimees += page.TexteDePage(0).replace(u'\n', u'/') %
                       u" %1x sur [%2] en [%3]"_s.arg(t.Exemplaires).arg(t.Imprimante, t.Port);
        });
  }

  int anne = 0, radie = 0, moteurs = 0;
  QStringList imprimees;
  bool installe = true;
  QString imprimante = u"DYMO LabelWriter on USB on 1"_s;
  TEtiquettes etiquettes{
      {[this] { return CreerMoteur(); }, [this] { return imprimante; }, base.Chemin(u""_s)}, base.Dialogues};
};

}  // namespace

TEST_F(TEtiquettesEssai, UneParEleveSaufLesRadies) {
  for (const QString& numero : {u"99012"_s, u"11352"_s})
    Modele(numero, {"NomEleve", "NomEcole", "CodeBarre"});
  const TResultat resultat = Demander(0, {anne, radie, anne});
  EXPECT_TRUE(!resultat.Echec && resultat.Messages.isEmpty());
  const QString une = u"99012/ADAM Anne/P3 A/5537-1 1x sur [DYMO LabelWriter] en [USB on 1]"_s;
  EXPECT_EQ(imprimees, (QStringList{une, une}));
  imprimante = u"Dymo"_s;
  EXPECT_FALSE(Demander(1, {anne}).Echec);
  EXPECT_EQ(moteurs, 1) << "the engine is kept";
  EXPECT_EQ(imprimees, QStringList{u"11352/ADAM Anne/P3 A/5537-1 1x sur [Dymo] en []"_s});
  EXPECT_FALSE(Demander(1, {radie}).Echec);
  EXPECT_EQ(imprimees, QStringList()) << "not even alone";
}

TEST_F(TEtiquettesEssai, SansMoteurNiModele) {
  installe = false;
  for (int fois = 1; fois <= 2; ++fois) {
    const TResultat sans = Demander(0, {anne});
    EXPECT_TRUE(sans.Echec);
    EXPECT_EQ(sans.Messages, QStringList{u"Impossible d'initialiser les pilotes d'impression. Veuillez "
                                         "vérifier l'installation de votre imprimante Dymo."_s});
    EXPECT_EQ(moteurs, fois) << "it is tried again";
  }
  installe = true;
  const QString suite =
      u" Veuillez vérifier si le fichier EtiquetteLivre.LWL se trouve dans le répertoire courant."_s;
  const QString debut = u"Impossible d'initialiser le fichier de modèle d'étiquette"_s;
  EXPECT_EQ(Demander(0, {anne}).Messages, QStringList{debut % u": \"EtiquetteEleve-99012.label\"." % suite});
  const TResultat petite = Demander(1, {anne});
  EXPECT_TRUE(petite.Echec);
  EXPECT_EQ(petite.Messages, QStringList{debut % u" : \"EtiquetteEleve-11352.label\"." % suite});

  // Known before anybody asks, each model for itself; a document that needs none is never held back.
  Modele(u"99012"_s, {"NomEleve"});
  QStringList raisons;
  for (const TTitreOffert& titre : TitresOfferts(TListeTitres::Eleves))
    raisons += Empechement(*titre.Fait, etiquettes);
  EXPECT_EQ(raisons[1], u"modèle absent : EtiquetteEleve-11352.label");
  raisons.removeAll(QString());
  EXPECT_EQ(raisons.size(), 1);
}

TEST_F(TEtiquettesEssai, UnObjetQuiManqueSeDitAChaqueEtiquette) {
  const auto manque = [](const QString& nom) {
    return u"Le modèle d'étiquette de contient pas de champs \"%1\"."_s.arg(nom);
  };
  Modele(u"99012"_s, {"NomEcole"});
  const QStringList messages{manque(u"NomEleve"_s), manque(u"CodeBarre"_s)};
  EXPECT_EQ(Demander(0, {anne, anne}).Messages, messages + messages);
  EXPECT_EQ(imprimees.size(), 2) << "printed all the same";
  Modele(u"99012"_s, {"NomEleve", "CodeBarre"});
  EXPECT_EQ(Demander(0, {anne}).Messages, QStringList{manque(u"NomEcole"_s)});
}

// The two models that lie beside the programs: a scanner finds the code's ends, and a name of three lines
// ends above the class.
TEST(Etiquettes, LeBlancDuCodeEtLesNomsLongs) {
  for (const QString& numero : {u"99012"_s, u"11352"_s}) {
    SCOPED_TRACE(numero.toStdString());
    std::optional<TDocumentPrepare> etiquette;
    TMoteurEtiquettes moteur(
        [&](const TDocumentPrepare& page, const TTravailEtiquette&) { etiquette = page; });
    moteur.OuvrirFichier(QCoreApplication::applicationDirPath() % u"/EtiquetteEleve-" % numero % u".label");
    moteur.TrouverObjet(u"NomEleve"_s)
        ->EcrireTexte(u"VANDENBOSSCHE-DE LA CROIX DE MEULENAERE Marie-Antoinette Joséphine Clémentine"_s);
    moteur.TrouverObjet(u"NomEcole"_s)->EcrireTexte(u"P3 A"_s);
    moteur.TrouverObjet(u"CodeBarre"_s)->EcrireCodeBarres(u"5537123456"_s);
    moteur.Imprimer({}, {}, 1);
    ASSERT_TRUE(etiquette && etiquette->Pages.size() == 1);
    EXPECT_TRUE(etiquette->Defauts.empty()) << etiquette->Defauts[0].Message.toStdString();
    const TPagePreparee& page = etiquette->Pages[0];
    double gauche = page.Largeur, droite = 0, module = page.Largeur;
    float nom = 0, classe = 0;
    for (const TElement& element : page.Elements) {
      if (const auto* barres = std::get_if<TElementBarres>(&element))
        for (const QRectF& barre : barres->Barres) {
          gauche = std::min(gauche, barre.left());
          droite = std::max(droite, barre.right());
          module = std::min(module, barre.width());
        }
      if (const auto* texte = std::get_if<TElementTexte>(&element)) {
        if (texte->Forme->Texte == u"P3 A") classe = texte->Base;
        if (texte->Forme->Texte.contains(u"ANDENB") || texte->Forme->Texte.contains(u"ine"))
          nom = std::max(nom, texte->Base);
      }
    }
    EXPECT_GE(gauche, 10 * module - 0.01);
    EXPECT_GE(page.Largeur - droite, 10 * module - 0.01);
    EXPECT_TRUE(nom > 0 && nom <= classe - 9) << nom << ' ' << classe;
  }
}
