#pragma once
#include "forms/grille.h"
#include "pupils/implantations.h"
#include "screens/parametres/champs_parametres.h"

/// "Mon école": what the documents print about the school, and the short names of its sites.
class TFrmMonEcole : public TForm {
 public:
  explicit TFrmMonEcole(TContexteEcran& contexte);

  /// "Dénomination de l'école"
  TChampsParametres Ecole;
  /// "Implantations": a row holds its TImplantation. Sites come with the pupils, none is made here.
  TGrille grdImplantation;
  /// The name of the site in hand, stored when it is left.
  TChampsDe<TImplantation> Implantation;

  bool LaisserChamp() override;
  QString EnSuspens() const override;

 protected:
  void FormShow() override;
  /// The tree takes the names of the sites.
  void FormClose() override;
  bool FormCloseQuery() override;

 private:
  void grdImplantationCellEdited();
  void RemplirImplantations();
  void MontrerImplantation();

  TContexteEcran& contexte_;
  int choisie_ = -1;
  TLiens liens_;
};
