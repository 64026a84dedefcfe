#include "documents/badges.h"

#include "core/parametres.h"
#include "documents/sections.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

TResultat Badges(const QString& modele, const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TRapport rapport(u"Badge d'identification"_s, modele);
  TArbreRapport arbre;
  for (const TEleve* eleve : SansRadies(demande.Eleves)) {
    TNoeudRapport& noeud = arbre.emplace_back(NoeudEleve(*eleve));
    noeud.Valeurs.Ecrire(u"Matricule", eleve->Matricule);
  }
  rapport.AjouterVariable(u"TypeCodeBar", contexte.Parametres.GetParametre(TParam::TypeCodeBarre));
  return PresenterMemeVide(std::move(rapport), std::move(arbre));
}

}  // namespace

TResultat Badge(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Badges(u"Badge"_s, contexte, demande);
}

TResultat Xerox(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Badges(u"Xerox"_s, contexte, demande);
}
