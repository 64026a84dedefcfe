#pragma once
#include <QWidget>
#include <functional>
#include <vector>

#include "forms/signal.h"

class CadreEleve;
class EtatVide;
class Etiquette;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QTimer;
class QVBoxLayout;
class TEleve;
class TFrmPresenceRepas;

/// The tablet: years or classes on the left, the pupils of a class as large frames to tap.
class VuePresenceRepas : public QWidget {
  Q_OBJECT
 public:
  VuePresenceRepas(TFrmPresenceRepas& form, QWidget* parent);

 private:
  QWidget* Gauche();
  QWidget* Droite();
  void Actualiser();
  struct TBouton {
    QString Cle;
    QString Texte;
    std::function<void()> Faire;
    bool Choisi = false;
    bool AChoisir = false;  ///< one of those of which one may be in hand
  };
  void RemplirBoutons();
  void CreerBoutons(const std::vector<TBouton>& boutons);
  void RemplirCadres();
  /// The same pupils as before: only what was noted changes, and the focus stays.
  bool MettreAJourCadres();

  TFrmPresenceRepas& form_;
  Etiquette* date_;
  Etiquette* avertissement_;
  Etiquette* attente_;
  Etiquette* transfert_;
  QLineEdit* recherche_;
  Etiquette* classe_;
  QVBoxLayout* boutons_ = nullptr;
  std::vector<std::pair<QString, QPushButton*>> boutonsMontres_;
  QScrollArea* cadres_;
  EtatVide* vide_;
  QTimer* minuterie_;
  std::vector<std::pair<TEleve*, CadreEleve*>> montres_;
  TLien lien_;
};
