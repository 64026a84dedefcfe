#pragma once
#include <QByteArray>
#include <QString>
#include <memory>
#include <vector>

struct hb_face_t;
struct hb_font_t;

/// Families that papers may use.
enum class TFamille { Carlito, LiberationMono };

struct TStyle {
  TFamille Famille = TFamille::Carlito;
  float Taille = 11.0F;  ///< points
  bool Gras = false;
  bool Italique = false;

  bool operator==(const TStyle&) const = default;
};

/// One font file, open for the life of the program.
class TPolice {
 public:
  /// Raises Exception when the file is no font.
  TPolice(QString nom, QByteArray fichier);
  ~TPolice();
  TPolice(const TPolice&) = delete;
  TPolice& operator=(const TPolice&) = delete;

  const QString& Nom() const { return nom_; }  ///< PostScript name
  const QByteArray& Fichier() const { return fichier_; }
  hb_face_t* Face() const { return face_; }
  hb_font_t* Fonte() const { return fonte_; }
  float UnitesParEm() const { return unites_; }
  float Ascendante() const { return ascendante_; }    ///< in em, above the baseline
  float Descendante() const { return descendante_; }  ///< in em, below the baseline, positive

 private:
  QString nom_;
  QByteArray fichier_;
  hb_face_t* face_ = nullptr;
  hb_font_t* fonte_ = nullptr;
  float unites_ = 1000.0F;
  float ascendante_ = 0.8F;
  float descendante_ = 0.2F;
};

/// The fonts of the papers, found once. A family that is not installed falls back to Liberation Sans
/// (to any font at the worst) and `Manques` says so, never in silence.
class TPolices {
 public:
  static const TPolices& Communes();
  const TPolice& Trouver(const TStyle& style) const;
  /// French sentences about families that are not installed; empty when all is well.
  const QStringList& Manques() const { return manques_; }

 private:
  TPolices();
  std::vector<std::unique_ptr<TPolice>> polices_;
  QStringList manques_;
};

struct TGlyphe {
  std::uint32_t Id = 0;
  float X = 0.0F;   ///< from the start of the run, px
  int Debut = 0;    ///< first UTF-16 unit of the text that it stands for
  int Nombre = 0;   ///< how many units; 0 when an earlier glyph of the run stands for them
};

/// A text in one style, shaped once and shared by all outputs.
struct TTexteForme {
  const TPolice* Police = nullptr;
  float Taille = 11.0F;  ///< points
  QString Texte;
  std::vector<TGlyphe> Glyphes;
  float Largeur = 0.0F;  ///< px
};

/// Pixels are 1/96 inch, type is in points.
constexpr float kPixelsParPoint = 96.0F / 72.0F;

std::shared_ptr<const TTexteForme> Former(const QString& texte, const TStyle& style);
/// Width without making a run, px.
float LargeurTexte(const QString& texte, const TStyle& style);
