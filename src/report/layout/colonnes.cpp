#include "report/layout/colonnes.h"

#include <QRegularExpression>

namespace {

constexpr float kPremiereMinimum = 200;

bool EstNombre(const QString& cellule) {
  static const QRegularExpression nombre(QStringLiteral(R"(^-?\d[\d .\x{A0}\x{202F}]*(,\d+)?\s*€?$)"),
                                         QRegularExpression::UseUnicodePropertiesOption);
  return nombre.match(cellule).hasMatch();
}

/// Blank cells say nothing; a column of blanks is no column of numbers.
bool EstDeNombres(const TRapport& rapport, int colonne) {
  const QString nom = QStringLiteral("COL%1").arg(colonne);
  bool nombres = false;
  for (const TNoeudRapport& ligne : rapport.Arbre()) {
    const QString cellule = ligne.Valeurs.Valeur(nom).trimmed();
    if (!cellule.isEmpty() && !EstNombre(cellule)) return false;
    nombres = nombres || !cellule.isEmpty();
  }
  return nombres;
}

}  // namespace

std::vector<TPlaceColonne> PlacesColonnes(const TRapport& rapport, float largeur) {
  std::vector<TPlaceColonne> places;
  float total = 0;
  for (int i = 0; i < rapport.NombreColonnes(); ++i) {
    const QString texte = i == 0 ? rapport.Valeur(u"COLREFWIDTH", {}).value_or(QString())
                                 : rapport.Valeur(u"COLWIDTH", {0, i - 1}).value_or(QString());
    places.push_back({0, texte.toFloat(), EstDeNombres(rapport, i)});
    total += places.back().Largeur;
  }
  if (places.empty() || total <= 0) return places;
  const float premiere = std::max(kPremiereMinimum, places[0].Largeur * largeur / total);
  const float autres = total - places[0].Largeur;
  const float part = autres > 0 ? (largeur - premiere) / autres : 0;
  float x = 0;
  for (std::size_t i = 0; i < places.size(); ++i) {
    places[i].Largeur = i > 0 ? places[i].Largeur * part : autres > 0 ? premiere : largeur;
    places[i].X = x;
    x += places[i].Largeur;
  }
  return places;
}
