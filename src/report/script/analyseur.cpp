#include <algorithm>

#include "report/script/arbre.h"
#include "report/script/lexeur.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kProfondeurMaximum = 100;

struct TMot {
  const char* signe;
  TOperation operation;
};

constexpr TMot kComparaisons[] = {{"=", TOperation::Egal},
                                  {"<>", TOperation::Different},
                                  {"<=", TOperation::InferieurOuEgal},
                                  {">=", TOperation::SuperieurOuEgal},
                                  {"<", TOperation::Inferieur},
                                  {">", TOperation::Superieur}};

constexpr std::pair<const char*, TPropriete> kProprietes[] = {
    {"Visible", TPropriete::Visible}, {"Top", TPropriete::Top},     {"Width", TPropriete::Width},
    {"Height", TPropriete::Height},   {"Color", TPropriete::Color}, {"Text", TPropriete::Text},
    {"BarType", TPropriete::BarType}};

constexpr const char* kMotsRefuses[] = {"while", "for",  "repeat", "until", "case", "goto", "function",
                                        "try",   "with", "exit",   "const", "type", "uses", "div"};

/// Recursive descent over the pieces of a script.
class TAnalyseur {
 public:
  TAnalyseur(TScript::TArbre& arbre, std::vector<TLexeme> lexemes, const QString& fichier)
      : lexemes_(std::move(lexemes)), fichier_(fichier), arbre_(&arbre) {}

  void Tout() {
    while (Ici().Sorte != TSorteLexeme::Fin) {
      if (PrendreMot("var"))
        LireVariables();
      else if (PrendreMot("procedure"))
        LireProcedure();
      else if (Ici().Est("begin"_L1))
        LireFinDeScript();
      else
        Refuser(u"« var » ou « procedure » est attendu, et non « %1 »"_s.arg(Ici().Texte));
    }
  }

 private:
  /// Counts how deep constructs stand in one another, so that no text can exhaust the stack.
  class TNiveau {
   public:
    explicit TNiveau(TAnalyseur& a) : a_(a) {
      if (++a_.profondeur_ > kProfondeurMaximum) a_.Refuser(u"le script est trop imbriqué"_s);
    }
    ~TNiveau() { --a_.profondeur_; }
    TNiveau(const TNiveau&) = delete;
    TNiveau& operator=(const TNiveau&) = delete;

   private:
    TAnalyseur& a_;
  };

  const TLexeme& Ici() const { return lexemes_[i_]; }
  TLexeme Prendre() { return lexemes_[i_ + 1 < lexemes_.size() ? i_++ : i_]; }
  bool PrendreMot(const char* mot) {
    if (!Ici().Est(QLatin1String(mot))) return false;
    ++i_;
    return true;
  }
  bool PrendreSigne(const char* signe) {
    if (!Ici().EstSigne(QLatin1String(signe))) return false;
    ++i_;
    return true;
  }
  [[noreturn]] void Refuser(const QString& quoi) const {
    throw EScript(u"ligne %1 : %2."_s.arg(Ici().Ligne).arg(quoi));
  }
  void ExigerSigne(const char* signe) {
    if (!PrendreSigne(signe))
      Refuser(u"« %1 » est attendu, et non « %2 »"_s.arg(QLatin1String(signe), Ici().Texte));
  }
  void ExigerMot(const char* mot) {
    if (!PrendreMot(mot))
      Refuser(u"« %1 » est attendu, et non « %2 »"_s.arg(QLatin1String(mot), Ici().Texte));
  }
  QString ExigerNom(const QString& quoi) {
    for (const char* mot : kMotsRefuses)
      if (Ici().Est(QLatin1String(mot)))
        Refuser(u"« %1 » n'existe pas dans les scripts des modèles"_s.arg(Ici().Texte));
    if (Ici().Sorte != TSorteLexeme::Nom) Refuser(u"il faut %1, et non « %2 »"_s.arg(quoi, Ici().Texte));
    return Prendre().Texte;
  }

