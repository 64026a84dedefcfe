#pragma once
#include <QStringList>
#include <QTextStream>

/// A table on the standard output: ";" between fields, a header line, UTF-8. A field that holds ";",
/// a quote or a line end is quoted.
class TCsv {
 public:
  explicit TCsv(const QStringList& entete);
  void Ligne(const QStringList& champs);

 private:
  QTextStream sortie_;
};
