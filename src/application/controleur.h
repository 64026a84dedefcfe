#pragma once
#include "application/fenetre_principale.h"
#include "application/globals.h"
#include "core/data_module.h"
#include "core/horloge.h"

/// Starts the program in one of its four ways (office, teacher, tablet, off-line), loads a school
/// year into `Globals`, and switches the tablet between on-line and off-line.
class TControleur {
 public:
  /// All must outlive the controller.
  TControleur(TDataModule1& base, TReglagesPoste& reglages, IFenetrePrincipale& fenetre,
              const THorloge& horloge);

  /// The main window is shown: the whole start. An unreadable year raises EConvertError.
  void FormShow();
  /// The main window closes: pending changes are saved, then the collections are freed.
  void FormClose();

  /// Puts a year on display. When it cannot be loaded, the exception leaves the display as it was.
  void ChargerAnnee(int annee);
  /// A year chosen in the menu of years.
  void ChoisirAnnee(int annee);
  /// Reads the parameters, the working year and the tariffs if that has not been done yet. A working year
  /// that is no number raises EConvertError; the parameters are there all the same.
  void ChargerParametres();

  /// The bank movements of the year on display and of the year before, read at the first call after a
  /// year load. Raises EDistributor.
  TExtraits& Extraits();
  TExtraits& ExtraitsPrecedents();

  // A database that nobody has worked with yet.
  /// The school year that one begins with today.
  int AnneeProposee() const;
  /// A pupil is enrolled in a year, whichever it is. Raises Exception.
  bool EleveInscrit() const;
  /// That year becomes the working year, and is put on display. Raises EDistributor, EConvertError.
  void CommencerAnnee(int annee);

  /// Whether this workstation starts off-line: it says so, or a transfer was cut short, which is then over.
  bool DemarreHorsLigne();
  /// Remembers that this workstation works off-line, and closes the connection. Ends a transfer.
  void PasserHorsLigne();
  /// Begins a transfer: back to the database, with the pages of the tablet. False when no connection is
  /// had; giving up does not end the program. Raises Exception, before anything else, when the settings of
  /// this workstation cannot be written.
  bool PasserEnLigne();
  /// Ends a transfer that has failed or was refused: the workstation stays on-line.
  void AbandonnerTransfert();
  /// This workstation is a teacher's from its next start on; false when that cannot be remembered, which the
  /// user has been told.
  bool ActiverModeProfesseur();
  /// Remembers which photos this workstation has copied (parameter 115).
  void MemoriserDatePhoto();

  TDataModule1& Base() const { return base_; }
  IDialogues& Dialogues() const { return base_.Dialogues(); }
  TReglagesPoste& Reglages() const { return reglages_; }
  const THorloge& Horloge() const { return horloge_; }

 private:
  bool Connecter();
  bool Demarrer();
  void Preparer(bool pagesTablette);
  void OublierDonnees();
  bool EstUn(const QString& nom) const;
  bool EcrireReglage(const QString& nom, const QString& valeur);
  void ExigerReglage(const QString& nom, const QString& valeur);
  void PagesTablette();
  void PagesBureau();
  void PagesProfesseur();

  TDataModule1& base_;
  TReglagesPoste& reglages_;
  IFenetrePrincipale& fenetre_;
  const THorloge& horloge_;
};
