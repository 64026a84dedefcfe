#pragma once
#include <unordered_map>
#include <vector>

#include "application/controleur.h"
#include "core/texte_separe.h"
#include "forms/valeur.h"

/// A line that cannot be stored as it is.
struct TAnomalie {
  QString Matricule;                    ///< as scanned when the pupil is unknown
  std::unique_ptr<TPresence> Presence;  ///< null when the pupil is unknown: no record is made
  int TypePresence = 0;                 ///< of an unknown pupil's line, like the three below
  TDateTime Date = 0.0;
  TDateTime Entree = 0.0;
  TDateTime Sortie = 0.0;
};

/// Where a good record comes from, besides a line of the file.
enum class TOrigine { Fichier, Corrige, Derive };

/// What step 2 made of the good records.
struct TBilanPresences {
  int Memorisees = 0;
  int Doubles = 0;   ///< known already
  int Derivees = 0;  ///< of the flat rate of the day, which is counted already
};

/// A record that was not stored beside another of its day.
struct TRepasEcarte {
  int EleveId = 0;
  TDateTime Jour = 0.0;
  bool Connu = false;  ///< a meal of the day is there; else something else is, which counts instead
};

/// Bringing a file of scans in: each line becomes a record, the good ones are stored, and what is
/// wrong is shown and can be corrected. What the lists show is what is stored.
class TImportPresences {
 public:
  /// Needs a year on display (`Globals`).
  explicit TImportPresences(TControleur& controleur);

  /// Step 1 by hand: reads and analyses a file, and says so when there are anomalies. Raises
  /// Exception for a file that cannot be read, EConvertError for a malformed line, which it names;
  /// nothing has been stored then.
  void ImporterFichier(const QString& chemin);
  /// The same for the tablet's file, without a word.
  void ImporterTablette(const QString& chemin);
  /// The same for the copy of the scanner's file, which tells no site.
  void ImporterScanner(const QString& copie);
  /// Forgets the file and what was not stored of it.
  void Vider();
  /// Says that there are anomalies, if there are.
  void AnnoncerAnomalies() const;
  /// The line of the anomalies has a record, and its pupil is still there.
  bool EstCorrigible(int anomalie) const;
  /// A line of the anomalies becomes a good record with these values; it is not tested again against
  /// the tariff, and waits for step 2, also after one. False, after a message, when it cannot be corrected.
  bool Corriger(int anomalie, TTypePresence typePresence, TDateTime date, TDateTime sortie, TDateTime entree,
                const QString& codeImplantation);
  /// Step 2: stores the good records in one go, then archives the local copy.
  void Etape2();
  /// Moves a stored file into the archive under its own name, but over no file that is there. Raises
  /// Exception.
  void ArchiverSousSonNom(const QString& chemin) const;
  /// Of the last step 2.
  const TBilanPresences& Bilan() const { return bilan_; }
  /// The same as step 2 for the tablet's file, without a word; `ArchiverTablette` comes next. What another
  /// tablet has stored since the analysis is known. All of it is stored, or nothing.
  void EnregistrerTablette();
  /// The meals that the last step 2 did not store.
  const std::vector<TRepasEcarte>& Ecartes() const { return ecartes_; }
  /// Archives the tablet's file. False, after a message, when it cannot be moved: it would be read again.
  bool ArchiverTablette(const QString& chemin) const;

  const std::vector<std::unique_ptr<TPresence>>& Bons() const { return bons_; }
  const std::vector<TAnomalie>& Anomalies() const { return anomalies_; }
  TOrigine Origine(const TPresence& bon) const;
  /// A tariff counts it.
  static bool AUnTarif(const TPresence& presence);
  /// Records that are ready and not stored.
  int NombreNonMemorises() const;
  /// Anomalies of a known pupil: nobody has corrected them yet, and nothing stores them as they are.
  int NombreACorriger() const;
  /// Of the records that are ready, those whose day is not of the year on display: nobody will see them
  /// there.
  int NombreHorsAnnee() const;
  static bool EstHorsAnnee(TDateTime date);
  /// There are records to store.
  bool Pret() const { return pret_; }
  /// The site that a path stands for, "" unless parameter 113 says that there are several: the code
  /// of the first site whose name is found in the path.
  static QString SiteDuChemin(const QString& chemin);

  // What the screen counts.
  int NombreEntrees() const { return grille_.NombreLignes(); }  ///< lines of the file
  int NombreBons() const;                                       ///< good lines with a time
  int NombreAnomalies() const;                                  ///< anomalies with a time
  int NombreTotal() const { return NombreBons() + NombreAnomalies(); }

 private:
  struct TScan {
    QString Matricule;
    int TypePresence;
    TDateTime Date;
    TDateTime Heure;
    int Sens;
  };

  void Lire(const QString& chemin);
  void Analyser(const QString& site);
  TScan LireLigne(int ligne) const;
  void Classer(const TScan& scan, const QString& site, std::vector<TAnomalie>& sansTarif);
  void Ajouter(std::unique_ptr<TPresence> presence);
  void NoterEcarte(int eleve, TDateTime jour);
  void RelireJours() const;
  void Enregistrer();
  bool Archiver(const QString& fichier) const;

  TControleur& controleur_;
  TTexteSepare grille_;
  std::vector<std::unique_ptr<TPresence>> bons_;
  std::vector<TAnomalie> anomalies_;
  std::unordered_map<const TPresence*, TOrigine> origines_;  // of the good records that are not Fichier
  TBilanPresences bilan_;
  std::vector<TRepasEcarte> ecartes_;
  std::vector<const TPresence*> ajoutees_;  // by a step 2 that has not yet succeeded
  bool pret_ = false;
};

/// The day-care record that goes with a meal or a soup when the day has a flat rate; else null.
std::unique_ptr<TPresence> GarderieDuRepas(const TPresence& repas);

/// A line of the grid "Récapitulatif": name, first name, day, kind, entry, exit, register number.
TCellules LigneRecapitulatif(const TPresence& presence);
/// A line of the grid "Anomalies", in the same columns.
TCellules LigneAnomalie(const TAnomalie& anomalie);

/// "Presences-3.9.2016-7h5m0s.txt": the name under which a stored file is archived.
QString NomArchive(TDateTime moment);
