#pragma once
#include "application/controleur.h"
#include "documents/etiquettes.h"
#include "forms/form.h"
#include "report/apercu.h"

class IAssistant;
class ILienLecteur;

/// How sure the user can be of what the status bar says.
/// Refus: an Erreur of what the screen would not store, which the next screen takes away.
enum class TNiveauEtat { Neutre, Succes, Alerte, Erreur, Refus };

/// How a screen reaches the main window.
class ILienPrincipal {
 public:
  virtual ~ILienPrincipal() = default;

  /// Gives the main window a message that it reacts to: EleveRadie, EleveChange, ImplantationsChange.
  virtual void Envoyer(const TMessage& message) = 0;
  /// Opens the screen of the school on that field of it.
  virtual void AllerAEcole(const QString& champ) = 0;
  /// Puts that school year on display and opens the record of a pupil of it on that field, as soon as what
  /// the screen that asks is about has been done: the screen goes with its year.
  virtual void AllerAEleve(int annee, int eleveId, const QString& champ) = 0;
  /// Opens the transfer of the tablet in the place of the screen that asks, which is gone on return.
  virtual void AllerAuTransfert() = 0;
  /// The last thing done, or why it was not, for the left of the status bar.
  virtual void Etat(TNiveauEtat niveau, const QString& texte) = 0;
};

/// What every screen is given. All that it points to outlives the screens.
struct TContexteEcran {
  TControleur& Controleur;
  IFenetreModale& Modale;
  IApercu& Apercu;
  ILienPrincipal& Principal;
  IAssistant* Assistant = nullptr;   ///< the print wizard; set before the first screen opens
  ILienLecteur* Lecteur = nullptr;   ///< the hand scanner; null where there can be none
  TPosteEtiquettes Etiquettes = {};  ///< how labels are printed here; empty where they cannot be

  IDialogues& Dialogues() const { return Controleur.Dialogues(); }
};
