#pragma once
#include <QHash>
#include <QRgb>
#include <QXmlStreamReader>
#include <functional>

using namespace Qt::StringLiterals;

/// The attributes of one element of a template. Each is taken by name; what nobody took is a mistake.
class TAttributs {
 public:
  /// `refuser` raises Exception with file, line and the reason given.
  using TRefus = std::function<void(const QString& raison)>;
  TAttributs(const QXmlStreamReader& xml, TRefus refuser);

  QString Texte(const char* nom, const QString& defaut = {});
  /// A length in px, or another number; a decimal dot.
  float Nombre(const char* nom, float defaut);
  int Entier(const char* nom, int defaut);
  /// "oui" or "non".
  bool OuiNon(const char* nom, bool defaut);
  /// "#rrggbb"; "" gives `defaut`.
  QRgb Couleur(const char* nom, QRgb defaut);
  /// One of the words of a table; the first entry when absent, unless `exige`.
  template <class T, std::size_t N>
  T Choix(const char* nom, const std::pair<const char*, T> (&table)[N], bool exige = false) {
    const QString mot = Texte(nom);
    if (mot.isEmpty() && !exige) return table[0].second;
    QString mots;
    for (const auto& [texte, valeur] : table) {
      if (mot == QLatin1String(texte)) return valeur;
      mots += (mots.isEmpty() ? ""_L1 : ", "_L1) + QLatin1String(texte);
    }
    refuser_(u"l'attribut « %1 » est l'un de : %2"_s.arg(QLatin1String(nom), mots));
    return table[0].second;
  }
  /// Raises when an attribute has not been taken.
  void Finir() const;

 private:
  QHash<QString, QString> restants_;
  TRefus refuser_;
};
