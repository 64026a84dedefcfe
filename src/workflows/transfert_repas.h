#pragma once
#include "workflows/copie_locale.h"
#include "workflows/import_presences.h"

/// What a transfer came to.
struct TBilanTransfert {
  bool Connecte = false;
  bool PhotosCopiees = false;
  bool AImporter = false;  ///< there were meals to import
  bool Importe = false;
  bool Archive = false;    ///< the file of the imported meals has been put away
  bool HorsLigne = false;  ///< the tablet works off-line again; else it has stayed connected
  int Lignes = 0;          ///< of the file
  int Bons = 0;            ///< records, also those that a meal brings with it
  int Anomalies = 0;
  int Repas = 0;         ///< meals stored
  int DejaNotes = 0;     ///< meals that were known
  QStringList Couverts;  ///< meals that are not stored because of another record of that day: who, which day
};

/// The transfer of the tablet, without a window: the meals noted go into the presences, and the copy of the
/// pupils is renewed. It may be killed anywhere: no meal is lost, and the next start is off-line.
class TTransfertRepas {
 public:
  explicit TTransfertRepas(TControleur& controleur) : controleur_(controleur), import_(controleur) {}

  /// The whole run. An exception ends it with the file of meals as it was and the tablet connected, or
  /// off-line when the server is gone.
  TBilanTransfert Executer();

  /// The analysis is made, and the question about its anomalies comes next.
  std::function<void(const TBilanTransfert&)> SurAnalyse;
  const std::vector<TAnomalie>& Anomalies() const { return import_.Anomalies(); }

 private:
  void Transferer(TBilanTransfert& bilan);
  bool Synchroniser();
  void ImporterRepas(TBilanTransfert& bilan);
  bool AccepterAnomalies() const;
  void CompterEcartes(TBilanTransfert& bilan) const;
  bool AccepterHorsAnnee() const;

  TControleur& controleur_;
  TImportPresences import_;
};

/// Writes the local copy of the pupils of the year on display (`Globals`). Damaged pictures are left out,
/// after a message. Raises Exception.
void CopierEleves(const TFichiersTablette& fichiers, bool avecPhotos, IDialogues& dialogues);

/// Why a line is not stored.
QString RaisonAnomalie(const TAnomalie& anomalie);
/// Whose meal, of which day, and why it is not stored.
QString TexteAnomalie(const TAnomalie& anomalie);
