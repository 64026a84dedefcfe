#pragma once
#include <QImage>
#include <array>
#include <functional>
#include <optional>

#include "report/noeud_rapport.h"

class TGrille;

/// Where a report stands while it is printed.
struct TPosition {
  int Curseur = 0;  ///< index of the current node in flat order
  int Colonne = 0;  ///< record number of the column data set, from 0
};

/// What a document hands to the report engine: a template's name, variables of the document, and either
/// a tree of at most three levels or the columns of a list. It answers every name that the template asks
/// for, and lives for one document.
class TRapport {
 public:
  /// A node in flat order: depth first, a node before its children.
  struct TPlace {
    const TNoeudRapport* Noeud;
    int Niveau;  ///< 0 to 2
    int Parent;  ///< index in flat order; -1 at level 0
  };
  using TChargeurPhoto = std::function<void(const QString& identifiant, QImage& photo)>;
  static constexpr int kColonnesMax = 50;

  /// The first variable is `NomRapport`, with the title.
  TRapport(const QString& titre, const QString& modele);
  TRapport(TRapport&&) = default;
  TRapport& operator=(TRapport&&) = default;

  const QString& Titre() const { return titre_; }
  const QString& Modele() const { return modele_; }
  /// What the user knows the document by: it names the preview and its files.
  const QString& Intitule() const { return NomUsuel.isEmpty() ? titre_ : NomUsuel; }

  /// A second call with the same name replaces the value.
  void AjouterVariable(QStringView nom, const QString& valeur) { variables_.Ecrire(nom, valeur); }
  /// Removes every variable, `NomRapport` too.
  void EffacerVariables() { variables_.Vider(); }
  const TValeurs& Variables() const { return variables_; }

  /// Replaces the tree; what lies below level 2 is no part of a report and is left out of the flat order.
  void CopierArbre(TArbreRapport arbre);
  const TArbreRapport& Arbre() const { return arbre_; }
  const std::vector<TPlace>& Plat() const { return plat_; }

  /// Column mode, which then stays on: a root node a row, its cells under COL0, COL1 and so on. Raises
  /// Exception for more than `kColonnesMax` columns.
  void ChargerColonnesListe(const TGrille& liste);
  /// The same, but an empty cell holds a single blank, and a positive `colonneCachee` counts for one
  /// column less and keeps that column's title and width cleared.
  void ChargerColonnesGrille(const TGrille& grille, int colonneCachee = 0);
  bool ModeColonnes() const { return modeColonnes_; }
  int NombreColonnes() const { return nombreColonnes_; }

  /// The value of a name that the template asks for: empty when no one knows it, none when it is not
  /// answered here because it belongs to the engine or to the template's script.
  std::optional<QString> Valeur(QStringView nom, TPosition position) const;
  /// The picture for an object of the template; none when the object keeps the one it has.
  std::optional<QImage> Image(QStringView objet, TPosition position) const;

  /// {"modele", "variables": {}, "arbre": [{"texte", "valeurs": {}, "enfants": []}]}, in order, UTF-8.
  QByteArray EnJson() const;

  /// Where it is not the title.
  QString NomUsuel;
  /// What the office has to know before it prints; French. They stand among the faults of the pages.
  QStringList Avertissements;
  /// Goes before the logo of the template unless it is null.
  QImage Logo;
  /// Fills the picture of the photo with that identifier; may be empty.
  TChargeurPhoto ChargeurPhoto;

 private:
  template <class TCellule>
  void ChargerColonnes(const TGrille& grille, TCellule cellule);
  void Indexer(const TNoeudRapport& noeud, int niveau, int parent);
  QString ValeurColonne(QStringView nom, TPosition position) const;
  QString ValeurArbre(QStringView nom, int curseur) const;

  QString titre_;
  QString modele_;
  TValeurs variables_;
  TArbreRapport arbre_;
  std::vector<TPlace> plat_;
  bool modeColonnes_ = false;
  std::array<int, kColonnesMax> largeursColonnes_{};
  std::array<QString, kColonnesMax> titresColonnes_;
  int nombreColonnes_ = 0;
  int largeurColRef_ = 0;
};
