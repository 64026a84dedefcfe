#include "report/script/lexeur.h"

#include "report/script/script.h"

using namespace Qt::StringLiterals;

namespace {

bool DebuteNom(QChar c) { return c.isLetter() || c == u'_'; }
bool SuiteNom(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

class TLexeur {
 public:
  TLexeur(const QString& script, int premiereLigne) : s_(script), ligne_(premiereLigne) {}

  std::vector<TLexeme> Tout() {
    while (PasserBlancs()) Suivant();
    Ajouter(TSorteLexeme::Fin, {});
    return std::move(lexemes_);
  }

 private:
  QChar Ici(qsizetype plus = 0) const { return i_ + plus < s_.size() ? s_[i_ + plus] : QChar(); }
  void Ajouter(TSorteLexeme sorte, const QString& texte) { lexemes_.push_back({sorte, texte, ligne_}); }
  [[noreturn]] void Refuser(const QString& quoi) const {
    throw EScript(u"ligne %1 : %2"_s.arg(ligne_).arg(quoi));
  }

  void Avancer(qsizetype n = 1) {
    for (; n > 0 && i_ < s_.size(); --n)
      if (s_[i_++] == u'\n') ++ligne_;
  }

  void PasserJusqua(QStringView fin) {
    const qsizetype ou = s_.indexOf(fin, i_);
    if (ou < 0) Refuser(u"un commentaire n'est pas fermé."_s);
    Avancer(ou + fin.size() - i_);
  }

  /// False at the end of the script.
  bool PasserBlancs() {
    while (i_ < s_.size()) {
      if (s_[i_].isSpace())
        Avancer();
      else if (s_[i_] == u'{')
        PasserJusqua(u"}");
      else if (Ici() == u'(' && Ici(1) == u'*')
        PasserJusqua(u"*)");
      else if (Ici() == u'/' && Ici(1) == u'/')
        while (i_ < s_.size() && s_[i_] != u'\n') Avancer();
      else
        return true;
    }
    return false;
  }

  void Suivant() {
    const QChar c = s_[i_];
    if (DebuteNom(c))
      LireNom();
    else if (c.isDigit())
      LireNombre();
    else if (c == u'\'' || c == u'#')
      LireTexte();
    else if (c == u'<' && LireVariable())
      return;
    else
      LireSigne();
  }

  void LireNom() {
    const qsizetype debut = i_;
    while (i_ < s_.size() && SuiteNom(s_[i_])) ++i_;
    Ajouter(TSorteLexeme::Nom, s_.mid(debut, i_ - debut));
  }

  void LireNombre() {
    const qsizetype debut = i_;
    while (i_ < s_.size() && (s_[i_].isDigit() || (s_[i_] == u'.' && Ici(1).isDigit()))) ++i_;
    Ajouter(TSorteLexeme::Nombre, s_.mid(debut, i_ - debut));
  }

  /// 'it''s'#13#10'next': pieces that touch are one text.
  void LireTexte() {
    QString texte;
    while (Ici() == u'\'' || Ici() == u'#') {
      if (Ici() == u'#') {
        ++i_;
        int code = 0;
        const qsizetype debut = i_;
        for (; Ici().isDigit() && code < 0x10000; ++i_) code = code * 10 + Ici().digitValue();
        if (i_ == debut || code == 0 || code > 0xFFFF) Refuser(u"« # » attend le numéro d'un caractère."_s);
        texte += QChar(code);
        continue;
      }
      ++i_;
      for (;; ++i_) {
        if (i_ >= s_.size() || s_[i_] == u'\n') Refuser(u"un texte n'est pas fermé."_s);
        if (s_[i_] != u'\'') {
          texte += s_[i_];
        } else if (Ici(1) == u'\'') {
          texte += u'\'';
          ++i_;
        } else {
          ++i_;
          break;
        }
      }
    }
    Ajouter(TSorteLexeme::Texte, texte);
  }

  /// <Name>: only where a value may begin, so that a comparison stays one.
  bool LireVariable() {
    if (!lexemes_.empty()) {
      const TLexeme& avant = lexemes_.back();
      const bool motCle = avant.Est("if"_L1) || avant.Est("and"_L1) || avant.Est("or"_L1) ||
                          avant.Est("not"_L1) || avant.Est("mod"_L1);
      if (avant.Sorte != TSorteLexeme::Signe && !motCle) return false;
      if (avant.EstSigne(")"_L1)) return false;
    }
    qsizetype fin = i_ + 1;
    while (fin < s_.size() && (SuiteNom(s_[fin]) || s_[fin] == u'#')) ++fin;
    if (fin == i_ + 1 || fin >= s_.size() || s_[fin] != u'>') return false;
    Ajouter(TSorteLexeme::Variable, s_.mid(i_ + 1, fin - i_ - 1));
    i_ = fin + 1;
    return true;
  }

  void LireSigne() {
    for (const char* signe : {":=", "<>", "<=", ">="}) {
      const QLatin1String texte(signe);
      if (QStringView(s_).mid(i_, 2) != texte) continue;
      Ajouter(TSorteLexeme::Signe, texte);
      i_ += 2;
      return;
    }
    if (!QStringView(u"=<>+-();:.,").contains(s_[i_]))
      Refuser(u"« %1 » n'est pas un signe des scripts."_s.arg(s_[i_]));
    Ajouter(TSorteLexeme::Signe, s_[i_]);
    ++i_;
  }

  const QString& s_;
  qsizetype i_ = 0;
  int ligne_;
  std::vector<TLexeme> lexemes_;
};

}  // namespace

std::vector<TLexeme> Lexemes(const QString& script, int premiereLigne) {
  return TLexeur(script, premiereLigne).Tout();
}
