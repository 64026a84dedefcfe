#include "ui/commun/texte.h"

#include "core/formats.h"

namespace {

constexpr QChar kMoins(0x2212);
constexpr QChar kInsecable(0x00A0);

bool EstMontant(const QString& texte) {
  bool chiffre = false;
  for (qsizetype i = 0; i < texte.size(); ++i) {
    const QChar c = texte[i];
    if (c.isDigit())
      chiffre = true;
    else if (c == u'-' ? i > 0 : !c.isSpace() && c != u',' && c != u'.' && c != u'€')
      return false;
  }
  return chiffre;
}

}  // namespace

QString TexteMontant(Currency montant) { return TypographieMontant(FormatMontant(montant)); }

QString TypographieMontant(const QString& texte) {
  if (!EstMontant(texte)) return texte;
  QString soigne = texte;
  if (soigne.startsWith(u'-')) soigne[0] = kMoins;
  return soigne.replace(u' ', kInsecable);
}

QString NomAccessible(const QString& libelle) {
  QString nom = libelle;
  nom.remove(u'&');
  while (nom.endsWith(u':') || (!nom.isEmpty() && nom.back().isSpace())) nom.chop(1);
  return nom;
}
