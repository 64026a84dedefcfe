#pragma once
#include "forms/arbre.h"
#include "meals/generation_repas.h"
#include "screens/documents/imprimeur.h"
#include "screens/meals/jour_ecran.h"
#include "workflows/fiche_imprimee.h"

/// "Cuisine": what each class has ordered for a day, and the two sheets of the kitchen.
class TFrmCuisine : public TForm {
 public:
  explicit TFrmCuisine(TContexteEcran& contexte) : TFrmCuisine(contexte, GenerationRepas(false)) {}

  const TGenerationRepas& Generation() const { return generation_; }
  /// "Récapitulatif du lundi 03/10", after a step "Préparations du lundi 3 octobre".
  const QString& Titre() const { return titre_; }
  /// A class a node, a line for each kind that it eats.
  TArbre Arbre;
  int lblRepas() const { return jour_.Repas; }
  int lblSandwiches() const { return jour_.Sandwichs; }
  int lblDagobert() const { return jour_.Dagos; }
  /// "3 commandes incomplètes : ..."; "" when all can be made. The second generation has no fillings.
  QString NoteIncompletes() const;
  /// What has changed since the sheet of that day was printed or exported on this workstation; "" when
  /// nothing has, or none was.
  QString NoteChangements() const;

  void btnReculeDateClick() { ChangerJour(&TJourEcran::Reculer); }
  void btnAvanceDateClick() { ChangerJour(&TJourEcran::Avancer); }
  /// "Actualiser": orders are read afresh.
  void AdvGlowButton1Click();

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override { return code == TCodeMessage::Imprimer; }

 protected:
  TFrmCuisine(TContexteEcran& contexte, const TGenerationRepas& generation);
  void FormShow() override;

 private:
  void ChangerJour(void (TJourEcran::*pas)());
  void Recapituler();
  void NoterImpression();

  TContexteEcran& contexte_;
  const TGenerationRepas& generation_;
  TImprimeur imprimeur_;
  TJourEcran date_;
  TJourCuisine jour_;
  TContenuDeFiche contenu_;
  QString titre_;
  TFicheImprimee aImprimer_;  ///< what the sheet in hand says, whatever the screen shows by then
  TFicheImprimee imprimee_;
};

/// The second generation: the same day under its own words.
class TFrmCuisine2 : public TFrmCuisine {
 public:
  explicit TFrmCuisine2(TContexteEcran& contexte) : TFrmCuisine(contexte, GenerationRepas(true)) {}
};
