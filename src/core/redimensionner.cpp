#include "core/redimensionner.h"

#include <QPainter>
#include <algorithm>
#include <span>
#include <vector>

namespace {

constexpr qint64 kUn = 1 << 16;  // 1.0 in fixed point

/// What one target position takes from the source axis; the weights add up to kUn.
struct TPart {
  int Debut = 0;
  std::vector<quint32> Poids;
};

/// Weighted average of the source pixels that each target pixel covers. Lengths are counted in
/// 1/`cible` of a source pixel, in which every border is a whole number.
std::vector<TPart> PartsReduction(qint64 source, qint64 cible) {
  std::vector<TPart> parts(static_cast<size_t>(cible));
  for (qint64 i = 0; i < cible; ++i) {
    TPart& part = parts[static_cast<size_t>(i)];
    const qint64 debut = i * source, fin = debut + source;
    part.Debut = static_cast<int>(debut / cible);
    qint64 dejaDonne = 0;  // weights as differences of a running total: no rounding is lost
    for (qint64 pixel = part.Debut; pixel * cible < fin; ++pixel) {
      const qint64 total = (std::min((pixel + 1) * cible, fin) - debut) * kUn / source;
      part.Poids.push_back(static_cast<quint32>(total - dejaDonne));
      dejaDonne = total;
    }
  }
  return parts;
}

/// Linear interpolation between the centres of neighbours; the outermost pixels go on to the border.
std::vector<TPart> PartsAgrandissement(qint64 source, qint64 cible) {
  std::vector<TPart> parts(static_cast<size_t>(cible));
  for (qint64 i = 0; i < cible; ++i) {
    TPart& part = parts[static_cast<size_t>(i)];
    const qint64 centre = ((2 * i + 1) * source - cible) * kUn / (2 * cible);
    const qint64 place = std::clamp<qint64>(centre, 0, (source - 1) * kUn);
    const auto fraction = static_cast<quint32>(place % kUn);
    part.Debut = static_cast<int>(place / kUn);
    part.Poids.push_back(static_cast<quint32>(kUn) - fraction);
    if (fraction > 0) part.Poids.push_back(fraction);
  }
  return parts;
}

std::vector<TPart> Parts(int source, int cible) {
  return cible < source ? PartsReduction(source, cible) : PartsAgrandissement(source, cible);
}

uchar Arrondir(quint32 somme) { return static_cast<uchar>((somme + kUn / 2) / kUn); }

QImage RedimensionnerLargeur(const QImage& source, int largeur) {
  const int canaux = source.depth() / 8;
  const std::vector<TPart> parts = Parts(source.width(), largeur);
  QImage cible(largeur, source.height(), source.format());
  for (int y = 0; y < source.height(); ++y) {
    const uchar* lu = source.constScanLine(y);
    uchar* ecrit = cible.scanLine(y);
    for (const TPart& part : parts) {
      for (int canal = 0; canal < canaux; ++canal) {
        const uchar* pixel = lu + part.Debut * canaux + canal;
        quint32 somme = 0;
        for (const quint32 poids : part.Poids) {
          somme += poids * *pixel;
          pixel += canaux;
        }
        *ecrit++ = Arrondir(somme);
      }
    }
  }
  return cible;
}

QImage RedimensionnerHauteur(const QImage& source, int hauteur) {
  const auto octets = static_cast<size_t>(source.width() * source.depth() / 8);
  const std::vector<TPart> parts = Parts(source.height(), hauteur);
  QImage cible(source.width(), hauteur, source.format());
  std::vector<quint32> sommes(octets);
  for (int y = 0; y < hauteur; ++y) {
    const TPart& part = parts[static_cast<size_t>(y)];
    std::ranges::fill(sommes, 0U);
    for (size_t k = 0; k < part.Poids.size(); ++k) {
      const std::span lu(source.constScanLine(part.Debut + static_cast<int>(k)), octets);
      for (size_t x = 0; x < octets; ++x) sommes[x] += part.Poids[k] * lu[x];
    }
    std::ranges::transform(sommes, cible.scanLine(y), Arrondir);
  }
  return cible;
}

/// The picture in 24 or 32 bits with one byte a channel, whose averages mean something: transparent
/// pixels are premultiplied.
QImage EnOctets(const QImage& source) {
  switch (source.format()) {
    case QImage::Format_RGB888:
    case QImage::Format_BGR888:
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32_Premultiplied:
      return source;
    default:
      return source.convertToFormat(source.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                             : QImage::Format_RGB32);
  }
}

}  // namespace

void Redimensionner(const QImage& source, QImage& cible, TModeRedimension mode) {
  if (source.isNull() || cible.isNull()) return;
  QImage image = EnOctets(source);
  if (mode == TModeRedimension::Etirement) {
    QImage etiree(cible.size(), image.format());
    QPainter peintre(&etiree);
    peintre.setCompositionMode(QPainter::CompositionMode_Source);
    peintre.drawImage(etiree.rect(), image);
    peintre.end();
    image = etiree;
  } else {
    if (image.width() != cible.width()) image = RedimensionnerLargeur(image, cible.width());
    if (image.height() != cible.height()) image = RedimensionnerHauteur(image, cible.height());
  }
  cible = image.convertToFormat(cible.format());
}
