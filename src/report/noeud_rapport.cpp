#include "report/noeud_rapport.h"

namespace {

/// Most names are told apart by their length, numbered ones by their end.
bool MemeNom(QStringView a, QStringView b) {
  return a.size() == b.size() && (a.isEmpty() || a.back().toCaseFolded() == b.back().toCaseFolded()) &&
         a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

void TValeurs::Ecrire(QStringView nom, const QString& valeur) {
  for (TValeur& paire : valeurs_)
    if (MemeNom(nom, paire.first)) {
      paire.second = valeur;
      return;
    }
  valeurs_.emplace_back(nom.toString(), valeur);
}

const QString* TValeurs::Trouver(QStringView nom) const {
  for (const TValeur& paire : valeurs_)
    if (MemeNom(nom, paire.first)) return &paire.second;
  return nullptr;
}

QString TValeurs::Valeur(QStringView nom) const {
  const QString* valeur = Trouver(nom);
  return valeur ? *valeur : QString();
}

void SupprimerNoeudsVides(TArbreRapport& arbre) {
  const auto estVide = [](const TNoeudRapport& noeud) { return noeud.Enfants.empty(); };
  for (TNoeudRapport& noeud : arbre) std::erase_if(noeud.Enfants, estVide);
  std::erase_if(arbre, estVide);
}
