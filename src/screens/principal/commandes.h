#pragma once
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <typeindex>
#include <vector>

#include "application/fenetre_principale.h"
#include "forms/form.h"
#include "forms/panneau.h"
#include "screens/contexte_ecran.h"

/// The commands of the bar, by their handlers.
enum class TGestionnaire {
  AdvGlowButton2Click,
  AdvGlowButton7Click,
  AdvGlowButton1Click,
  btnVirementClick,
  btnCompteEleveClick,
  btnReservation2Click,
  btnClick,
  btnTicketClick,
  btnReservationClick,
  btnCuisineClick,
  btnComptabiliteClick,
  AdvGlowButton8Click,
  AdvGlowButton16Click,
  AdvGlowButton3Click,
  AdvGlowButton5Click,
  AdvGlowButton6Click,
  btnActivitesClick,
  btnTransfertRepasClick,
  btnReservationTabletteClick,
  AdvGlowButton4Click,  ///< closes the program
};

/// Commands that the screens share; the numbers are the bits of a mask.
enum class TOutil {
  btnPrint = 2,
  btnMail = 4,
  btnSave = 8,
  btnNew = 16,
  btnEdit = 32,
  btnDelete = 64,
};

/// How a screen is made and what becomes of it when another opens.
struct TEcran {
  std::type_index Classe;
  TRemplacement Remplacement;
  std::function<std::unique_ptr<TForm>(TContexteEcran&)> Creer;
};

template <class T>
TEcran Ecran(TRemplacement remplacement = TRemplacement::Libere) {
  return {typeid(T), remplacement,
          [](TContexteEcran& contexte) -> std::unique_ptr<TForm> { return std::make_unique<T>(contexte); }};
}

struct TCommandePrincipale {
  TGestionnaire Gestionnaire;
  TPage Page;
  QString Libelle;  ///< with its "&"
  QString Icone;
  /// Mask of the shared commands that its screen shows; none leaves them as they were.
  std::optional<int> Outils;
  /// The screen takes up the selected pupil as soon as it is open.
  bool PrendEleve = false;
  /// None for a screen that this version does not have.
  std::optional<TEcran> Ecran;
  bool SansAnnee = false;  ///< its screen opens also when no year could be loaded

  /// The caption without its "&".
  QString Nom() const;
};

struct TOutilPrincipal {
  TOutil Outil;
  TCodeMessage Code;
  QString Libelle;
  QString Icone;
  QString Touche;  ///< as a tip shows it
  /// Why it is off on every screen; "" when it works. Its message is answered all the same.
  QString Raison = {};
};

struct TPagePrincipale {
  TPage Page;
  QString Titre;
};

/// In the order of the bar.
std::vector<TCommandePrincipale> CommandesPrincipales();
const std::vector<TOutilPrincipal>& OutilsPrincipaux();
const std::vector<TPagePrincipale>& PagesPrincipales();
