#include "screens/pupils/champs_eleve.h"

#include "core/numero_national.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEtroit = 52;  // a number or a postal code, beside what is longer

/// A national number, stored as its digits. Who stores the pupil sees to it that it is one.
TAcces<TEleve> NumeroNational(QString TEleve::*membre) {
  return {[membre](const TEleve& eleve) -> TValeurVue { return NumeroNationalPresente(eleve.*membre); },
          [membre](TEleve& eleve, const TValeurVue& valeur) {
            eleve.*membre = ChiffresNumeroNational(ValeurEn<QString>(valeur));
          }};
}

}  // namespace

QString FauteChampEleve(const TEleve& eleve, const TChamp& champ) {
  static constexpr std::pair<const char16_t*, QString TEleve::*> kNumeros[] = {
      {u"edNumNational", &TEleve::NumNational},
      {u"edNumNationalResponsable", &TEleve::NumNationalResponsable},
      {u"edNumNationalResponsable2", &TEleve::NumNationalResponsable2}};
  for (const auto& [nom, membre] : kNumeros)
    if (champ.Nom == QString::fromUtf16(nom) && !(eleve.*membre).isEmpty() &&
        !NumeroNationalValide(eleve.*membre))
      return u"Ce numéro national est incorrect : onze chiffres, dont les deux derniers contrôlent les autres."_s;
  return {};
}

TTableChamps<TEleve> ChampsEleve() {
  using T = TEleve;
  using enum TGenreChamp;
  return {
      {{.Nom = u"lblDateNaissance"_s,
        .Libelle = u"Date de naissance:"_s,
        .Genre = Date,
        .Refus = u"La date de naissance introduite est incorrecte."_s},
       Membre(&T::DateNaissance)},

      {{u"edNumNational"_s, u"Numéro national"_s, Texte, 15}, NumeroNational(&T::NumNational)},

      {{u"edNomResponsable"_s, u"Nom du responsable"_s, Texte, 50}, Membre(&T::NomResponsable)},
      {{u"edPrenomResponsable"_s, u"Prénom du responsable"_s, Texte, 50}, Membre(&T::PrenomResponsable)},
      {{u"edAdresse"_s, u"Adresse du responsable"_s, Texte, 200}, Membre(&T::Adresse)},
      {{u"edNumero"_s, u"Numéro du responsable"_s, Texte, 40, {}, kEtroit}, Membre(&T::Numero)},
      {{u"edCodePostal"_s, u"Code postal du responsable"_s, Entier, 0, {}, kEtroit}, Membre(&T::CodePostal)},
      {{u"edLocalite"_s, u"Localité du responsable"_s, Texte, 100}, Membre(&T::Localite)},

      {{u"edNomResponsable2"_s, u"Nom du second responsable"_s, Texte, 50}, Membre(&T::NomResponsable2)},
      {{u"edPrenomResponsable2"_s, u"Prénom du second responsable"_s, Texte, 50},
       Membre(&T::PrenomResponsable2)},
      {{u"edAdresse2"_s, u"Adresse du second responsable"_s, Texte, 200}, Membre(&T::Adresse2)},
      {{u"edNumero2"_s, u"Numéro du second responsable"_s, Texte, 40, {}, kEtroit}, Membre(&T::Numero2)},
      {{u"edCodePostal2"_s, u"Code postal du second responsable"_s, Entier, 0, {}, kEtroit},
       Membre(&T::CodePostal2)},
      {{u"edLocalite2"_s, u"Localité du second responsable"_s, Texte, 100}, Membre(&T::Localite2)},

      {{u"edNumNationalResponsable"_s, u"Numéro national du responsable"_s, Texte, 15},
       NumeroNational(&T::NumNationalResponsable)},
      {{u"edNumNationalResponsable2"_s, u"Numéro national du second responsable"_s, Texte, 15},
       NumeroNational(&T::NumNationalResponsable2)},

      {{u"rbAttestationResponsable"_s, u"Attestation"_s, Choix}, Membre(&T::FlgImpotRespons2)},
      {{u"edNumCompte"_s, u"N° compte :"_s, Texte, 50}, Membre(&T::NumCompte)},
      {{u"edNomTitulaireCompte"_s, u"Nom du titulaire :"_s, Texte, 100}, Membre(&T::NomTitulaireCompte)},

      {{u"cb2eEnfant"_s, u"2e enfant"_s, Coche}, Membre(&T::Flg2eEnfant)},
      {{u"cb3eEnfant"_s, u"Gratuité des services"_s, Coche}, Membre(&T::Flg3eEnfant)},
      {{u"cbFactureDetail"_s, u"Facture détaillée"_s, Coche}, Membre(&T::FlgFactureDetail)},
      {{u"cbParentSepare"_s, u"Parents séparés"_s, Coche}, Membre(&T::FlgParentSepare)},
      {{u"cbHandicap"_s, u"Handicap lourd"_s, Coche}, Membre(&T::FlgHandicap)},
      {{u"cbEleveRadie"_s, u"Élève radié"_s, Coche}, Membre(&T::FlgRadie)},
  };
}
