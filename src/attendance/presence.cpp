#include "attendance/presence.h"

const QStringList& TextesTypePresence() {
  static const QStringList textes{QStringLiteral("Garderie"), QStringLiteral("Repas"),
                                  QStringLiteral("Soupe"), QStringLiteral("Etude")};
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
