#pragma once
#include <QString>
#include <array>
#include <span>

#include "core/currency.h"

/// A note or a coin: its column and its value.
struct TCoupure {
  const char* Colonne;
  const char16_t* Libelle;
  int Centimes;
};

constexpr std::size_t kNombreCoupures = 13;
/// From 100 euros down to 1 cent.
inline constexpr TCoupure kCoupures[kNombreCoupures] = {
    {"TOT_100_EUROS", u"100 euros", 10000},
    {"TOT_50_EUR", u"50 euros", 5000},
    {"TOT_20_EUR", u"20 euros", 2000},
    {"TOT_10_EUR", u"10 euros", 1000},
    {"TOT_5_EUR", u"5 euros", 500},
    {"TOT_2_EUR", u"2 euros", 200},
    {"TOT_1_EUR", u"1 euro", 100},
    {"TOT_50_CNT", u"50 cents", 50},
    {"TOT_20_CNT", u"20 cents", 20},
    {"TOT_10_CNT", u"10 cents", 10},
    {"TOT_5_CNT", u"5 cents", 5},
    {"TOT_2_CNT", u"2 cents", 2},
    {"TOT_1_CNT", u"1 cent", 1},
};
constexpr std::span<const TCoupure, kNombreCoupures> Coupures() { return kCoupures; }

/// How many of each note and coin, in the order of `Coupures`.
using TComptage = std::array<int, kNombreCoupures>;

/// What a count comes to.
Currency Total(const TComptage& comptage);
/// A count as typed: 0 to 9999; any other text counts as 0.
int LireNombreCoupures(const QString& texte);
