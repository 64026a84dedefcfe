#include "report/layout/codes_barres.h"

#include <zint.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using TSymbole = std::unique_ptr<zint_symbol, decltype([](zint_symbol* s) { ZBarcode_Delete(s); })>;

constexpr int kPointsMin = 3;  ///< of a module: less is not read back from office printers
constexpr int kLarge = 3;      ///< modules of a wide bar
constexpr qreal kTolerance = 0.05;

/// What a type can hold, how it is named, and what is put around the text before it is encoded.
struct TRegle {
  int Symbologie;
  QLatin1String Nom;
  QLatin1String Caracteres;
  QLatin1String Bord;
};

TRegle Regle(TTypeCode type) {
  if (type == TTypeCode::Codabar) return {BARCODE_CODABAR, "Codabar"_L1, "0123456789-$:/.+"_L1, "A"_L1};
  return {BARCODE_CODE39, "Code 39"_L1, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%"_L1, QLatin1String()};
}

/// Null when the text cannot be encoded.
TSymbole Encoder(int symbologie, const QByteArray& texte, int niveau = -1) {
  TSymbole symbole(ZBarcode_Create());
  if (!symbole) throw std::bad_alloc();
  symbole->symbology = symbologie;
  symbole->input_mode = DATA_MODE | FAST_MODE;  // fewer masks are tried: half the time of a letter's code
  symbole->option_1 = niveau;
  const auto* octets = reinterpret_cast<const unsigned char*>(texte.constData());
  if (ZBarcode_Encode(symbole.get(), octets, static_cast<int>(texte.size())) >= ZINT_ERROR) return nullptr;
  return symbole;
}

bool Noir(const zint_symbol& symbole, int ligne, int colonne) {
  return ((symbole.encoded_data[ligne][colonne >> 3] >> (colonne & 7)) & 1) != 0;
}

/// A run of modules of one colour.
struct TSuite {
  bool Noir;
  int Debut;
  int Modules;
};

std::vector<TSuite> Suites(const zint_symbol& symbole, int ligne) {
  std::vector<TSuite> suites;
  for (int colonne = 0; colonne < symbole.width; ++colonne) {
    const bool noir = Noir(symbole, ligne, colonne);
    if (suites.empty() || suites.back().Noir != noir) suites.push_back({noir, colonne, 0});
    ++suites.back().Modules;
  }
  return suites;
}

/// Narrow or wide: the library draws wide bars two modules wide, which is too little for small modules.
int Elargir(int modules) { return modules > 1 ? kLarge : 1; }

TCodeDessine Refuser(const QString& defaut) { return {{}, defaut}; }

/// Left edge of something `largeur` wide.
qreal Gauche(const QRectF& place, qreal largeur, TAlignementTexte alignement) {
  if (alignement == TAlignementTexte::Droite) return place.right() - largeur;
  if (alignement == TAlignementTexte::Centre) return place.left() + (place.width() - largeur) / 2;
  return place.left();
}

}  // namespace

TCodeDessine DessinerCode(TTypeCode type, const QString& texte, const QRectF& place, float module,
                          TAlignementTexte alignement) {
  const TRegle regle = Regle(type);
  const QString donnees = QString(texte).remove(u'-');
  if (donnees.isEmpty()) return Refuser(u"Il n'y a rien à mettre dans le code à barres."_s);
  for (const QChar c : donnees)
    if (!regle.Caracteres.contains(c))
      return Refuser(u"Le caractère « %1 » de « %2 » ne peut pas figurer dans un code à barres %3."_s.arg(
          QString(c), texte, regle.Nom));
  const TSymbole symbole = Encoder(regle.Symbologie, (regle.Bord % donnees % regle.Bord).toLatin1());
  if (!symbole) return Refuser(u"« %1 » est trop long pour un code à barres %2."_s.arg(texte, regle.Nom));

  std::vector<TSuite> suites = Suites(*symbole, 0);
  if (!suites.back().Noir) suites.pop_back();  // the gap before a next character
  int modules = 0;
  for (const TSuite& suite : suites) modules += Elargir(suite.Modules);
  const auto largeur = [&](int points) { return modules * points * kPoint300; };
  const auto tient = [&](int points) { return largeur(points) <= place.width() + kTolerance; };
  int points = std::max(kPointsMin, static_cast<int>(std::lround(static_cast<double>(module) / kPoint300)));
  while (points > kPointsMin && !tient(points)) --points;
  if (!tient(points)) return Refuser(u"Le code à barres de « %1 » ne tient pas dans sa place."_s.arg(texte));

  TCodeDessine code;
  const qreal unite = points * kPoint300;
  qreal x = Gauche(place, largeur(points), alignement);
  for (const TSuite& suite : suites) {
    const qreal large = Elargir(suite.Modules) * unite;
    if (suite.Noir) code.Barres.Barres.emplace_back(x, place.top(), large, place.height());
    x += large;
  }
  return code;
}

TCodeDessine DessinerQr(const QString& texte, const QRectF& place) {
  if (texte.isEmpty()) return Refuser(u"Il n'y a rien à mettre dans le code QR."_s);
  constexpr int niveauM = 2;
  const TSymbole symbole = Encoder(BARCODE_QRCODE, texte.toUtf8(), niveauM);
  if (!symbole) return Refuser(u"Le texte est trop long pour un code QR."_s);
  const qreal cote = std::min(place.width(), place.height());
  const int points = static_cast<int>((cote + kTolerance) / (symbole->width * kPoint300));
  if (points < kPointsMin) return Refuser(u"Le code QR ne tient pas dans sa place."_s);
  const qreal unite = points * kPoint300;
  const QPointF coin = place.center() - QPointF(symbole->width, symbole->rows) * unite / 2;
  TCodeDessine code;
  for (int ligne = 0; ligne < symbole->rows; ++ligne)
    for (const TSuite& suite : Suites(*symbole, ligne))
      if (suite.Noir)
        code.Barres.Barres.emplace_back(coin.x() + suite.Debut * unite, coin.y() + ligne * unite,
                                        suite.Modules * unite, unite);
  return code;
}
