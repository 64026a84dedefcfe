#include "payments/arbre_xml.h"

#include <QXmlStreamReader>
#include <algorithm>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kProfondeurMaximum = 40;

void LireEnfants(QXmlStreamReader& xml, TElementXml& element, const QString& espace, int profondeur) {
  if (profondeur > kProfondeurMaximum) throw Exception(u"Le fichier XML est trop profond."_s);
  element.Nom = xml.name().toString();
  element.Devise = xml.attributes().value("Ccy"_L1).toString();
  while (!xml.atEnd()) {
    xml.readNext();
    VerifierXml(xml);
    if (xml.isEndElement()) break;
    if (xml.isCharacters()) element.Texte += xml.text();
    if (!xml.isStartElement()) continue;
    if (xml.namespaceUri() == espace)
      LireEnfants(xml, element.Enfants.emplace_back(), espace, profondeur + 1);
    else
      xml.skipCurrentElement();
  }
  element.Texte = element.Texte.trimmed();
}

}  // namespace

std::vector<const TElementXml*> TElementXml::Tous(QStringView nom) const {
  std::vector<const TElementXml*> tous;
  for (const TElementXml& enfant : Enfants)
    if (enfant.Nom == nom) tous.push_back(&enfant);
  return tous;
}

const TElementXml* TElementXml::Trouver(QStringView chemin) const {
  const TElementXml* element = this;
  for (const QStringView nom : chemin.split(u'/')) {
    const auto enfant =
        std::ranges::find_if(element->Enfants, [nom](const TElementXml& e) { return e.Nom == nom; });
    if (enfant == element->Enfants.end()) return nullptr;
    element = &*enfant;
  }
  return element;
}

QString TElementXml::Lire(QStringView chemin) const {
  const TElementXml* element = Trouver(chemin);
  return element == nullptr ? QString() : element->Texte;
}

TElementXml LireElementXml(QXmlStreamReader& xml) {
  TElementXml element;
  LireEnfants(xml, element, xml.namespaceUri().toString(), 0);
  return element;
}

void VerifierXml(const QXmlStreamReader& xml) {
  if (xml.isDTD()) throw Exception(u"Le fichier XML porte un DOCTYPE : il n'est pas d'une banque."_s);
  if (xml.hasError())
    throw Exception(
        u"Le fichier XML est abîmé à la ligne %1 : %2"_s.arg(xml.lineNumber()).arg(xml.errorString()));
}