  void LireVariables() {
    do {
      QStringList noms;
      do {
        const QString nom = ExigerNom(u"un nom de variable"_s);
        if (!nom.startsWith(u"My", Qt::CaseInsensitive))
          Refuser(u"le nom « %1 » doit commencer par « My »"_s.arg(nom));
        if (arbre_->Place(nom) >= 0 || noms.contains(nom, Qt::CaseInsensitive))
          Refuser(u"la variable « %1 » est déclarée deux fois"_s.arg(nom));
        noms += nom;
      } while (PrendreSigne(","));
      ExigerSigne(":");
      const TValeurScript initiale = LireType();
      ExigerSigne(";");
      for (const QString& nom : noms) arbre_->Variables.push_back({nom, initiale});
    } while (Ici().Sorte == TSorteLexeme::Nom && !Ici().Est("procedure"_L1) && !Ici().Est("var"_L1) &&
             !Ici().Est("begin"_L1));
  }

  TValeurScript LireType() {
    if (PrendreMot("string")) return u""_s;
    if (PrendreMot("boolean")) return false;
    Refuser(u"une variable est « String » ou « Boolean », et non « %1 »"_s.arg(Ici().Texte));
  }

  void LireProcedure() {
    TProcedure procedure;
    procedure.Nom = ExigerNom(u"un nom de procédure"_s);
    if (arbre_->Procedure(procedure.Nom) != nullptr)
      Refuser(u"la procédure « %1 » existe déjà"_s.arg(procedure.Nom));
    if (PrendreSigne("(")) {
      ExigerMot("Sender");
      if (PrendreSigne(":")) ExigerNom(u"un type"_s);
      ExigerSigne(")");
    }
    ExigerSigne(";");
    if (!Ici().Est("begin"_L1)) ExigerMot("begin");
    procedure.Corps = LireInstruction();
    ExigerSigne(";");
    arbre_->Procedures.push_back(std::move(procedure));
  }

  /// "begin end." closes a script, if it is there.
  void LireFinDeScript() {
    ExigerMot("begin");
    ExigerMot("end");
    ExigerSigne(".");
    if (Ici().Sorte != TSorteLexeme::Fin) Refuser(u"rien n'est attendu après « end. »"_s);
  }

  TInstructionScript LireInstruction() {
    const TNiveau niveau(*this);
    TInstructionScript instruction;
    instruction.Ligne = Ici().Ligne;
    if (PrendreMot("begin")) {
      while (!PrendreMot("end")) {
        if (PrendreSigne(";")) continue;
        instruction.Suite.push_back(LireInstruction());
        if (!Ici().Est("end"_L1)) ExigerSigne(";");
      }
      return instruction;
    }
    if (PrendreMot("if")) {
      instruction.Sorte = TSorteInstruction::Si;
      instruction.Expression = LireExpression();
      ExigerMot("then");
      instruction.Suite.push_back(LireInstruction());
      if (PrendreMot("else")) instruction.Suite.push_back(LireInstruction());
      return instruction;
    }
    return LireAffectation(std::move(instruction));
  }

  TInstructionScript LireAffectation(TInstructionScript instruction) {
    const QString nom = ExigerNom(u"une instruction"_s);
    if (PrendreSigne(".")) {
      instruction.Sorte = TSorteInstruction::Poser;
      if (nom.compare(u"Sender", Qt::CaseInsensitive) != 0) instruction.Objet = nom;
      instruction.Propriete = ExigerPropriete();
      if (!instruction.Objet.isEmpty())
        arbre_->References.push_back({nom, instruction.Propriete, fichier_, instruction.Ligne});
    } else {
      instruction.Sorte = TSorteInstruction::Affecter;
      instruction.Place = PlaceDe(nom);
    }
    ExigerSigne(":=");
    instruction.Expression = LireExpression();
    return instruction;
  }

  TPropriete ExigerPropriete() {
    for (const auto& [nom, propriete] : kProprietes)
      if (PrendreMot(nom)) return propriete;
    Refuser(u"« %1 » n'est pas une propriété"_s.arg(Ici().Texte));
  }
  std::size_t PlaceDe(const QString& nom) const {
    const int place = arbre_->Place(nom);
    if (place < 0) Refuser(u"« %1 » n'est pas une variable du script"_s.arg(nom));
    return static_cast<std::size_t>(place);
  }

  using TFeuille = std::unique_ptr<TExpression>;

  TFeuille Noeud(TOperation operation, TFeuille gauche = {}, TFeuille droite = {}) const {
    auto noeud = std::make_unique<TExpression>();
    noeud->Operation = operation;
    noeud->Ligne = Ici().Ligne;
    noeud->Gauche = std::move(gauche);
    noeud->Droite = std::move(droite);
    return noeud;
  }

