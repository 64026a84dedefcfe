#include "core/mois.h"

#include <algorithm>

#include "core/formats.h"

using namespace Qt::StringLiterals;

int IndiceMoisScolaire(int mois) {
  const auto* trouve = std::ranges::find(kMoisScolaires, mois);
  return trouve == kMoisScolaires.end() ? -1 : static_cast<int>(trouve - kMoisScolaires.begin());
}

QString NomMoisCourant(int mois) { return LocaleEcole().standaloneMonthName(mois); }

QString NomMoisCourt(int mois) { return LocaleEcole().standaloneMonthName(mois, QLocale::ShortFormat); }

QString NomMois(int mois) {
  QString nom = NomMoisCourant(mois);
  if (!nom.isEmpty()) nom[0] = nom[0].toUpper();
  return nom;
}

QString TexteDuMois(int mois) {
  const QString nom = NomMoisCourant(mois);
  const bool voyelle = nom.startsWith(u'a') || nom.startsWith(u'o');
  return u"du mois " % (voyelle ? u"d'"_s : u"de "_s) % nom;
}

QStringList NomsMoisScolaires() {
  QStringList noms;
  for (const int mois : kMoisScolaires) noms += NomMois(mois);
  return noms;
}

QString AnneeEnTexte(int annee) { return u"%1 - %2"_s.arg(annee).arg(annee + 1); }

QString AnneeCompacte(int annee) { return u"%1-%2"_s.arg(annee).arg(annee + 1); }
