#include "attendance/presence.h"

using namespace Qt::StringLiterals;

const QStringList& TextesTypePresence() {
  static const QStringList textes{u"Garderie"_s, u"Repas"_s, u"Soupe"_s, u"Etude"_s};
  return textes;
}

QString Texte(TTypePresence type) { return TextesTypePresence().value(static_cast<int>(type) - 1); }

TGroupe GroupeDe(TTypePresence type) {
  switch (type) {
    case TTypePresence::Garderie:
      return TGroupe::Garderie;
    case TTypePresence::Etude:
      return TGroupe::Etude;
    default:
      return TGroupe::Repas;
  }
}
