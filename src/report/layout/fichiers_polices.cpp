#include "report/layout/fichiers_polices.h"

#include <fontconfig/fontconfig.h>

#include <QFile>

namespace {

template <class T, void (*Detruire)(T*)>
using TGarde = std::unique_ptr<T, decltype([](T* objet) { Detruire(objet); })>;

const FcChar8* Chaine(const char* texte) { return reinterpret_cast<const FcChar8*>(texte); }

bool EstDuStyle(FcPattern* fonte, const TDemandePolice& demande) {
  const auto entier = [fonte](const char* objet, int sinon) {
    int valeur = sinon;
    return FcPatternGetInteger(fonte, objet, 0, &valeur) == FcResultMatch ? valeur : sinon;
  };
  const int graisse = entier(FC_WEIGHT, FC_WEIGHT_REGULAR);
  const bool gras = graisse >= FC_WEIGHT_DEMIBOLD;
  const bool courante = graisse >= FC_WEIGHT_BOOK && graisse <= FC_WEIGHT_MEDIUM;
  const bool italique = entier(FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN;
  return (demande.Gras ? gras : courante) && italique == demande.Italique && entier(FC_INDEX, 0) == 0 &&
         entier(FC_WIDTH, FC_WIDTH_NORMAL) == FC_WIDTH_NORMAL;
}

}  // namespace

TFichiersPolices::TFichiersPolices() : configuration_(FcInitLoadConfigAndFonts(), FcConfigDestroy) {}

QString TFichiersPolices::operator()(const TDemandePolice& demande) const {
  if (!configuration_) return {};
  const TGarde<FcPattern, FcPatternDestroy> motif(FcPatternCreate());
  if (!demande.Famille.isEmpty())
    FcPatternAddString(motif.get(), FC_FAMILY, Chaine(demande.Famille.toUtf8().constData()));
  FcPatternAddString(motif.get(), FC_FONTFORMAT, Chaine("TrueType"));
  FcPatternAddString(motif.get(), FC_LANG, Chaine("fr"));
  const TGarde<FcObjectSet, FcObjectSetDestroy> champs(
      FcObjectSetBuild(FC_FILE, FC_INDEX, FC_WEIGHT, FC_SLANT, FC_WIDTH, nullptr));
  const TGarde<FcFontSet, FcFontSetDestroy> fontes(
      FcFontList(configuration_.get(), motif.get(), champs.get()));
  QString trouve;
  for (int i = 0; fontes && i < fontes->nfont; ++i) {
    FcChar8* fichier = nullptr;
    if (!EstDuStyle(fontes->fonts[i], demande) ||
        FcPatternGetString(fontes->fonts[i], FC_FILE, 0, &fichier) != FcResultMatch)
      continue;
    // The first by name, so that a computer always takes the same one.
    const QString chemin = QFile::decodeName(reinterpret_cast<const char*>(fichier));
    if (trouve.isEmpty() || chemin < trouve) trouve = chemin;
  }
  return trouve;
}
