#pragma once
#include "forms/champs.h"
#include "forms/grille.h"
#include "screens/contexte_ecran.h"
#include "workflows/propositions.h"
#include "workflows/repartition.h"

/// What the payments of a movement that is shared out have in common.
struct TCommunParts {
  QString Libelle;
  TTypeFamilleFrais Famille = TTypeFamilleFrais::General;
  int GroupeFraisId = 0;
};

/// "Répartir le virement": what is left of a movement between several pupils, each with an amount that can be
/// changed; a part may be left over for later. Modal.
class TFrmRepartition : public TForm {
 public:
  /// `propositions` are told beside the names. All must outlive it.
  TFrmRepartition(TContexteEcran& contexte, const TExtrait& extrait, const TCommunParts& commun,
                  const std::vector<TProposition>& propositions);

  /// "24,00 € à répartir, de DUPONT, le 05/10/2016"
  QString Titre() const;
  /// "Reste 3,00 €", "Tout est réparti" or "1,00 € de trop"
  QString TexteReste() const;
  /// More is given than there is.
  bool DeTrop() const { return Reste() < Currency(); }
  TGrille Parts;
  TGrille Eleves;  ///< those who have no part: name, class, why they may have paid

  /// The amount of the current part.
  TChamps& Champs() { return champs_; }
  /// The pupil gets a part; unless amounts were typed, all is shared out again.
  void Ajouter(TEleve& eleve);
  /// The current row of `Eleves`.
  void btnAjouterClick();
  /// The current part goes.
  void btnRetirerClick();
  /// "Selon les soldes dus"
  void btnRepartirClick();
  /// Stores the parts that are more than nothing; false, after a message, when they cannot be.
  bool btnValiderClick();

 private:
  TTableChamps<TPartVirement> Table();
  /// What nobody has of the movement.
  Currency ARepartir() const;
  Currency Reste() const;
  QString Raison(const TEleve& eleve) const;
  void Repartir();
  void Remplir(const TEleve* courant);
  void RemplirEleves();
  void MontrerPart();

  TContexteEcran& contexte_;
  const TExtrait& extrait_;
  const TCommunParts commun_;
  const std::vector<TProposition>& propositions_;
  std::vector<TPartVirement> parts_;
  bool tape_ = false;  // an amount was typed
  TChampsDe<TPartVirement> champs_;
  TLiens liens_;
};
