#pragma once
#include <algorithm>
#include <memory>
#include <optional>

#include "core/data_set.h"
#include "core/reglages_poste.h"
#include "meals/fichier_repas.h"
#include "pupils/eleves.h"

class IDialogues;

/// The files of the tablet, in the folder of presences.
struct TFichiersTablette {
  explicit TFichiersTablette(const TReglagesPoste& reglages)
      : TFichiersTablette(DossierPresences(reglages)) {}
  /// An exchange of the copies that was cut off is ended first.
  explicit TFichiersTablette(const QString& dossier);

  QString Eleves;
  QString Classes;
  QString Photos;
  QString Repas;       ///< the meals that wait for a transfer
  QString Transferes;  ///< the lines of the last transfers, to show those of today
};

/// The rows of a local data set; 0 when there is no such file, or when it is damaged.
int NombreLignesLocales(const QString& chemin);
/// Whether the file is there, and whole.
bool CopieLisible(const QString& chemin);

/// Serving at the canteen without a database: the pupils of the last transfer, and the meals noted since.
class TServiceHorsLigne {
 public:
  /// Reads the local files. Damaged pictures are left out, after a message; what else is damaged raises
  /// Exception, and so does a folder without pupils.
  TServiceHorsLigne(const TReglagesPoste& reglages, IDialogues& dialogues);

  TEleves& Eleves() const { return *eleves_; }
  int AnneeTravail() const { return copieEleves_.AnneeTravail; }
  /// Has a line for that day.
  bool EstServi(const TEleve& eleve, TDateTime jour) const;
  /// A meal of that day is transferred already.
  bool EstTransfere(const TEleve& eleve, TDateTime jour) const;
  int NombreServis(const TClasse& classe, TDateTime jour) const;
  /// Meals that wait for a transfer.
  int NombreEnAttente() const { return repas_.NombreLignes(); }
  /// Notes the meal of the day, or takes it back: it is on the disk on return. Whether the pupil is served
  /// now. Raises Exception, and then nothing has changed.
  bool Toucher(const TEleve& eleve, TDateTime jour);
  /// The last day that was noted, transferred or not, 0 when none.
  TDateTime DernierJour() const { return std::max(repas_.DernierJour(), transferes_.DernierJour()); }
  /// The classes of the pupils by the name of their year, in order.
  std::vector<QString> Annees() const;
  /// When the pupils were copied, 0 when unknown.
  TDateTime DateTransfert() const;

 private:
  TFichiersTablette fichiers_;
  TDataSet copieEleves_;
  TDataSet copieClasses_;
  std::optional<TDataSet> photos_;
  TFichierRepas repas_;
  TFichierRepas transferes_;
  std::unique_ptr<TEleves> eleves_;  // last: it looks at the copies
};

/// Why there is nothing to serve; "" when there is. `horsLigne`: the mode of the workstation.
QString PourquoiSansService(bool horsLigne, const TReglagesPoste& reglages);
