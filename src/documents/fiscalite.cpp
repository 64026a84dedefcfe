#include "documents/fiscalite.h"

#include "core/formats.h"
#include "core/parametres.h"
#include "documents/entete_ecole.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

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

}  // namespace

void EcrireResponsable(const TEleve& eleve, bool second, TValeurs& valeurs) {
  const TChampsResponsable& champs = second ? kSecond : kPremier;
  valeurs.Ecrire(u"NomResponsable", eleve.*champs.Nom);
  valeurs.Ecrire(u"PrenomResponsable", eleve.*champs.Prenom);
  valeurs.Ecrire(u"AdresseResponsable", eleve.*champs.Adresse % u", " % eleve.*champs.Numero);
  valeurs.Ecrire(u"CPResponsable", IntOuVide(eleve.*champs.CodePostal));
  valeurs.Ecrire(u"LocaliteResponsable", eleve.*champs.Localite);
}

void AjouterSignataire(TRapport& rapport, const TContexteDocument& contexte) {
  using enum TParam;
  const TParametres& parametres = contexte.Parametres;
  static constexpr TVariableParametre kVariables[] = {
      {u"NomEcoleOfficiel", NomEcole}, {u"LocaliteEcole", LocaliteEcole}, {u"Titre", TitreDirection},
      {u"AdresseEcole", RueEcole},     {u"CPEcole", CodePostalEcole},
  };
  AjouterParametres(rapport, parametres, kVariables);
  rapport.AjouterVariable(u"DateJour", FormatDate(contexte.Aujourdhui));
  rapport.AjouterVariable(u"NomDirection", parametres.GetParametre(NomDirection) % u' ' %
                                               parametres.GetParametre(PrenomDirection));
}
