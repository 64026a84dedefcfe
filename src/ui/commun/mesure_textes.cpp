#include "ui/commun/mesure_textes.h"

#include <QFontMetricsF>
#include <cmath>

namespace {

constexpr qsizetype kTextesGardes = 4096;

}  // namespace

int MesureTextes::Largeur(const QString& texte, const QFont& police) const {
  QFont simple = police;
  if (police.strikeOut()) simple.setStrikeOut(false);  // which takes no more room
  TGarde& garde = gardes_[police.bold() ? 1 : 0];
  if (garde.Police != simple || garde.Largeurs.size() > kTextesGardes) garde = {simple, {}};
  const auto place = garde.Largeurs.constFind(texte);
  if (place != garde.Largeurs.constEnd()) return *place;
  const int largeur = static_cast<int>(std::ceil(QFontMetricsF(simple).horizontalAdvance(texte)));
  garde.Largeurs.insert(texte, largeur);
  return largeur;
}
