#include "core/formats.h"

using namespace Qt::StringLiterals;

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

QString FormatDate(TDateTime date) { return date == 0.0 ? QString() : Ecrire(date, u"dd/MM/yyyy"_s); }

QString FormatHeure(TDateTime heure) { return EcrireHeure(heure, u"hh'h'mm"_s); }

QString FormatHeureCourte(TDateTime heure) { return EcrireHeure(heure, u"hh:mm"_s); }

QString FormatDateLongue(TDateTime date) { return Ecrire(date, u"d MMMM yyyy"_s); }

QString FormatJourLong(TDateTime date) { return Ecrire(date, u"dddd d MMMM yyyy"_s); }

QString FormatJour(TDateTime date) { return Ecrire(date, u"dddd d MMMM"_s); }

QString FormatDateSql(TDateTime date) {
  QString texte = Ecrire(date, u"MM/dd/yyyy"_s);
  texte.replace(u'\'', u"''"_s);
  return u'\'' % texte % u'\'';
}

QString FormatDateCompacte(TDateTime date) { return Ecrire(date, u"yyyyMMdd"_s); }

QString FormatMontant(Currency montant) {
  // Whole euros and cents apart: a floating-point number would move the half cents.
  const QString texte = FormatDeuxDecimales(montant);
  const bool negatif = texte.startsWith(u'-');
  const QString euros = texte.sliced(negatif ? 1 : 0).chopped(3);
  const QString groupes = LocaleEcole().toString(euros.toLongLong());
  return (negatif ? u"-" : u"") % groupes % texte.last(3) % u' ' % LocaleEcole().currencySymbol();
}

QString IntOuVide(int valeur) { return valeur == 0 ? QString() : QString::number(valeur); }
