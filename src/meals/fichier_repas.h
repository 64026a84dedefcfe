#pragma once
#include <QByteArray>
#include <QHash>
#include <QString>
#include <map>
#include <vector>

#include "core/dates.h"

/// The line of a meal eaten, in the scanner's format; `jour` may have a fraction.
QByteArray LigneRepas(const QString& matricule, TDateTime jour);
/// The day of a line, 0 when it has none.
TDateTime JourDeLigne(const QByteArray& ligne);

/// Lines of a text: ended by CR, LF or both; what follows the last end is a line when it is not empty.
std::vector<QByteArray> LignesDuTexte(const QByteArray& texte);
/// Each line with its end.
QByteArray TexteDesLignes(const std::vector<QByteArray>& lignes);

/// The tablet's file of meals eaten and not yet transferred, a line a pupil and day. A line is found by its
/// exact text; what else the file holds stays as it is.
class TFichierRepas {
 public:
  /// Reads the file; a missing one is empty. Raises Exception.
  explicit TFichierRepas(QString chemin);
  /// The same of a file that can be done without: one that cannot be read is empty too.
  static TFichierRepas OuVide(const QString& chemin);

  bool Contient(const QByteArray& ligne) const { return nombres_.contains(ligne); }
  /// Adds the line, or takes the first such one away, and writes the file at once. Raises Exception, and
  /// then nothing has changed.
  void Basculer(const QByteArray& ligne);
  std::vector<QByteArray> Lignes() const { return LignesDuTexte(texte_); }
  int NombreLignes() const { return nombre_; }
  /// The last day that a line has, 0 when none.
  TDateTime DernierJour() const { return jours_.empty() ? 0.0 : jours_.rbegin()->first; }
  const QString& Chemin() const { return chemin_; }

 private:
  void Compter(const QByteArray& ligne, int fois);

  // A tap costs about as much after thousands of others: it walks no list of them.
  QString chemin_;
  QByteArray texte_;  // of the file, each line with its end
  int nombre_ = 0;
  QHash<QByteArray, int> nombres_;  // how often each line is there
  std::map<TDateTime, int> jours_;  // and each day
};
