#pragma once
#include <QSet>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <vector>

#include "forms/objet_vu.h"
#include "forms/signal.h"
#include "forms/valeur.h"

struct TColonneGrille {
  QString Titre;
  int Largeur = 100;  ///< in 1/96 inch
  TGenre Genre = TGenre::Texte;
  bool SuitEtat = false;                         ///< bold, in the colour of the state of its row
  bool Egale = false;                            ///< as wide as the others that are
  QString (*Abreger)(const QString&) = nullptr;  ///< its texts in short, for a narrow column; null for none
};

/// The colour of a state.
enum class TTon { Icone /* that of its icon */, RougeFonce, Rouge, Vert };

/// A state of the rows: a word and the name of an icon, never a colour alone.
struct TEtatGrille {
  QString Texte;
  QString Icone;
  TTon Ton = TTon::Icone;
};

struct TLigneGrille {
  TCellules Cellules;
  TObjetVu Objet;
  int Etat = 0;  ///< index into the states of the grid
  bool Coche = false;
  bool SansCase = false;  ///< nothing to tick on it
  bool Barree = false;    ///< its first cell is crossed out: who has left
  bool Tete = false;      ///< heads the rows below it, down to the next head

  /// Nothing for a cell that was never written.
  TValeurVue Valeur(int colonne) const;
};

/// A table of values: what a screen shows, sorts and filters, and what a list prints. Indexes are
/// from 0; one outside the grid is a fault of the caller, but for those that say otherwise.
/// Rows may stand in groups, each below its head; one before the first head belongs to none.
class TGrille {
 public:
  /// What has changed; `Ligne` is -1 when it is more than one row.
  struct TChangement {
    int Ligne = -1;
  };
  /// Several changes, announced as one at its end.
  class TLot {
   public:
    explicit TLot(TGrille& grille) : grille_(grille) { ++grille_.lots_; }
    ~TLot();
    TLot(const TLot&) = delete;
    TLot& operator=(const TLot&) = delete;

   private:
    TGrille& grille_;
  };

  TGrille() = default;
  explicit TGrille(std::vector<TColonneGrille> colonnes) : colonnes_(std::move(colonnes)) {}

  /// Sets the columns and removes the rows.
  void DefinirColonnes(std::vector<TColonneGrille> colonnes);
  int NombreColonnes() const { return static_cast<int>(colonnes_.size()); }
  const TColonneGrille& Colonne(int colonne) const { return colonnes_.at(static_cast<size_t>(colonne)); }
  /// The user drew the column wider or narrower.
  void ChangerLargeur(int colonne, int largeur);

  int NombreLignes() const { return static_cast<int>(lignes_.size()); }
  const TLigneGrille& Ligne(int ligne) const { return lignes_.at(static_cast<size_t>(ligne)); }
  /// What a user reads in the cell: its value as the column shows it, the word of the row's state.
  QString Texte(int ligne, int colonne) const;
  QStringList Textes(int ligne) const;

  /// Returns the index of the new row, which is the last.
  int Ajouter(TCellules cellules, TObjetVu objet = {}, int etat = 0);
  /// A head; the rows added after it are its group. Shut when the group of that name (column 0) was
  /// shut before, so that a list that is filled again keeps what the user folded.
  int AjouterTete(TCellules cellules, TObjetVu objet = {});
  bool EstFerme(int tete) const { return fermes_.contains(Nom(tete)); }
  /// The user folded or opened the group; announces nothing.
  void Fermer(int tete, bool ferme);
  /// The row behind it becomes the current one if it was, or the last.
  void Retirer(int ligne);
  /// Removes the rows; columns stay.
  void Vider();
  void Ecrire(int ligne, int colonne, TValeurVue valeur);
  void EcrireLigne(int ligne, TCellules cellules);
  void ChangerObjet(int ligne, TObjetVu objet);
  void ChangerEtat(int ligne, int etat);
  void Barrer(int ligne);
  void Cocher(int ligne, bool coche);
  void CocherTout(bool coche);
  /// The row has no box, in a grid that shows boxes.
  void OterCase(int ligne);

  /// Stable; the current row stays on its row. Rows stay in their group, groups in their order.
  void Trier(int colonne, bool croissant = true);
  /// Order of two rows by the value in that column: below 0, 0 or above 0.
  int Comparer(int a, int b, int colonne) const;
  /// The column of the states; -1 when the grid has none.
  int ColonneEtat() const;
  /// Whether a cell of the row contains each word of the text, without regard to case and accents.
  bool Contient(int ligne, const QString& cherche) const;
  /// Whether the row is not narrowed away by `Filtre`.
  bool EstVue(int ligne) const { return Filtre.isEmpty() || Contient(ligne, Filtre); }
  /// -1 when no row carries the object.
  int TrouverObjet(TObjetVu objet) const;

  /// The selected row; -1 for none.
  int LigneCourante() const { return courante_; }
  /// An index outside the grid selects none.
  void ChoisirLigne(int ligne);
  /// The row below on the screen, by its order and filter, or the one above; -1 for none.
  int Voisine(int ligne) const;
  /// A row is gone: chooses what was its neighbour, under the index that this has now.
  void ChoisirApresRetrait(int retiree, int voisine) {
    ChoisirLigne(std::min(voisine > retiree ? voisine - 1 : voisine, NombreLignes() - 1));
  }

  /// The rows are shown with check boxes.
  bool CasesACocher = false;
  std::vector<TEtatGrille> Etats;
  /// Words that the user narrows the list to, on the screen and on paper; empty for all rows.
  QString Filtre;
  TSignal<TChangement> SurChangement;
  /// Asks whoever shows it for the rows that are shown, from top to bottom; all of them until it answers.
  TSignal<std::vector<int>&> SurOrdre;
  /// The selected row is another one.
  TSignal<> SurChoix;

 private:
  QString Nom(int tete) const { return Texte(tete, 0); }
  int ComparerLignes(const TLigneGrille& a, const TLigneGrille& b, int colonne) const;
  TLigneGrille& Modifiable(int ligne) { return lignes_.at(static_cast<size_t>(ligne)); }
  void Annoncer(int ligne = -1);

  std::vector<TColonneGrille> colonnes_;
  std::vector<TLigneGrille> lignes_;
  QSet<QString> fermes_;  ///< names of the groups that the user folded
  int courante_ = -1;
  int lots_ = 0;
  bool change_ = false;
};

/// The rows in that order as a file for a spreadsheet: a head, ";" between the cells, amounts as numbers.
QString EnCsv(const TGrille& grille, const std::vector<int>& lignes, const std::vector<int>& colonnes);
