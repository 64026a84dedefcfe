#pragma once
#include <set>

#include "documents/resultat.h"
#include "forms/form.h"
#include "forms/grille.h"

/// "Ce qui manque": by pupil, what a document lacks, before it is shown. The others are printed, or the user
/// goes to the record, or to the school's screen, to see to it. Modal.
class TFrmManques : public TForm {
 public:
  /// `avecChamps`: something leads to the record. `resultat` must outlive it.
  TFrmManques(const TResultat& resultat, bool avecChamps);

  /// "Ce qui manque", with the year whose incomes a tax paper tells.
  QString Titre() const;
  /// "2 élèves ne sont pas imprimés tant qu'il manque ceci :", what the other rows are, or that all is
  /// printed all the same.
  const QString& Texte() const { return texte_; }
  /// There is a document for the others.
  bool Imprimable() const { return !resultat_.Rapports.empty(); }
  /// There is a row that leads somewhere.
  bool AvecChamps() const { return menent_; }
  /// The current one does.
  bool PeutAller() const;
  /// "Imprimer les autres"; "Imprimer" when nobody is left out.
  QString LibelleImprimer() const;
  TGrille Grille;  ///< a row each, with its place among them

  /// Goes on without what is missing.
  void btnImprimerClick() { Valider(); }
  /// "Aller à la fiche", of the current row; nothing for one of the school that no field mends.
  void btnAllerClick();
  /// What the user wants to see to; null for none.
  const TManque* Choisi() const { return choisi_; }

 private:
  void Valider();
  QString Resume() const;
  static bool Mene(const TManque& manque);
  int Etat(const TManque& manque) const;
  /// Of the pupil of that row nothing is printed.
  bool SansDocument(const TManque& manque) const;

  const TResultat& resultat_;
  std::set<int> sans_;   ///< who is not printed
  int premier_ = -1;     ///< the first row that leads to a record
  bool menent_ = false;  ///< some row leads somewhere
  QString texte_;
  const TManque* choisi_ = nullptr;
};
