#pragma once
#include <QByteArrayView>
#include <QString>

/// The whole content of a file, which is replaced only once all of it is written: whoever reads it finds
/// the old content or the new. What is no ordinary file (a pipe, a device) keeps its place and is written
/// through. Raises Exception.
void EcrireFichier(const QString& chemin, QByteArrayView octets);
