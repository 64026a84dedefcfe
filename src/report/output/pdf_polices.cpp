#include "report/output/pdf_polices.h"

#include <hb-ot.h>
#include <hb-subset.h>

#include <cmath>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kCodesMax = 0xFFFF;
constexpr std::size_t kParBloc = 100;  ///< entries that a block of a character map may hold

template <class T, void (*Detruire)(T*)>
using TGarde = std::unique_ptr<T, decltype([](T* objet) { Detruire(objet); })>;

/// Tables that say how to make glyphs of a text: the file holds glyphs.
constexpr std::array kTablesInutiles{HB_TAG('G', 'S', 'U', 'B'), HB_TAG('G', 'P', 'O', 'S'),
                                     HB_TAG('G', 'D', 'E', 'F'), HB_TAG('c', 'm', 'a', 'p'),
                                     HB_TAG('k', 'e', 'r', 'n'), HB_TAG('n', 'a', 'm', 'e'),
                                     HB_TAG('O', 'S', '/', '2'), HB_TAG('p', 'o', 's', 't')};

/// The outlines of some glyphs, and their new numbers.
struct TSousEnsemble {
  std::string Fichier;
  std::unordered_map<std::uint32_t, std::uint32_t> Numeros;
};

TSousEnsemble Extraire(const TPolice& police, const std::vector<std::uint32_t>& glyphes) {
  const TGarde<hb_subset_input_t, hb_subset_input_destroy> demande(hb_subset_input_create_or_fail());
  if (!demande) throw std::bad_alloc();
  for (const std::uint32_t glyphe : glyphes) hb_set_add(hb_subset_input_glyph_set(demande.get()), glyphe);
  hb_set_t* inutiles = hb_subset_input_set(demande.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
  for (const hb_tag_t table : kTablesInutiles) hb_set_add(inutiles, table);
  hb_subset_input_set_flags(demande.get(), HB_SUBSET_FLAGS_NO_HINTING | HB_SUBSET_FLAGS_NOTDEF_OUTLINE);
  const TGarde<hb_subset_plan_t, hb_subset_plan_destroy> plan(
      hb_subset_plan_create_or_fail(police.Face(), demande.get()));
  const TGarde<hb_face_t, hb_face_destroy> face(plan ? hb_subset_plan_execute_or_fail(plan.get()) : nullptr);
  if (!face) throw Exception(u"La police %1 ne peut pas être mise dans un fichier PDF."_s.arg(police.Nom()));
  TSousEnsemble extrait;
  const TGarde<hb_blob_t, hb_blob_destroy> octets(hb_face_reference_blob(face.get()));
  unsigned taille = 0;
  const char* debut = hb_blob_get_data(octets.get(), &taille);
  extrait.Fichier.assign(debut, taille);
  const hb_map_t* numeros = hb_subset_plan_old_to_new_glyph_mapping(plan.get());
  for (const std::uint32_t glyphe : glyphes) extrait.Numeros[glyphe] = hb_map_get(numeros, glyphe);
  return extrait;
}

/// The box around all glyphs, in units of the font, from its header table.
std::array<std::int16_t, 4> Boite(hb_face_t* face) {
  constexpr unsigned place = 36;
  std::array<std::int16_t, 4> boite{};
  const TGarde<hb_blob_t, hb_blob_destroy> tete(hb_face_reference_table(face, HB_TAG('h', 'e', 'a', 'd')));
  unsigned taille = 0;
  const auto* octets = reinterpret_cast<const unsigned char*>(hb_blob_get_data(tete.get(), &taille));
  for (unsigned i = 0; i < 4 && place + 2 * i + 1 < taille; ++i)
    boite[i] = static_cast<std::int16_t>((octets[place + 2 * i] << 8) | octets[place + 2 * i + 1]);
  return boite;
}

void AjouterHexa(std::string& sortie, std::uint16_t valeur) {
  for (int decalage = 12; decalage >= 0; decalage -= 4)
    sortie += "0123456789ABCDEF"[(valeur >> decalage) & 15];
}

}  // namespace

TPolicePdf::TPolicePdf(const TPolice& police, int numero) : police_(police), numero_(numero) {
  codes_.push_back({0, {}, 0});
  parGlyphe_.resize(hb_face_get_glyph_count(police.Face()));
}

std::uint16_t TPolicePdf::Code(std::uint32_t glyphe, QStringView texte) {
  std::uint16_t& premier = parGlyphe_[glyphe];
  if (premier == 0) return premier = Nouveau(glyphe, texte);
  if (codes_[premier].Texte == texte || codes_.size() > kCodesMax) return premier;
  std::uint16_t& autre = autres_[{glyphe, texte.toString()}];
  if (autre == 0) autre = Nouveau(glyphe, texte);
  return autre;
}

