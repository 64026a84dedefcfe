#pragma once
#include <QString>

/// The word that goes with a number: 0 takes the singular, as 1 does.
template <class T>
const T& Accorder(qint64 nombre, const T& un, const T& plusieurs) {
  return nombre > 1 || nombre < -1 ? plusieurs : un;
}
/// "0 élève", "1 élève", "12 élèves"
QString Compter(qint64 nombre, const QString& un, const QString& plusieurs);
/// The same, with words of its own for none: "aucun élève".
QString Compter(qint64 nombre, const QString& un, const QString& plusieurs, const QString& aucun);
/// "12 élèves", which every screen counts.
QString CompterEleves(qint64 nombre);
