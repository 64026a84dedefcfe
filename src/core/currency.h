#pragma once
#include <QString>
#include <compare>
#include <cstdint>

/// An amount in euros held as a whole number of ten-thousandths. There is no implicit way from a
/// floating-point number: what is computed in one is rounded on purpose with `Arrondi`.
class Currency {
 public:
  constexpr Currency() = default;

  /// From ten-thousandths of a euro: 12500 is 1.25 euro.
  static constexpr Currency Brut(std::int64_t dixMilliemes) { return Currency(dixMilliemes); }
  /// From whole euros.
  static constexpr Currency Euros(std::int64_t euros) { return Currency(euros * 10000); }
  /// From euros, rounded half to even at the fourth decimal. Out of range raises EConvertError.
  static Currency Arrondi(long double euros);

  constexpr std::int64_t EnBrut() const { return v_; }
  constexpr double EnEuros() const { return static_cast<double>(v_) / 10000.0; }
  constexpr Currency Absolu() const { return Currency(v_ < 0 ? -v_ : v_); }
  /// Cut towards zero to whole cents.
  constexpr Currency TronqueAuCent() const { return Currency(v_ / 100 * 100); }

  constexpr auto operator<=>(const Currency&) const = default;
  constexpr Currency operator-() const { return Currency(-v_); }
  constexpr Currency& operator+=(Currency a) {
    v_ += a.v_;
    return *this;
  }
  constexpr Currency& operator-=(Currency a) {
    v_ -= a.v_;
    return *this;
  }
  friend constexpr Currency operator+(Currency a, Currency b) { return Currency(a.v_ + b.v_); }
  friend constexpr Currency operator-(Currency a, Currency b) { return Currency(a.v_ - b.v_); }
  /// Exact: a price times a number of units.
  friend constexpr Currency operator*(Currency a, std::int64_t n) { return Currency(a.v_ * n); }

 private:
  explicit constexpr Currency(std::int64_t v) : v_(v) {}
  std::int64_t v_ = 0;
};

/// "%.2f" in the locale of the school: "-12,35". Half a cent goes away from zero.
QString FormatDeuxDecimales(Currency montant);
/// The same with every decimal that it has: "0,50", "0,0125".
QString FormatPrix(Currency montant);
/// Four decimals and a dot, as the batch program prints: "-12.3450".
QString FormatQuatreDecimales(Currency montant);
/// The shortest decimal text with a comma: "12,5", "3", "-0,2".
QString FormatNombre(Currency montant);
