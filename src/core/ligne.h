#pragma once
#include <QByteArray>
#include <QString>
#include <QVariant>
#include <vector>

#include "core/currency.h"
#include "core/dates.h"

/// The columns that a save writes for one object, in the order in which they were given.
class TLigne {
 public:
  void Ecrire(const char* colonne, int valeur) { Poser(colonne, valeur); }
  /// An empty text is written as such, not as NULL.
  void Ecrire(const char* colonne, const QString& texte);
  void Ecrire(const char* colonne, Currency montant);
  void EcrireNul(const char* colonne) { Poser(colonne, {}); }
  /// 1 or 0.
  void EcrireOuiNon(const char* colonne, bool vrai) { Poser(colonne, vrai ? 1 : 0); }
  /// 1 or NULL.
  void EcrireDrapeau(const char* colonne, bool vrai) { Poser(colonne, vrai ? QVariant(1) : QVariant()); }
  /// A key, NULL below 1.
  void EcrireReference(const char* colonne, int cle) { Poser(colonne, cle > 0 ? QVariant(cle) : QVariant()); }
  /// NULL for 0.
  void EcrireDate(const char* colonne, TDateTime date);
  /// NULL for 0: no time.
  void EcrireHeure(const char* colonne, TDateTime heure);
  /// 0 is midnight; for the columns that forbid NULL.
  void EcrireHeureDue(const char* colonne, TDateTime heure);

  const std::vector<QByteArray>& Colonnes() const { return colonnes_; }
  const std::vector<QVariant>& Valeurs() const { return valeurs_; }
  void Vider();

 private:
  void Poser(const char* colonne, const QVariant& valeur);

  std::vector<QByteArray> colonnes_;
  std::vector<QVariant> valeurs_;
};
