#include "documents/balances.h"

#include "core/formats.h"
#include "core/parametres.h"
#include "documents/entete_ecole.h"
#include "documents/sections.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

QString EnEuros(Currency montant) { return FormatDeuxDecimales(montant) % u" €"; }

TNoeudRapport NoeudRubrique(const QString& titre) {
  TNoeudRapport rubrique(titre);
  rubrique.Valeurs.Ecrire(u"TitreRubrique", titre);
  return rubrique;
}

TNoeudRapport NoeudFrais(const TEleve& eleve) {
  TNoeudRapport rubrique = NoeudRubrique(u"Récapitulatif des frais"_s);
  const auto ajouter = [&](const QString& texte, const QString& libelle, Currency cout) {
    TValeurs& ligne = rubrique.Ajouter(texte).Valeurs;
    ligne.Ecrire(u"NomService", libelle);
    ligne.Ecrire(u"Cout", EnEuros(cout));
  };
  const TAllFraisEleve* frais = eleve.GetAllFrais();
  ajouter(u"Frais obligatoires"_s, u"Frais obligatoires"_s, frais ? frais->TotalObligatoires() : Currency());
  // The singular is what the parents have always read.
  ajouter(u"Frais non obligatoires"_s, u"Frais non obligatoire"_s,
          frais ? frais->TotalNonObligatoires() : Currency());
  ajouter(u"Services"_s, u"Services"_s, eleve.CoutAnnee());
  return rubrique;
}

/// By provision, what was paid without saying what for has no line: it only counts in the total.
TNoeudRapport NoeudPaiements(const TEleve& eleve, bool provision) {
  TNoeudRapport rubrique = NoeudRubrique(u"Récapitulatif des paiements"_s);
  std::vector<TFraisEleve*> libres;
  if (const TAllFraisEleve* frais = eleve.GetAllFrais()) frais->PaiementsLibres(libres);
  for (const TFraisEleve* libre : libres) {
    if (provision && libre->TypeFamilleFrais == TTypeFamilleFrais::General) continue;
    TValeurs& ligne = rubrique.Ajouter(libre->Remarque).Valeurs;
    ligne.Ecrire(u"NomService", libre->Remarque);
    ligne.Ecrire(u"Total", EnEuros(libre->MontantVerse));
  }
  return rubrique;
}

TNoeudRapport NoeudBalance(const TEleve& eleve, bool definitive, bool provision) {
  TNoeudRapport noeud = NoeudEleve(eleve);
  if (definitive) {
    noeud.Valeurs.Ecrire(u"NumCompte", eleve.NumCompte);
    noeud.Valeurs.Ecrire(u"BeneficiaireCompte", eleve.NomTitulaireCompte);
  }
  noeud.Enfants.push_back(NoeudFrais(eleve));
  noeud.Enfants.push_back(NoeudPaiements(eleve, provision));
  noeud.Ajouter(u"Balance"_s).Valeurs.Ecrire(u"TypeFrais", u"Balance"_s);
  noeud.Valeurs.Ecrire(u"TotalDu", EnEuros(eleve.CoutAnnee() + eleve.FraisAnnee()));
  noeud.Valeurs.Ecrire(u"TotalPaye", EnEuros(eleve.FraisPayes() + eleve.PaiementsAnnee()));
  // The template reads it as a number.
  noeud.Valeurs.Ecrire(u"TotalBalance", FormatDeuxDecimales(eleve.Solde(true, true)));
  return noeud;
}

TResultat Balances(TRapport rapport, bool definitive, const TContexteDocument& contexte,
                   const TDemandeDocument& demande) {
  contexte.Eleves.LireFrais(demande.Eleves);
  const bool provision = contexte.Parametres.Regles().ModeProvision;
  TArbreRapport arbre;
  for (const TEleve* eleve : SansRadies(demande.Eleves))
    arbre.push_back(NoeudBalance(*eleve, definitive, provision));
  AjouterEnteteEcole(rapport, contexte.Parametres);
  rapport.AjouterVariable(u"DateJour", FormatDate(contexte.Aujourdhui));
  return Presenter(std::move(rapport), std::move(arbre), TexteRienAImprimer());
}

QString ModeleDefinitif(const TParametres& parametres) {
  if (parametres.Regles().CommunicationRepas) return u"BalanceDefinitiveRepas"_s;
  return parametres.Regles().CompteCourant ? u"BalanceDefinitiveVesper"_s : u"BalanceDefinitive"_s;
}

}  // namespace

TResultat BalanceProvisoire(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Balances({u"Balance des comptes provisoire"_s, u"BalanceProvisoire"_s}, false, contexte, demande);
}

TResultat BalanceDefinitive(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return Balances({u"Balance des comptes définitive"_s, ModeleDefinitif(contexte.Parametres)}, true, contexte,
                  demande);
}
