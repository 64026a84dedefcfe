#pragma once
#include <QString>

// The national number of a person: six digits of the date of birth, three of a series, and two that check
// them, the remainder modulo 97 taken from 97. For births from 2000 the nine digits count with a 2 before
// them.

/// The number without what separates its digits.
QString ChiffresNumeroNational(const QString& texte);
/// Eleven digits, points, dashes and blanks left out, whose check digits are right for a birth before or
/// from 2000.
bool NumeroNationalValide(const QString& texte);
/// The two digits that check the nine of a birth, before 2000 or from then on.
QString ControleNumeroNational(const QString& neufChiffres, bool depuis2000);
/// "15.03.12-123.45"; what is no such number as it stands.
QString NumeroNationalPresente(const QString& texte);
