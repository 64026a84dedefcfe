#pragma once
#include <QImage>

#include "documents/periode.h"
#include "screens/documents/imprimeur.h"
#include "screens/pupils/fiche_eleve.h"
#include "screens/pupils/frais_paiements.h"
#include "screens/pupils/releve_mensuel.h"

/// The record of the selected pupil: who it is, its photo, month by month, its services of a month, its
/// fees and payments; and the documents of the pupils. It shows and prints: nothing is changed on it.
class TFrmSignaletique : public TForm {
 public:
  explicit TFrmSignaletique(const TContexteEcran& contexte);
  /// EleveChange, Imprimer, Courriel, AssistantConfirme.
  bool RecevoirMessage(const TMessage& message) override;

  /// False before the first pupil and when the one on display went with its year.
  bool AvecEleve() const { return avecEleve_; }
  const TFicheEleve& Fiche() const { return fiche_; }
  /// A null picture without a photo.
  const QImage& Photo() const { return photo_; }
  const std::array<TGroupeMois, 3>& Mois() const { return mois_; }
  Currency Solde() const { return Frais.Solde; }
  /// In a word: "À payer".
  TEtatGrille EtatSolde() const;

  // Outside activities.
  bool ActivitesExtVisibles() const { return !titreActivitesExt_.isEmpty(); }
  const QString& TitreActivitesExt() const { return titreActivitesExt_; }
  /// Monday to Friday.
  const std::array<bool, 5>& JoursActivite() const { return joursActivite_; }
  /// The year has activities, so that there is something to say of those of the pupil.
  bool ActivitesVisibles() const { return activitesVisibles_; }
  /// "Judo (lundi, jeudi), Chorale (mardi)"
  const QString& Activites() const { return activites_; }

  // The month of the list, 0 for September to 9 for June.
  static QStringList NomsMois();
  int IndiceMois() const { return indiceMois_; }
  void cmbMoisChange(int indice);
  /// Instead of a list without a row: "Aucun relevé en novembre"; else "".
  QString TexteSansReleve() const;

  /// The last request was for mail, which offers fewer titles. Nothing is sent yet.
  bool DemandeCourriel() const { return courriel_; }
  /// The user tries to change something: hears that a pupil must be chosen, or why it cannot be done.
  void ModificationDemandee();

  TReleveMensuel Releve;
  TFraisPaiements Frais;

 protected:
  void FormShow() override;

 private:
  void PrendreEleve();
  void LireFiche(const TEleve& eleve);
  void LireActivites(const TEleve& eleve);
  void LirePhoto(const TEleve& eleve);
  void RemplirReleve(const TEleve& eleve);
  void Vider();

  const TContexteEcran& contexte_;
  TImprimeur imprimeur_;
  bool avecEleve_ = false;
  TFicheEleve fiche_;
  QImage photo_;
  std::array<TGroupeMois, 3> mois_ = GroupesMois();
  QString titreActivitesExt_;
  std::array<bool, 5> joursActivite_{};
  bool activitesVisibles_ = false;
  QString activites_;
  int indiceMois_ = 0;
  bool courriel_ = false;
};
