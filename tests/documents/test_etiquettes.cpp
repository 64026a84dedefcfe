#include <QFile>

#include "documents/etiquettes.h"
#include "ecole_documents.h"

namespace {

/// What is done to an engine, a word an operation.
struct TCarnet {
  QStringList Faits;
  QStringList Objets{u"NomEleve"_s, u"NomEcole"_s, u"CodeBarre"_s};  ///< of every model
  int Moteurs = 0;
  bool EnAttente = true;  ///< the wait cursor showed at every operation
};

class TMoteurEssai final : public IMoteurEtiquettes {
 public:
  TMoteurEssai(TCarnet& carnet, const TDialoguesScenario& dialogues)
      : carnet_(carnet), dialogues_(dialogues) {
    Noter(u"moteur"_s);
  }
  void OuvrirFichier(const QString& chemin) override { Noter(u"ouvre " % QFileInfo(chemin).fileName()); }
  IObjetEtiquette* TrouverObjet(const QString& nom) override {
    if (!carnet_.Objets.contains(nom)) return nullptr;
    objet_.emplace(*this, nom);
    return &*objet_;
  }
  void Imprimer(const QString& imprimante, const QString& port, int exemplaires) override {
    Noter(u"imprime %1 sur [%2] en [%3]"_s.arg(exemplaires).arg(imprimante, port));
  }

 private:
  struct TObjet final : IObjetEtiquette {
    TObjet(TMoteurEssai& moteur, QString nom) : Moteur(moteur), Nom(std::move(nom)) {}
    void EcrireTexte(const QString& texte) override { Moteur.Noter(Nom % u" = " % texte); }
    void EcrireCodeBarres(const QString& texte) override { Moteur.Noter(Nom % u" || " % texte); }
    TMoteurEssai& Moteur;
    QString Nom;
  };
  void Noter(const QString& fait) {
    carnet_.Faits += fait;
    carnet_.EnAttente = carnet_.EnAttente && dialogues_.Attentes == 1;
  }

  TCarnet& carnet_;
  const TDialoguesScenario& dialogues_;
  std::optional<TObjet> objet_;
};

struct TEtiquettesEssai : TDocumentsEssai {
  TEtiquettesEssai() {
    anne = ecole.unEleve().nomme(u"ADAM"_s, u"Anne"_s).enClasse(u"P3"_s, u"A"_s).matricule(u"5537-1"_s).Id;
    radie = UnEleve(u"FLG_RADIE"_s).nomme(u"BODART"_s, u"Max"_s).Id;
  }
  /// The document at index 0 or 1 of the catalogue, printed by `etiquettes`.
  TResultat Demander(std::size_t indice, const std::vector<int>& eleves) {
    Globals = {};
    controleur.Charger();
    TChoixDocument choix;
    for (const int eleve : eleves) choix.Eleves.push_back(Globals.Eleves->TrouverParId(eleve));
    TContexteDocument contexte = ContexteDesGlobals(controleur.Horloge);
    contexte.Etiquettes = &etiquettes;
    carnet.Faits.clear();
    TResultat resultat = FaireDocument(contexte, *TitresOfferts(TListeTitres::Eleves)[indice].Fait, choix);
    EXPECT_EQ(base.Dialogues.Attentes, 0) << "the wait cursor stays";
    EXPECT_TRUE(carnet.EnAttente && resultat.Rapports.empty());
    return resultat;
  }

  int anne = 0, radie = 0;
  TCarnet carnet;
  bool installe = true;
  QString imprimante = u"DYMO LabelWriter on USB on 1"_s;
  TEtiquettes etiquettes{{[this]() -> std::unique_ptr<IMoteurEtiquettes> {
                            ++carnet.Moteurs;
                            if (!installe) return nullptr;
                            return std::make_unique<TMoteurEssai>(carnet, base.Dialogues);
                          },
                          [this] { return imprimante; }, base.Chemin(u""_s)},
                         base.Dialogues};
};

}  // namespace

