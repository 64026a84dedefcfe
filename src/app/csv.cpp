#include "app/csv.h"

#include <cstdio>

TCsv::TCsv(const QStringList& entete) : sortie_(stdout) { Ligne(entete); }

void TCsv::Ligne(const QStringList& champs) {
  QStringList cites;
  for (QString champ : champs) {
    if (champ.contains(u';') || champ.contains(u'"') || champ.contains(u'\n') || champ.contains(u'\r'))
      champ = u'"' + champ.replace(u'"', QStringLiteral("\"\"")) + u'"';
    cites += champ;
  }
  sortie_ << cites.join(u';') << '\n';
}
