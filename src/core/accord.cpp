#include "core/accord.h"

using namespace Qt::StringLiterals;

QString Compter(qint64 nombre, const QString& un, const QString& plusieurs) {
  return QString::number(nombre) % u' ' % Accorder(nombre, un, plusieurs);
}

QString Compter(qint64 nombre, const QString& un, const QString& plusieurs, const QString& aucun) {
  return nombre == 0 ? aucun : Compter(nombre, un, plusieurs);
}

QString CompterEleves(qint64 nombre) { return Compter(nombre, u"élève"_s, u"élèves"_s); }
