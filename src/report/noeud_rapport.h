#pragma once
#include <QString>
#include <utility>
#include <vector>

/// Named texts in the order in which they were first set. Names are matched without regard to case.
class TValeurs {
 public:
  using TValeur = std::pair<QString, QString>;

  /// Sets the text of a name; one that is there keeps its place and its spelling.
  void Ecrire(QStringView nom, const QString& valeur);
  /// Null for a name that was never set.
  const QString* Trouver(QStringView nom) const;
  /// "" for a name that was never set.
  QString Valeur(QStringView nom) const;
  void Vider() { valeurs_.clear(); }
  int Nombre() const { return static_cast<int>(valeurs_.size()); }

  auto begin() const { return valeurs_.begin(); }
  auto end() const { return valeurs_.end(); }

 private:
  std::vector<TValeur> valeurs_;
};

/// A node of a report: level 0 feeds the master band, level 1 the detail band, level 2 the subdetail
/// band. Its values are finished texts: amounts and dates are formatted by who builds the document.
struct TNoeudRapport {
  QString Texte;  ///< for the builder's own use; no band shows it
  TValeurs Valeurs;
  TValeurs Annexes;  ///< found after the values: what the paper has besides, no part of the data
  std::vector<TNoeudRapport> Enfants;

  TNoeudRapport() = default;
  explicit TNoeudRapport(QString texte) : Texte(std::move(texte)) {}

  /// A new last child. The reference holds until the next one is added.
  TNoeudRapport& Ajouter(const QString& texte) { return Enfants.emplace_back(texte); }
};

/// The nodes of level 0, in order.
using TArbreRapport = std::vector<TNoeudRapport>;

/// Removes every node of level 0 or 1 that has no children, from the last to the first, so that a node
/// whose children all go leaves with them. Level 2 stays.
void SupprimerNoeudsVides(TArbreRapport& arbre);
