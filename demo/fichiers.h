#pragma once
#include <QByteArray>
#include <QString>
#include <vector>

#include "demo/ecole_exemple.h"

/// The two layouts of the school register's export.
enum class TDisposition { Premiere, Seconde };

/// A scanner file, a week of one site. The site's short name stands in the file name, from which the
/// import works the site out.
struct TFichierPresences {
  QString Nom;
  QByteArray Texte;
  int Lignes = 0;
};

/// The register as one ";" text in UTF-8: a header line, then a line a pupil. In the second layout
/// some pupils who left before September follow, whom the import has to leave out.
QByteArray TexteRegistre(const TEcoleExemple& ecole, TDisposition disposition);
/// The scanner files of the year, by week, the sites of a week one behind the other; of the autumn only when
/// it is a later one.
std::vector<TFichierPresences> FichiersPresences(const TEcoleExemple& ecole);
