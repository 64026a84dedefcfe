#pragma once
#include "support/base_essai.h"

/// A register file of either layout, built by column: nine pupils of P3 B, dated 1 September 2016.
class TFichierRegistre {
 public:
  explicit TFichierRegistre(int disposition, int eleves = 9) : disposition_(disposition) {
    lignes_ += QStringLiteral("en-tête;M");
    for (int i = 1; i <= eleves; ++i) Ajouter(QStringLiteral("1234-%1").arg(i));
  }
  void Ajouter(const QString& matricule) {
    QStringList l(46);
    const bool un = disposition_ == 1;
    l[un ? 1 : 2] = QStringLiteral("SITE");
    l[un ? 2 : 3] = matricule;
    l[un ? 3 : 10] = QStringLiteral("Nom ") + matricule;
    l[un ? 4 : 11] = QStringLiteral("Zoé");
    l[6] = QStringLiteral("20100228");
    l[un ? 12 : 13] = QStringLiteral("Rue de l'Été");
    l[un ? 13 : 14] = QStringLiteral("=\"12\"");
    l[un ? 14 : 16] = QStringLiteral("1300");
    l[un ? 15 : 17] = QStringLiteral("Wavre");
    l[un ? 16 : 23] = QStringLiteral("2016/09/01");
    l[un ? 17 : 26] = un ? QStringLiteral("P3") : QStringLiteral("=\"P3\"");
    l[un ? 18 : 27] = QStringLiteral("B");
    l[un ? 22 : 28] = QStringLiteral("Père");
    l[un ? 34 : 35] = QStringLiteral("Mère");
    if (un) {
      l[41] = QStringLiteral("Place");
      l[42] = QStringLiteral("=\"7\"");
      l[43] = QStringLiteral("x");
      l[44] = QStringLiteral("Namur");
    } else {
      l[22] = QStringLiteral("Section M");
    }
    lignes_ += l.join(u';');
  }
  /// Sets a cell of a data row, from 1.
  TFichierRegistre& Mettre(int ligne, int colonne, const QString& texte) {
    QStringList cellules = lignes_[ligne].split(u';');
    cellules[colonne] = texte;
    lignes_[ligne] = cellules.join(u';');
    return *this;
  }
  QString Ecrire(TBaseEssai& base, const QString& nom = QStringLiteral("registre.csv")) const {
    return base.Fichier(nom, lignes_.join(QStringLiteral("\r\n")).toUtf8());
  }

 private:
  int disposition_;
  QStringList lignes_;
};
