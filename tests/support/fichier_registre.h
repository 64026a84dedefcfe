#pragma once
#include "support/base_essai.h"

/// A register file of either layout, built by column: nine pupils of P3 B, dated 1 September 2016.
class TFichierRegistre {
 public:
  explicit TFichierRegistre(int disposition, int eleves = 9) : disposition_(disposition) {
    lignes_ += u"en-tête;M"_s;
    for (int i = 1; i <= eleves; ++i) Ajouter(u"1234-%1"_s.arg(i));
  }
  void Ajouter(const QString& matricule) {
    QStringList l(46);
    const bool un = disposition_ == 1;
    l[un ? 1 : 2] = u"SITE"_s;
    l[un ? 2 : 3] = matricule;
    l[un ? 3 : 10] = u"Nom "_s + matricule;
    l[un ? 4 : 11] = u"Zoé"_s;
    l[6] = u"20100228"_s;
    l[un ? 12 : 13] = u"Rue de l'Été"_s;
    l[un ? 13 : 14] = u"=\"12\""_s;
    l[un ? 14 : 16] = u"1300"_s;
    l[un ? 15 : 17] = u"Wavre"_s;
    l[un ? 16 : 23] = u"2016/09/01"_s;
    l[un ? 17 : 26] = un ? u"P3"_s : u"=\"P3\""_s;
    l[un ? 18 : 27] = u"B"_s;
    l[un ? 22 : 28] = u"Père"_s;
    l[un ? 34 : 35] = u"Mère"_s;
    if (un) {
      l[41] = u"Place"_s;
      l[42] = u"=\"7\""_s;
      l[43] = u"x"_s;
      l[44] = u"Namur"_s;
    } else {
      l[22] = u"Section M"_s;
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
  QByteArray EnOctets() const { return lignes_.join(u"\r\n"_s).toUtf8(); }
  QString Ecrire(TBaseEssai& base, const QString& nom = u"registre.csv"_s) const {
    return base.Fichier(nom, EnOctets());
  }

 private:
  int disposition_;
  QStringList lignes_;
};
