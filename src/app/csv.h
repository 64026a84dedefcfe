#pragma once
#include <QStringList>

#include "core/dates.h"

/// A table on the standard output: ";" between fields, a header line, UTF-8. A field that holds ";",
/// a quote or a line end is quoted.
class TCsv {
 public:
  explicit TCsv(const QStringList& entete);
  /// Raises Exception when the output takes no more.
  void Ligne(const QStringList& champs);
  /// A line as it stands. Raises Exception when the output takes no more.
  static void EcrireLigne(const QString& texte);
};

// What stands in the fields.

/// "2016-09-01"; "" for 0.
QString DateIso(TDateTime date);
inline QString Nombre(int nombre) { return QString::number(nombre); }
