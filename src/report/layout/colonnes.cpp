#include "report/layout/colonnes.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr float kPremiereMinimum = 200;
/// Amounts at the right edge of a list keep their comma on the axis of all papers.
constexpr float kBlancDernierMontant = 19;
/// A number and the text beside it are no one word.
constexpr float kBlancNombre = 16;

bool EstNombre(const QString& cellule) {
  static const QRegularExpression nombre(uR"(^-?\d[\d .\x{A0}\x{202F}]*(,\d+)?\s*€?$)"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
  return nombre.match(cellule).hasMatch();
}

/// Blank cells say nothing; a column of blanks is no column of numbers.
bool EstDeNombres(const TRapport& rapport, int colonne) {
  const QString nom = u"COL%1"_s.arg(colonne);
  bool nombres = false;
  for (const TNoeudRapport& ligne : rapport.Arbre()) {
    const QString cellule = ligne.Valeurs.Valeur(nom).trimmed();
    if (!cellule.isEmpty() && !EstNombre(cellule)) return false;
    nombres = nombres || !cellule.isEmpty();
  }
  return nombres;
}

/// Width of the longest word.
float PlusLongMot(const QString& texte, const TStyle& style) {
  float largeur = 0;
  for (const QStringView mot : QStringView(texte).split(u' ', Qt::SkipEmptyParts))
    largeur = std::max(largeur, LargeurTexte(mot.toString(), style));
  return largeur;
}

/// What a column needs so that no word of it is cut.
float LargeurMinimum(const TRapport& rapport, int colonne, const QString& titre, const TPlaceColonne& place,
                     const TStylesColonnes& styles) {
  float largeur = PlusLongMot(titre, styles.Titre);
  if (place.Largeur <= 0) return 0;
  const QString nom = u"COL%1"_s.arg(colonne);
  for (const TNoeudRapport& ligne : rapport.Arbre()) {
    const QString cellule = ligne.Valeurs.Valeur(nom);
    largeur = std::max(largeur, place.Droite ? LargeurTexte(cellule.trimmed(), styles.Cellule)
                                             : PlusLongMot(cellule, styles.Cellule));
  }
  return std::ceil(largeur) + place.Blanc;
}

/// Shares `largeur` in proportion to the widths in hand, none getting less than its minimum.
void Partager(std::vector<TPlaceColonne>& places, const std::vector<float>& minimums, float largeur) {
  std::vector<bool> fixees(places.size(), false);
  for (bool encore = true; encore;) {
    encore = false;
    float reste = largeur, total = 0;
    for (std::size_t i = 0; i < places.size(); ++i)
      fixees[i] ? reste -= minimums[i] : total += places[i].Largeur;
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (fixees[i] || places[i].Largeur * reste >= minimums[i] * total) continue;
      fixees[i] = encore = true;
    }
    if (encore) continue;
    for (std::size_t i = 0; i < places.size(); ++i)
      places[i].Largeur = fixees[i] ? minimums[i] : places[i].Largeur * reste / total;
  }
}

}  // namespace

std::vector<TPlaceColonne> PlacesColonnes(const TRapport& rapport, float largeur,
                                          const TStylesColonnes& styles) {
  std::vector<TPlaceColonne> places;
  std::vector<float> minimums;
  const auto valeur = [&](QStringView nom, int colonne) {
    return rapport.Valeur(nom, {0, colonne}).value_or(QString());
  };
  for (int i = 0; i < rapport.NombreColonnes(); ++i) {
    const QString ecran = i == 0 ? valeur(u"COLREFWIDTH", 0) : valeur(u"COLWIDTH", i - 1);
    const QString titre = i == 0 ? valeur(u"COLREFTITLE", 0) : valeur(u"COLTITLE", i - 1);
    TPlaceColonne& place = places.emplace_back(TPlaceColonne{0, ecran.toFloat(), EstDeNombres(rapport, i)});
    const bool derniere = i == rapport.NombreColonnes() - 1;
    if (place.Droite && i > 0) place.Blanc = derniere ? kBlancDernierMontant : kBlancNombre;
    minimums.push_back(LargeurMinimum(rapport, i, titre, place, styles));
  }
  const bool visible = std::ranges::any_of(places, [](const TPlaceColonne& p) { return p.Largeur > 0; });
  if (!visible) return places;
  const float somme = std::accumulate(minimums.begin(), minimums.end(), 0.0F);
  // Too much for a page: all columns suffer alike.
  if (somme > largeur)
    for (float& minimum : minimums) minimum *= largeur / somme;
  else
    minimums[0] = std::max(minimums[0], std::min(kPremiereMinimum, largeur - somme + minimums[0]));
  Partager(places, minimums, largeur);
  float x = 0;
  for (TPlaceColonne& place : places) {
    place.X = x;
    x += place.Largeur;
  }
  return places;
}
