#include "documents/attestation.h"

#include "core/formats.h"
#include "core/parametres.h"
#include "documents/fiscalite.h"
#include "documents/sections.h"
#include "pupils/eleves.h"
#include "workflows/attestations.h"

using namespace Qt::StringLiterals;

namespace {

QString ModeleAttestation(const TParametres& parametres) {
  const QString calcul = parametres.GetParametre(TParam::CalculAttestation);
  if (calcul == u"1") return u"AttestationContributionValmonde"_s;
  if (calcul == u"4" || parametres.Regles().SignatureASBL) return u"AttestationContributionASBL"_s;
  return u"AttestationContribution"_s;
}

TNoeudRapport NoeudFeuille(const TFeuilleAttestation& feuille, int numero) {
  const TEleve& eleve = *feuille.Eleve;
  TNoeudRapport noeud = NoeudEleve(eleve);
  noeud.Valeurs.Ecrire(u"NumAttestation", QString::number(numero));
  noeud.Valeurs.Ecrire(u"DateNaissanceEleve", FormatDate(eleve.DateNaissance));
  noeud.Valeurs.Ecrire(u"Montant", FormatDeuxDecimales(feuille.Montant));
  noeud.Valeurs.Ecrire(u"LeLaDirection", u"Le"_s);
  EcrireResponsable(eleve, eleve.FlgImpotRespons2 || feuille.Seconde, noeud.Valeurs);
  noeud.Valeurs.Ecrire(u"DateDebut", feuille.DateDebut);
  noeud.Valeurs.Ecrire(u"DateFinReel", feuille.DateFinReel);
  return noeud;
}

/// Amounts hang on the tax year and dates on the year that is open, so another one needs a look.
QString AvertissementAnnee(int anneeTravail) {
  return u"L'année scolaire ouverte est %1-%2 : les montants de l'attestation sont ceux de %3, mais ses "
         u"dates sont celles de %1. Vérifiez-les avant de l'imprimer."_s.arg(anneeTravail)
             .arg(anneeTravail + 1)
             .arg(kAnneeFiscale);
}

}  // namespace

TResultat AttestationFiscale(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TRapport rapport(u"Attestation contribution"_s, ModeleAttestation(contexte.Parametres));
  rapport.NomUsuel = u"Attestation fiscale"_s;
  TAttestations attestations(contexte.Eleves, contexte.Parametres, contexte.AnneeTravail);
  TResultat resultat;
  TArbreRapport arbre;
  QString dateFin;
  for (const TFeuilleAttestation& feuille :
       attestations.Feuilles(SansRadies(demande.Eleves), resultat.Messages)) {
    for (const QString& remarque : feuille.Remarques)
      rapport.Avertissements += feuille.Eleve->NomComplet() % u" : " % remarque % u'.';
    const bool deja = !resultat.Manques.empty() && resultat.Manques.back().EleveId == feuille.Eleve->Id;
    if (feuille.SansDate && !deja)
      resultat.Manques.push_back(
          {feuille.Eleve, u"lblDateNaissance"_s, u"pas d'attestation sans date de naissance"_s});
    if (feuille.Montant == Currency()) continue;
    const int numero = feuille.Eleve->GetNumAttestation();
    if (numero == 0) {
      if (!deja)
        resultat.Manques.push_back(
            {feuille.Eleve, {}, u"pas d'attestation : aucun numéro n'a pu lui être donné"_s});
      continue;
    }
    arbre.push_back(NoeudFeuille(feuille, numero));
    dateFin = feuille.DateFin;
  }
  AjouterSignataire(rapport, contexte);
  rapport.AjouterVariable(u"DateFin", dateFin);  // of the last sheet
  if (!arbre.empty() && contexte.AnneeTravail != kAnneeFiscale)
    resultat.Messages += AvertissementAnnee(contexte.AnneeTravail);
  resultat.Ajouter(Presenter(std::move(rapport), std::move(arbre), TexteRienAImprimer()));
  return resultat;
}
