#include "report/layout/paragraphe.h"

#include <cmath>

#include "report/layout/sens_ecriture.h"

namespace {

constexpr float kTolerance = 0.05F;
/// Natural leading of the papers' type, in em.
constexpr float kInterligne = 1.22F;

/// Breaks the pieces of one text, seen as one string with a style a piece.
class TCoupeur {
 public:
  TCoupeur(const std::vector<TMorceau>& morceaux, const TObjetModele& objet, float largeur, bool couper,
           TParagraphe& paragraphe)
      : morceaux_(morceaux), objet_(objet), largeur_(largeur), couper_(couper), paragraphe_(paragraphe) {
    for (const TMorceau& morceau : morceaux) {
      debuts_.push_back(tout_.size());
      tout_ += morceau.Texte;
    }
    deuxSens_ = EcritDeDroiteAGauche(tout_);
  }

  void Tout() {
    qsizetype debut = 0;
    while (!tout_.isEmpty()) {
      const qsizetype fin = tout_.indexOf(u'\n', debut);
      Alinea(debut, fin < 0 ? tout_.size() : fin);
      if (fin < 0) return;
      debut = fin + 1;
    }
  }

 private:
  bool Tient(float largeur) const { return largeur_ <= 0 || largeur <= largeur_ + kTolerance; }

  /// What a line shows of [debut, fin) from left to right, one piece a style and a direction.
  template <class TFonction>
  void ParMorceau(qsizetype debut, qsizetype fin, TFonction fonction) const {
    if (!deuxSens_) return ParStyle(debut, fin, false, fonction);
    for (const TSuiteDeLettres& suite : SuitesDeGaucheADroite(QStringView(tout_).mid(debut, fin - debut)))
      ParStyle(debut + suite.Debut, debut + suite.Fin, suite.ADroite, fonction);
  }

  template <class TFonction>
  void ParStyle(qsizetype debut, qsizetype fin, bool aRebours, TFonction fonction) const {
    for (std::size_t rang = 0; rang < morceaux_.size(); ++rang) {
      const std::size_t i = aRebours ? morceaux_.size() - 1 - rang : rang;
      const qsizetype de = std::max(debut, debuts_[i]);
      const qsizetype a = std::min(fin, debuts_[i] + morceaux_[i].Texte.size());
      if (de < a) fonction(tout_.mid(de, a - de), morceaux_[i]);
    }
  }

  TStyle Style(const TMorceau& morceau) const {
    TStyle style = objet_.Style;
    style.Gras = morceau.Gras;
    style.Italique = morceau.Italique;
    return style;
  }

  float Mesurer(qsizetype debut, qsizetype fin) const {
    float largeur = 0;
    ParMorceau(debut, fin, [&](const QString& texte, const TMorceau& morceau) {
      largeur += LargeurTexte(texte, Style(morceau));
    });
    return largeur;
  }

  qsizetype SansBlancs(qsizetype debut, qsizetype fin) const {
    while (fin > debut && (tout_[fin - 1] == u' ' || tout_[fin - 1] == u'\r')) --fin;
    return fin;
  }

  void Alinea(qsizetype debut, qsizetype fin) {
    fin = SansBlancs(debut, fin);
    const bool entier = !couper_ || Tient(Mesurer(debut, fin));
    if (entier) return Ligne(debut, fin, true);
    while (debut < fin) {
      const qsizetype suite = FinDeLigne(debut, fin);
      Ligne(debut, SansBlancs(debut, suite), suite >= fin);
      debut = suite;
    }
  }

  /// Where the line that begins at `debut` ends: as many words as fit.
  qsizetype FinDeLigne(qsizetype debut, qsizetype fin) {
    float largeur = 0;
    qsizetype place = debut;
    while (place < fin) {
      qsizetype mot = place;
      while (mot < fin && tout_[mot] != u' ') ++mot;
      if (!Tient(largeur + Mesurer(place, mot))) break;
      while (mot < fin && tout_[mot] == u' ') ++mot;
      largeur += Mesurer(place, mot);
      place = mot;
    }
    return place > debut ? place : CouperMot(debut, fin);
  }