TEST_F(TEtiquettesEssai, UneParEleveSaufLesRadies) {
  base.Fichier(u"EtiquetteEleve-99012.label"_s, "1");
  base.Fichier(u"EtiquetteEleve-11352.label"_s, "2");
  const TResultat resultat = Demander(0, {anne, radie, anne});
  EXPECT_TRUE(!resultat.Echec && resultat.Messages.isEmpty());
  const QStringList une{u"NomEleve = ADAM Anne"_s, u"NomEcole = P3 A"_s, u"CodeBarre || 5537-1"_s,
                        u"imprime 1 sur [DYMO LabelWriter] en [USB on 1]"_s};
  EXPECT_EQ(carnet.Faits, (QStringList{u"moteur"_s, u"ouvre EtiquetteEleve-99012.label"_s} + une + une));
  imprimante = u"Dymo"_s;
  EXPECT_FALSE(Demander(1, {anne}).Echec);
  EXPECT_EQ(carnet.Moteurs, 1) << "the engine is kept";
  EXPECT_EQ(carnet.Faits.first(), u"ouvre EtiquetteEleve-11352.label"_s);
  EXPECT_EQ(carnet.Faits.last(), u"imprime 1 sur [Dymo] en []"_s);
  // Alone, too.
  EXPECT_FALSE(Demander(1, {radie}).Echec);
  EXPECT_EQ(carnet.Faits, QStringList{u"ouvre EtiquetteEleve-11352.label"_s});
}

TEST_F(TEtiquettesEssai, SansMoteurNiModele) {
  installe = false;
  for (int fois = 1; fois <= 2; ++fois) {
    const TResultat sans = Demander(0, {anne});
    EXPECT_TRUE(sans.Echec);
    EXPECT_EQ(sans.Messages, QStringList{u"Impossible d'initialiser les pilotes d'impression. Veuillez "
                                         "vérifier l'installation de votre imprimante Dymo."_s});
    EXPECT_EQ(carnet.Moteurs, fois) << "it is tried again";
  }
  installe = true;
  const QString suite =
      u" Veuillez vérifier si le fichier EtiquetteLivre.LWL se trouve dans le répertoire courant."_s;
  const QString debut = u"Impossible d'initialiser le fichier de modèle d'étiquette"_s;
  EXPECT_EQ(Demander(0, {anne}).Messages, QStringList{debut % u": \"EtiquetteEleve-99012.label\"." % suite});
  const TResultat petite = Demander(1, {anne});
  EXPECT_TRUE(petite.Echec);
  EXPECT_EQ(petite.Messages, QStringList{debut % u" : \"EtiquetteEleve-11352.label\"." % suite});
  EXPECT_TRUE(carnet.Faits.isEmpty());
}

TEST_F(TEtiquettesEssai, UnObjetQuiManqueSeDitAChaqueEtiquette) {
  base.Fichier(u"EtiquetteEleve-99012.label"_s, "1");
  carnet.Objets = {u"NomEcole"_s};
  const TResultat resultat = Demander(0, {anne, anne});
  EXPECT_FALSE(resultat.Echec);
  const QStringList messages{u"Le modèle d'étiquette de contient pas de champs \"NomEleve\"."_s,
                             u"Le modèle d'étiquette de contient pas de champs \"CodeBarre\"."_s};
  EXPECT_EQ(resultat.Messages, messages + messages);
  const QStringList une{u"NomEcole = P3 A"_s, u"imprime 1 sur [DYMO LabelWriter] en [USB on 1]"_s};
  EXPECT_EQ(carnet.Faits.mid(2), une + une);
  carnet.Objets = {u"NomEleve"_s, u"CodeBarre"_s};
  EXPECT_EQ(Demander(0, {anne}).Messages,
            QStringList{u"Le modèle d'étiquette de contient pas de champs \"NomEcole\"."_s});
}
