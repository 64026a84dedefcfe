#pragma once
#include <any>

/// The numbered messages that go to a screen and come back from it.
enum class TCodeMessage {
  Enregistrer = 6024,
  Supprimer = 6025,     ///< the selected row
  Modifier = 6026,      ///< the selected row
  Nouveau = 6027,       ///< a new row
  EleveRadie = 6028,    ///< the pupil was struck off or reinstated
  EleveChange = 6029,   ///< the current pupil has changed
  ClasseChange = 6030,  ///< the current class has changed
  Imprimer = 6032,
  ImprimerAssistant = 6033,    ///< print command of the wizard
  AssistantConfirme = 6034,    ///< the wizard's choice is confirmed
  ImplantationsChange = 6036,  ///< the sites have changed
  Courriel = 6037,             ///< send by mail
};

struct TMessage {
  TCodeMessage Code;
  std::any Charge;  ///< what the sender adds; most messages carry nothing

  /// The load when there is one of exactly this type, else null.
  template <class T>
  const T* En() const {
    return std::any_cast<T>(&Charge);
  }
};

/// What a message can be sent to.
class TComposant {
 public:
  TComposant() = default;
  TComposant(const TComposant&) = delete;
  TComposant& operator=(const TComposant&) = delete;
  virtual ~TComposant() = default;

  /// True when the number has a handler here; a component without one passes it over.
  virtual bool RecevoirMessage(const TMessage& /*message*/) { return false; }
};
