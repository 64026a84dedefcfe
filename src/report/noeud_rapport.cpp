#include "report/noeud_rapport.h"

void TValeurs::Ecrire(QStringView nom, const QString& valeur) {
  for (TValeur& paire : valeurs_)
    if (nom.compare(paire.first, Qt::CaseInsensitive) == 0) {
      paire.second = valeur;
      return;
    }
  valeurs_.emplace_back(nom.toString(), valeur);
}

const QString* TValeurs::Trouver(QStringView nom) const {
  for (const TValeur& paire : valeurs_)
    if (nom.compare(paire.first, Qt::CaseInsensitive) == 0) return &paire.second;
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
