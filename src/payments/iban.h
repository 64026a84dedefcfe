#pragma once
#include <QString>

/// The account without its blanks.
QString IbanSansBlancs(const QString& compte);
/// Whether the check digits of an account without blanks are right: two capitals, two digits, and 11 to 30
/// capitals or digits.
bool IbanValide(const QString& compte);
/// Whether what was typed is meant as an IBAN, and is none. An account of another form is not judged.
bool IbanFautif(const QString& saisi);
