#include "screens/principal/arbre_eleves.h"

#include "application/globals.h"

namespace {

TNoeud& NoeudSite(TArbre& arbre, const TClasse& classe) {
  const QString texte = classe.LibelleImplantation();
  for (const auto& racine : arbre.Racines())
    if (racine->Texte.compare(texte, Qt::CaseInsensitive) == 0) return *racine;
  return arbre.Ajouter(nullptr, texte, classe.Eleves.Implantations->TrouverParCode(classe.CodeImplantation));
}

void AjouterEleves(TArbre& arbre, TNoeud& noeud, const TClasse& classe, bool avecRadies) {
  for (TEleve* eleve : classe.ListeEleves) {
    if (eleve->FlgRadie && !avecRadies) continue;
    MarquerRadie(arbre.Ajouter(&noeud, eleve->NomComplet(), eleve), *eleve);
  }
}

}  // namespace

void MarquerRadie(TNoeud& noeud, const TEleve& eleve) {
  noeud.Marque = eleve.FlgRadie ? TMarqueNoeud::Barree : TMarqueNoeud::Aucune;
}

void ConstruireArbre(TArbre& arbre, bool avecEleves, bool avecRadies) {
  arbre.Vider();
  if (Globals.Eleves != nullptr) {
    const bool plusieursSites = Globals.Eleves->PlusieursImplantations();
    for (const auto& classe : Globals.Eleves->Classes()) {
      if (plusieursSites && classe->CodeImplantation.trimmed().isEmpty()) continue;
      TNoeud* site = plusieursSites ? &NoeudSite(arbre, *classe) : nullptr;
      TNoeud& noeud = arbre.Ajouter(site, classe->Libelle(), classe.get());
      if (avecEleves) AjouterEleves(arbre, noeud, *classe, avecRadies);
    }
  }
  arbre.Annoncer();
}

void RenommerSites(TArbre& arbre) {
  bool change = false;
  for (const auto& racine : arbre.Racines()) {
    const TImplantation* site = racine->Objet.En<TImplantation>();
    if (site == nullptr) continue;
    const QString texte = site->LibelleCourt.trimmed().isEmpty() ? site->Code : site->LibelleCourt;
    change = change || racine->Texte != texte;
    racine->Texte = texte;
  }
  if (change) arbre.Annoncer();
}
