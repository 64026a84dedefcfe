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

/// What a script may set of a band or an object.
enum class TPropriete { Visible, Top, Width, Height, Color, Text, BarType };

/// What a script sees of the report that runs it.
class IHoteScript {
 public:
  virtual ~IHoteScript() = default;
  /// The value of `<Name>`.
  virtual QString Variable(const QString& nom) = 0;
  /// Sets a property of an object; `Sender` has been replaced by its name. False when there is no such
  /// object, it has no such property, or the value is of the wrong kind.
  virtual bool Poser(const QString& objet, TPropriete propriete, const TValeurScript& valeur) = 0;
};

/// A template's script, read once and run many times: global variables `My...`, and procedures that
/// bands and objects call before they are printed. Exactly the constructs that the templates need.
class TScript {
 public:
  /// Raises EScript. `premiereLigne` is the line of the file on which the text begins.
  static TScript Lire(const QString& texte, int premiereLigne = 1);
  /// Adds the variables and procedures of a further text, as of a part that templates share; `fichier`
  /// is for faults.
  void Ajouter(const QString& texte, int premiereLigne, const QString& fichier = {});
  bool ConnaitProcedure(const QString& nom) const;

  /// A named object whose property some procedure sets.
  struct TReference {
    QString Objet;
    TPropriete Propriete;
    QString Fichier;
    int Ligne;
  };
  /// In the order of the texts read.
  const std::vector<TReference>& References() const;

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
