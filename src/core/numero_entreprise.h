#pragma once
#include <QString>

// The number of an enterprise, an association or a public body: ten digits, of which the last two check the
// others, whose remainder modulo 97 is taken from 97.

/// Ten digits, points and blanks left out, whose check digits are right.
bool NumeroEntrepriseValide(const QString& texte);
/// "0999.999.922"; what is no such number as it stands.
QString NumeroEntreprisePresente(const QString& texte);
