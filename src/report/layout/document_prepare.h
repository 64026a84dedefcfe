#pragma once
#include <QImage>
#include <QRectF>
#include <QRgb>
#include <memory>
#include <variant>
#include <vector>

#include "report/layout/polices.h"

// A finished report: pages of plain drawing items that no device made. Lengths are px (1/96 inch) from
// the upper left corner of the paper.

struct TElementTexte {
  std::shared_ptr<const TTexteForme> Forme;  ///< there always is one
  float X = 0.0F;
  float Base = 0.0F;  ///< y of the baseline
  QRgb Couleur = 0xFF000000;
  bool Souligne = false;
};

struct TElementTrait {
  float X1 = 0.0F, Y1 = 0.0F, X2 = 0.0F, Y2 = 0.0F;
  float Epaisseur = 1.0F;
  QRgb Couleur = 0xFF000000;
  float Tiret = 0.0F;  ///< length of a dash and of a gap; 0 is a full line
};

struct TElementCadre {
  QRectF Place;
  float Epaisseur = 0.0F;  ///< 0: no border
  QRgb Trait = 0xFF000000;
  QRgb Fond = 0;     ///< alpha 0: not filled
  QRgb FondBas = 0;  ///< alpha above 0: a vertical gradient from Fond to FondBas
};

struct TElementImage {
  QRectF Place;
  std::shared_ptr<const QImage> Image;  ///< there always is one
};

/// The dark bars of a code, each a filled box without smoothing.
struct TElementBarres {
  std::vector<QRectF> Barres;
};

using TElement = std::variant<TElementTexte, TElementTrait, TElementCadre, TElementImage, TElementBarres>;

/// An entry of the document's table of contents, which starts at this page.
struct TSignet {
  QString Texte;
  int Niveau = 0;  ///< 0 a class, 1 a pupil under it
};

struct TPagePreparee {
  float Largeur = 794.0F;
  float Hauteur = 1123.0F;
  std::vector<TElement> Elements;
  std::vector<TSignet> Signets;
};

/// What went wrong while a page was laid out; the page is there all the same.
struct TDefaut {
  QString Bande;
  QString Objet;
  QString Message;  ///< French
};

/// Where a text stands, found by `Chercher`.
struct TTrouvaille {
  int Page = 0;
  QRectF Place;
};

/// The finished report: what a preview shows, a printer prints, a PDF holds, and a file keeps.
class TDocumentPrepare {
 public:
  QString Titre;
  std::vector<TPagePreparee> Pages;
  std::vector<TDefaut> Defauts;

  /// Places of a text in page order, without regard to case or accents, on the pages from `premiere` up
  /// to `fin`, which is left out; -1 for the end.
  std::vector<TTrouvaille> Chercher(const QString& texte, int premiere = 0, int fin = -1) const;
  /// The words of a page in reading order: top to bottom, left to right, one line a row.
  QString TexteDePage(int page) const;

  /// Beside its place, then renamed. Raises Exception.
  void Enregistrer(const QString& chemin) const;
  /// Raises Exception, in French, for a file that is no saved report, whatever its bytes.
  static TDocumentPrepare Ouvrir(const QString& chemin);
  static TDocumentPrepare DepuisOctets(const QByteArray& octets);
  QByteArray EnOctets() const;
};
