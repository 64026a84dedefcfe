#include "documents/badges.h"

#include "core/parametres.h"
#include "documents/sections.h"
#include "pupils/eleve.h"

namespace {

TResultat Badges(const QString& modele, const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TRapport rapport(QStringLiteral("Badge d'identification"), modele);
  TArbreRapport arbre;
  for (const TEleve* eleve : SansRadies(demande.Eleves)) {
    TNoeudRapport& noeud = arbre.emplace_back(NoeudEleve(*eleve));
    noeud.Valeurs.Ecrire(u"Matricule", eleve->Matricule);
  }
  rapport.AjouterVariable(u"TypeCodeBar", contexte.Parametres.GetParametre(28));
  return PresenterMemeVide(std::move(rapport), std::move(arbre));
}

}  // namespace

TResultat Badge(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Badges(QStringLiteral("Badge"), contexte, demande);
}

TResultat Xerox(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Badges(QStringLiteral("Xerox"), contexte, demande);
}