  // As in Pascal: a comparison binds less than everything else.
  TFeuille LireExpression() {
    const TNiveau niveau(*this);
    TFeuille gauche = LireSomme();
    for (const TMot& c : kComparaisons)
      if (PrendreSigne(c.signe)) return Noeud(c.operation, std::move(gauche), LireSomme());
    return gauche;
  }

  TFeuille LireSomme() {
    TFeuille gauche = LireTerme();
    for (int n = 0;; ++n) {
      if (n > kProfondeurMaximum * 10) Refuser(u"l'expression est trop longue"_s);
      if (PrendreSigne("+"))
        gauche = Noeud(TOperation::Plus, std::move(gauche), LireTerme());
      else if (PrendreMot("or"))
        gauche = Noeud(TOperation::Ou, std::move(gauche), LireTerme());
      else
        return gauche;
    }
  }

  TFeuille LireTerme() {
    TFeuille gauche = LireFacteur();
    for (int n = 0;; ++n) {
      if (n > kProfondeurMaximum) Refuser(u"l'expression est trop longue"_s);
      if (PrendreMot("and"))
        gauche = Noeud(TOperation::Et, std::move(gauche), LireFacteur());
      else if (PrendreMot("mod"))
        gauche = Noeud(TOperation::Modulo, std::move(gauche), LireFacteur());
      else
        return gauche;
    }
  }

  TFeuille LireFacteur() {
    const TNiveau niveau(*this);
    if (PrendreMot("not")) return Noeud(TOperation::Non, LireFacteur());
    if (PrendreSigne("-")) return Noeud(TOperation::Oppose, LireFacteur());
    if (PrendreSigne("(")) {
      TFeuille dedans = LireExpression();
      ExigerSigne(")");
      return dedans;
    }
    if (Ici().Sorte == TSorteLexeme::Nom) return LireNom();
    TFeuille noeud = Noeud(TOperation::Litteral);
    const TLexeme lexeme = Prendre();
    if (lexeme.Sorte == TSorteLexeme::Texte) {
      noeud->Valeur = lexeme.Texte;
    } else if (lexeme.Sorte == TSorteLexeme::Nombre) {
      noeud->Valeur = lexeme.Texte.toDouble();
    } else if (lexeme.Sorte == TSorteLexeme::Variable) {
      noeud->Operation = TOperation::VariableRapport;
      noeud->Nom = lexeme.Texte;
    } else {
      Refuser(u"une valeur est attendue, et non « %1 »"_s.arg(lexeme.Texte));
    }
    return noeud;
  }

  TFeuille LireNom() {
    TFeuille noeud = Noeud(TOperation::Litteral);
    if (PrendreMot("true")) {
      noeud->Valeur = true;
    } else if (PrendreMot("false")) {
      noeud->Valeur = false;
    } else {
      noeud->Operation = TOperation::VariableScript;
      noeud->Place = PlaceDe(ExigerNom(u"une valeur"_s));
    }
    return noeud;
  }

  std::vector<TLexeme> lexemes_;
  const QString& fichier_;
  std::size_t i_ = 0;
  int profondeur_ = 0;
  TScript::TArbre* arbre_;
};

}  // namespace

QString NomPropriete(TPropriete propriete) {
  const auto* trouvee =
      std::ranges::find(kProprietes, propriete, &std::pair<const char*, TPropriete>::second);
  return QString::fromLatin1(trouvee->first);
}

const TProcedure* TScript::TArbre::Procedure(const QString& nom) const {
  for (const TProcedure& procedure : Procedures)
    if (procedure.Nom.compare(nom, Qt::CaseInsensitive) == 0) return &procedure;
  return nullptr;
}

int TScript::TArbre::Place(const QString& nom) const {
  for (std::size_t i = 0; i < Variables.size(); ++i)
    if (Variables[i].Nom.compare(nom, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
  return -1;
}

TScript TScript::Lire(const QString& texte, int premiereLigne) {
  TScript script;
  script.arbre_ = std::make_shared<TArbre>();
  script.Ajouter(texte, premiereLigne);
  return script;
}

void TScript::Ajouter(const QString& texte, int premiereLigne, const QString& fichier) {
  TAnalyseur(*arbre_, Lexemes(texte, premiereLigne), fichier).Tout();
}

const std::vector<TScript::TReference>& TScript::References() const { return arbre_->References; }

bool TScript::ConnaitProcedure(const QString& nom) const { return arbre_->Procedure(nom) != nullptr; }
