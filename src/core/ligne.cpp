#include "core/ligne.h"

void TLigne::Poser(const char* colonne, TValeur valeur) {
  colonnes_.push_back(colonne);
  valeurs_.push_back(std::move(valeur));
}

void TLigne::EcrireHeure(const char* colonne, TDateTime heure) {
  Poser(colonne, heure == 0.0 ? TValeur() : TValeur(HeureVersQt(heure)));
}

void TLigne::Vider() {
  colonnes_.clear();
  valeurs_.clear();
}
