#pragma once
#include <QString>

/// Pages of the command bar.
enum class TPage { PgEleve, PgParametre, pgRepas, pgRepas3, pgRepasNew };

/// Commands that a workstation may have to do without.
enum class TCommandePage { btnTicket, btnCuisine, btnComptabilite };

/// How the controller reaches the main window. The batch program has none: every answer here is to
/// do nothing.
class IFenetrePrincipale {
 public:
  virtual ~IFenetrePrincipale() = default;

  virtual void MontrerPage(TPage, bool) {}
  virtual void ActiverPage(TPage) {}
  virtual void MontrerCommande(TCommandePage, bool) {}
  virtual void MontrerArbre(bool) {}
  /// While suspended, the tree's selection changes nothing.
  virtual void SuspendreArbre(bool) {}
  /// Rebuilds the pupil tree, pupils and struck-off pupils shown.
  virtual void ConstruireArbre() {}
  /// Caption of the menu of years.
  virtual void IntitulerAnnee(const QString&) {}
  /// Ticks the year in the menu of years.
  virtual void CocherAnnee(int) {}
  /// Opens the tablet's meal screen (`btnReservationTabletteClick`).
  virtual void OuvrirReservationTablette() {}
  /// Opens the teachers' reservation screen.
  virtual void OuvrirReservation() {}
  /// Frees the form in the content panel.
  virtual void FermerEcran() {}
  /// Tells the control that has the focus that it loses it, so that its change is saved.
  virtual void QuitterChamp() {}
  /// How long hints stay on screen, in milliseconds.
  virtual void DureeBulles(int) {}
  /// Ends the program.
  virtual void Terminer() {}
};
