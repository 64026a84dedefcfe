#pragma once
#include <map>
#include <unordered_map>

#include "report/layout/polices.h"
#include "report/output/pdf_ecrivain.h"

/// A font of the file. A code stands for a glyph and the text that it is copied as, so that the same
/// glyph may stand for two texts.
class TPolicePdf {
 public:
  TPolicePdf(const TPolice& police, int numero);

  /// Two octets in a string of the page.
  std::uint16_t Code(std::uint32_t glyphe, QStringView texte);
  /// Tenths of 1/1000 em.
  int Largeur(std::uint16_t code) const { return codes_[code].Largeur; }
  int Numero() const { return numero_; }  ///< "/F3" is number 3
  /// Writes what was used of the font; gives its object.
  int Ecrire(TEcrivainPdf& ecrivain) const;

 private:
  struct TCode {
    std::uint32_t Glyphe;
    QString Texte;
    int Largeur;
  };
  std::uint16_t Nouveau(std::uint32_t glyphe, QStringView texte);
  std::string NomDansLeFichier() const;
  std::string Correspondance() const;
  std::string Description(int fichier) const;

  const TPolice& police_;
  const int numero_;
  std::vector<TCode> codes_;              ///< the first is for no glyph
  std::vector<std::uint16_t> parGlyphe_;  ///< first code of a glyph; 0 when it has none
  std::map<std::pair<std::uint32_t, QString>, std::uint16_t> autres_;
};

/// The fonts of the file, numbered as they come.
class TPolicesPdf {
 public:
  TPolicePdf& De(const TPolice& police);
  /// Writes them all; gives the entries of the resources.
  std::string Ecrire(TEcrivainPdf& ecrivain) const;

 private:
  std::vector<std::unique_ptr<TPolicePdf>> polices_;
  std::unordered_map<const TPolice*, TPolicePdf*> parPolice_;
};
