#include "core/numero_entreprise.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongueur = 10;

/// "BE 0999.999.922" without what is no digit of the number.
QString Chiffres(const QString& texte) {
  QString chiffres = texte.trimmed();
  if (chiffres.startsWith(u"BE"_s, Qt::CaseInsensitive)) chiffres.remove(0, 2);
  return chiffres.removeIf([](QChar c) { return c == u'.' || c == u'-' || c.isSpace(); });
}

}  // namespace

bool NumeroEntrepriseValide(const QString& texte) {
  const QString chiffres = Chiffres(texte);
  if (chiffres.size() != kLongueur) return false;
  for (const QChar c : chiffres)
    if (c < u'0' || c > u'9') return false;
  return chiffres.last(2).toInt() == 97 - chiffres.first(kLongueur - 2).toInt() % 97;
}

QString NumeroEntreprisePresente(const QString& texte) {
  if (!NumeroEntrepriseValide(texte)) return texte;
  const QString n = Chiffres(texte);
  return n.first(4) % u'.' % n.mid(4, 3) % u'.' % n.last(3);
}