  /// A word wider than the box: after a hyphen if possible, else where it must be.
  qsizetype CouperMot(qsizetype debut, qsizetype fin) {
    qsizetype tiret = debut, place = debut + 1;
    for (qsizetype i = debut + 1; i <= fin && Tient(Mesurer(debut, i)); ++i) {
      if (i < fin && tout_[i].isLowSurrogate()) continue;
      place = i;
      if (tout_[i - 1] == u'-') tiret = i;
    }
    if (tiret == debut) paragraphe_.MotCoupe = true;
    return tiret > debut ? tiret : place;
  }

  void Ligne(qsizetype debut, qsizetype fin, bool derniere) {
    std::vector<TSegment> segments;
    float largeur = 0;
    const bool etendre =
        objet_.Alignement == TAlignementTexte::Bloc && !derniere && largeur_ > 0 && !deuxSens_;
    if (etendre) {
      Etendre(debut, fin, segments);
    } else {
      largeur = Former(debut, fin, 0, segments);
      if (!Tient(largeur)) paragraphe_.Deborde = true;
      const float reste = largeur_ > 0 ? largeur_ - largeur : 0;
      for (TSegment& segment : segments) {
        if (objet_.Alignement == TAlignementTexte::Droite) segment.X += reste;
        if (objet_.Alignement == TAlignementTexte::Centre) segment.X += reste / 2;
      }
    }
    paragraphe_.Lignes.push_back(std::move(segments));
  }

  /// Adds the runs of [debut, fin) from `x`; gives the width.
  float Former(qsizetype debut, qsizetype fin, float x, std::vector<TSegment>& segments) const {
    const float depart = x;
    ParMorceau(debut, fin, [&](const QString& texte, const TMorceau& morceau) {
      segments.push_back({::Former(texte, Style(morceau)), x, morceau.Souligne});
      x += segments.back().Forme->Largeur;
    });
    return x - depart;
  }

  /// Words spread over the width.
  void Etendre(qsizetype debut, qsizetype fin, std::vector<TSegment>& segments) const {
    std::vector<std::pair<qsizetype, qsizetype>> mots;
    float encre = 0;
    for (qsizetype i = debut; i < fin;) {
      qsizetype mot = i;
      while (mot < fin && tout_[mot] != u' ') ++mot;
      if (mot > i) mots.emplace_back(i, mot);
      encre += Mesurer(i, mot);
      i = mot + 1;
    }
    const float blanc = mots.size() > 1 ? (largeur_ - encre) / static_cast<float>(mots.size() - 1) : 0;
    float x = 0;
    for (const auto& [de, a] : mots) x += Former(de, a, x, segments) + blanc;
  }

  const std::vector<TMorceau>& morceaux_;
  const TObjetModele& objet_;
  const float largeur_;
  const bool couper_;
  TParagraphe& paragraphe_;
  QString tout_;
  std::vector<qsizetype> debuts_;
  bool deuxSens_ = false;
};

}  // namespace

TParagraphe MettreEnLignes(const std::vector<TMorceau>& morceaux, const TObjetModele& objet, float largeur,
                           float hauteur) {
  TParagraphe paragraphe;
  paragraphe.Em = objet.Style.Taille * kPixelsParPoint;
  paragraphe.Interligne = objet.Interligne > 0 ? objet.Interligne : std::round(paragraphe.Em * kInterligne);
  const bool uneLigne = hauteur < 2 * paragraphe.Interligne;
  paragraphe.Premiere = uneLigne && hauteur > 0 ? hauteur : paragraphe.Interligne;
  const bool couper = objet.Etirable || !uneLigne || !objet.GroupeAjuste.isEmpty();
  TCoupeur(morceaux, objet, largeur, couper, paragraphe).Tout();
  if (paragraphe.Hauteur() > hauteur + kTolerance) paragraphe.Deborde = true;
  return paragraphe;
}
