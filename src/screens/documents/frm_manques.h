#pragma once
#include "documents/resultat.h"
#include "forms/form.h"
#include "forms/grille.h"

/// "Ce qui manque": by pupil, what a document lacks, before it is shown. The others are printed, or the user
/// goes to the record to see to it. Modal.
class TFrmManques : public TForm {
 public:
  /// `imprimable`: there is a document for the others. `avecChamps`: something leads to the record.
  /// `manques` must outlive it.
  TFrmManques(const std::vector<TManque>& manques, bool imprimable, bool avecChamps);

  /// "2 élèves ne sont pas imprimés tant qu'il manque ceci :", or that all is printed all the same.
  const QString& Texte() const { return texte_; }
  bool Imprimable() const { return imprimable_; }
  bool AvecChamps() const { return avecChamps_; }
  TGrille Grille;  ///< a row each, with its place among them

  /// "Imprimer les autres"
  void btnImprimerClick() { Valider(); }
  /// "Aller à la fiche", of the current row; nothing for one of the school.
  void btnAllerClick();
  /// What the user wants to see to; null for none.
  const TManque* Choisi() const { return choisi_; }

 private:
  void Valider();

  const std::vector<TManque>& manques_;
  const bool imprimable_;
  const bool avecChamps_;
  QString texte_;
  const TManque* choisi_ = nullptr;
};
