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
  const qint64 numero = chiffres.first(kLongueur - 2).toLongLong();
  const qint64 controle = chiffres.last(2).toLongLong();
  return controle == 97 - numero % 97 || controle == 97 - (kDepuis2000 + numero) % 97;
}

QString NumeroNationalPresente(const QString& texte) {
  const QString n = ChiffresNumeroNational(texte);
  if (!NumeroNationalValide(n)) return texte;
  return n.mid(0, 2) % u'.' % n.mid(2, 2) % u'.' % n.mid(4, 2) % u'-' % n.mid(6, 3) % u'.' % n.mid(9);
}
