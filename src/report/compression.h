#pragma once
#include <QByteArray>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Compresses streams one after the other, as zlib does.
class TCompresseur {
 public:
  TCompresseur();
  ~TCompresseur();
  /// Appends the compressed octets.
  void Ajouter(std::string_view octets, std::string& sortie);

 private:
  struct TFlux;
  std::unique_ptr<TFlux> flux_;
};

/// None when the octets are no compressed stream of just `taille` octets.
std::optional<QByteArray> Decompresser(std::string_view octets, qsizetype taille);
