#include "app/csv.h"

#include <cstdio>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

TCsv::TCsv(const QStringList& entete) { Ligne(entete); }

void TCsv::Ligne(const QStringList& champs) {
  QStringList cites;
  for (QString champ : champs) {
    if (champ.contains(u';') || champ.contains(u'"') || champ.contains(u'\n') || champ.contains(u'\r'))
      champ = u'"' + champ.replace(u'"', u"\"\""_s) + u'"';
    cites += champ;
  }
  EcrireLigne(cites.join(u';'));
}

void TCsv::EcrireLigne(const QString& texte) {
  const QByteArray octets = texte.toUtf8() + '\n';
  const std::size_t ecrits =
      std::fwrite(octets.constData(), 1, static_cast<std::size_t>(octets.size()), stdout);
  if (ecrits != static_cast<std::size_t>(octets.size()))
    throw Exception(u"Le résultat ne peut pas être écrit."_s);
}
