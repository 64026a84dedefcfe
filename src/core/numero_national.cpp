#include "core/numero_national.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongueur = 11;
constexpr qint64 kDepuis2000 = 2'000'000'000;

bool EstChiffre(QChar c) { return c >= u'0' && c <= u'9'; }

}  // namespace

QString ChiffresNumeroNational(const QString& texte) {
  QString chiffres = texte;
  return chiffres.removeIf([](QChar c) { return c == u'.' || c == u'-' || c == u'/' || c.isSpace(); });
}

bool NumeroNationalValide(const QString& texte) {
  const QString chiffres = ChiffresNumeroNational(texte);
  if (chiffres.size() != kLongueur || !std::ranges::all_of(chiffres, EstChiffre)) return false;
  const QString neuf = chiffres.first(kLongueur - 2), controle = chiffres.last(2);
  return controle == ControleNumeroNational(neuf, false) || controle == ControleNumeroNational(neuf, true);
}

QString ControleNumeroNational(const QString& neufChiffres, bool depuis2000) {
  const qint64 numero = neufChiffres.toLongLong() + (depuis2000 ? kDepuis2000 : 0);
  return u"%1"_s.arg(97 - numero % 97, 2, 10, QChar(u'0'));
}

QString NumeroNationalPresente(const QString& texte) {
  const QString n = ChiffresNumeroNational(texte);
  if (!NumeroNationalValide(n)) return texte;
  return n.mid(0, 2) % u'.' % n.mid(2, 2) % u'.' % n.mid(4, 2) % u'-' % n.mid(6, 3) % u'.' % n.mid(9);
}
