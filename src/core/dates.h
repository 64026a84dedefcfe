#pragma once
#include <QDate>
#include <QTime>

/// Days since 30 December 1899; the fraction is the time of day. 0 means none.
using TDateTime = double;

/// Calendar parts of a date.
struct TJour {
  int Annee = 0;
  int Mois = 0;  ///< 1 to 12
  int Jour = 0;  ///< 1 to 31
};

/// Raises EConvertError when there is no such day.
TDateTime EncodeDate(int annee, int mois, int jour);
/// Raises EConvertError when there is no such time (0 to 23, 0 to 59, 0 to 59, 0 to 999).
TDateTime EncodeTime(int heure, int minute, int seconde = 0, int milliseconde = 0);
TJour DecodeDate(TDateTime date);

/// 0 for an invalid (absent) date.
TDateTime DateDeQt(const QDate& date);
/// Whole milliseconds / 86400000.0, the one form in which a time is held; 0 for an invalid time.
TDateTime HeureDeQt(const QTime& heure);
/// Whole milliseconds since midnight of the fraction, brought back to the one form of a time.
TDateTime HeureAuMilliseconde(TDateTime heure);
/// Invalid for 0.
QDate DateVersQt(TDateTime date);
/// Midnight for 0.
QTime HeureVersQt(TDateTime heure);

/// Monday 1 to Sunday 7.
int JourLundi1(TDateTime date);
