#pragma once
#include <QString>
#include <string>
#include <string_view>
#include <vector>

#include "report/compression.h"

/// Hundredths of a point, in which everything on a page is placed.
using TCentiemes = int;

constexpr double kCentiemesParPixel = 75.0;

inline TCentiemes Centiemes(double pixels) {
  constexpr double max = 1e7;  // far outside of any paper, and far from what an int can hold
  const double valeur = pixels * kCentiemesParPixel;
  if (!(valeur > -max)) return static_cast<TCentiemes>(-max);
  if (valeur > max) return static_cast<TCentiemes>(max);
  return static_cast<TCentiemes>(valeur < 0 ? valeur - 0.5 : valeur + 0.5);
}

/// A whole number.
void AjouterEntier(std::string& sortie, int valeur);
/// `valeur` / 10 ^ `decimales`, without zeros at the end.
void AjouterDecimal(std::string& sortie, int valeur, int decimales);
/// Numbers in hundredths, a blank after each.
void AjouterPlaces(std::string& sortie, std::initializer_list<TCentiemes> valeurs);
/// "5 0 R"
std::string Renvoi(int objet);
/// A text for people, whatever its characters.
std::string ChainePdf(const QString& texte);

/// The objects of a PDF file, written one after the other, and where each of them stands. What is no
/// stream is gathered in streams of objects: a third of a file of short pages would be their dictionaries.
class TEcrivainPdf {
 public:
  TEcrivainPdf();

  /// The number of an object to be written later.
  int Reserver();
  void Objet(int numero, std::string_view contenu);
  int Objet(std::string_view contenu);
  /// `entrees` are the dictionary's own, without length and filter.
  void Flux(int numero, std::string_view entrees, std::string_view octets);
  int Flux(std::string_view entrees, std::string_view octets);
  /// The whole file; nothing may be written afterwards.
  std::string Terminer(int catalogue, int informations);

 private:
  struct TPlace {
    std::size_t Ou = 0;  ///< in the file; of a gathered object, the number of its stream
    std::size_t Rang = 0;
    bool Rassemble = false;
  };
  TPlace& Place(int numero) { return places_[static_cast<std::size_t>(numero) - 1]; }
  void FermerRassemblement();

  std::string sortie_;
  std::vector<TPlace> places_;
  // The stream of objects in hand; number 0 is none.
  int rassemblement_ = 0;
  std::size_t rassembles_ = 0;
  std::string tableRassembles_, rassemblesEcrits_;
  TCompresseur compresseur_;
};
