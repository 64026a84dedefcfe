#pragma once
#include "application/controleur.h"
#include "demo/ecole_exemple.h"

/// What the loading of the sample school came to.
struct TBilanChargement {
  int Eleves = 0;
  int LignesPresences = 0;  ///< lines of the scanner files
  int Anomalies = 0;        ///< of these, left aside by the analysis
  int Presences = 0;        ///< records in the table
  int Virements = 0;
};

/// Brings the sample school into an empty database the way the office would: the register and the scans
/// through the program's imports, the rest through its collections. `Globals` shows the year afterwards.
class TChargement {
 public:
  /// All must outlive the loading. The files are written to `dossier`.
  TChargement(TControleur& controleur, const TEcoleExemple& ecole, QString dossier);

  /// Raises Exception, at once when the database already has pupils.
  TBilanChargement Tout();
  /// The autumn of the year that follows the one on display: its closing, the register, the scans, and what
  /// the families pay by transfer, parents who live apart by turns. Raises Exception.
  TBilanChargement Automne();

 private:
  void Parametres();
  void Registre();
  void Inscrire(const QString& registre);
  void Reengager();
  void Sites();
  void Fiches();
  void Personnel();
  void Photos();
  void Activites();
  void Frais();
  void Marques();
  void Presences();
  void MoisPayes();
  void Virements();
  void ReleveAutomne();
  void DirePayeurs();
  void Recharger();
  void Etape(const QString& titre);
  void Releve(const std::vector<struct TMouvementBanque>& mouvements);
  TEleve& Eleve(int index) const { return *eleves_[static_cast<std::size_t>(index)]; }

  TControleur& controleur_;
  const TEcoleExemple& ecole_;
  const QString dossier_;
  std::vector<TEleve*> eleves_;  // by index of the sample
  TBilanChargement bilan_;
};
