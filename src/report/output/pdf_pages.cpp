#include "report/output/pdf_pages.h"

#include <algorithm>
#include <cmath>

#include "report/layout/codes_barres.h"

namespace {

/// A glyph that stands further than this from where the font's widths put it is moved, 1/1000 em.
constexpr float kEcart = 1.0F;

void AjouterCouleur(std::string& sortie, QRgb couleur) {
  for (const int teinte : {qRed(couleur), qGreen(couleur), qBlue(couleur)}) {
    AjouterDecimal(sortie, (teinte * 1000 + 127) / 255, 3);
    sortie += ' ';
  }
}

void AjouterCode(std::string& sortie, std::uint16_t code) {
  for (const auto octet : {static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)}) {
    if (octet == '(' || octet == ')' || octet == '\\') sortie += '\\';
    if (octet == '\r')
      sortie += "\\r";
    else
      sortie += octet;
  }
}

/// Printers paint every dot that a shape touches: bars keep away from the next one, px.
constexpr double kRetrait = 1 / kCentiemesParPixel;

/// By how much a code must move so that it begins on a dot.
double VersPoint(double pixels) { return std::round(pixels / kPoint300) * kPoint300 - pixels; }

/// Hundredths of a dot.
int CentiemesDePoint(double pixels) { return static_cast<int>(std::lround(pixels / kPoint300 * 100)); }

}  // namespace

int TRessourcesPdf::Image(const QImage& image) {
  const auto [place, nouvelle] = images_.try_emplace(image.cacheKey(), static_cast<int>(images_.size()));
  if (!nouvelle) return place->second;
  const QImage points = image.convertToFormat(QImage::Format_ARGB32);
  const bool gris = points.allGray();
  std::string couleurs, transparence;
  bool opaque = true;
  for (int y = 0; y < points.height(); ++y) {
    const auto* ligne = reinterpret_cast<const QRgb*>(points.constScanLine(y));
    for (int x = 0; x < points.width(); ++x) {
      couleurs += static_cast<char>(qRed(ligne[x]));
      if (!gris) {
        couleurs += static_cast<char>(qGreen(ligne[x]));
        couleurs += static_cast<char>(qBlue(ligne[x]));
      }
      transparence += static_cast<char>(qAlpha(ligne[x]));
      opaque = opaque && qAlpha(ligne[x]) == 0xFF;
    }
  }
  const std::string entrees = "/Type/XObject/Subtype/Image/Width " + std::to_string(points.width()) +
                              "/Height " + std::to_string(points.height()) +
                              "/BitsPerComponent 8/ColorSpace/";
  std::string masque;
  if (!opaque) masque = "/SMask " + Renvoi(ecrivain_.Flux(entrees + "DeviceGray", transparence));
  const int objet = ecrivain_.Flux(entrees + (gris ? "DeviceGray" : "DeviceRGB") + masque, couleurs);
  entreesImages_ += "/I" + std::to_string(place->second) + ' ' + Renvoi(objet);
  return place->second;
}

int TRessourcesPdf::Degrade(QRgb haut, QRgb bas) {
  const auto [place, nouveau] = degrades_.try_emplace({haut, bas}, static_cast<int>(degrades_.size()));
  if (!nouveau) return place->second;
  std::string objet =
      "<</ShadingType 2/ColorSpace/DeviceRGB/Coords[0 1 0 0]/Function<</FunctionType 2/Domain[0 1]/N 1/C0[";
  AjouterCouleur(objet, haut);
  objet += "]/C1[";
  AjouterCouleur(objet, bas);
  entreesDegrades_ += "/D" + std::to_string(place->second) + ' ' + Renvoi(ecrivain_.Objet(objet + "]>>>>"));
  return place->second;
}

std::string TRessourcesPdf::Ecrire() {
  const std::string polices = Polices.Ecrire(ecrivain_);
  return "<</Font<<" + polices + ">>/XObject<<" + entreesImages_ + ">>/Shading<<" + entreesDegrades_ + ">>>>";
}

TCentiemes CotePapier(float pixels) {
  constexpr double mmParPixel = 25.4 / 96.0;
  const double millimetres = std::max(1.0, std::round(static_cast<double>(pixels) * mmParPixel));
  return Centiemes(millimetres / mmParPixel);
}

