#include "demo/portraits.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

namespace {

constexpr int kLargeur = 190, kHauteur = 220;  // twice what the screens show

constexpr std::array kFonds{0xffb9cfe0, 0xffc9d6c0, 0xffdccfc0, 0xffcfc7dc};
constexpr std::array kPeaux{0xfff3d3b8, 0xffecc3a0, 0xffd9a883, 0xffb07c56, 0xff7d5238};
constexpr std::size_t kPeauSombre = 3;  ///< from here on with the first two colours of hair
constexpr std::array kCheveux{0xff2a201c, 0xff4b3222, 0xff7a4e2b, 0xffb98746, 0xffd9b673, 0xff9c4a25};
constexpr std::array kHabits{0xff34618f, 0xff8f3b3b, 0xff3f7a55, 0xffc28a2e, 0xff5d4a86, 0xff4d5560};

struct TTraits {
  QColor Fond, Peau, Cheveux, Habit;
  bool Longs;  ///< hair down to the shoulders
  bool Lunettes;
  qreal Visage;    ///< half the width of the face
  QPointF Centre;  ///< of the face
};

TTraits Tirer(TTirage& tirage, bool fille, int niveau) {
  TTraits traits;
  traits.Fond = QColor(tirage.Choix(kFonds));
  const auto peau = static_cast<std::size_t>(tirage.Entier(0, static_cast<int>(kPeaux.size()) - 1));
  const int dernier = peau < kPeauSombre ? static_cast<int>(kCheveux.size()) - 1 : 1;
  traits.Peau = QColor(kPeaux[peau]);
  traits.Cheveux = QColor(kCheveux[static_cast<std::size_t>(tirage.Entier(0, dernier))]);
  traits.Habit = QColor(tirage.Choix(kHabits));
  traits.Longs = tirage.Chance(fille ? 780 : 60);
  traits.Lunettes = tirage.Chance(140);
  traits.Visage = tirage.Entier(40, 46);
  traits.Centre = QPointF(kLargeur / 2.0 + tirage.Entier(-4, 4), 112 - 2 * niveau);  // the older, the taller
  return traits;
}

void Buste(QPainter& peintre, const TTraits& t) {
  const qreal epaules = t.Centre.y() + 62;
  peintre.setBrush(t.Habit);
  peintre.drawEllipse(QPointF(t.Centre.x(), epaules + 70), 82, 74);
  peintre.setBrush(t.Peau.darker(108));
  peintre.drawRoundedRect(QRectF(t.Centre.x() - 15, t.Centre.y() + 34, 30, 42), 13, 13);
}

void CheveuxDerriere(QPainter& peintre, const TTraits& t) {
  if (!t.Longs) return;
  peintre.setBrush(t.Cheveux.darker(112));
  peintre.drawRoundedRect(QRectF(t.Centre.x() - t.Visage - 9, t.Centre.y() - 46, 2 * t.Visage + 18, 118), 40,
                          40);
}

void Visage(QPainter& peintre, const TTraits& t) {
  peintre.setBrush(t.Peau);
  for (const int cote : {-1, 1}) peintre.drawEllipse(t.Centre + QPointF(cote * t.Visage, 4), 8, 11);
  peintre.drawEllipse(t.Centre, t.Visage, t.Visage * 1.22);
  peintre.setBrush(QColor(0xff2c2520));
  for (const int cote : {-1, 1}) peintre.drawEllipse(t.Centre + QPointF(cote * t.Visage * 0.42, -2), 4, 5);
  peintre.setBrush(Qt::NoBrush);
  peintre.setPen(QPen(t.Peau.darker(150), 3, Qt::SolidLine, Qt::RoundCap));
  peintre.drawArc(QRectF(t.Centre.x() - 16, t.Centre.y() + 8, 32, 24), 200 * 16, 140 * 16);
  if (t.Lunettes) {
    peintre.setPen(QPen(QColor(0xff3a3f46), 2.5));
    for (const int cote : {-1, 1})
      peintre.drawEllipse(t.Centre + QPointF(cote * t.Visage * 0.42, -2), 12, 11);
  }
  peintre.setPen(Qt::NoPen);
}

void CheveuxDevant(QPainter& peintre, const TTraits& t) {
  QPainterPath tete;
  tete.addEllipse(t.Centre + QPointF(0, -6), t.Visage + 5, t.Visage * 1.24);
  QPainterPath front;
  front.addEllipse(t.Centre + QPointF(t.Longs ? 0 : 8, 18), t.Visage * 1.08, t.Visage * 1.12);
  peintre.setBrush(t.Cheveux);
  peintre.drawPath(tete.subtracted(front));
}

}  // namespace

QImage DessinerPortrait(TTirage& tirage, bool fille, int niveau) {
  const TTraits traits = Tirer(tirage, fille, niveau);
  QImage image(kLargeur, kHauteur, QImage::Format_RGB32);
  image.fill(traits.Fond);
  QPainter peintre(&image);
  peintre.setRenderHint(QPainter::Antialiasing);
  peintre.setPen(Qt::NoPen);
  CheveuxDerriere(peintre, traits);
  Buste(peintre, traits);
  Visage(peintre, traits);
  CheveuxDevant(peintre, traits);
  return image;
}