std::uint16_t TPolicePdf::Nouveau(std::uint32_t glyphe, QStringView texte) {
  const float avance = static_cast<float>(hb_font_get_glyph_h_advance(police_.Fonte(), glyphe));
  codes_.push_back(
      {glyphe, texte.toString(), static_cast<int>(std::lround(avance * 10'000.0F / police_.UnitesParEm()))});
  return static_cast<std::uint16_t>(codes_.size() - 1);
}

/// Six letters tell one extract of a font from another.
std::string TPolicePdf::NomDansLeFichier() const {
  std::string nom = "AAAAAA+";
  for (std::size_t i = 6, reste = static_cast<std::size_t>(numero_); i > 0 && reste > 0; --i, reste /= 26)
    nom[i - 1] = static_cast<char>('A' + reste % 26);
  for (const QChar c : police_.Nom())
    nom += (c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'-')) ? c.toLatin1() : '-';
  return nom;
}

/// What each code is copied as.
std::string TPolicePdf::Correspondance() const {
  std::string carte =
      "/CIDInit/ProcSet findresource begin 12 dict begin begincmap\n"
      "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
      "/CMapName/Adobe-Identity-UCS def/CMapType 2 def\n"
      "1 begincodespacerange<0000><FFFF>endcodespacerange\n";
  std::vector<std::size_t> avecTexte;
  for (std::size_t code = 1; code < codes_.size(); ++code)
    if (!codes_[code].Texte.isEmpty()) avecTexte.push_back(code);
  for (std::size_t debut = 0; debut < avecTexte.size(); debut += kParBloc) {
    const std::size_t fin = std::min(debut + kParBloc, avecTexte.size());
    carte += std::to_string(fin - debut) + " beginbfchar\n";
    for (std::size_t i = debut; i < fin; ++i) {
      carte += '<';
      AjouterHexa(carte, static_cast<std::uint16_t>(avecTexte[i]));
      carte += "><";
      for (const QChar c : codes_[avecTexte[i]].Texte) AjouterHexa(carte, c.unicode());
      carte += ">\n";
    }
    carte += "endbfchar\n";
  }
  return carte + "endcmap CMapName currentdict/CMap defineresource pop end end";
}

std::string TPolicePdf::Description(int fichier) const {
  constexpr int chasseFixe = 1, symbolique = 4, italique = 64;
  const auto enMilliemes = [this](float unites) {
    return std::to_string(std::lround(unites * 1000.0F / police_.UnitesParEm()));
  };
  const auto avance = [this](hb_codepoint_t caractere) {
    hb_codepoint_t glyphe = 0;
    hb_font_get_nominal_glyph(police_.Fonte(), caractere, &glyphe);
    return hb_font_get_glyph_h_advance(police_.Fonte(), glyphe);
  };
  hb_position_t capitales = 0;
  hb_ot_metrics_get_position_with_fallback(police_.Fonte(), HB_OT_METRICS_TAG_CAP_HEIGHT, &capitales);
  const float penche = hb_style_get_value(police_.Fonte(), HB_STYLE_TAG_SLANT_ANGLE);
  const bool gras = hb_style_get_value(police_.Fonte(), HB_STYLE_TAG_WEIGHT) >= 600.0F;
  const int traits =
      symbolique | (avance('i') == avance('W') ? chasseFixe : 0) | (penche < 0 || penche > 0 ? italique : 0);
  std::string boite;
  for (const std::int16_t cote : Boite(police_.Face())) boite += enMilliemes(cote) + ' ';
  const float em = police_.UnitesParEm();
  return "<</Type/FontDescriptor/FontName/" + NomDansLeFichier() + "/Flags " + std::to_string(traits) +
         "/FontBBox[" + boite + "]/ItalicAngle " + std::to_string(std::lround(penche)) + "/Ascent " +
         enMilliemes(police_.Ascendante() * em) + "/Descent " + enMilliemes(-police_.Descendante() * em) +
         "/CapHeight " + enMilliemes(static_cast<float>(capitales)) + "/StemV " + (gras ? "140" : "80") +
         "/FontFile2 " + Renvoi(fichier) + ">>";
}

int TPolicePdf::Ecrire(TEcrivainPdf& ecrivain) const {
  std::vector<std::uint32_t> glyphes;
  for (const TCode& code : codes_) glyphes.push_back(code.Glyphe);
  const TSousEnsemble extrait = Extraire(police_, glyphes);
  std::string numeros, largeurs;
  for (const TCode& code : codes_) {
    const std::uint32_t numero = extrait.Numeros.at(code.Glyphe);
    numeros += static_cast<char>(numero >> 8);
    numeros += static_cast<char>(numero & 0xFF);
    AjouterDecimal(largeurs, code.Largeur, 1);
    largeurs += ' ';
  }
  const int fichier = ecrivain.Flux("/Length1 " + std::to_string(extrait.Fichier.size()), extrait.Fichier);
  const int description = ecrivain.Objet(Description(fichier));
  const int table = ecrivain.Flux("", numeros);
  const std::string nom = NomDansLeFichier();
  const int descendante =
      ecrivain.Objet("<</Type/Font/Subtype/CIDFontType2/BaseFont/" + nom +
                     "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>/FontDescriptor " +
                     Renvoi(description) + "/CIDToGIDMap " + Renvoi(table) + "/W[0[" + largeurs + "]]>>");
  const int textes = ecrivain.Flux("", Correspondance());
  return ecrivain.Objet("<</Type/Font/Subtype/Type0/BaseFont/" + nom +
                        "/Encoding/Identity-H/DescendantFonts[" + Renvoi(descendante) + "]/ToUnicode " +
                        Renvoi(textes) + ">>");
}

TPolicePdf& TPolicesPdf::De(const TPolice& police) {
  TPolicePdf*& connue = parPolice_[&police];
  if (connue == nullptr) {
    const int numero = static_cast<int>(polices_.size());
    connue = polices_.emplace_back(std::make_unique<TPolicePdf>(police, numero)).get();
  }
  return *connue;
}

std::string TPolicesPdf::Ecrire(TEcrivainPdf& ecrivain) const {
  std::string entrees;
  for (const auto& police : polices_)
    entrees += "/F" + std::to_string(police->Numero()) + ' ' + Renvoi(police->Ecrire(ecrivain));
  return entrees;
}
