#pragma once
#include <QString>
#include <vector>

#include "core/dates.h"

class TEleve;
class TEleves;

/// Kind of a class, told by its name.
enum class TCategorie { Autre = 0, Maternelle = 1, Primaire = 2, Personnel = 3 };

/// "M..." nursery, else holding "PROF" staff, else "P..." primary; case counts.
TCategorie CategorieDeClasse(const QString& nom);

/// A class of the year: pupils with the same class, sub-class and site. It belongs to `Eleves`.
class TClasse {
 public:
  TClasse(TEleves& eleves, QString code, QString sousClasse, QString implantation);

  int NombreEleves() const { return static_cast<int>(ListeEleves.size()); }
  /// `indice` from 0 to NombreEleves() - 1.
  TEleve& GetEleve(int indice) const { return *ListeEleves[static_cast<std::size_t>(indice)]; }
  /// "P3 A"; never empty, since the blank between the two names is always there.
  QString Libelle() const;
  TCategorie Categorie() const { return CategorieDeClasse(Libelle()); }
  /// Short name of the site, or its code when it has none.
  QString LibelleImplantation() const;

  // The orders of a day.
  int NombreRepas(TDateTime jour) const;
  /// Sandwiches and dagos.
  int NombreSandwichs(TDateTime jour) const;
  /// Pupils without an order, or with one of nothing.
  int NombreSansCommande(TDateTime jour) const;

  TEleves& Eleves;
  const QString CodeClasse;
  const QString SousClasse;
  const QString CodeImplantation;
  std::vector<TEleve*> ListeEleves;  ///< by name, in the order of French
};
