#pragma once
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "core/exceptions.h"

/// A value of a script: a text, a truth, or a number.
using TValeurScript = std::variant<QString, bool, double>;

/// A script that cannot be read or run: the message is French and names the line.
class EScript : public Exception {
 public:
  using Exception::Exception;
};

/// What a script sees of the report that runs it.
class IHoteScript {
 public:
  virtual ~IHoteScript() = default;
  /// The value of `<Name>`.
  virtual QString Variable(const QString& nom) = 0;
  /// Sets `Objet.Propriete`; `Sender` has been replaced by the object's name. False when there is no
  /// such object or property.
  virtual bool Poser(const QString& objet, const QString& propriete, const TValeurScript& valeur) = 0;
  /// Reads it; none when there is no such object or property.
  virtual std::optional<TValeurScript> Lire(const QString& objet, const QString& propriete) = 0;
};

/// A template's script, read once and run many times: global variables `My...`, and procedures that
/// bands and objects call before they are printed. Exactly the constructs that the templates need.
class TScript {
 public:
  /// Raises EScript. `premiereLigne` is the line of the file on which the text begins.
  static TScript Lire(const QString& texte, int premiereLigne = 1);
  /// Adds the variables and procedures of a further text, as of a part that templates share.
  void Ajouter(const QString& texte, int premiereLigne);
  bool ConnaitProcedure(const QString& nom) const;

  struct TArbre;
  const TArbre& Arbre() const { return *arbre_; }

 private:
  std::shared_ptr<TArbre> arbre_;
};

/// One run of a script: it holds the script variables, which persist from one call to the next.
class TExecution {
 public:
  /// Both must outlive it.
  TExecution(const TScript& script, IHoteScript& hote);
  ~TExecution();
  /// Raises EScript: an unknown procedure or object, or a text where a truth must be. There is no loop,
  /// so every call ends.
  void Appeler(const QString& procedure, const QString& sender);
  /// The value of a script variable as text; none when the script declares no such variable.
  std::optional<QString> Variable(const QString& nom) const;

 private:
  struct TInterne;
  std::unique_ptr<TInterne> d_;
};
