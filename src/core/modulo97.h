#pragma once
#include <QStringView>

/// The remainder modulo 97 of a number of any length, by which accounts are checked.
int Modulo97(QStringView chiffres);
