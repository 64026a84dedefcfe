#include <hb-ot.h>

#include <algorithm>
#include <unordered_map>

#include "report/layout/polices.h"

namespace {

/// Runs that a thread keeps, a dozen megabytes. Kept words would not pay: short texts are shaped as fast
/// as they are put together.
constexpr std::size_t kFormesGardees = 20'000;

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

/// One accent and its letter are one character, and a line holds no control character.
QString Composer(const QString& texte) {
  QString compose = texte.normalized(QString::NormalizationForm_C);
  // Looked for first: most texts hold none, and stay shared with their owner.
  const auto commande = [](QChar c) { return c.category() == QChar::Other_Control; };
  if (std::any_of(compose.cbegin(), compose.cend(), commande))
    std::replace_if(compose.begin(), compose.end(), commande, u' ');
  return compose;
}

using TTampon = std::unique_ptr<hb_buffer_t, decltype([](hb_buffer_t* t) { hb_buffer_destroy(t); })>;

/// Which units of the text each glyph stands for: up to the next cluster, and the first glyph of a
/// cluster stands for all of it.
void NoterUnites(const hb_glyph_info_t* infos, bool aRebours, TTexteForme& forme) {
  const auto n = static_cast<std::ptrdiff_t>(forme.Glyphes.size());
  auto fin = static_cast<int>(forme.Texte.size());
  const std::ptrdiff_t pas = aRebours ? 1 : -1;
  for (std::ptrdiff_t i = aRebours ? 0 : n - 1; i >= 0 && i < n; i += pas) {
    TGlyphe& glyphe = forme.Glyphes[static_cast<std::size_t>(i)];
    glyphe.Debut = static_cast<int>(infos[i].cluster);
    if (i > 0 && infos[i - 1].cluster == infos[i].cluster) continue;
    glyphe.Nombre = fin - glyphe.Debut;
    fin = glyphe.Debut;
  }
}

/// False when the font lacks a character.
bool FormerAvec(const TPolice& police, TTexteForme& forme) {
  thread_local const TTampon tampon(hb_buffer_create());
  hb_buffer_clear_contents(tampon.get());
  hb_buffer_set_cluster_level(tampon.get(), HB_BUFFER_CLUSTER_LEVEL_MONOTONE_CHARACTERS);
  hb_buffer_add_utf16(tampon.get(), reinterpret_cast<const std::uint16_t*>(forme.Texte.utf16()),
                      static_cast<int>(forme.Texte.size()), 0, -1);
  hb_buffer_set_language(tampon.get(), hb_language_from_string("fr", -1));
  hb_buffer_guess_segment_properties(tampon.get());
  hb_shape(police.Fonte(), tampon.get(), nullptr, 0);

  unsigned nombre = 0;
  const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(tampon.get(), &nombre);
  const hb_glyph_position_t* places = hb_buffer_get_glyph_positions(tampon.get(), &nombre);
  const float echelle = forme.Style.Taille * kPixelsParPoint / police.UnitesParEm();
  forme.Police = &police;
  forme.Glyphes.resize(nombre);
  hb_position_t x = 0;
  bool complet = true;
  for (unsigned i = 0; i < nombre; ++i) {
    TGlyphe& glyphe = forme.Glyphes[i];
    glyphe = {};
    glyphe.Id = infos[i].codepoint;
    glyphe.X = static_cast<float>(x + places[i].x_offset) * echelle;
    glyphe.Y = static_cast<float>(places[i].y_offset) * echelle;
    x += places[i].x_advance;
    complet = complet && glyphe.Id != 0;
  }
  forme.Largeur = static_cast<float>(x) * echelle;
  NoterUnites(infos, HB_DIRECTION_IS_BACKWARD(hb_buffer_get_direction(tampon.get())), forme);
  return complet;
}

std::shared_ptr<const TTexteForme> FormerNouveau(const QString& texte, const TStyle& style) {
  auto forme = std::make_shared<TTexteForme>();
  forme->Style = style;
  forme->Texte = Composer(texte);
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
