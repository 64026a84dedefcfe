#pragma once
#include "forms/grille.h"
#include "screens/contexte_ecran.h"
#include "screens/meals/jour_ecran.h"
#include "workflows/transfert_repas.h"

/// "Transfert": the tablet's meals go into the presences, and its copy of the pupils is renewed. It runs as
/// soon as it is seen.
class TFrmTransfertRepas : public TForm {
 public:
  explicit TFrmTransfertRepas(TContexteEcran& contexte);

  /// What is being done, or what came of it.
  const QString& Etat() const { return etat_; }
  TNiveauEtat Niveau() const { return niveau_; }
  /// A meal file was read: the two counts hold.
  bool Analyse() const { return analyse_; }
  std::vector<TCompteurRepas> Compteurs() const;
  TGrille Anomalies;  ///< what was read, and why it is not stored
  /// Runs the transfer (again).
  void btnRecommencerClick();
  bool PeutRecommencer() const { return !enCours_; }

 protected:
  void FormAffichee() override { btnRecommencerClick(); }
  bool FormCloseQuery() override { return !enCours_; }

 private:
  void Montrer(const TTransfertRepas& transfert, const TBilanTransfert& bilan);
  void Conclure(const TBilanTransfert& bilan);
  void Dire(TNiveauEtat niveau, const QString& texte);

  TContexteEcran& contexte_;
  TBilanTransfert bilan_;
  QString etat_;
  TNiveauEtat niveau_ = TNiveauEtat::Neutre;
  bool analyse_ = false;
  bool enCours_ = false;
};
