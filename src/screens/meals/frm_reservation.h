#pragma once
#include "forms/grille.h"
#include "meals/generation_repas.h"
#include "screens/contexte_ecran.h"
#include "screens/meals/jour_ecran.h"
#include "workflows/reservation.h"

/// "Réservation": what each pupil of a class eats on a day. Each click is stored at once.
class TFrmReservation : public TForm {
 public:
  explicit TFrmReservation(TContexteEcran& contexte) : TFrmReservation(contexte, GenerationRepas(false)) {}

  const TGenerationRepas& Generation() const { return generation_; }

  // Class and day.
  QStringList Classes() const { return ChoixDeClasses(); }
  /// 0 for "Choisissez votre classe".
  int IndiceClasse() const { return classe_; }
  void cmbClasseChange(int indice);
  QString TitreJour() const { return jour_.Titre(); }
  /// Teachers order for today only.
  bool DatesVisibles() const;
  void btnReculeDateClick() { ChangerJour(&TJourEcran::Reculer); }
  void btnAvanceDateClick() { ChangerJour(&TJourEcran::Avancer); }

  // The grid: names, then the columns of the generation. The object of a row is its
  // pupil, state 1 for one who has left.
  TGrille Grille;
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
  /// What the letters stand for.
  QString LegendeMois() const;

  std::vector<TCompteurRepas> Compteurs() const;

  // The pupil in hand.
  QString NomEleve() const;
  QString TexteSolde() const;
  /// Nothing is missing: the text is green, else red.
  bool SoldeSuffit() const;

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override { return code == TCodeMessage::Imprimer; }
  QString EnSuspens() const override;

 protected:
  TFrmReservation(TContexteEcran& contexte, const TGenerationRepas& generation);
  void FormShow() override;
  bool FormCloseQuery() override;

 private:
  TClasse* Classe() const;
  TEleve* Courant() const;
  void ChangerJour(void (TJourEcran::*pas)());
  void Relire();
  void Remplir();
  TCellules Cellules(const TEleve& eleve) const;
  void EcrireLigne(int ligne);
  void Repeter(TDateTime source);
  void Imprimer();

  TContexteEcran& contexte_;
  const TGenerationRepas& generation_;
  TGrilleCommandes commandes_;
  TJourEcran jour_;
  int classe_ = 0;
};

/// The second generation: hot meal, soup and sandwich, paid from the meal account.
class TFrmReservation2 : public TFrmReservation {
 public:
  explicit TFrmReservation2(TContexteEcran& contexte) : TFrmReservation(contexte, GenerationRepas(true)) {}
};