TPagePdf::TPagePdf(const TPagePreparee& page, TRessourcesPdf& ressources)
    : page_(page), ressources_(ressources), hauteur_(CotePapier(page.Hauteur)) {}

std::string TPagePdf::Dessiner() {
  for (const TElement& element : page_.Elements) std::visit([this](const auto& e) { Dessiner(e); }, element);
  SortirDuTexte();
  return std::move(sortie_);
}

void TPagePdf::Operateur(std::string_view nom) {
  sortie_ += nom;
  sortie_ += '\n';
}

void TPagePdf::Couleur(QRgb couleur, bool trait) {
  QRgb& actuelle = trait ? trait_ : fond_;
  if (actuelle == (couleur | 0xFF000000)) return;
  actuelle = couleur | 0xFF000000;
  AjouterCouleur(sortie_, couleur);
  Operateur(trait ? "RG" : "rg");
}

void TPagePdf::Plume(float epaisseur, float tiret, QRgb couleur) {
  Couleur(couleur, true);
  if (epaisseur != epaisseur_) {
    AjouterPlaces(sortie_, {Centiemes(static_cast<double>(epaisseur))});
    Operateur("w");
    epaisseur_ = epaisseur;
  }
  if (tiret == tiret_) return;
  sortie_ += '[';
  if (tiret > 0) AjouterPlaces(sortie_, {Centiemes(static_cast<double>(tiret))});
  Operateur("]0 d");
  tiret_ = tiret;
}

void TPagePdf::Rectangle(const QRectF& place) {
  const TCentiemes gauche = Centiemes(place.left()), bas = Y(place.bottom());
  AjouterPlaces(sortie_, {gauche, bas, Centiemes(place.right()) - gauche, Y(place.top()) - bas});
  Operateur("re");
}

void TPagePdf::EntrerDansTexte() {
  if (dansTexte_) return;
  Operateur("BT");
  dansTexte_ = true;
  xTexte_ = yTexte_ = 0;
}

void TPagePdf::SortirDuTexte() {
  if (dansTexte_) Operateur("ET");
  dansTexte_ = false;
}

void TPagePdf::Dessiner(const TElementTexte& element) {
  const TTexteForme& forme = *element.Forme;
  if (forme.Glyphes.empty()) return;
  EntrerDansTexte();
  Couleur(element.Couleur, false);
  if (forme.Police != police_ || forme.Style.Taille != taille_) {
    police_ = forme.Police;
    taille_ = forme.Style.Taille;
    policePdf_ = &ressources_.Polices.De(*police_);
    sortie_ += "/F";
    AjouterEntier(sortie_, policePdf_->Numero());
    sortie_ += ' ';
    AjouterDecimal(sortie_, static_cast<int>(std::lround(taille_ * 100)), 2);
    Operateur(" Tf");
  }
  const TCentiemes x = Centiemes(static_cast<double>(element.X)), y = Y(static_cast<double>(element.Base));
  AjouterPlaces(sortie_, {x - xTexte_, y - yTexte_});
  Operateur("Td");
  xTexte_ = x;
  yTexte_ = y;
  Glyphes(forme, *policePdf_);
  if (!element.Souligne) return;
  SortirDuTexte();
  const double em = static_cast<double>(taille_ * kPixelsParPoint);
  const double epaisseur = em * static_cast<double>(police_->EpaisseurSouligne());
  Rectangle(
      {static_cast<double>(element.X),
       static_cast<double>(element.Base) + em * static_cast<double>(police_->BaseSouligne()) - epaisseur / 2,
       static_cast<double>(forme.Largeur), epaisseur});
  Operateur("f");
}

