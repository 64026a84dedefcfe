#pragma once
#include <QStringList>

/// A name to propose for a file: its parts, without the empty ones and without what the name of a file
/// cannot hold, then the extension: "Facture - P3 A - octobre 2016.pdf".
QString NomDeFichier(QStringList parties, const QString& extension);
