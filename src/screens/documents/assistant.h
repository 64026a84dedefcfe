#pragma once
#include <optional>

#include "documents/catalogue.h"
#include "forms/form.h"

/// A title that the wizard offers.
struct TTitreAssistant {
  QString Titre;
  bool AvecPeriode = false;  ///< the document takes a period
  QString Empechement = {};  ///< why it cannot be made here; "" when it can
};

/// What the wizard is asked for; load of ImprimerAssistant.
struct TDemandeAssistant {
  bool PageQui = true;
  std::vector<TTitreAssistant> Titres;
  bool PagePeriode = false;
  TForm* Demandeur = nullptr;  ///< gets AssistantConfirme with a TChoixDocument when asked by message
  int MoisEcran = 0;           ///< 1 to 12, the month that the screen shows; 0 for none

  /// With the who page, and with the period page when one of the titles takes a period.
  static TDemandeAssistant De(std::vector<TTitreAssistant> titres);
};

/// The print wizard as a screen sees it.
class IAssistant : public TComposant {
 public:
  /// Which document, for whom, for when; none when the user gave up.
  virtual std::optional<TChoixDocument> Demander(const TDemandeAssistant& demande) = 0;
};
