#include "documents/listes_codes_barres.h"

#include "core/parametres.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

TResultat Lister(const QString& modele, const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TRapport rapport(u"Liste des élèves"_s, modele);
  TArbreRapport arbre;
  const TEleve* precedent = nullptr;
  for (const TEleve* eleve : SansRadies(demande.Eleves)) {
    const QString classe = eleve->LibelleClasse();
    // Two sites may have classes of the same name.
    if (precedent == nullptr || eleve->Classe != precedent->Classe || classe != precedent->LibelleClasse())
      arbre.emplace_back(classe).Valeurs.Ecrire(u"Classe", classe);
    precedent = eleve;
    TValeurs& valeurs = arbre.back().Ajouter(eleve->NomComplet()).Valeurs;
    valeurs.Ecrire(u"NomEleve", eleve->Nom);
    valeurs.Ecrire(u"PrenomEleve", eleve->Prenom);
    valeurs.Ecrire(u"Matricule", eleve->Matricule);
  }
  rapport.AjouterVariable(u"TypeCodeBar", contexte.Parametres.GetParametre(TParam::TypeCodeBarre));
  return PresenterMemeVide(std::move(rapport), std::move(arbre));
}

}  // namespace

TResultat ListeCodesBarres(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Lister(u"ListeEleveCodeBarre"_s, contexte, demande);
}

TResultat ListeCodesBarresLarge(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Lister(u"ListeEleveCodeBarreLarge"_s, contexte, demande);
}
