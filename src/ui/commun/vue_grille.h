#pragma once
#include <QPointer>
#include <QTreeView>
#include <functional>
#include <set>

#include "forms/grille.h"
#include "ui/commun/largeurs_colonnes.h"
#include "ui/commun/mesure_textes.h"

class ChampFiltre;
class ModeleGrille;
class FiltreGrille;

/// The view of a TGrille, which outlives it. Rows are those of the grid, whatever order and filter
/// show. Groups fold by arrow, click, Left and Right; Space ticks; Ctrl+C copies the row with tabs,
/// Ctrl+Maj+C the whole with its headers. The context menu shows the actions that were added to the view,
/// then copying, filter, sort and export.
class VueGrille : public QTreeView {
  Q_OBJECT
 public:
  /// `nom` says what the list is to a screen reader. Under `ecran` (the screen's name and the list's,
  /// "Virements/Historique") the user's widths and order are kept.
  VueGrille(TGrille& grille, const QString& nom, const QString& ecran, QWidget* parent = nullptr);
  ~VueGrille() override;

  TGrille& Grille() const { return grille_; }
  /// The field filters as one types; Ctrl+F in the grid goes to it.
  void Filtrer(ChampFiltre& champ);
  /// What is told in the name of an exported file besides the list: whose it is, and of when (NomDeListe);
  /// the year on display when nothing is said.
  void DefinirNomExport(std::function<QStringList()> precisions) { precisions_ = std::move(precisions); }
  /// The column that takes the room that is left, or gives way; the widest on the left by default.
  void DefinirColonneSouple(int colonne);
  int ColonneSouple() const;
  /// What is shown: the rows of the grid from top to bottom, the columns from left to right.
  std::vector<int> LignesVues() const;
  std::vector<int> ColonnesVues() const;
  /// Both keep the same widths, whichever of them is drawn.
  static void Accorder(VueGrille& a, VueGrille& b);
  /// The column is too narrow for its texts, which all have a shorter form.
  bool EstAbregee(int colonne) const { return courtes_.contains(colonne); }
  const MesureTextes& Mesures() const { return mesures_; }
  /// The height for so many rows, its header included.
  int HauteurPour(int lignes) const;
  /// So many rows at least, which is also all that it asks for: what is left is given to it.
  void DefinirMoindre(int lignes);
  /// What the sums under the columns take, which are no narrower; 0 for a column without one.
  void DefinirSommes(std::vector<int> largeurs);
  /// The scroll bar keeps its place even when there is nothing to scroll (see PiedDeGrille).
  void GarderBarre();
  /// The row of the grid is brought into view.
  void MontrerLigne(int ligne);

  QSize sizeHint() const override;

 public slots:
  void CopierLigne();
  void CopierTout();
  /// Asks for a file and writes the rows that are shown, in their order, for a spreadsheet.
  void Exporter();
  /// To the field that filters; a list without one opens a small one over its head.
  void AllerAuFiltre();

 signals:
  /// Enter or double click on a row that is no head.
  void Activee(int ligne);
  /// Another row is current, by whomever; -1 for none.
  void Choisie(int ligne);
  /// The user ticked the box of a row.
  void Cochee(int ligne, bool coche);
  /// The grid or what the filter shows of it has changed.
  void Changee();
  /// Suppr on a row that is no head.
  void Suppression(int ligne);

 protected:
  void keyPressEvent(QKeyEvent* evenement) override;
  void drawRow(QPainter* peintre, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
  void drawBranches(QPainter* peintre, const QRect& place, const QModelIndex& index) const override;
  void currentChanged(const QModelIndex& courant, const QModelIndex& avant) override;
  void changeEvent(QEvent* evenement) override;
  void contextMenuEvent(QContextMenuEvent* evenement) override;
  void mouseDoubleClickEvent(QMouseEvent* evenement) override;
  bool viewportEvent(QEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;

 private:
  friend class PiedDeGrille;
  void SuivreGrille(int ligne);
  void SuivreChoix();
  void RemettreGroupes();
  void PoserColonnes();
  void Elargir(std::vector<TBesoinColonne>& besoins, int surplus) const;
  void Egaliser(std::vector<int>& largeurs) const;
  void RepartirPlusTard();
  void SuivreLargeurs(const VueGrille& autre);
  int LargeurMontants(int colonne) const;
  int LargeurContenu(int colonne) const;
  int MoindreContenu(int colonne) const;
  void Abreger(int colonne);
  bool EstAssezPourLeNom(int reste) const;
  std::vector<TBesoinColonne> Besoins(int place) const;
  void Repartir();
  void RetenirBientot();
  void Retenir();
  void Rappeler();
  QModelIndex IndexDe(int ligne) const;
  int LigneDe(const QModelIndex& index) const;
  QString Copie(int ligne) const;
  void CreerFiltre();

  TGrille& grille_;
  QString ecran_;
  ModeleGrille* modele_;
  FiltreGrille* filtre_;
  ChampFiltre* champ_ = nullptr;
  std::function<QStringList()> precisions_;
  QPointer<VueGrille> jumelle_;  ///< has the same widths
  MesureTextes mesures_;
  std::vector<int> sommes_;  ///< widths of the sums under the columns
  std::set<int> courtes_;    ///< columns whose texts stand in short
  int souple_ = -1;
  int rangees_ = 8;       ///< that it asks for
  bool tracees_ = false;  ///< the user has drawn a width
  mutable std::vector<TBesoinColonne>
      elargis_;  ///< as measured with rows in a view of the width placeElargie_
  mutable int placeElargie_ = -1;
  bool enCours_ = true;     ///< the view itself moves the current row, the folds or the widths
  bool aRetenir_ = false;   ///< widths or order have changed since they were kept
  bool aRepartir_ = false;  ///< the widths are to be seen to
  TLiens liens_;
};
