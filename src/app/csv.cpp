#include "app/csv.h"

#include <cstdio>

#include "core/exceptions.h"
#include "core/texte_separe.h"

using namespace Qt::StringLiterals;

TCsv::TCsv(const QStringList& entete) { Ligne(entete); }

void TCsv::Ligne(const QStringList& champs) {
  QStringList cites;
  for (const QString& champ : champs) cites += ChampSepare(champ);
  EcrireLigne(cites.join(u';'));
}

void TCsv::EcrireLigne(const QString& texte) {
  const QByteArray octets = texte.toUtf8() + '\n';
  const std::size_t ecrits =
      std::fwrite(octets.constData(), 1, static_cast<std::size_t>(octets.size()), stdout);
  if (ecrits != static_cast<std::size_t>(octets.size()))
    throw Exception(u"Le résultat ne peut pas être écrit."_s);
}

QString DateIso(TDateTime date) { return DateVersQt(date).toString(Qt::ISODate); }
