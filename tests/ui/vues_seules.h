#pragma once
#include "support/ecran_essai.h"
#include "ui/verifier_vue.h"
#include "ui/vues.h"

/// Screens by themselves, each in its view, over three pupils of "P1 A".
struct TVuesSeules : TEssaiEcole {
  TVuesSeules() {
    for (int i = 0; i < 3; ++i) ecole.unEleve().enClasse("P1", "A");
    ecran = std::make_unique<TEcranEssai>(base);
    Globals.ClasseCourante = &Globals.Eleves->GetClasse(0);
  }
  /// A new form each time, as it stands after that.
  template <class Form>
  void Verifier(const std::function<void(Form&)>& preparer = {}) {
    Partout([&] {
      Form form(ecran->Contexte);
      static_cast<TForm&>(form).Montrer();
      if (preparer) preparer(form);
      VerifierVue(*std::unique_ptr<QWidget>(CreerVue(form, nullptr)));
    });
  }
  /// One form, a new view each time.
  void VerifierForme(TForm& form) {
    if (!form.EstMontree()) form.Montrer();
    VerifierVuePartout([&] { return std::unique_ptr<QWidget>(CreerVue(form, nullptr)); });
  }

  std::unique_ptr<TEcranEssai> ecran;
};
