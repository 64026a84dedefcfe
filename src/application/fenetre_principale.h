#pragma once
#include <QString>

/// Pages of the command bar.
enum class TPage { PgEleve, PgParametre, pgRepas, pgRepas3, pgRepasNew };

/// Commands that a workstation may have to do without.
enum class TCommandePage { btnTicket, btnCuisine, btnComptabilite };

/// How the controller reaches the main window.
class IFenetrePrincipale {
 public:
  virtual ~IFenetrePrincipale() = default;

  virtual void MontrerPage(TPage, bool) = 0;
  virtual void ActiverPage(TPage) = 0;
  virtual void MontrerCommande(TCommandePage, bool) = 0;
  virtual void MontrerArbre(bool) = 0;
  /// While suspended, the tree's selection changes nothing.
  virtual void SuspendreArbre(bool) = 0;
  /// Rebuilds the pupil tree, pupils and struck-off pupils shown.
  virtual void ConstruireArbre() = 0;
  /// Caption of the menu of years.
  virtual void IntitulerAnnee(const QString&) = 0;
  /// Ticks the year in the menu of years.
  virtual void CocherAnnee(int) = 0;
  /// Opens the tablet's meal screen (`btnReservationTabletteClick`).
  virtual void OuvrirReservationTablette() = 0;
  /// Opens the teachers' reservation screen.
  virtual void OuvrirReservation() = 0;
  /// Frees the form in the content panel.
  virtual void FermerEcran() = 0;
  /// Tells the control that has the focus that it loses it, so that its change is saved.
  virtual void QuitterChamp() = 0;
  /// How long hints stay on screen, in milliseconds.
  virtual void DureeBulles(int) = 0;
  /// Ends the program.
  virtual void Terminer() = 0;
};

/// Where there is no window: nothing to show.
class TSansFenetre final : public IFenetrePrincipale {
 public:
  void MontrerPage(TPage, bool) override {}
  void ActiverPage(TPage) override {}
  void MontrerCommande(TCommandePage, bool) override {}
  void MontrerArbre(bool) override {}
  void SuspendreArbre(bool) override {}
  void ConstruireArbre() override {}
  void IntitulerAnnee(const QString&) override {}
  void CocherAnnee(int) override {}
  void OuvrirReservationTablette() override {}
  void OuvrirReservation() override {}
  void FermerEcran() override {}
  void QuitterChamp() override {}
  void DureeBulles(int) override {}
  void Terminer() override {}
};