void TPagePdf::Glyphes(const TTexteForme& forme, TPolicePdf& police) {
  // A glyph that stands for nothing by itself cannot be copied: the run says what it reads.
  const bool dire = std::ranges::any_of(forme.Glyphes, [](const TGlyphe& g) { return g.Nombre == 0; });
  if (dire) Operateur("/Span<</ActualText" + ChainePdf(forme.Texte) + ">>BDC");
  const float parEm = 1000.0F / (taille_ * kPixelsParPoint);
  const QStringView texte = forme.Texte;
  float plume = 0.0F;   // where the widths have brought the pen, 1/1000 em
  float hausse = 0.0F;  // px
  sortie_ += "[(";
  for (const TGlyphe& glyphe : forme.Glyphes) {
    if (glyphe.Y != hausse) {
      hausse = glyphe.Y;
      sortie_ += ")]TJ ";
      AjouterPlaces(sortie_, {Centiemes(static_cast<double>(hausse))});
      sortie_ += "Ts[(";
    }
    const float ecart = plume - glyphe.X * parEm;
    if (std::abs(ecart) >= kEcart) {
      const int pas = static_cast<int>(std::clamp(std::round(ecart), -1e6F, 1e6F));
      sortie_ += ')';
      AjouterEntier(sortie_, pas);
      sortie_ += '(';
      plume -= static_cast<float>(pas);
    }
    const std::uint16_t code = police.Code(glyphe.Id, texte.mid(glyphe.Debut, glyphe.Nombre));
    AjouterCode(sortie_, code);
    plume += static_cast<float>(police.Largeur(code)) / 10.0F;
  }
  Operateur(hausse != 0.0F ? ")]TJ 0 Ts" : ")]TJ");
  if (dire) Operateur("EMC");
}

void TPagePdf::Dessiner(const TElementTrait& element) {
  SortirDuTexte();
  Plume(element.Epaisseur, element.Tiret, element.Couleur);
  AjouterPlaces(sortie_, {Centiemes(static_cast<double>(element.X1)), Y(static_cast<double>(element.Y1))});
  sortie_ += "m ";
  AjouterPlaces(sortie_, {Centiemes(static_cast<double>(element.X2)), Y(static_cast<double>(element.Y2))});
  Operateur("l S");
}

void TPagePdf::Dessiner(const TElementCadre& element) {
  SortirDuTexte();
  if (qAlpha(element.Fond) > 0 && qAlpha(element.FondBas) > 0) {
    Operateur("q");
    Rectangle(element.Place);
    sortie_ += "W n ";
    const TCentiemes gauche = Centiemes(element.Place.left()), bas = Y(element.Place.bottom());
    AjouterPlaces(sortie_, {Centiemes(element.Place.right()) - gauche, 0, 0, Y(element.Place.top()) - bas,
                            gauche, bas});
    sortie_ += "cm /D";
    AjouterEntier(sortie_, ressources_.Degrade(element.Fond, element.FondBas));
    Operateur(" sh Q");
  } else if (qAlpha(element.Fond) > 0) {
    Couleur(element.Fond, false);
    Rectangle(element.Place);
    Operateur("f");
  }
  if (element.Epaisseur <= 0.0F) return;
  Plume(element.Epaisseur, 0.0F, element.Trait);
  Rectangle(element.Place);
  Operateur("S");
}

void TPagePdf::Dessiner(const TElementImage& element) {
  SortirDuTexte();
  const TCentiemes gauche = Centiemes(element.Place.left()), bas = Y(element.Place.bottom());
  sortie_ += "q ";
  AjouterPlaces(sortie_,
                {Centiemes(element.Place.right()) - gauche, 0, 0, Y(element.Place.top()) - bas, gauche, bas});
  sortie_ += "cm /I";
  AjouterEntier(sortie_, ressources_.Image(*element.Image));
  Operateur(" Do Q");
}

void TPagePdf::Dessiner(const TElementBarres& element) {
  if (element.Barres.empty()) return;
  SortirDuTexte();
  Couleur(0xFF000000, false);
  const QPointF coin = element.Barres.front().topLeft();
  // In dots from the corner: a payment code has five hundred bars, and whole numbers are short.
  sortie_ += "q .24 0 0 .24 ";
  AjouterPlaces(sortie_,
                {Centiemes(coin.x() + VersPoint(coin.x()) + kRetrait), Y(coin.y() + VersPoint(coin.y()))});
  Operateur("cm");
  for (const QRectF& barre : element.Barres) {
    const QRectF place = barre.translated(-coin);
    AjouterPlaces(sortie_,
                  {CentiemesDePoint(place.left()), -CentiemesDePoint(place.bottom()),
                   CentiemesDePoint(place.width() - 2 * kRetrait), CentiemesDePoint(place.height())});
    Operateur("re");
  }
  Operateur("f Q");
}
