#include "report/layout/polices.h"

#include <hb-ot.h>

#include <QFile>

#include "core/exceptions.h"
#include "report/layout/fichiers_polices.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kFamilles{"Carlito", "Liberation Mono"};

std::size_t Rang(const TStyle& style) {
  return static_cast<std::size_t>(style.Famille) * 4 + (style.Gras ? 2 : 0) + (style.Italique ? 1 : 0);
}

QString NomPostScript(hb_face_t* face) {
  char nom[128] = "";
  unsigned taille = sizeof nom;
  hb_ot_name_get_utf8(face, HB_OT_NAME_ID_POSTSCRIPT_NAME, HB_LANGUAGE_INVALID, &taille, nom);
  return taille > 0 ? QString::fromUtf8(nom) : u"Police"_s;
}

QByteArray Octets(const QString& chemin) {
  QFile fichier(chemin);
  return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

}  // namespace

TPolice::TPolice(QByteArray fichier, const QString& chemin) : fichier_(std::move(fichier)) {
  hb_blob_t* octets = hb_blob_create(fichier_.constData(), static_cast<unsigned>(fichier_.size()),
                                     HB_MEMORY_MODE_READONLY, nullptr, nullptr);
  face_ = hb_face_create(octets, 0);
  hb_blob_destroy(octets);
  if (hb_face_get_glyph_count(face_) == 0) {
    hb_face_destroy(face_);
    throw Exception(u"Le fichier %1 n'est pas une police de caractères."_s.arg(chemin));
  }
  hb_face_make_immutable(face_);
  nom_ = NomPostScript(face_);
  fonte_ = hb_font_create(face_);
  unites_ = static_cast<float>(hb_face_get_upem(face_));
  hb_font_set_scale(fonte_, static_cast<int>(unites_), static_cast<int>(unites_));
  hb_font_make_immutable(fonte_);

  const auto enEm = [this](hb_ot_metrics_tag_t mesure) {
    hb_position_t valeur = 0;
    hb_ot_metrics_get_position_with_fallback(fonte_, mesure, &valeur);
    return static_cast<float>(valeur) / unites_;
  };
  ascendante_ = enEm(HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER);
  descendante_ = -enEm(HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER);
  epaisseurSouligne_ = enEm(HB_OT_METRICS_TAG_UNDERLINE_SIZE);
  baseSouligne_ = epaisseurSouligne_ / 2 - enEm(HB_OT_METRICS_TAG_UNDERLINE_OFFSET);
}

TPolice::~TPolice() {
  hb_font_destroy(fonte_);
  hb_face_destroy(face_);
}

const TPolices& TPolices::Communes() {
  static const TPolices communes{TFichiersPolices()};
  return communes;
}

TPolices::TPolices(const TChercheur& chercher) {
  for (std::size_t famille = 0; famille < kFamilles.size(); ++famille)
    for (std::size_t style = 0; style < 4; ++style)
      parStyle_[famille * 4 + style] =
          Choisir({QString::fromLatin1(kFamilles[famille]), (style & 2) != 0, (style & 1) != 0}, chercher);
  for (const bool gras : {false, true})
    secours_[gras ? 1 : 0] = Charger(chercher({u"DejaVu Sans"_s, gras, false}));
}

const TPolice* TPolices::Charger(const QString& chemin) {
  if (chemin.isEmpty()) return nullptr;
  auto& police = polices_[chemin];
  if (!police) police = std::make_unique<TPolice>(Octets(chemin), chemin);
  return police.get();
}

const TPolice* TPolices::Choisir(const TDemandePolice& demande, const TChercheur& chercher) {
  if (const TPolice* police = Charger(chercher(demande))) return police;
  for (const TDemandePolice& autre : {TDemandePolice{u"Liberation Sans"_s, demande.Gras, demande.Italique},
                                      TDemandePolice{{}, demande.Gras, demande.Italique}, TDemandePolice{}}) {
    const TPolice* police = Charger(chercher(autre));
    if (police == nullptr) continue;
    const QString manque =
        u"La police %1 n'est pas installée : une autre la remplace."_s.arg(demande.Famille);
    if (!manques_.contains(manque)) manques_.append(manque);
    return police;
  }
  throw Exception(u"Aucune police de caractères n'est installée sur cet ordinateur."_s);
}

const TPolice& TPolices::Trouver(const TStyle& style) const { return *parStyle_[Rang(style)]; }

const TPolice* TPolices::Secours(const TStyle& style) const { return secours_[style.Gras ? 1 : 0]; }
