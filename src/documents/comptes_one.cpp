#include "documents/comptes_one.h"

#include "core/curseur.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

/// What makes a row a presence after school in the period.
QString Condition(const TPeriode& periode) {
  return u" type_presence = 1 and date_releve >= " % FormatDateSql(periode.Premier) %
         u" and date_releve <= " % FormatDateSql(periode.Dernier) % u" and heure_sortie > '12:00'";
}

/// Different pupils of the classes that begin with a letter.
QString Enfants(QChar section) {
  return u"count(distinct case when classe like '" % section % u"%' then presences.eleve_id end)";
}

QString DeuxSections() {
  return Enfants(u'M') % u" as maternelle, " % Enfants(u'P') % u" as primaire from presences, ";
}

TEnfantsOne LireEnfants(TCurseur& ligne) { return {ligne.Entier("MATERNELLE"), ligne.Entier("PRIMAIRE")}; }

}  // namespace

TComptesJours CompterJours(TDataModule1& base, const TPeriode& periode) {
  TCurseur ligne(base, u"select date_releve, count(distinct eleve_id) as nombre from presences where" %
                           Condition(periode) % u" group by date_releve");
  TComptesJours jours;
  while (ligne.Suivant()) jours[ligne.Date("DATE_RELEVE")] = ligne.Entier("NOMBRE");
  return jours;
}

QHash<QString, TComptesJours> CompterJoursParSite(TDataModule1& base, const TPeriode& periode) {
  TCurseur ligne(base,
                 u"select code_implantation, date_releve, count(distinct eleve_id) as nombre from presences "
                 u"where" %
                     Condition(periode) %
                     u" and code_implantation is not null group by code_implantation, date_releve");
  QHash<QString, TComptesJours> sites;
  while (ligne.Suivant())
    sites[CodeSite(ligne.Texte("CODE_IMPLANTATION"))][ligne.Date("DATE_RELEVE")] = ligne.Entier("NOMBRE");
  return sites;
}

TEnfantsOne CompterEnfants(TDataModule1& base, const TPeriode& periode) {
  TCurseur ligne(base, u"select " % DeuxSections() % u"eleves where" % Condition(periode) %
                           u" and presences.eleve_id = eleves.eleve_id");
  return ligne.Suivant() ? LireEnfants(ligne) : TEnfantsOne();
}

QHash<QString, TEnfantsOne> CompterEnfantsParSite(TDataModule1& base, const TPeriode& periode, int annee) {
  TCurseur ligne(base, u"select presences.code_implantation as site, " % DeuxSections() %
                           u"eleves_classes where" % Condition(periode) % u" and annee_scolaire = " %
                           QString::number(annee) %
                           u" and presences.eleve_id = eleves_classes.eleve_id "
                           u"and presences.code_implantation is not null group by 1");
  QHash<QString, TEnfantsOne> sites;
  while (ligne.Suivant()) sites[CodeSite(ligne.Texte("SITE"))] = LireEnfants(ligne);
  return sites;
}

QString CodeSite(QString code) {
  while (code.endsWith(u' ')) code.chop(1);
  return code;
}
