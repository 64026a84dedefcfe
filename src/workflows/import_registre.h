#pragma once
#include <QStringList>
#include <algorithm>
#include <functional>
#include <vector>

#include "application/controleur.h"
#include "core/texte_separe.h"
#include "workflows/cloture_annee.h"

/// What the transfer of a register did.
struct TBilanRegistre {
  int Lignes = 0;  ///< data rows read
  int Crees = 0;
  int Modifies = 0;
};

/// What a row of the file will do.
enum class TSortLigne { Nouveau, Modifie, Inchange, Illisible };

/// What a list says of a pupil, of the file or of the year.
struct TFicheRegistre {
  QString Matricule, Nom, Prenom;
  QString Naissance;  ///< "02/06/2010"; of the file as it stands when it is no date
  QString Classe;     ///< with its sub-class: "P3 A"
  QString Site, Responsable, Localite;
};

/// What step 2 will do, told before it is taken.
struct TEffetRegistre {
  std::vector<TSortLigne> Lignes;      ///< by data row
  std::vector<TFicheRegistre> Partis;  ///< pupils that the file no longer holds
  QStringList SansSite;                ///< pupils of the file without a site
  int Nombre(TSortLigne sort) const { return static_cast<int>(std::ranges::count(Lignes, sort)); }
};

/// Loading the pupils from an export of the school register, in two steps; a file of a new school
/// year offers the closing of the old one first.
class TImportRegistre {
 public:
  /// Needs the parameters and a year on display (`Globals`).
  explicit TImportRegistre(TControleur& controleur);

  /// Step 1: reads the file, leaves out what the filters drop, and decides about the year. True when
  /// step 2 may follow. Raises Exception for a file that cannot be read, EConvertError for one that
  /// bears no date, ECloture.
  bool Etape1(const QString& fichier);
  /// Reads every row against what the tables hold of the working year, whichever is on display; who is
  /// gone is told of the year before while nobody is enrolled yet, as after a closing. Nothing is changed.
  TEffetRegistre Effet() const;
  /// Step 2: writes each pupil and enrolment at once, then loads the working year. A malformed row
  /// raises EConvertError, which names it; the rows before it stay.
  TBilanRegistre Etape2();
  /// Forgets the file.
  void Vider();

  const TTexteSepare& Grille() const { return grille_; }
  const QString& Fichier() const { return fichier_; }
  /// With fewer pupils a file is not taken for a register, and step 2 stays closed without a word.
  static constexpr int kElevesMinimum = 9;
  /// Data rows that remain.
  int NombreEleves() const;
  /// Step 1 has accepted the file.
  bool Pret() const { return pret_; }
  /// The line of the file, from 1, behind a row of the grid.
  int NumeroLigne(int ligne) const { return numeros_[static_cast<std::size_t>(ligne)]; }
  /// The row of the grid at which step 2 stopped; 0 when it did not.
  int LigneRefusee() const { return ligneRefusee_; }
  /// Step 1 has read the file, and is about to decide about the year.
  std::function<void()> SurLecture;
  /// Step 2 has written that row of the grid, and is about to let pending events through.
  std::function<void(int)> SurLigneTransferee;

  TFicheRegistre Fiche(int ligne) const;

  /// Columns of the file, from 0; -1 is not read.
  struct TDisposition {
    int Site, Matricule, Nom, Prenom, DateNaissance, Adresse, Numero, CodePostal, Localite, DateFichier,
        Classe, SousClasse, NomResponsable, PrenomResponsable, NomResponsable2, PrenomResponsable2, Adresse2,
        Numero2, CodePostal2, Localite2;
    int Filtre;           ///< rows without " M" in this column are dropped
    bool NettoyerClasse;  ///< the class is cleaned like a house number
  };

 private:
  void Filtrer();
  bool VerifierAnnee();
  TDateTime DatePremierEleve() const;
  QString Situer(int ligne, const Exception& e);
  TSortLigne Sort(const TEleves& eleves, const TEleves& inscrits, int ligne) const;
  bool Differe(const TEleve& eleve, const TEleve& lu) const;
  bool ChangeDeClasse(const TEleve* inscrit, int ligne) const;
  std::vector<TFicheRegistre> ElevesPartis(const TEleves& inscrits) const;
  QString NomDe(int ligne) const;
  void TransfererLigne(TEleves& eleves, int ligne, TBilanRegistre& bilan);
  void RemplirEleve(TEleve& eleve, int ligne) const;
  QString Champ(int ligne, int colonne) const;
  QString Classe(int ligne) const;

  TControleur& controleur_;
  const TDisposition& disposition_;
  TTexteSepare grille_;
  std::vector<int> numeros_;  // of each row in the file
  QString fichier_;
  bool pret_ = false;
  int ligneRefusee_ = 0;
};
