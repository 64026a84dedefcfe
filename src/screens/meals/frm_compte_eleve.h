#pragma once
#include <array>

#include "meals/repas_paiements.h"
#include "screens/meals/frm_classe_jour.h"

/// "Comptes": the meal account of each pupil of a class, and cash put on it, counted note by note. The date
/// in the heading moves the counters only: money is always today's.
class TFrmCompteEleve : public TFrmClasseJour {
 public:
  explicit TFrmCompteEleve(TContexteEcran& contexte);

  /// Gives up an open entry first.
  void cmbClasseChange(int indice) override;
  /// "Compte classe du lundi 3 octobre 2016"; "" without a class.
  QString Titre() const;
  /// Whose the list is and of when, for the name of its file: "P3 A", "octobre 2016".
  QStringList NomComptes() const;
  /// "Total reçu ce jour : 12,50 €"
  QString TotalRecu() const;

  // The panel of the pupil in hand.
  /// "Modifier le paiement" when there is one of today, else "Ajouter un paiement".
  QString TitreAjouteArgent() const;
  void btnAjouteArgentClick();
  /// Over the cash panel: money is today's, whatever the heading says.
  QString NoteMonnaie() const;
  /// The cash panel is open, and the list is shut.
  bool EnSaisie() const { return enSaisie_; }

  // The cash panel: a field a note, in the order of Coupures().
  const QString& Champ(int coupure) const { return champs_[static_cast<std::size_t>(coupure)]; }
  void edChange(int coupure, const QString& texte);
  /// The button of a note adds one.
  void btnCoupureClick(int coupure);
  QString lblTotal() const;
  /// Something was counted.
  bool btnValiderVisible() const { return compte_; }
  void btnValiderClick();
  void btnAnnulerClick();

  /// The till of today on paper: each note over all pupils.
  void ImprimerCaisse();

  QString EnSuspens() const override;

 protected:
  void FormShow() override;
  bool FormCloseQuery() override;

 private:
  TRepasPaiement* PaiementDuJour() const;
  TComptage Comptage() const;
  void ChangerJour(void (TJourEcran::*pas)()) override;
  void Vider();
  void Remplir();
  TMontantNote Solde(const TEleve& eleve) const;

  bool enSaisie_ = false;
  bool compte_ = false;
  std::array<QString, kNombreCoupures> champs_;
  TLiens liens_;
};
