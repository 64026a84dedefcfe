#pragma once
#include <vector>

#include "core/dates.h"
#include "core/valeur.h"

/// The columns that a save writes for one object, in the order in which they were given. Their names are
/// literals.
class TLigne {
 public:
  void Ecrire(const char* colonne, int valeur) { Poser(colonne, valeur); }
  /// An empty text is written as such, not as NULL.
  void Ecrire(const char* colonne, const QString& texte) { Poser(colonne, texte); }
  void Ecrire(const char* colonne, Currency montant) { Poser(colonne, montant); }
  /// 1 or 0.
  void EcrireOuiNon(const char* colonne, bool vrai) { Poser(colonne, vrai ? 1 : 0); }
  /// 1 or NULL.
  void EcrireDrapeau(const char* colonne, bool vrai) { Poser(colonne, vrai ? TValeur(1) : TValeur()); }
  /// A key, NULL below 1.
  void EcrireReference(const char* colonne, int cle) { Poser(colonne, cle > 0 ? TValeur(cle) : TValeur()); }
  /// NULL for 0.
  void EcrireDate(const char* colonne, TDateTime date) { Poser(colonne, DateVersQt(date)); }
  /// NULL for 0: no time.
  void EcrireHeure(const char* colonne, TDateTime heure);
  /// 0 is midnight; for the columns that forbid NULL.
  void EcrireHeureDue(const char* colonne, TDateTime heure) { Poser(colonne, HeureVersQt(heure)); }

  const std::vector<const char*>& Colonnes() const { return colonnes_; }
  const std::vector<TValeur>& Valeurs() const { return valeurs_; }
  void Vider();

 private:
  void Poser(const char* colonne, TValeur valeur);

  std::vector<const char*> colonnes_;
  std::vector<TValeur> valeurs_;
};
