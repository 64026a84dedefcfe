#pragma once
#include "forms/grille.h"
#include "meals/tickets.h"
#include "screens/contexte_ecran.h"

/// "Compta": the tickets sold, day by day, by how they were paid.
class TFrmComptabilite : public TForm {
 public:
  explicit TFrmComptabilite(TContexteEcran& contexte);

  TDateTime dtDebut = 0.0;
  TDateTime dtFin = 0.0;
  /// One of the two dates has changed.
  void dtChange(TDateTime debut, TDateTime fin);

  // A head a day, a row a pupil.
  TGrille Versements;  ///< "Versement sur le compte"
  TGrille Comptant;    ///< "Paiement au comptant"

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override { return code == TCodeMessage::Imprimer; }

 protected:
  void FormShow() override;

 private:
  void Remplir(TGrille& grille, TPaiementTicket type) const;

  TContexteEcran& contexte_;
};
