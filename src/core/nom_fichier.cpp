#include "core/nom_fichier.h"

using namespace Qt::StringLiterals;

QString NomDeFichier(QStringList parties, const QString& extension) {
  parties.removeAll(QString());
  QString nom = parties.join(u" - "_s);
  for (QChar& c : nom)
    if (u"/\\:*?\"<>|"_s.contains(c)) c = u'-';
  nom = nom.trimmed();
  return (nom.isEmpty() ? u"Document"_s : nom) + extension;
}
