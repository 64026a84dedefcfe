#pragma once
#include <QHash>
#include <QMainWindow>
#include <QPointer>

#include "forms/panneau.h"

class BarreCommandes;
class BarreEtat;
class DialoguesQt;
class EtatVide;
class FeuilleProgression;
class Guide;
class PanneauEleves;
class QShortcut;
class QStackedWidget;
class TFrmMain;
class VueAccueil;
enum class TOutil;

/// The main window: bar above, search and tree on the left, the open screen, status bar below. It shows
/// the state of its form and makes the views of the screens in the panel.
class FenetrePrincipale : public QMainWindow {
  Q_OBJECT
 public:
  /// Both must outlive it.
  FenetrePrincipale(TFrmMain& form, DialoguesQt& dialogues);
  ~FenetrePrincipale() override;

  /// The form's start, behind the first picture of the window.
  void Demarrer();
  /// The view of the screen in front; null for none.
  QWidget* VueCourante() const;

  BarreCommandes* Barre() const { return barre_; }
  PanneauEleves* Eleves() const { return eleves_; }
  BarreEtat* Etat() const { return etat_; }
  VueAccueil* Accueil() const { return accueil_; }

 protected:
  void closeEvent(QCloseEvent* evenement) override;
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Disposer();
  void CreerTouches();
  void Touche(const QKeySequence& touche, std::function<void()> action);
  void ToucheOutil(const QKeySequence& touche, TOutil outil);
  void Suivre();
  void Actualiser();
  void ActualiserOutils();
  void ActualiserContenu();
  void SuivreEtape(TForm& form, TEtapeForm etape);
  void Montrer(TForm& form);
  QWidget* Page(QWidget* vue) const;
  void AjouterPage(QWidget* vue);
  void Progresser(int fait, int total, const QString& nom);
  void MontrerGuide();
  void MontrerTouches();
  void MontrerAPropos();
  void ZoneSuivante(int sens);
  void DonnerFoyer(QWidget& zone);

  TFrmMain& form_;
  DialoguesQt& dialogues_;
  BarreCommandes* barre_;
  PanneauEleves* eleves_;
  QWidget* trait_;
  FeuilleProgression* feuille_;
  QStackedWidget* contenu_;
  VueAccueil* accueil_;
  QWidget* rien_;
  EtatVide* vide_;
  BarreEtat* etat_;
  QHash<TForm*, QWidget*> vues_;
  std::vector<std::pair<QShortcut*, TOutil>> touchesOutils_;
  QHash<QWidget*, QPointer<QWidget>> foyers_;  // the last focus in each zone
  QPointer<FeuilleProgression> feuilleEnCours_;
  bool foyerDuContenu_ = false;  // it was in the screen that has just gone
  bool feuilleOuverte_ = false;  // by this window, which then shuts it
  int dureeBulles_ = -1;
  QPointer<Guide> guide_;
  TLiens liens_;
};
