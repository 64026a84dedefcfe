#include "documents/lettres.h"

#include "core/parametres.h"
#include "documents/entete_ecole.h"
#include "documents/recueil_messages.h"

TRapport LettreEcole(const QString& titre, const QString& modele, const TParametres& parametres,
                     const QString& moisReleve) {
  TRapport lettre(titre, modele);
  lettre.EffacerVariables();
  if (!moisReleve.isEmpty()) lettre.AjouterVariable(u"MoisReleve", moisReleve);
  AjouterEnteteEcole(lettre, parametres);
  return lettre;
}

bool LogoAGauche(const TParametres& parametres) {
  return parametres.Regles().CompteCourant && !parametres.Regles().FactureDebiteurs;
}

TResultat FaireLettres(TRapport lettre, const TElevesChoisis& eleves, const TEcrireLettre& ecrire,
                       const QString& siVide) {
  TRecueilMessages recueil;
  TArbreRapport arbre;
  for (const TEleve* eleve : eleves)
    if (auto noeud = ecrire(*eleve, recueil)) arbre.push_back(std::move(*noeud));
  SupprimerNoeudsVides(arbre);

  TResultat resultat;
  resultat.Messages = recueil.Messages;
  resultat.Ajouter(Presenter(std::move(lettre), std::move(arbre), siVide));
  return resultat;
}
