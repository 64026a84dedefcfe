#pragma once
#include <QByteArray>
#include <QDate>
#include <QString>
#include <QTime>
#include <variant>

#include "core/currency.h"

/// A value on its way to the database, for a "?" of a statement. Without one, and for a date or a time
/// that is not valid, NULL is meant; a null QString is the empty text. Octets go into a blob.
using TValeur = std::variant<std::monostate, int, QString, Currency, QDate, QTime, QByteArray>;
