#pragma once
#include "core/calendrier_scolaire.h"
#include "forms/champs.h"
#include "forms/grille.h"
#include "meals/tickets.h"
#include "screens/contexte_ecran.h"

/// "Compta": the tickets sold, day by day, by how they were paid.
class TFrmComptabilite : public TForm {
 public:
  explicit TFrmComptabilite(TContexteEcran& contexte);

  /// "dtDebut" and "dtFin", both included: the lists follow when one is left.
  TChamps& Champs() { return champs_; }
  /// Sets both.
  void dtChange(TDateTime debut, TDateTime fin);
  /// The sales of the period, as they are by now.
  void Actualiser();
  /// Instead of a list without a sale.
  QString Vide() const;

  // A head a day, a row a pupil.
  TGrille Versements;  ///< "Versement sur le compte"
  TGrille Comptant;    ///< "Paiement au comptant"

  bool RecevoirMessage(const TMessage& message) override;
  bool LaisserChamp() override { return champs_.QuitterTout(); }
  bool Accepte(TCodeMessage code) const override { return code == TCodeMessage::Imprimer; }

 protected:
  void FormShow() override;

 private:
  void Remplir(TGrille& grille, TPaiementTicket type) const;

  TContexteEcran& contexte_;
  TPeriode periode_;
  TChampsDe<TPeriode> champs_;
  TLien lien_;
};
