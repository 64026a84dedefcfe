#include "core/ligne.h"

using namespace Qt::StringLiterals;

void TLigne::Poser(const char* colonne, const QVariant& valeur) {
  colonnes_.emplace_back(colonne);
  valeurs_.push_back(valeur);
}

void TLigne::Ecrire(const char* colonne, const QString& texte) {
  // A null QString would travel as NULL.
  Poser(colonne, texte.isNull() ? u""_s : texte);
}

// The driver takes decimals as doubles; ten-thousandths divided once are exact both ways.
void TLigne::Ecrire(const char* colonne, Currency montant) { Poser(colonne, montant.EnEuros()); }

void TLigne::EcrireDate(const char* colonne, TDateTime date) {
  Poser(colonne, date == 0.0 ? QVariant() : QVariant(DateVersQt(date)));
}

void TLigne::EcrireHeure(const char* colonne, TDateTime heure) {
  if (heure == 0.0)
    EcrireNul(colonne);
  else
    EcrireHeureDue(colonne, heure);
}

void TLigne::EcrireHeureDue(const char* colonne, TDateTime heure) { Poser(colonne, HeureVersQt(heure)); }

void TLigne::Vider() {
  colonnes_.clear();
  valeurs_.clear();
}
