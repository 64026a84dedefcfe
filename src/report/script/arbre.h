#pragma once
#include <QString>
#include <memory>
#include <vector>

#include "report/script/script.h"

// The tree of a script. Names of script variables have become places; nothing is looked up by name
// while it runs but the report's own variables and objects.

enum class TOperation {
  Litteral,
  VariableRapport,
  VariableScript,  // values
  Non,
  Oppose,  // of one operand
  Plus,
  Modulo,
  Et,
  Ou,
  Egal,
  Different,
  Inferieur,
  Superieur,
  InferieurOuEgal,
  SuperieurOuEgal
};

struct TExpression {
  TOperation Operation = TOperation::Litteral;
  int Ligne = 1;
  TValeurScript Valeur;   ///< of a literal
  QString Nom;            ///< of a report variable
  std::size_t Place = 0;  ///< of a script variable
  std::unique_ptr<TExpression> Gauche, Droite;
};

enum class TSorteInstruction { Affecter, Poser, Si, Bloc };

struct TInstructionScript {
  TSorteInstruction Sorte = TSorteInstruction::Bloc;
  int Ligne = 1;
  std::size_t Place = 0;  ///< of the script variable that is set
  QString Objet;          ///< whose property is set; "" is Sender
  TPropriete Propriete = TPropriete::Visible;
  std::unique_ptr<TExpression> Expression;  ///< the value, or the condition
  std::vector<TInstructionScript> Suite;    ///< of a block; of a condition: then, and perhaps else
};

struct TVariableScript {
  QString Nom;
  TValeurScript Initiale;  ///< its kind is the variable's for good
};

struct TProcedure {
  QString Nom;
  TInstructionScript Corps;
};

/// The name that scripts use.
QString NomPropriete(TPropriete propriete);

struct TScript::TArbre {
  std::vector<TVariableScript> Variables;
  std::vector<TProcedure> Procedures;
  std::vector<TReference> References;

  const TProcedure* Procedure(const QString& nom) const;
  /// Place of a script variable; -1 when there is none of that name.
  int Place(const QString& nom) const;
};
