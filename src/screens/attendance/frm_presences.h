#pragma once
#include "forms/grille.h"
#include "forms/vide.h"
#include "screens/contexte_ecran.h"
#include "workflows/import_presences.h"
#include "workflows/site_ftp.h"

/// "Présences": bringing the scans in, correcting what is wrong, storing the rest.
class TfrmPresences : public TForm {
 public:
  explicit TfrmPresences(TContexteEcran& contexte);
  ~TfrmPresences() override;

  // Step 1, by source. A malformed file raises Exception; nothing has been stored then.
  void btnImportScannerClick();
  void btnImportFTPClick();
  void Importerunfichierdeprsence1Click();
  /// Step 2: stores the good records and archives the file.
  void btnEtape2Click();
  /// Swaps the two buttons of step 1.
  void mnuImportationClick();
  /// "Corriger le relevé" on the current line of the anomalies.
  void Corrigerlerelev1Click();

  bool Etape1Active() const { return !enCours_; }
  bool Etape2Active() const { return import_.Pret(); }
  /// The button of step 1 is that of the scanner; else that of the FTP site.
  bool ScannerVisible() const { return scannerVisible_; }
  QString TitreSource() const;
  QString TitreMenuImportation() const;
  /// Also after step 2: what is corrected then waits for another one.
  bool PeutCorriger() const { return Anomalies.NombreLignes() > 0; }

  enum TColonne { Nom, Prenom, Date, Type, Entree, Sortie, Etat, Matricule };
  enum TEtatRecapitulatif { Bon, Corrige, Derive, HorsAnnee, CorrigeSansTarif };
  enum TEtatAnomalie { Aucun, Inconnu, SansTarif };
  TGrille Recapitulatif;  ///< the object of a row is its TPresence, until step 2
  TGrille Anomalies;      ///< its TPresence; none for an unknown pupil

  /// What the counters say. Only an import by hand or by the tablet fills them.
  struct TCompteurs {
    int lblEntree = 0;
    int lblRecap = 0;
    int lblAnomalie = 0;
    int lblTotal = 0;
    bool AJour = true;  ///< false: they still speak of an earlier file
  };
  const TCompteurs& Compteurs() const { return compteurs_; }
  /// "Fichier choisi : presences.txt · site Centre"
  const QString& Fichier() const { return fichier_; }
  /// A file was read since the screen was opened.
  bool FichierLu() const { return lu_; }
  QString TitreAnomalies() const;
  /// What becomes of them; "" without any.
  QString NoteAnomalies() const;
  QString NoteRecapitulatif() const;
  /// In the place of a summary without a row.
  TVide RecapitulatifVide() const;
  QString EnSuspens() const override;

 protected:
  void FormShow() override;
  bool FormCloseQuery() override;
  void FormClose() override;

 private:
  enum class TSource { Scanner, Main, Ftp };

  // The FTP site.
  void Chercher();
  void ArchiverEtEffacer();
  bool Site(void (TfrmPresences::*travail)());

  bool OuvrirLien();
  void ImporterDuLecteur();
  void RienARecuperer(const QString& texte);
  void Lire(TSource source, const QString& chemin, const QString& nom);
  void Vider();
  void Afficher();
  void CompterReleves();
  void AjouterBon(TPresence& presence);
  int EtatDe(const TPresence& bon) const;
  bool AccepteDePerdre() const;
  bool AccepteHorsAnnee() const;
  QString TexteBilan() const;
  void CompterCorrection();
  void OublierObjets(TGrille& grille);
  bool CopierDuLecteur(const QString& local);
  void EffacerDuLecteur();
  void FermerLien();
  void DireErreur(const Exception& erreur);
  void Signaler(TNiveauEtat niveau, const QString& texte);

  TContexteEcran& contexte_;
  TImportPresences import_;
  TCompteurs compteurs_;
  QString fichier_;
  QString copie_;  // the file of the device that was copied
  TSiteFtp site_;
  QString nomSite_;     // the file in hand of the site
  QString localSite_;   // where it was fetched to; "" without one
  int autresSite_ = 0;  // files that wait behind it
  TSource source_ = TSource::Scanner;
  bool scannerVisible_ = true;
  bool lienOuvert_ = false;
  bool lu_ = false;
  bool memorise_ = false;  // step 2 has been taken
  bool enCours_ = false;   // the scanner is read, and pending events are let through
};
