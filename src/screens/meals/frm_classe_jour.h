#pragma once
#include "forms/grille.h"
#include "meals/generation_repas.h"
#include "screens/contexte_ecran.h"
#include "screens/meals/jour_ecran.h"

/// The head that meal screens share: a class, a day with its counters, and the pupil in hand.
class TFrmClasseJour : public TForm {
 public:
  const TGenerationRepas& Generation() const { return generation_; }

  QStringList Classes() const { return ChoixDeClasses(); }
  /// "P3 A"; "" before one is chosen.
  QString NomClasse() const;
  /// 0 for "Choisissez votre classe".
  int IndiceClasse() const { return classe_; }
  virtual void cmbClasseChange(int indice) = 0;
  QString TitreJour() const { return jour_.Titre(); }
  /// Teachers see today only.
  bool DatesVisibles() const;
  void btnReculeDateClick() { ChangerJour(&TJourEcran::Reculer); }
  void btnAvanceDateClick() { ChangerJour(&TJourEcran::Avancer); }
  /// Of the class and the day of the heading.
  std::vector<TCompteurRepas> Compteurs() const;

  /// The pupils of the class; the object of a row is its pupil.
  TGrille Grille;
  /// The pupil in hand; "" for none.
  QString NomEleve() const;

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override { return code == TCodeMessage::Imprimer; }

 protected:
  TFrmClasseJour(TContexteEcran& contexte, const TGenerationRepas& generation,
                 std::vector<TColonneGrille> colonnes);

  TDateTime Aujourdhui() const { return contexte_.Controleur.Horloge().Aujourdhui(); }
  /// Null before one is chosen.
  TClasse* Classe() const;
  TEleve* Courant() const;
  virtual void ChangerJour(void (TJourEcran::*pas)()) = 0;

  TContexteEcran& contexte_;
  const TGenerationRepas& generation_;
  TJourEcran jour_;
  int classe_ = 0;

 private:
  void Imprimer();
};
