#include "ui/vues.h"

#include <typeinfo>
#include <vector>

#include "forms/form.h"
#include "screens/principal/frm_ajout_professeur.h"
#include "ui/principal/vue_ajout_professeur.h"

namespace {

struct TFabriqueVue {
  const std::type_info& Classe;
  QWidget* (*Creer)(TForm&, QWidget*);
};

template <class Form, class Vue>
constexpr TFabriqueVue VueDe() {
  return {typeid(Form),
          [](TForm& form, QWidget* parent) -> QWidget* { return new Vue(static_cast<Form&>(form), parent); }};
}

}  // namespace

QWidget* CreerVue(TForm& form, QWidget* parent) {
  // One line a screen: VueDe<TFrmImport, VueImport>(),
  static const std::vector<TFabriqueVue> kVues{
      VueDe<TFrmAjoutProfesseur, VueAjoutProfesseur>(),
  };
  for (const TFabriqueVue& vue : kVues)
    if (vue.Classe == typeid(form)) return vue.Creer(form, parent);
  return nullptr;
}
