#include "core/formats.h"

namespace {

/// Unlike DateVersQt, takes 0 as the day it stands for.
QString Ecrire(TDateTime date, const QString& format) {
  const TJour jour = DecodeDate(date);
  return LocaleEcole().toString(QDate(jour.Annee, jour.Mois, jour.Jour), format);
}

QString EcrireHeure(TDateTime heure, const QString& format) {
  return heure == 0.0 ? QString() : HeureVersQt(heure).toString(format);
}

}  // namespace

const QLocale& LocaleEcole() {
  static const QLocale locale(QLocale::French, QLocale::Belgium);
  return locale;
}

QString FormatDate(TDateTime date) {
  return date == 0.0 ? QString() : Ecrire(date, QStringLiteral("dd/MM/yyyy"));
}

QString FormatHeure(TDateTime heure) { return EcrireHeure(heure, QStringLiteral("hh'h'mm")); }

QString FormatHeureCourte(TDateTime heure) { return EcrireHeure(heure, QStringLiteral("hh:mm")); }

QString FormatDateLongue(TDateTime date) { return Ecrire(date, QStringLiteral("d MMMM yyyy")); }

QString FormatJourLong(TDateTime date) { return Ecrire(date, QStringLiteral("dddd d MMMM yyyy")); }

QString FormatJour(TDateTime date) { return Ecrire(date, QStringLiteral("dddd d MMMM")); }

QString FormatDateSql(TDateTime date) {
  QString texte = Ecrire(date, QStringLiteral("MM/dd/yyyy"));
  texte.replace(u'\'', QStringLiteral("''"));
  return u'\'' % texte % u'\'';
}

QString FormatDateCompacte(TDateTime date) { return Ecrire(date, QStringLiteral("yyyyMMdd")); }

QString FormatMontant(Currency montant) {
  // Whole euros and cents apart: a floating-point number would move the half cents.
  const QString texte = FormatDeuxDecimales(montant);
  const bool negatif = texte.startsWith(u'-');
  const QString euros = texte.sliced(negatif ? 1 : 0).chopped(3);
  const QString groupes = LocaleEcole().toString(euros.toLongLong());
  return (negatif ? u"-" : u"") % groupes % texte.last(3) % u' ' % LocaleEcole().currencySymbol();
}

QString IntOuVide(int valeur) { return valeur == 0 ? QString() : QString::number(valeur); }
