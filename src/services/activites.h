#pragma once
#include <array>

#include "core/distributor.h"
#include "core/index.h"

/// An outside course held during the hours of day-care.
struct TActivite : TBaseObject {
  QString Libelle;
  TDateTime HeureDebut = 0.0;
  TDateTime HeureFin = 0.0;  ///< nothing keeps it after the start
  TDateTime DateDebut = 0.0;
  TDateTime DateFin = 0.0;  ///< included
};

/// The activities of a school year.
class TActivites : public TCollection<TActivite> {
 public:
  TActivites(TDataModule1& base, int annee);

 protected:
  void DefineQuery() override;

 private:
  int annee_;
};

/// That a pupil follows an activity, and on which weekdays.
struct TActiviteEleve : TBaseObject {
  int EleveId = 0;
  int ActiviteId = 0;
  std::array<bool, 5> FlgJours{};  ///< Monday to Friday

  /// Whether the flag of the date's weekday is set; never on a weekend.
  bool SuitLe(TDateTime date) const;
};

/// What `ActiviteEnCours` finds.
struct TActiviteEnCours {
  TActiviteEleve* Inscription = nullptr;  ///< null: nothing that day
  /// That of the row, or the last one looked at when no row was found; it may be null.
  TActivite* Activite = nullptr;
};

/// Who follows what, of all years: a row whose activity is not in `activites` has no effect.
class TActivitesEleves : public TCollection<TActiviteEleve> {
 public:
  /// `activites` must outlive the collection.
  TActivitesEleves(TDataModule1& base, const TActivites& activites);

  /// The first row of the pupil, or null.
  TActiviteEleve* ActivitesEleve(int eleve) const;
  /// The row of that pair, or null.
  TActiviteEleve* ActiviteEleveParCle(int eleve, int activite) const;
  /// The last row of the pupil whose flag of the weekday is set, whatever the dates of its activity;
  /// null when there is none.
  TActiviteEleve* ActiviteDuJour(int eleve, TDateTime date) const;
  /// The first row of the pupil whose flag of the weekday is set and whose activity takes place then.
  TActiviteEnCours ActiviteEnCours(int eleve, TDateTime date) const;
  /// Who followed an activity that was deleted follows the one that took its place, by their keys. Raises
  /// EDistributor.
  void Reprendre(int ancienne, int nouvelle);

 protected:
  void DefineQuery() override;
  void Indexer(TActiviteEleve& i) override { parEleve_.Suivre(i, i.EleveId); }
  void Desindexer(TActiviteEleve& i) override { parEleve_.Oublier(i); }

 private:
  const TActivites& activites_;
  TIndex<int, TActiviteEleve> parEleve_;
};
