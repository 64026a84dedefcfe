#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

struct hb_face_t;
struct hb_font_t;

/// Families that papers may use.
enum class TFamille : std::uint8_t { Carlito, LiberationMono };

struct TStyle {
  TFamille Famille = TFamille::Carlito;
  float Taille = 11.0F;  ///< points
  bool Gras = false;
  bool Italique = false;

  bool operator==(const TStyle&) const = default;
};

/// One TrueType file, open for the life of the program.
class TPolice {
 public:
  /// Raises Exception when the bytes are no font; `chemin` is for its message.
  TPolice(QByteArray fichier, const QString& chemin);
  ~TPolice();
  TPolice(const TPolice&) = delete;
  TPolice& operator=(const TPolice&) = delete;

  const QString& Nom() const { return nom_; }  ///< PostScript name
  hb_face_t* Face() const { return face_; }
  hb_font_t* Fonte() const { return fonte_; }  ///< scaled to `UnitesParEm`
  float UnitesParEm() const { return unites_; }
  float Ascendante() const { return ascendante_; }    ///< in em, above the baseline
  float Descendante() const { return descendante_; }  ///< in em, below the baseline, positive
  /// Middle of the line under a text, in em below the baseline, and its thickness in em.
  float BaseSouligne() const { return baseSouligne_; }
  float EpaisseurSouligne() const { return epaisseurSouligne_; }

 private:
  QString nom_;
  QByteArray fichier_;
  hb_face_t* face_ = nullptr;
  hb_font_t* fonte_ = nullptr;
  float unites_ = 1000.0F;
  float ascendante_ = 0.8F;
  float descendante_ = 0.2F;
  float baseSouligne_ = 0.1F;
  float epaisseurSouligne_ = 0.05F;
};

/// What a font is looked for by.
struct TDemandePolice {
  QString Famille;  ///< "" is any
  bool Gras = false;
  bool Italique = false;
};

/// The fonts of the papers, found once. A family that is not installed falls back to Liberation Sans
/// (to any font at the worst) and `Manques` says so, never in silence.
class TPolices {
 public:
  /// The path of an installed TrueType file of just that family and style; "" when there is none.
  using TChercheur = std::function<QString(const TDemandePolice&)>;

  static const TPolices& Communes();
  /// Raises Exception when not a single font is installed.
  explicit TPolices(const TChercheur& chercher);

  const TPolice& Trouver(const TStyle& style) const;
  /// For a text that has a character which the style's own font lacks; may be null.
  const TPolice* Secours(const TStyle& style) const;
  /// French sentences about families that are not installed; empty when all is well.
  const QStringList& Manques() const { return manques_; }

 private:
  const TPolice* Charger(const QString& chemin);
  const TPolice* Choisir(const TDemandePolice& demande, const TChercheur& chercher);

  std::map<QString, std::unique_ptr<TPolice>> polices_;  ///< by path
  std::array<const TPolice*, 8> parStyle_{};             ///< family, then bold, then italic
  std::array<const TPolice*, 2> secours_{};              ///< upright, bold
  QStringList manques_;
};

struct TGlyphe {
  std::uint32_t Id = 0;
  float X = 0.0F;  ///< from the start of the run, px
  float Y = 0.0F;  ///< above the baseline, px: marks that no composed letter holds
  int Debut = 0;   ///< first UTF-16 unit of the text that it stands for
  int Nombre = 0;  ///< how many units; 0 when an earlier glyph of the run stands for them
};

/// A text in one style, shaped once and shared by all outputs.
struct TTexteForme {
  const TPolice* Police = nullptr;
  TStyle Style;
  QString Texte;  ///< composed: an accent and its letter are one character where there is one
  std::vector<TGlyphe> Glyphes;
  float Largeur = 0.0F;    ///< px
  bool Incomplet = false;  ///< holds a character that no font has
};

/// Pixels are 1/96 inch, type is in points.
constexpr float kPixelsParPoint = 96.0F / 72.0F;

/// Runs are kept and shared: the same text in the same style is shaped once a thread.
std::shared_ptr<const TTexteForme> Former(const QString& texte, const TStyle& style);
/// Width of the run, px.
float LargeurTexte(const QString& texte, const TStyle& style);
