// What writes a bank's CODA file.
#pragma once
#include <QByteArray>
#include <QStringList>
#include <vector>

using namespace Qt::StringLiterals;

namespace FichierCoda {

/// A record of 128 characters with fields at their places, which count from 1.
inline QString Enregistrement(const std::vector<std::pair<int, QString>>& champs) {
  QString ligne(128, u' ');
  for (const auto& [place, texte] : champs) ligne.replace(place - 1, texte.size(), texte);
  return ligne;
}

inline QString Centimes(int centimes) { return u"%1"_s.arg(centimes * 10, 15, 10, QChar(u'0')); }

/// A record 2.1, the amount in cents; `article` is sequence and detail.
inline QString Mouvement(const QString& article, int centimes, const QString& communication,
                         QChar type = u'0', bool structuree = false, const QString& dateValeur = "051016") {
  return Enregistrement({{1, u"21"_s + article},
                         {32, centimes < 0 ? "1" : "0"},
                         {33, Centimes(qAbs(centimes))},
                         {48, dateValeur},
                         {54, QString(type) + u"0150000"},
                         {62, structuree ? "1" : "0"},
                         {63, communication.left(53)},
                         {116, "061016"}});
}

/// The file: its records 0, 1, 8 and 9 around the movements, which must sum to `total`, with so many debits;
/// amounts in cents.
inline QByteArray Coda(const QStringList& milieu, int total, int debits = 0, int ecart = 0, int numero = 7,
                       int ancien = 10000) {
  QStringList lignes{Enregistrement({{1, "0000005101672505"}, {128, "2"}}),
                     Enregistrement({{1, "12001BE33123456789012"},
                                     {40, "EUR0"},
                                     {44, Centimes(ancien)},
                                     {59, "041016"},
                                     {126, u"%1"_s.arg(numero, 3, 10, QChar(u'0'))}})};
  lignes += milieu;
  lignes += Enregistrement(
      {{1, "8001BE33123456789012"}, {42, "0"}, {43, Centimes(ancien + total + ecart)}, {58, "051016"}});
  lignes += Enregistrement({{1, "9"},
                            {17, u"%1"_s.arg(static_cast<int>(milieu.size()) + 2, 6, 10, QChar(u'0'))},
                            {23, Centimes(debits)},
                            {38, Centimes(total + debits)},
                            {128, "2"}});
  return lignes.join("\r\n").toUtf8();
}

inline QString Donneur(const QString& article, const QString& compte, const QString& nom,
                       const QString& texte = {}) {
  return Enregistrement({{1, u"23"_s + article}, {11, compte}, {48, nom}, {83, texte}});
}

}  // namespace FichierCoda
