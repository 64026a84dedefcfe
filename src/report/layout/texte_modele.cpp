#include "report/layout/texte_modele.h"

namespace {

/// Gathers pieces; marks may begin in one value and end in another.
class TAssembleur {
 public:
  explicit TAssembleur(const TMorceau& debut) : debut_(debut), ici_(debut) {}

  void Ajouter(QStringView texte, bool balises) {
    while (balises && !texte.isEmpty()) {
      const qsizetype ouvre = texte.indexOf(u'<');
      if (ouvre < 0) break;
      ici_.Texte += texte.left(ouvre);
      texte = texte.mid(ouvre);
      const qsizetype longueur = Balise(texte);
      if (longueur == 0) ici_.Texte += u'<';
      texte = texte.mid(longueur == 0 ? 1 : longueur);
    }
    ici_.Texte += texte;
  }

  std::vector<TMorceau> Finir() {
    Pousser();
    return std::move(morceaux_);
  }

 private:
  /// Length of the mark with which the text begins; 0 when it is none.
  qsizetype Balise(QStringView texte) {
    const qsizetype place = texte.startsWith(u"</") ? 2 : 1;
    if (texte.size() < place + 2 || texte[place + 1] != u'>') return 0;
    bool TMorceau::*marque = nullptr;
    switch (texte[place].toLower().unicode()) {
      case u'b':
        marque = &TMorceau::Gras;
        break;
      case u'i':
        marque = &TMorceau::Italique;
        break;
      case u'u':
        marque = &TMorceau::Souligne;
        break;
      default:
        return 0;
    }
    Pousser();
    ici_.*marque = place == 1 || debut_.*marque;  // a bold text stays bold behind </b>
    return place + 2;
  }

  void Pousser() {
    if (!ici_.Texte.isEmpty()) morceaux_.push_back(ici_);
    ici_.Texte.clear();
  }

  const TMorceau debut_;  ///< how the text looks without marks
  TMorceau ici_;
  std::vector<TMorceau> morceaux_;
};

}  // namespace

std::vector<TMorceau> Remplacer(const QString& modele, const TResolveur& valeur, TBalises balises,
                                TMorceau debut) {
  TAssembleur texte(debut);
  QStringView reste(modele);
  for (;;) {
    const qsizetype ouvre = reste.indexOf(u'[');
    const qsizetype ferme = ouvre < 0 ? -1 : reste.indexOf(u']', ouvre);
    if (ferme < 0) break;
    texte.Ajouter(reste.left(ouvre), balises.DansLeTexte);
    texte.Ajouter(valeur(reste.mid(ouvre + 1, ferme - ouvre - 1).toString()), balises.DansLesValeurs);
    reste = reste.mid(ferme + 1);
  }
  texte.Ajouter(reste, balises.DansLeTexte);
  return texte.Finir();
}

QString RemplacerNoms(const QString& modele, const TResolveur& valeur) {
  QString texte;
  for (const TMorceau& morceau : Remplacer(modele, valeur)) texte += morceau.Texte;
  return texte;
}
