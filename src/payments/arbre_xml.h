#pragma once
#include <QString>
#include <vector>

class QXmlStreamReader;

/// An element of an XML document with all that it holds, prefixes left out.
struct TElementXml {
  QString Nom;
  QString Devise;  ///< its attribute Ccy
  QString Texte;   ///< without the blanks around it
  std::vector<TElementXml> Enfants;

  /// Every child of that name.
  std::vector<const TElementXml*> Tous(QStringView nom) const;
  /// The first element at the end of a path "Acct/Id/IBAN"; null when there is none.
  const TElementXml* Trouver(QStringView chemin) const;
  /// Its text; "" when there is none.
  QString Lire(QStringView chemin) const;
};

/// The element at whose start the reader stands, up to its end; elements of another namespace than its own
/// are left out. Raises Exception for a document that is no sound XML or nested too deep.
TElementXml LireElementXml(QXmlStreamReader& xml);
/// Raises Exception when the reader has met a fault or a document type.
void VerifierXml(const QXmlStreamReader& xml);
