#pragma once
#include <QByteArray>
#include <QString>

/// The text as a JSON string in UTF-8, quotes included; what is no valid text is replaced.
QByteArray TexteJson(const QString& texte);
