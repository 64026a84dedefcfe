#pragma once
#include <QString>
#include <optional>
#include <typeindex>
#include <vector>

#include "forms/message.h"
#include "forms/signal.h"

class TForm;
class TPanneau;

/// How a modal form was closed.
enum class TResultatModal { Aucun, Valide, Annule };

/// Shows a form above all others and returns when it is closed. The desktop program answers with a
/// window, the batch program and the tests with what they want the form to do.
class IFenetreModale {
 public:
  virtual ~IFenetreModale() = default;
  virtual TResultatModal MontrerModal(TForm& form) = 0;
};

/// A screen without its widgets: what it shows are plain values, what it does are handlers. A view
/// builds the widgets, calls the handlers and follows `SurChangement`.
class TForm : public TComposant {
 public:
  /// Key of the record that the form shows in its container; none when it shows no single one.
  const std::optional<int>& Cle() const { return cle_; }
  /// Which screen this is; two forms of one class are the same screen.
  std::type_index Classe() const { return typeid(*this); }

  /// A form that stands under another one is still shown; only `Cacher` hides it.
  bool EstMontree() const { return montree_; }
  /// Runs `FormShow` unless the form is shown already.
  void Montrer();
  void Cacher();
  /// Runs `FormClose` and hides the form. False when `FormCloseQuery` refuses and nothing was done.
  bool Fermer();

  /// Parts of the screen that receive messages by themselves. They are not owned, and leave the form
  /// before they end.
  void AjouterComposant(TComposant& composant);
  void RetirerComposant(TComposant& composant);
  const std::vector<TComposant*>& Composants() const { return composants_; }

  /// What the user has not stored yet and loses when the form ends without being closed; "" for nothing.
  virtual QString EnSuspens() const { return {}; }
  /// Whether the form would let itself be closed now; it may ask the user.
  bool AccepteDeFermer() { return FormCloseQuery(); }
  /// What is typed in the field in hand is taken over, as when the hand leaves it. False when it is refused:
  /// the field keeps it, with its fault.
  virtual bool LaisserChamp() { return true; }
  /// Whether the shared command that sends this message would do something now.
  virtual bool Accepte(TCodeMessage /*code*/) const { return false; }

  /// How a modal form was answered; set before it is closed.
  TResultatModal ResultatModal = TResultatModal::Aucun;
  /// Followed by the view.
  TSignal<> SurChangement;
  /// What `Accepte` answers has changed.
  TSignal<> SurCommandes;

 protected:
  /// The form appears; its key and container are known.
  virtual void FormShow() {}
  /// The form has its view: what takes long or asks begins here, before the eyes of the user.
  virtual void FormAffichee() {}
  /// The form is about to be closed for good.
  virtual void FormClose() {}
  /// Whether the form may be closed now.
  virtual bool FormCloseQuery() { return true; }
  /// Tells the view that the values have changed.
  void Annoncer() const { SurChangement(); }

 private:
  friend class TPanneau;

  std::vector<TComposant*> composants_;
  std::optional<int> cle_;
  bool montree_ = false;
};

/// Sends the message to the form and to each of its components, in the order in which they were
/// added. True when one of them had a handler for it. A handler may add and remove components, but
/// must not end the form.
bool Diffuser(TCodeMessage code, TForm& form, std::any charge = {});
