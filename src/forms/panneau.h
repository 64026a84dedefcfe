#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "forms/form.h"

/// What becomes of a form when one of another class takes its place.
enum class TRemplacement { Libere, Cache };

/// What the view of the container has to follow.
enum class TEtapeForm {
  Affichee,  ///< now at the front; its view is made when it has none
  Cachee,
  Liberee,  ///< about to end, and its view with it
};

/// The container of the main window. It owns its forms, and every one fills it. A form that is freed
/// ends at once: it does not open another in its place from one of its own handlers.
class TPanneau {
 public:
  using TFabrique = std::function<std::unique_ptr<TForm>()>;

  TPanneau() = default;
  TPanneau(const TPanneau&) = delete;
  TPanneau& operator=(const TPanneau&) = delete;
  ~TPanneau() { Vider(); }

  /// See OuvrirDansPanneau.
  TForm* Ouvrir(std::type_index classe, const TFabrique& creer, std::optional<int> cle,
                TRemplacement remplacement);

  /// The form at the front; null when none is shown.
  TForm* Courante() const;
  /// The form of this class, shown or hidden; null when there is none.
  TForm* Trouver(std::type_index classe) const;

  /// Asks every form, from the front on, whether it may go. The one that refuses comes to the front; false.
  bool AccepteDeFermer();
  /// What the forms still have to store, in words; "" for nothing. See TForm::EnSuspens.
  QString EnSuspens() const;

  /// Frees every form, the hidden ones too, without closing them: their data are about to go.
  void Vider();

  TSignal<TForm&, TEtapeForm> SurEtape;

 private:
  struct TPlace {
    std::unique_ptr<TForm> Form;
    TRemplacement Remplacement;
  };

  void Avancer(TForm& form);
  bool FaireDeLaPlace(std::optional<int> cle);
  void Liberer(TForm& form);
  void Annoncer(TForm& form, TEtapeForm etape) const;

  std::vector<TPlace> places_;  // the front is the last
};

/// Puts a form of the class T into the container; `args` go to its constructor.
///
/// A form of this class that is already there, hidden or not, comes to the front and nothing else
/// happens. Otherwise each form of another class is closed and freed, or only hidden if it was opened
/// with `TRemplacement::Cache`; one that already shows the record `cle` stays as it is. Then the new
/// form is made, given the key and shown. Null when a form refused to close: it comes to the front,
/// and nothing is opened.
template <class T, class... Args>
T* OuvrirDansPanneau(TPanneau& panneau, std::optional<int> cle, TRemplacement remplacement, Args&&... args) {
  const auto creer = [&]() -> std::unique_ptr<TForm> {
    return std::make_unique<T>(std::forward<Args>(args)...);
  };
  return static_cast<T*>(panneau.Ouvrir(typeid(T), creer, cle, remplacement));
}
