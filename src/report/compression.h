#pragma once
#include <QByteArray>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct libdeflate_compressor;

/// Compresses streams one after the other, in zlib's format.
class TCompresseur {
 public:
  TCompresseur();
  /// Appends the compressed octets.
  void Ajouter(std::string_view octets, std::string& sortie);

 private:
  struct TLiberer {
    void operator()(libdeflate_compressor* compresseur) const;
  };
  std::unique_ptr<libdeflate_compressor, TLiberer> compresseur_;
};

/// None when the octets are no compressed stream of just `taille` octets.
std::optional<QByteArray> Decompresser(std::string_view octets, qsizetype taille);
