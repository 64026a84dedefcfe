#include <QDir>

#include "core/fichiers.h"
#include "forms/grille.h"
#include "report/layout/mise_en_page.h"

using namespace Qt::StringLiterals;

namespace {

QString Lire(const QString& chemin) { return QString::fromUtf8(LireFichier(chemin)); }

void EcrireValeurs(QStringView ligne, TValeurs& valeurs) {
  for (const QStringView piece : ligne.split(u"; ")) {
    const qsizetype egal = piece.indexOf(u'=');
    valeurs.Ecrire(piece.left(egal).trimmed(), piece.mid(egal + 1).toString());
  }
}

/// "|Name:120|Class:60" gives the columns of a list, further such lines its rows.
TRapport LireListe(const QStringList& lignes) {
  std::vector<TColonneGrille> colonnes;
  for (const QString& titre : lignes[0].split(u'|').mid(1))
    colonnes.push_back({titre.section(u':', 0, 0), titre.section(u':', 1).toInt()});
  TGrille grille(colonnes);
  for (const QString& ligne : lignes.mid(1)) {
    const QStringList textes = ligne.split(u'|').mid(1);
    grille.Ajouter(TCellules(textes.begin(), textes.end()));
  }
  TRapport rapport(u"Liste"_s, u"Liste"_s);
  rapport.ChargerColonnesListe(grille);
  return rapport;
}

/// "A=1; B=2" lines: the document's variables, then a node a line that begins with one dash a level.
TRapport LireDonnees(const QString& texte) {
  if (texte.startsWith(u'|')) return LireListe(texte.split(u'\n', Qt::SkipEmptyParts));
  TRapport rapport(u"Cas"_s, u"Cas"_s);
  TArbreRapport arbre;
  TValeurs variables;
  for (const QString& ligne : texte.split(u'\n', Qt::SkipEmptyParts)) {
    qsizetype niveau = 0;
    while (ligne[niveau] == u'-') ++niveau;
    TArbreRapport* noeuds = &arbre;
    for (qsizetype i = 1; i < niveau; ++i) noeuds = &noeuds->back().Enfants;
    EcrireValeurs(QStringView(ligne).mid(niveau),
                  niveau == 0 ? variables : noeuds->emplace_back(QString()).Valeurs);
  }
  for (const auto& [nom, valeur] : variables) rapport.AjouterVariable(nom, valeur);
  rapport.CopierArbre(std::move(arbre));
  return rapport;
}

QString N(double nombre) { return QString::number(qRound(nombre)); }

struct TLister {
  QString operator()(const TElementTexte& e) const {
    const QString police = e.Forme->Police->Nom().section(u'-', 1);
    return N(e.Base) + u' ' + N(e.X) +
           (police == u"Bold" || police == u"Italic" ? u' ' + police : QString()) +
           (e.Souligne ? u" souligné"_s : QString()) + u" | " + e.Forme->Texte;
  }
  QString operator()(const TElementTrait& e) const {
    return N(e.Y1) + u' ' + N(e.X1) + u" trait jusqu'à " + N(e.X2) + u", " + N(e.Y2);
  }
  QString operator()(const TElementCadre& e) const {
    return N(e.Place.y()) + u' ' + N(e.Place.x()) + u" cadre " + N(e.Place.width()) + u" x " +
           N(e.Place.height()) + (qAlpha(e.FondBas) > 0 ? u" dégradé"_s : QString());
  }
  QString operator()(const TElementImage& e) const {
    return N(e.Place.y()) + u' ' + N(e.Place.x()) + u" image " + N(e.Place.width()) + u" x " +
           N(e.Place.height());
  }
  QString operator()(const TElementBarres& e) const { return u"barres "_s + N(double(e.Barres.size())); }
};

/// Pages as text: y of the baseline or top, x, what stands there.
QString Lister(const TDocumentPrepare& document) {
  QString liste;
  for (const TPagePreparee& page : document.Pages) {
    liste += u"page\n"_s;
    for (const TSignet& signet : page.Signets)
      liste += u"  signet "_s + QString::number(signet.Niveau) + u" | " + signet.Texte + u'\n';
    for (const TElement& element : page.Elements) liste += u"  "_s + std::visit(TLister(), element) + u'\n';
  }
  for (const TDefaut& defaut : document.Defauts)
    liste += u"défaut "_s + defaut.Bande + u'/' + defaut.Objet + u" : " + defaut.Message + u'\n';
  return liste;
}

}  // namespace

// Each ability has a small template, data, and the listing of its pages, in three files.
TEST(MiseEnPage, ChaqueCasDonneSesPages) {
  const QDir dossier(QStringLiteral(CAS));
  const QStringList cas = dossier.entryList({u"*.xml"_s});
  ASSERT_GE(cas.size(), 19);
  for (const QString& fichier : cas) {
    const QString nom = dossier.filePath(fichier.chopped(4));
    const TModele modele = LireModele(Lire(nom + u".xml").toUtf8(), fichier);
    const TRapport rapport = LireDonnees(Lire(nom + u".donnees"));
    const TImpression impression{45000.5, rapport.Variables().Trouver(u"ParClasse") != nullptr};
    TMiseEnPage miseEnPage(rapport, modele, impression);
    while (miseEnPage.Continuer()) {
    }
    const QString pages = Lister(miseEnPage.Document());
    EXPECT_EQ(pages.toStdString(), Lire(nom + u".attendu").toStdString()) << fichier.toStdString();
    // A report that is built again, as for another paper, is the same to the last glyph.
    EXPECT_EQ(MettreEnPage(rapport, modele, impression).EnOctets(), miseEnPage.Document().EnOctets())
        << fichier.toStdString();
  }
}
