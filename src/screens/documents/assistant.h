#pragma once
#include <functional>
#include <optional>

#include "documents/catalogue.h"
#include "forms/form.h"

/// A title that the wizard offers.
struct TTitreAssistant {
  QString Titre;
  bool AvecPeriode = false;  ///< the document takes a period
  QString Empechement = {};  ///< why it cannot be made here; "" when it can
  // Of a document of a calendar year, which is then asked for in the place of a period.
  std::vector<int> Annees = {};  ///< those to choose from
  int Annee = 0;                 ///< the one at hand
  /// Whom that choice covers, in sentences.
  std::function<QString(const TChoixDocument&)> Portee = {};
};

/// What the wizard is asked for; load of ImprimerAssistant.
struct TDemandeAssistant {
  bool PageQui = true;
  std::vector<TTitreAssistant> Titres;
  bool PagePeriode = false;
  TForm* Demandeur = nullptr;  ///< gets AssistantConfirme with a TChoixDocument when asked by message
  int MoisEcran = 0;           ///< 1 to 12, the month that the screen shows; 0 for none

  /// With the who page, and with the period page when one of the titles takes a period, or a year.
  static TDemandeAssistant De(std::vector<TTitreAssistant> titres);
};

/// The print wizard as a screen sees it.
class IAssistant : public TComposant {
 public:
  /// Which document, for whom, for when; none when the user gave up.
  virtual std::optional<TChoixDocument> Demander(const TDemandeAssistant& demande) = 0;
};
