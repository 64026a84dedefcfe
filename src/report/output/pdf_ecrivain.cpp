#include "report/output/pdf_ecrivain.h"

#include <array>
#include <charconv>

namespace {

/// Objects in a stream; their ranks fit into one octet of the table.
constexpr std::size_t kRassembles = 200;

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
  places_.emplace_back();
  return static_cast<int>(places_.size());
}

void TEcrivainPdf::Objet(int numero, std::string_view contenu) {
  if (rassemblement_ == 0) rassemblement_ = Reserver();
  Place(numero) = {static_cast<std::size_t>(rassemblement_), rassembles_++, true};
  tableRassembles_ += std::to_string(numero) + ' ' + std::to_string(rassemblesEcrits_.size()) + ' ';
  rassemblesEcrits_ += contenu;
  rassemblesEcrits_ += '\n';
  if (rassembles_ == kRassembles) FermerRassemblement();
}

int TEcrivainPdf::Objet(std::string_view contenu) {
  const int numero = Reserver();
  Objet(numero, contenu);
  return numero;
}

void TEcrivainPdf::FermerRassemblement() {
  if (rassemblement_ == 0) return;
  Flux(rassemblement_,
       "/Type/ObjStm/N " + std::to_string(rassembles_) + "/First " + std::to_string(tableRassembles_.size()),
       tableRassembles_ + rassemblesEcrits_);
  rassemblement_ = 0;
  rassembles_ = 0;
  tableRassembles_.clear();
  rassemblesEcrits_.clear();
}

void TEcrivainPdf::Flux(int numero, std::string_view entrees, std::string_view octets) {
  std::string comprime;
  compresseur_.Ajouter(octets, comprime);
  Place(numero).Ou = sortie_.size();
  AjouterEntier(sortie_, numero);
  sortie_ += " 0 obj\n<<";
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
  FermerRassemblement();
  const int table = Reserver();
  const std::size_t debut = Place(table).Ou = sortie_.size();
  std::string octets(6, '\0');  // of object 0, which is none
  for (const TPlace& place : places_) {
    octets += place.Rassemble ? '\2' : '\1';
    for (const int decalage : {24, 16, 8, 0}) octets += static_cast<char>(place.Ou >> decalage);
    octets += static_cast<char>(place.Rang);
  }
  Flux(table,
       "/Type/XRef/W[1 4 1]/Size " + std::to_string(places_.size() + 1) + "/Root " + Renvoi(catalogue) +
           "/Info " + Renvoi(informations),
       octets);
  sortie_ += "startxref\n" + std::to_string(debut) + "\n%%EOF\n";
  return std::move(sortie_);
}
