#include "ui/vues.h"

#include <typeinfo>
#include <vector>

#include "forms/form.h"

namespace {

struct TFabriqueVue {
  const std::type_info& Classe;
  QWidget* (*Creer)(TForm&, QWidget*);
};

template <class Form, class Vue>
[[maybe_unused]] constexpr TFabriqueVue VueDe() {
  return {typeid(Form),
          [](TForm& form, QWidget* parent) -> QWidget* { return new Vue(static_cast<Form&>(form), parent); }};
}

}  // namespace

QWidget* CreerVue(TForm& form, QWidget* parent) {
  // One line a screen: VueDe<TFrmImport, VueImport>(),
  static const std::vector<TFabriqueVue> kVues;
  for (const TFabriqueVue& vue : kVues)
    if (vue.Classe == typeid(form)) return vue.Creer(form, parent);
  return nullptr;
}
