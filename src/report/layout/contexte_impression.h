#pragma once
#include "core/dates.h"
#include "report/layout/document_prepare.h"
#include "report/layout/etat_objets.h"
#include "report/rapport.h"

/// What a run is told besides the report.
struct TImpression {
  TDateTime Instant = 0.0;        ///< of [Date], DATE and TIME; 0 leaves them empty
  bool SignetsParClasse = false;  ///< bookmarks stand under those of the value `Classe`
};

/// Where the walk stands, for the engine's own names.
struct TCompteurs {
  int Ligne = 0;        ///< LINE# and CURRENT#: row of the data band, from 1 under each parent
  int LigneTotale = 0;  ///< LINETHROUGH#: row of the data band, from 1 in the whole report
  int Page = 1;
};

/// Stand for numbers that are known only when all pages are there.
constexpr QChar kMarquePage(0xE000);
constexpr QChar kMarqueTotal(0xE001);
/// Stands for the column in which a cell comes to stand.
constexpr QChar kMarqueColonne(0xE002);

/// One run of a template on a report: who answers names, runs scripts and gathers faults.
class TContexteImpression {
 public:
  /// All must outlive it.
  TContexteImpression(const TRapport& rapport, const TModele& modele, const TImpression& impression,
                      std::vector<TDefaut>& defauts);
  TContexteImpression(const TContexteImpression&) = delete;
  TContexteImpression& operator=(const TContexteImpression&) = delete;

  /// The value of a name in a text: numbers of pages and of cells' columns are marks.
  QString Valeur(const QString& nom) const;
  /// Runs a procedure, "" for none; what goes wrong is a fault of the band.
  void Appeler(const QString& procedure, const QString& sender, const TBandeModele& bande);
  /// The same fault is kept once. An object without a name is known by its line in the template.
  void Noter(const TBandeModele& bande, const TObjetModele& objet, const QString& message);
  void Noter(const TBandeModele& bande, const QString& objet, const QString& message);

  const TRapport& Rapport;
  const TModele& Modele;
  const TImpression Impression;
  TPosition Position;
  TCompteurs Compteurs;
  bool EnCellule = false;  ///< the band in hand is a cell of a page of several columns
  TEtatObjets Etats;

 private:
  /// A name of the engine; none when it is not one.
  std::optional<QString> ValeurMoteur(QStringView nom, bool marques) const;
  QString Chercher(const QString& nom, bool marques) const;

  std::vector<TDefaut>& defauts_;
  std::optional<TExecution> execution_;
};
