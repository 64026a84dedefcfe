#pragma once

/// Prints one bar, "name;measured;bar;ok" or "...;short". `auPlus`: the bar is a ceiling. What could not
/// be measured is NaN, and short.
void Barre(const char* nom, double mesure, double barre, bool auPlus);

/// Resident memory of this process, in MB.
double Memoire();
/// The most that it ever was.
double MemoireMaximale();
