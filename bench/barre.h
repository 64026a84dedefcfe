#pragma once

/// Prints one bar, "name;measured;bar;ok" or "...;short". `auPlus`: the bar is a ceiling. What could not
/// be measured is NaN, and short.
void Barre(const char* nom, double mesure, double barre, bool auPlus);

/// Memory that this process holds, in MB.
double Memoire();
/// The most that was ever resident since what went before was forgotten.
void OublierMaximum();
double MemoireMaximale();
