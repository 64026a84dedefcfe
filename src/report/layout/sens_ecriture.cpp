#include "report/layout/sens_ecriture.h"

#include <algorithm>

namespace {

// As in the Unicode algorithm: odd levels run from right to left.
using TNiveaux = std::vector<int>;
constexpr int kFrancais = 0, kADroite = 1, kNombre = 2, kNeutre = -1;

bool EstADroite(QChar::Direction sens) { return sens == QChar::DirR || sens == QChar::DirAL; }

QChar::Direction SensDe(QStringView texte, qsizetype i) {
  const bool paire = i + 1 < texte.size() && texte[i].isHighSurrogate() && texte[i + 1].isLowSurrogate();
  return paire ? QChar::direction(QChar::surrogateToUcs4(texte[i], texte[i + 1])) : texte[i].direction();
}

/// What each letter says by itself; a number goes with the words before it.
TNiveaux Forts(QStringView ligne) {
  TNiveaux niveaux;
  int mots = kFrancais;
  for (qsizetype i = 0; i < ligne.size(); ++i) {
    const QChar::Direction sens = SensDe(ligne, i);
    const bool suite = sens == QChar::DirNSM || (i > 0 && ligne[i].isLowSurrogate());
    if (sens == QChar::DirL && !suite) mots = kFrancais;
    if (EstADroite(sens) && !suite) mots = kADroite;
    if (suite && i > 0)
      niveaux.push_back(niveaux.back());
    else if (sens == QChar::DirL || EstADroite(sens))
      niveaux.push_back(mots);
    else if (sens == QChar::DirEN || sens == QChar::DirAN)
      niveaux.push_back(mots == kADroite ? kNombre : kFrancais);
    else
      niveaux.push_back(kNeutre);
  }
  return niveaux;
}

/// A blank goes with what stands on both sides of it, else with the line. A comma stays in its number.
void PlacerNeutres(QStringView ligne, TNiveaux& niveaux) {
  for (std::size_t debut = 0; debut < niveaux.size();) {
    std::size_t fin = debut;
    while (fin < niveaux.size() && niveaux[fin] == kNeutre) ++fin;
    if (fin == debut) {
      ++debut;
      continue;
    }
    const int avant = debut > 0 ? niveaux[debut - 1] : kFrancais;
    const int apres = fin < niveaux.size() ? niveaux[fin] : kFrancais;
    const QChar::Direction sens = ligne[static_cast<qsizetype>(debut)].direction();
    const bool nombre = fin == debut + 1 && avant == kNombre && apres == kNombre &&
                        (sens == QChar::DirCS || sens == QChar::DirES);
    const int niveau = nombre ? kNombre : avant > kFrancais && apres > kFrancais ? kADroite : kFrancais;
    std::fill(niveaux.begin() + static_cast<std::ptrdiff_t>(debut),
              niveaux.begin() + static_cast<std::ptrdiff_t>(fin), niveau);
    debut = fin;
  }
}

}  // namespace

bool EcritDeDroiteAGauche(QStringView texte) {
  for (qsizetype i = 0; i < texte.size(); ++i)
    if (texte[i].unicode() >= 0x590 && EstADroite(SensDe(texte, i))) return true;
  return false;
}

std::vector<TSuiteDeLettres> SuitesDeGaucheADroite(QStringView ligne) {
  TNiveaux niveaux = Forts(ligne);
  PlacerNeutres(ligne, niveaux);
  std::vector<TSuiteDeLettres> suites;
  std::ptrdiff_t retournees = 0;  // the last ones, which stand the other way round
  for (qsizetype i = 0; i < ligne.size();) {
    const int niveau = niveaux[static_cast<std::size_t>(i)];
    const qsizetype debut = i;
    while (i < ligne.size() && niveaux[static_cast<std::size_t>(i)] == niveau) ++i;
    retournees = niveau == kFrancais ? 0 : retournees;
    suites.insert(suites.end() - retournees, {debut, i, niveau == kADroite});
    if (niveau != kFrancais) ++retournees;
  }
  return suites;
}
