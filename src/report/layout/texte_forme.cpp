#include <hb-ot.h>

#include <algorithm>
#include <unordered_map>

#include "report/layout/polices.h"

namespace {

/// What a thread keeps: a dozen megabytes of runs, and as much of words.
constexpr std::size_t kFormesGardees = 20'000;
constexpr std::size_t kMotsGardes = 20'000;  ///< of a font

struct TCle {
  QString Texte;
  TStyle Style;
  bool operator==(const TCle&) const = default;
};

struct THachage {
  std::size_t operator()(const TCle& cle) const {
    const auto style = (static_cast<std::size_t>(cle.Style.Famille) << 2) | (cle.Style.Gras ? 2U : 0U) |
                       (cle.Style.Italique ? 1U : 0U);
    return qHash(cle.Texte, style * 31 + static_cast<std::size_t>(cle.Style.Taille * 4));
  }
};

struct THachageMot {
  using is_transparent = void;
  std::size_t operator()(QStringView mot) const { return qHash(mot); }
};

/// One accent and its letter are one character, and a line holds no control character.
QString Composer(const QString& texte) {
  QString compose = texte.normalized(QString::NormalizationForm_C);
  for (QChar& c : compose)
    if (c.category() == QChar::Other_Control) c = u' ';
  return compose;
}

using TTampon = std::unique_ptr<hb_buffer_t, decltype([](hb_buffer_t* t) { hb_buffer_destroy(t); })>;

/// A word in one font, in units of that font. Its glyphs count from its own start.
struct TMot {
  struct TPlace {
    std::uint32_t Id;
    int X, Y;
    int Debut, Nombre;
  };
  std::vector<TPlace> Glyphes;
  int Avance = 0;
  bool Complet = true;  ///< the font has every character
};

/// Which units of the text each glyph stands for: up to the next cluster, and the first glyph of a
/// cluster stands for all of it.
void NoterUnites(const hb_glyph_info_t* infos, bool aRebours, int taille, TMot& mot) {
  const auto n = static_cast<std::ptrdiff_t>(mot.Glyphes.size());
  int fin = taille;
  const std::ptrdiff_t pas = aRebours ? 1 : -1;
  for (std::ptrdiff_t i = aRebours ? 0 : n - 1; i >= 0 && i < n; i += pas) {
    TMot::TPlace& glyphe = mot.Glyphes[static_cast<std::size_t>(i)];
    glyphe.Debut = static_cast<int>(infos[i].cluster);
    if (i > 0 && infos[i - 1].cluster == infos[i].cluster) continue;
    glyphe.Nombre = fin - glyphe.Debut;
    fin = glyphe.Debut;
  }
}

TMot FormerMot(const TPolice& police, QStringView texte) {
  thread_local const TTampon tampon(hb_buffer_create());
  hb_buffer_clear_contents(tampon.get());
  hb_buffer_set_cluster_level(tampon.get(), HB_BUFFER_CLUSTER_LEVEL_MONOTONE_CHARACTERS);
  hb_buffer_add_utf16(tampon.get(), reinterpret_cast<const std::uint16_t*>(texte.utf16()),
                      static_cast<int>(texte.size()), 0, -1);
  hb_buffer_set_language(tampon.get(), hb_language_from_string("fr", -1));
  hb_buffer_guess_segment_properties(tampon.get());
  hb_shape(police.Fonte(), tampon.get(), nullptr, 0);

  unsigned nombre = 0;
  const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(tampon.get(), &nombre);
  const hb_glyph_position_t* places = hb_buffer_get_glyph_positions(tampon.get(), &nombre);
  TMot mot;
  for (unsigned i = 0; i < nombre; ++i) {
    mot.Glyphes.push_back({infos[i].codepoint, mot.Avance + places[i].x_offset, places[i].y_offset, 0, 0});
    mot.Avance += places[i].x_advance;
    mot.Complet = mot.Complet && infos[i].codepoint != 0;
  }
  NoterUnites(infos, HB_DIRECTION_IS_BACKWARD(hb_buffer_get_direction(tampon.get())),
              static_cast<int>(texte.size()), mot);
  return mot;
}

/// The same, remembered: papers say few words, and shaping one takes a hundred times a look-up.
const TMot& Mot(const TPolice& police, QStringView texte) {
  using TMots = std::unordered_map<QString, TMot, THachageMot, std::equal_to<>>;
  thread_local std::unordered_map<const TPolice*, TMots> parPolice;
  TMots& mots = parPolice[&police];
  if (const auto trouve = mots.find(texte); trouve != mots.end()) return trouve->second;
  if (mots.size() >= kMotsGardes) mots.clear();
  return mots.emplace(texte.toString(), FormerMot(police, texte)).first->second;
}

/// Calls for each word and for the blanks between them; a text that runs from right to left is one word.
template <class TFonction>
void ParMot(QStringView texte, TFonction fonction) {
  if (texte.isRightToLeft()) return fonction(0, texte);
  for (qsizetype debut = 0; debut < texte.size();) {
    qsizetype fin = debut + 1;
    const bool blanc = texte[debut] == u' ';
    while (fin < texte.size() && (texte[fin] == u' ') == blanc) ++fin;
    fonction(static_cast<int>(debut), texte.mid(debut, fin - debut));
    debut = fin;
  }
}

/// False when the font lacks a character.
bool FormerAvec(const TPolice& police, TTexteForme& forme) {
  const float echelle = forme.Style.Taille * kPixelsParPoint / police.UnitesParEm();
  forme.Police = &police;
  forme.Glyphes.clear();
  int x = 0;
  bool complet = true;
  ParMot(forme.Texte, [&](int debut, QStringView texte) {
    const TMot& mot = Mot(police, texte);
    for (const TMot::TPlace& glyphe : mot.Glyphes)
      forme.Glyphes.push_back({glyphe.Id, static_cast<float>(x + glyphe.X) * echelle,
                               static_cast<float>(glyphe.Y) * echelle, debut + glyphe.Debut, glyphe.Nombre});
    x += mot.Avance;
    complet = complet && mot.Complet;
  });
  forme.Largeur = static_cast<float>(x) * echelle;
  return complet;
}

std::shared_ptr<const TTexteForme> FormerNouveau(const QString& texte, const TStyle& style) {
  auto forme = std::make_shared<TTexteForme>();
  forme->Style = style;
  forme->Texte = Composer(texte);
  forme->Glyphes.reserve(static_cast<std::size_t>(forme->Texte.size()));
  const TPolices& polices = TPolices::Communes();
  const TPolice& police = polices.Trouver(style);
  if (FormerAvec(police, *forme)) return forme;
  const TPolice* secours = polices.Secours(style);
  if (secours != nullptr && FormerAvec(*secours, *forme)) return forme;
  FormerAvec(police, *forme);
  forme->Incomplet = true;
  return forme;
}

}  // namespace

std::shared_ptr<const TTexteForme> Former(const QString& texte, const TStyle& style) {
  thread_local std::unordered_map<TCle, std::shared_ptr<const TTexteForme>, THachage> formes;
  const TCle cle{texte, style};
  if (const auto trouve = formes.find(cle); trouve != formes.end()) return trouve->second;
  if (formes.size() >= kFormesGardees) formes.clear();
  return formes.emplace(cle, FormerNouveau(texte, style)).first->second;
}

float LargeurTexte(const QString& texte, const TStyle& style) { return Former(texte, style)->Largeur; }
