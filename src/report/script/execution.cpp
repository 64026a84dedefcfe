#include <cmath>

#include "core/conversions.h"
#include "report/script/arbre.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kTexteMaximum = 100'000;  // characters

}  // namespace

struct TExecution::TInterne {
  TInterne(const TScript::TArbre& a, IHoteScript& h) : arbre(a), hote(h) {
    for (const TVariableScript& variable : arbre.Variables) valeurs.push_back(variable.Initiale);
  }

  [[noreturn]] static void Refuser(int ligne, const QString& quoi) {
    throw EScript(u"ligne %1 : %2."_s.arg(ligne).arg(quoi));
  }

  const QString& Objet(const QString& nom) const { return nom.isEmpty() ? sender : nom; }

  static bool Vrai(const TExpression& e, const TValeurScript& valeur) {
    if (const bool* vrai = std::get_if<bool>(&valeur)) return *vrai;
    Refuser(e.Ligne, u"une condition est attendue"_s);
  }

  /// A text that is a number in the school's form, "-12,50", counts as one.
  static double Nombre(const TExpression& e, const TValeurScript& valeur) {
    if (const double* nombre = std::get_if<double>(&valeur)) return *nombre;
    try {
      if (const QString* texte = std::get_if<QString>(&valeur)) return StrToFloat(*texte);
    } catch (const EConvertError&) {
    }
    Refuser(e.Ligne, u"un nombre est attendu"_s);
  }

  /// A number that is joined to a text: no more decimals than it has.
  static QString Texte(const TExpression& e, const TValeurScript& valeur) {
    if (const QString* texte = std::get_if<QString>(&valeur)) return *texte;
    return QString::number(Nombre(e, valeur), 'g', 15).replace(u'.', u',');
  }

  /// A variable that doubles at each row must not take all memory.
  static QString Joindre(int ligne, const QString& gauche, const QString& droite) {
    if (gauche.size() + droite.size() > kTexteMaximum) Refuser(ligne, u"le texte devient trop long"_s);
    return gauche + droite;
  }

  TValeurScript Additionner(const TExpression& e) {
    const TValeurScript g = Evaluer(*e.Gauche), d = Evaluer(*e.Droite);
    if (std::holds_alternative<QString>(g) || std::holds_alternative<QString>(d))
      return Joindre(e.Ligne, Texte(*e.Gauche, g), Texte(*e.Droite, d));
    return Nombre(*e.Gauche, g) + Nombre(*e.Droite, d);
  }

  TValeurScript Modulo(const TExpression& e) {
    const double diviseur = std::trunc(Nombre(*e.Droite, Evaluer(*e.Droite)));
    if (diviseur == 0.0) Refuser(e.Ligne, u"« mod » par zéro"_s);
    return std::fmod(std::trunc(Nombre(*e.Gauche, Evaluer(*e.Gauche))), diviseur);
  }

  template <class T>
  static bool ComparerDe(TOperation operation, const T& g, const T& d) {
    switch (operation) {
      case TOperation::Egal:
        return g == d;
      case TOperation::Different:
        return g != d;
      case TOperation::Inferieur:
        return g < d;
      case TOperation::Superieur:
        return g > d;
      case TOperation::InferieurOuEgal:
        return g <= d;
      default:
        return g >= d;
    }
  }

  bool Comparer(const TExpression& e) {
    const TValeurScript g = Evaluer(*e.Gauche), d = Evaluer(*e.Droite);
    if (const auto* texte = std::get_if<QString>(&g))
      if (const auto* autre = std::get_if<QString>(&d)) return ComparerDe(e.Operation, *texte, *autre);
    if (const auto* vrai = std::get_if<bool>(&g))
      if (const auto* autre = std::get_if<bool>(&d)) return ComparerDe(e.Operation, *vrai, *autre);
    if (std::holds_alternative<bool>(g) || std::holds_alternative<bool>(d))
      Refuser(e.Ligne, u"deux valeurs de sortes différentes ne se comparent pas"_s);
    return ComparerDe(e.Operation, Nombre(*e.Gauche, g), Nombre(*e.Droite, d));
  }

  TValeurScript Evaluer(const TExpression& e) {
    switch (e.Operation) {
      case TOperation::Litteral:
        return e.Valeur;
      case TOperation::VariableRapport:
        return hote.Variable(e.Nom);
      case TOperation::VariableScript:
        return valeurs[e.Place];
      case TOperation::Non:
        return !Vrai(*e.Gauche, Evaluer(*e.Gauche));
      case TOperation::Oppose:
        return -Nombre(*e.Gauche, Evaluer(*e.Gauche));
      case TOperation::Plus:
        return Additionner(e);
      case TOperation::Modulo:
        return Modulo(e);
      case TOperation::Et:
        return Vrai(*e.Gauche, Evaluer(*e.Gauche)) && Vrai(*e.Droite, Evaluer(*e.Droite));
      case TOperation::Ou:
        return Vrai(*e.Gauche, Evaluer(*e.Gauche)) || Vrai(*e.Droite, Evaluer(*e.Droite));
      default:
        return Comparer(e);
    }
  }

  void Executer(const TInstructionScript& instruction) {
    switch (instruction.Sorte) {
      case TSorteInstruction::Bloc:
        for (const TInstructionScript& suite : instruction.Suite) Executer(suite);
        break;
      case TSorteInstruction::Si: {
        const std::size_t branche = Vrai(*instruction.Expression, Evaluer(*instruction.Expression)) ? 0 : 1;
        if (branche < instruction.Suite.size()) Executer(instruction.Suite[branche]);
        break;
      }
      case TSorteInstruction::Affecter: {
        TValeurScript valeur = Evaluer(*instruction.Expression);
        if (valeur.index() != valeurs[instruction.Place].index())
          Refuser(instruction.Ligne, u"« %1 » ne peut pas recevoir cette sorte de valeur"_s.arg(
                                         arbre.Variables[instruction.Place].Nom));
        valeurs[instruction.Place] = std::move(valeur);
        break;
      }
      case TSorteInstruction::Poser:
        if (!hote.Poser(Objet(instruction.Objet), instruction.Propriete, Evaluer(*instruction.Expression)))
          Refuser(instruction.Ligne, u"« %1.%2 » ne peut pas recevoir cette valeur"_s.arg(
                                         Objet(instruction.Objet), NomPropriete(instruction.Propriete)));
        break;
    }
  }

  const TScript::TArbre& arbre;
  IHoteScript& hote;
  std::vector<TValeurScript> valeurs;
  QString sender;
};

TExecution::TExecution(const TScript& script, IHoteScript& hote)
    : d_(std::make_unique<TInterne>(script.Arbre(), hote)) {}

TExecution::~TExecution() = default;

void TExecution::Appeler(const QString& procedure, const QString& sender) {
  const TProcedure* trouvee = d_->arbre.Procedure(procedure);
  if (trouvee == nullptr) throw EScript(u"la procédure « %1 » n'existe pas."_s.arg(procedure));
  d_->sender = sender;
  d_->Executer(trouvee->Corps);
}

std::optional<QString> TExecution::Variable(const QString& nom) const {
  const int place = d_->arbre.Place(nom);
  if (place < 0) return {};
  const TValeurScript& valeur = d_->valeurs[static_cast<std::size_t>(place)];
  if (const QString* texte = std::get_if<QString>(&valeur)) return *texte;
  return std::get<bool>(valeur) ? u"1"_s : u"0"_s;
}
