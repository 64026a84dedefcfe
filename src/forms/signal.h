#pragma once
#include <functional>
#include <memory>
#include <vector>

/// A connection to a TSignal, held by who listens: it ends with its owner, and may outlive the signal.
class [[nodiscard]] TLien {
 public:
  TLien() = default;
  explicit TLien(std::shared_ptr<const void> abonne) : abonne_(std::move(abonne)) {}
  TLien(TLien&&) = default;
  TLien& operator=(TLien&&) = default;
  /// From now on nothing is told any more, also when the signal is being emitted.
  void Rompre() { abonne_.reset(); }

 private:
  std::shared_ptr<const void> abonne_;
};

/// Connections that end together.
class TLiens {
 public:
  void operator+=(TLien lien) { liens_.push_back(std::move(lien)); }
  void Rompre() { liens_.clear(); }

 private:
  std::vector<TLien> liens_;
};

/// Tells those who follow it, in the order in which they came. A handler may connect, disconnect, itself
/// too, and end the signal: who comes during an emission hears the next one, who goes hears nothing more.
template <class... Args>
class TSignal {
 public:
  using TFaire = std::function<void(Args...)>;

  TSignal() = default;
  TSignal(TSignal&&) = default;
  TSignal& operator=(TSignal&&) = default;

  /// Followed for as long as the answer lives.
  TLien Suivre(TFaire faire) {
    std::erase_if(abonnes_, [](const auto& abonne) { return abonne.expired(); });
    auto abonne = std::make_shared<const TFaire>(std::move(faire));
    abonnes_.push_back(abonne);
    return TLien(std::move(abonne));
  }

  void operator()(Args... args) const {
    const auto presents = abonnes_;
    for (const auto& present : presents)
      if (const auto abonne = present.lock()) (*abonne)(args...);
  }

 private:
  std::vector<std::weak_ptr<const TFaire>> abonnes_;
};
