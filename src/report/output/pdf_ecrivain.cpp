#include "report/output/pdf_ecrivain.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace {

constexpr std::string_view kChiffresHexa = "0123456789ABCDEF";

}  // namespace

void AjouterEntier(std::string& sortie, int valeur) {
  std::array<char, 12> chiffres;
  const auto fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), valeur).ptr;
  sortie.append(chiffres.data(), fin);
}

void AjouterDecimal(std::string& sortie, int valeur, int decimales) {
  if (valeur < 0) {
    sortie += '-';
    valeur = -valeur;
  }
  int unite = 1;
  for (int i = 0; i < decimales; ++i) unite *= 10;
  const int entier = valeur / unite;
  int reste = valeur % unite;
  if (entier != 0 || reste == 0) AjouterEntier(sortie, entier);
  if (reste == 0) return;
  sortie += '.';
  for (; reste != 0; reste %= unite) {
    unite /= 10;
    sortie += static_cast<char>('0' + reste / unite);
  }
}

void AjouterPlaces(std::string& sortie, std::initializer_list<TCentiemes> valeurs) {
  for (const TCentiemes valeur : valeurs) {
    AjouterDecimal(sortie, valeur, 2);
    sortie += ' ';
  }
}

std::string Renvoi(int objet) { return std::to_string(objet) + " 0 R"; }

std::string ChainePdf(const QString& texte) {
  std::string chaine = "<FEFF";
  for (const QChar c : texte)
    for (int decalage = 12; decalage >= 0; decalage -= 4)
      chaine += kChiffresHexa[(c.unicode() >> decalage) & 15];
  return chaine + '>';
}

TEcrivainPdf::TEcrivainPdf() : sortie_("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n") {}

int TEcrivainPdf::Reserver() {
  places_.push_back(0);
  return static_cast<int>(places_.size());
}

void TEcrivainPdf::Commencer(int numero) {
  places_[static_cast<std::size_t>(numero) - 1] = sortie_.size();
  AjouterEntier(sortie_, numero);
  sortie_ += " 0 obj\n";
}

void TEcrivainPdf::Objet(int numero, std::string_view contenu) {
  Commencer(numero);
  sortie_ += contenu;
  sortie_ += "\nendobj\n";
}

int TEcrivainPdf::Objet(std::string_view contenu) {
  const int numero = Reserver();
  Objet(numero, contenu);
  return numero;
}

void TEcrivainPdf::Flux(int numero, std::string_view entrees, std::string_view octets) {
  std::string comprime;
  compresseur_.Ajouter(octets, comprime);
  Commencer(numero);
  sortie_ += "<<";
  sortie_ += entrees;
  sortie_ += "/Filter/FlateDecode/Length ";
  AjouterEntier(sortie_, static_cast<int>(comprime.size()));
  sortie_ += ">>stream\n";
  sortie_ += comprime;
  sortie_ += "\nendstream\nendobj\n";
}

int TEcrivainPdf::Flux(std::string_view entrees, std::string_view octets) {
  const int numero = Reserver();
  Flux(numero, entrees, octets);
  return numero;
}

std::string TEcrivainPdf::Terminer(int catalogue, int informations) {
  const std::size_t table = sortie_.size();
  const std::string nombre = std::to_string(places_.size() + 1);
  sortie_ += "xref\n0 " + nombre + "\n0000000000 65535 f \n";
  for (const std::size_t place : places_) {
    std::array<char, 24> ligne;
    std::snprintf(ligne.data(), ligne.size(), "%010zu 00000 n \n", place);
    sortie_ += ligne.data();
  }
  sortie_ += "trailer\n<</Size " + nombre + "/Root " + Renvoi(catalogue) + "/Info " + Renvoi(informations) +
             ">>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
  return std::move(sortie_);
}
