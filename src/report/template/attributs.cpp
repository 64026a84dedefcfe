#include "report/template/attributs.h"

#include <QColor>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr float kNombreMaximum = 20000.0F;

}  // namespace

TAttributs::TAttributs(const QXmlStreamReader& xml, TRefus refuser) : refuser_(std::move(refuser)) {
  for (const QXmlStreamAttribute& attribut : xml.attributes())
    restants_.insert(attribut.name().toString(), attribut.value().toString());
}

QString TAttributs::Texte(const char* nom, const QString& defaut) {
  const auto i = restants_.constFind(QString::fromLatin1(nom));
  if (i == restants_.constEnd()) return defaut;
  const QString valeur = *i;
  restants_.erase(i);
  return valeur;
}

float TAttributs::Nombre(const char* nom, float defaut) {
  const QString texte = Texte(nom);
  if (texte.isEmpty()) return defaut;
  bool ok = false;
  const float valeur = texte.toFloat(&ok);
  if (!ok || !std::isfinite(valeur) || std::abs(valeur) > kNombreMaximum)
    refuser_(u"« %1 » n'est pas un nombre (attribut « %2 »)"_s.arg(texte, QLatin1String(nom)));
  return valeur;
}

int TAttributs::Entier(const char* nom, int defaut) {
  return static_cast<int>(std::lround(Nombre(nom, static_cast<float>(defaut))));
}

bool TAttributs::OuiNon(const char* nom, bool defaut) {
  const QString texte = Texte(nom, defaut ? u"oui"_s : u"non"_s);
  if (texte != u"oui" && texte != u"non")
    refuser_(u"l'attribut « %1 » est « oui » ou « non »"_s.arg(QLatin1String(nom)));
  return texte == u"oui";
}

QRgb TAttributs::Couleur(const char* nom, QRgb defaut) {
  const QString texte = Texte(nom);
  if (texte.isEmpty()) return defaut;
  const QColor couleur(texte);
  if (!texte.startsWith(u'#') || !couleur.isValid())
    refuser_(u"« %1 » n'est pas une couleur (attribut « %2 »)"_s.arg(texte, QLatin1String(nom)));
  return couleur.rgb();
}

void TAttributs::Finir() const {
  if (!restants_.isEmpty())
    refuser_(u"l'attribut « %1 » n'existe pas ici"_s.arg(restants_.keyBegin().base().key()));
}
