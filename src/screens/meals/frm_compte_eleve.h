#pragma once
#include <array>

#include "forms/grille.h"
#include "meals/repas_paiements.h"
#include "screens/contexte_ecran.h"
#include "screens/meals/jour_ecran.h"

/// "Comptes": the meal account of each pupil of a class, and cash put on it, counted note by note. The date
/// in the heading moves the counters only: money is always today's.
class TFrmCompteEleve : public TForm {
 public:
  explicit TFrmCompteEleve(TContexteEcran& contexte);

  QStringList Classes() const { return ChoixDeClasses(); }
  int IndiceClasse() const { return classe_; }
  /// Gives up an open entry first.
  void cmbClasseChange(int indice);
  QString TitreJour() const { return jour_.Titre(); }
  bool DatesVisibles() const;
  void btnReculeDateClick() { ChangerJour(&TJourEcran::Reculer); }
  void btnAvanceDateClick() { ChangerJour(&TJourEcran::Avancer); }

  /// Of the class and the day of the heading.
  std::vector<TCompteurRepas> Compteurs() const;
  /// "Compte classe du lundi 3 octobre 2016"; "" without a class.
  QString Titre() const;
  /// "Total reçu ce jour : 12,50 €"
  QString TotalRecu() const;
  TGrille Grille;  ///< "Nom de l'élève", "Solde Compte"; the object of a row is its pupil

  // The panel of the pupil in hand.
  QString NomEleve() const;
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

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override { return code == TCodeMessage::Imprimer; }
  QString EnSuspens() const override;

 protected:
  void FormShow() override;
  bool FormCloseQuery() override;

 private:
  TClasse* Classe() const;
  TEleve* Courant() const;
  TDateTime Aujourdhui() const;
  TRepasPaiement* PaiementDuJour() const;
  TComptage Comptage() const;
  void ChangerJour(void (TJourEcran::*pas)());
  void Vider();
  void Remplir();
  QString TexteSolde(const TEleve& eleve) const;
  void Imprimer();

  TContexteEcran& contexte_;
  TJourEcran jour_;
  int classe_ = 0;
  bool enSaisie_ = false;
  bool compte_ = false;
  std::array<QString, kNombreCoupures> champs_;
  TLiens liens_;
};
