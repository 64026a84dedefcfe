#pragma once
#include <QStringView>
#include <vector>

/// A part of a line whose letters all run one way.
struct TSuiteDeLettres {
  qsizetype Debut = 0, Fin = 0;  ///< units of the line, the last excluded
  bool ADroite = false;          ///< it begins at its right
};

/// Some letter of the text runs from right to left.
bool EcritDeDroiteAGauche(QStringView texte);

/// The parts of a French line from left to right: words that run from right to left stand the other way
/// round, with the blanks between them; a number among them keeps its digits in order.
std::vector<TSuiteDeLettres> SuitesDeGaucheADroite(QStringView ligne);
