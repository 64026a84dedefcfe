#pragma once
#include <QByteArray>
#include <QHash>
#include <QString>
#include <vector>

#include "core/dates.h"

/// The line of a meal eaten, in the scanner's format; `jour` may have a fraction.
QByteArray LigneRepas(const QString& matricule, TDateTime jour);
/// The day of a line, 0 when it has none.
TDateTime JourDeLigne(const QByteArray& ligne);

/// The tablet's file of meals eaten and not yet transferred, a line a pupil and day. A line is found by its
/// exact text; what else the file holds stays as it is.
class TFichierRepas {
 public:
  /// Reads the file; a missing one is empty. Raises Exception.
  explicit TFichierRepas(QString chemin);

  bool Contient(const QByteArray& ligne) const { return nombres_.contains(ligne); }
  /// Adds the line, or takes the first such one away, and writes the file at once. Raises Exception, and
  /// then nothing has changed.
  void Basculer(const QByteArray& ligne);
  const std::vector<QByteArray>& Lignes() const { return lignes_; }
  const QString& Chemin() const { return chemin_; }

 private:
  QString chemin_;
  std::vector<QByteArray> lignes_;
  QHash<QByteArray, int> nombres_;  // how often each line is there
};

/// Lines of a text: ended by CR, LF or both; what follows the last end is a line when it is not empty.
std::vector<QByteArray> LignesDuTexte(const QByteArray& texte);
/// Each line with its end.
QByteArray TexteDesLignes(const std::vector<QByteArray>& lignes);
