#pragma once
#include "forms/form.h"

/// Shows a modal form through its view, which is a dialog.
class FenetreModaleQt : public IFenetreModale {
 public:
  TResultatModal MontrerModal(TForm& form) override;
};
