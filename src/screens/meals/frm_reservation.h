#pragma once
#include "screens/meals/frm_classe_jour.h"
#include "workflows/reservation.h"

/// "Réservation": what each pupil of a class eats on a day. Each click is stored at once.
class TFrmReservation : public TFrmClasseJour {
 public:
  explicit TFrmReservation(TContexteEcran& contexte) : TFrmReservation(contexte, GenerationRepas(false)) {}

  void cmbClasseChange(int indice) override;

  // The grid: names, then the columns of the generation; the state says of an order that it is
  // incomplete.
  void grdEleveClickCell(int ligne, int colonne);
  /// Another row is to come into hand. False, after a message, when the row in hand must first be completed.
  bool grdEleveRowChanging(int ligne);
  /// Class and day are held by the row in hand, until its order is complete.
  bool EstVerrouillee() const { return commandes_.EstVerrouillee(); }

  // Orders as on another day, for the pupils who have none yet, each through the rules of a click.
  void CommeLaVeille();
  void CommeLaSemainePassee();
  /// "Actualiser": what other workstations have ordered.
  void Actualiser();
  /// The orders of the class over the month of the day: a column a school day, a letter an order.
  void RemplirMois(TGrille& mois) const;
  /// Whose that list is and of when, for the name of its file: "P3 A", "octobre 2016".
  QStringList NomMois() const;
  /// What the letters stand for.
  QString LegendeMois() const;

  /// Of the pupil in hand.
  QString TexteSolde() const;
  /// Nothing is missing: the text is green, else red.
  bool SoldeSuffit() const;

  QString EnSuspens() const override;

 protected:
  TFrmReservation(TContexteEcran& contexte, const TGenerationRepas& generation);
  void FormShow() override;
  bool FormCloseQuery() override;

 private:
  void ChangerJour(void (TJourEcran::*pas)()) override;
  void Relire();
  void Remplir();
  TCellules Cellules(const TEleve& eleve) const;
  int Etat(const TEleve& eleve) const;
  void EcrireLigne(int ligne);
  void Repeter(TDateTime source);

  TGrilleCommandes commandes_;
};

/// The second generation: hot meal, soup and sandwich, paid from the meal account.
class TFrmReservation2 : public TFrmReservation {
 public:
  explicit TFrmReservation2(TContexteEcran& contexte) : TFrmReservation(contexte, GenerationRepas(true)) {}
};
