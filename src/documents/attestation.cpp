#include "documents/attestation.h"

#include "core/formats.h"
#include "core/parametres.h"
#include "documents/entete_ecole.h"
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

/// The two sets of fields of a responsible person.
struct TChampsResponsable {
  QString TEleve::*Nom;
  QString TEleve::*Prenom;
  QString TEleve::*Adresse;
  QString TEleve::*Numero;
  int TEleve::*CodePostal;
  QString TEleve::*Localite;
};

constexpr TChampsResponsable kPremier{&TEleve::NomResponsable, &TEleve::PrenomResponsable, &TEleve::Adresse,
                                      &TEleve::Numero,         &TEleve::CodePostal,        &TEleve::Localite};
constexpr TChampsResponsable kSecond{&TEleve::NomResponsable2, &TEleve::PrenomResponsable2,
                                     &TEleve::Adresse2,        &TEleve::Numero2,
                                     &TEleve::CodePostal2,     &TEleve::Localite2};

void EcrireResponsable(const TEleve& eleve, const TChampsResponsable& champs, TValeurs& valeurs) {
  valeurs.Ecrire(u"NomResponsable", eleve.*champs.Nom);
  valeurs.Ecrire(u"PrenomResponsable", eleve.*champs.Prenom);
  valeurs.Ecrire(u"AdresseResponsable", eleve.*champs.Adresse % u", " % eleve.*champs.Numero);
  valeurs.Ecrire(u"CPResponsable", IntOuVide(eleve.*champs.CodePostal));
  valeurs.Ecrire(u"LocaliteResponsable", eleve.*champs.Localite);
}

TNoeudRapport NoeudFeuille(const TFeuilleAttestation& feuille) {
  TEleve& eleve = *feuille.Eleve;
  TNoeudRapport noeud = NoeudEleve(eleve);
  noeud.Valeurs.Ecrire(u"NumAttestation", QString::number(eleve.GetNumAttestation()));
  noeud.Valeurs.Ecrire(u"DateNaissanceEleve", FormatDate(eleve.DateNaissance));
  noeud.Valeurs.Ecrire(u"Montant", FormatDeuxDecimales(feuille.Montant));
  noeud.Valeurs.Ecrire(u"LeLaDirection", u"Le"_s);
  EcrireResponsable(eleve, eleve.FlgImpotRespons2 || feuille.Seconde ? kSecond : kPremier, noeud.Valeurs);
  noeud.Valeurs.Ecrire(u"DateDebut", feuille.DateDebut);
  noeud.Valeurs.Ecrire(u"DateFinReel", feuille.DateFinReel);
  return noeud;
}

/// `dateFin` is that of the last sheet.
void AjouterVariables(TRapport& rapport, const TContexteDocument& contexte, const QString& dateFin) {
  using enum TParam;
  const TParametres& parametres = contexte.Parametres;
  static constexpr TVariableParametre kVariables[] = {
      {u"NomEcoleOfficiel", NomEcole}, {u"LocaliteEcole", LocaliteEcole}, {u"Titre", TitreDirection},
      {u"AdresseEcole", RueEcole},     {u"CPEcole", CodePostalEcole},
  };
  AjouterParametres(rapport, parametres, kVariables);
  rapport.AjouterVariable(u"DateFin", dateFin);
  rapport.AjouterVariable(u"DateJour", FormatDate(contexte.Aujourdhui));
  rapport.AjouterVariable(u"NomDirection", parametres.GetParametre(NomDirection) % u' ' %
                                               parametres.GetParametre(PrenomDirection));
}

/// Amounts hang on the tax year and dates on the year that is open, so another one needs a look.
QString AvertissementAnnee(int anneeTravail) {
  return u"L'année scolaire ouverte est %1-%2 : les montants de l'attestation sont ceux de %3, mais ses "
         u"dates "
         u"sont celles de %1. Vérifiez-les avant de l'imprimer."_s.arg(anneeTravail)
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
    if (feuille.Montant == Currency()) continue;
    arbre.push_back(NoeudFeuille(feuille));
    dateFin = feuille.DateFin;
  }
  AjouterVariables(rapport, contexte, dateFin);
  if (!arbre.empty() && contexte.AnneeTravail != kAnneeFiscale)
    resultat.Messages += AvertissementAnnee(contexte.AnneeTravail);
  resultat.Ajouter(Presenter(std::move(rapport), std::move(arbre), TexteRienAImprimer()));
  return resultat;
}
