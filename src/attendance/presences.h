#pragma once
#include <QSet>
#include <array>
#include <optional>

#include "attendance/activites_ext.h"
#include "attendance/index_presences.h"
#include "attendance/ligne_service.h"
#include "attendance/parametres_service.h"
#include "core/distributor.h"
#include "core/regles_ecole.h"

class TActivitesEleves;
class TPresencesParticulieres;
class TTarifsGarderies;
struct TActivite;

/// What the Wednesdays of a month come to.
struct TMercrediMois {
  int Total = 0;  ///< whole euros
  int Longs = 0;
  int Courts = 0;
};

/// The presences of a period, and what they cost. Nothing is kept of an amount: each call reads the
/// records, tariffs, activities and settings as they stand.
///
/// Pupils are given by their key, periods include both ends. The cost operations list the records
/// charged in `lignes`; an amount can be below 0. Without tariffs no day-care and no study costs
/// anything, and every record is of family Indefini.
class TPresences : public TCollection<TPresence> {
 public:
  /// `regles` must outlive the collection.
  TPresences(TDataModule1& base, const TPeriode& periode, const TReglesEcole& regles);

  const TReglesEcole& Regles;                ///< what prices follow
  const TTarifsGarderies* Tarifs = nullptr;  ///< not owned; set when a year is opened

  /// Marks a record modified; to be called after its fields have changed.
  TPresence& Add(TPresence& presence) { return TCollection::Add(presence); }
  /// The one way in for a new record, which keeps a pupil at one record a family and day. Null when
  /// it was dropped, be it that its exit has moved that of an evening already there. Does not save.
  TPresence* AjoutePresence(std::unique_ptr<TPresence> presence);
  /// Takes in what others have stored since for these days, as far as they are of the period.
  void LireNouvelles(const TPeriode& jours);
  /// The first record equal on all four, whatever its kind; or null.
  TPresence* ChercheDoublon(int eleve, TDateTime date, TDateTime entree, TDateTime sortie) const;
  /// Whether the pupil has a record of that family on that date, `exclue` (or null) left out.
  bool ExisteAutrePresence(int eleve, const TPresence* exclue, TTypeFamille famille, TDateTime date) const;
  /// The first such record, or null.
  TPresence* AutrePresence(int eleve, const TPresence* exclue, TTypeFamille famille, TDateTime date) const;
  /// In the order of the collection.
  std::vector<TPresence*> PresencesEleve(int eleve, const TPeriode& periode) const;
  /// The family of a record in the group of its kind.
  TTypeFamille FamilleDe(const TPresence& presence) const;

  // What a pupil owes for a service.
  Currency CoutGarderieMatin(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                             TLignesService& lignes) const;
  Currency CoutGarderieMidi(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                            TLignesService& lignes) const;
  /// `activites` may be null.
  Currency CoutGarderieSoir(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                            TTypeActivitesExt activitesExt, const TActivitesEleves* activites,
                            TLignesService& lignes) const;
  /// `activites` may be null.
  Currency CoutGarderieMercredi(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                                TTypeActivitesExt activitesExt, const TActivitesEleves* activites,
                                TLignesService& lignes) const;
  Currency CoutEtude(int eleve, const TPeriode& periode, bool deuxiemeEnfant, TLignesService& lignes) const;
  /// `categorie`: 1 nursery, 2 primary, 3 staff; any other eats free.
  Currency CoutRepas(int eleve, const TPeriode& periode, int categorie, TLignesService& lignes) const;
  Currency CoutSoupe(int eleve, const TPeriode& periode, TLignesService& lignes) const;

  /// End of the service for the morning and midday, which stands for a missing exit; 0 for others.
  TDateTime FinServiceMatinMidi(TTypeFamille famille) const;
  /// Start of the service for the evening, Wednesday and study, which stands for a missing entry; 0
  /// for others.
  TDateTime DebutServiceSoirEtude(TTypeFamille famille) const;
  /// Entry, or else exit (0 without either), of the pupil's first study record of the date.
  std::optional<TDateTime> HeureEtude(int eleve, TDateTime date) const;
  /// Whether the pupil has a day-care record with an entry before 10:00 on the date.
  bool ScanMatinAvantDix(int eleve, TDateTime date) const;

  // What the school's month counts, in whole euros, for a month 1 to 12 of the school year. A record
  // in the service whose stay is too short repeats the amount of the line before it.
  int ServiceSoir1(int eleve, int mois, int annee, const TPresencesParticulieres& marques,
                   TLignesService& lignes) const;
  int ServiceSoir2(int eleve, int mois, int annee, TLignesService& lignes) const;
  TMercrediMois ServiceMercredi(int eleve, int mois, int annee, TLignesService& lignes) const;
  int ForfaitMidiMois(int eleve, int mois, const TPresencesParticulieres& marques) const;
  int ForfaitEtudeMois(int eleve, int mois, const TPresencesParticulieres& marques) const;

  /// Copies the row; its two hours are read from its texts (else EConvertError).
  void SetParametreService(TLigneParametreService ligne, TParametreService parametre);
  const TParametreService& ParametreService(TLigneParametreService ligne) const {
    return tableParametreService_.at(static_cast<std::size_t>(ligne));
  }

 protected:
  void DefineQuery() override;
  static QString Selection(const TPeriode& jours);
  void Completer(TPresence& presence) override;
  void Indexer(TPresence& presence) override;
  void Desindexer(TPresence& presence) override;

 private:
  struct TAccueil;

  template <class Prix>
  Currency Facturer(int eleve, const TPeriode& periode, TTypePresence type, TTypeFamille famille,
                    TLignesService& lignes, Prix prix) const;
  Currency DeduireActivite(Currency montant, const TPresence& presence, TTypeScan scan,
                           const TAccueil& accueil) const;
  Currency SelonSortie(Currency montant, const TPresence& presence, TTypeScan scan, const TAccueil& accueil,
                       const TActivite& activite) const;
  TDateTime EntreeSoir(const TPresence& presence) const;
  template <class Condition>
  int CompterSoir(int eleve, const TPeriode& mois, int valeur, bool compte, TLignesService& lignes,
                  Condition dansLaLigne) const;
  const TIndexPresences& Index() const;

  TPeriode periode_;
  std::array<TParametreService, 5> tableParametreService_;
  QSet<QString> sites_;  // one text for all the records of a site
  mutable TIndexPresences index_;
  mutable bool indexe_ = false;
};
