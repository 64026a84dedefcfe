#include "core/regles_ecole.h"

#include "core/exceptions.h"
#include "core/parametres.h"

using namespace Qt::StringLiterals;

namespace {

constexpr struct {
  TParam Param;
  bool TReglesEcole::*Champ;
  bool Aussitot;  ///< holds as soon as it is written
} kDrapeaux[] = {
    {TParam::GarderieUnique, &TReglesEcole::GarderieUnique, true},
    {TParam::DeductionEtude, &TReglesEcole::DeductionEtude, false},
    {TParam::ModeProvision, &TReglesEcole::ModeProvision, false},
    {TParam::SansServices, &TReglesEcole::SansServices, true},
    {TParam::DatePaiement, &TReglesEcole::DatePaiement, true},
    {TParam::BalanceAnnuelle, &TReglesEcole::BalanceAnnuelle, true},
    {TParam::TitreSoirEtudes, &TReglesEcole::SoirEtEtudes, true},
    {TParam::CompteCourant, &TReglesEcole::CompteCourant, true},
    {TParam::CommunicationRepas, &TReglesEcole::CommunicationRepas, true},
    {TParam::FactureDebiteurs, &TReglesEcole::FactureDebiteurs, true},
    {TParam::SignatureASBL, &TReglesEcole::SignatureASBL, true},
    {TParam::SansActivitesMois, &TReglesEcole::SansActivitesMois, true},
    {TParam::AnneeDeSelection, &TReglesEcole::AnneeDeSelection, true},
    {TParam::PlusieursImplantations, &TReglesEcole::PlusieursImplantations, true},
    {TParam::QrReference, &TReglesEcole::QrReference, true},
};

constexpr TParam kPrixRepas[] = {TParam::RepasMaternel, TParam::RepasPrimaire, TParam::RepasPersonnel};
constexpr std::size_t kPrixSuivis = 2;  // of those that have a field on the screen of the settings

}  // namespace

TTypeActivitesExt LireTypeActivitesExt(const QString& parametre) {
  if (parametre == u"1") return TTypeActivitesExt::DepuisSeptembre;
  if (parametre == u"2") return TTypeActivitesExt::DepuisOctobre;
  return TTypeActivitesExt::Aucune;
}

QString TReglesEcole::TitreGarderieSoir() const {
  return SoirEtEtudes ? u"Garderies du soir / études"_s : u"Garderies du soir"_s;
}

TReglesEcole LireReglesEcole(const TParametres& parametres) {
  TReglesEcole regles;
  for (const auto& [param, champ, aussitot] : kDrapeaux) regles.*champ = parametres.EstVrai(param);
  for (std::size_t i = 0; i < std::size(kPrixRepas); ++i)
    regles.PrixRepas[i + 1] = parametres.Montant(kPrixRepas[i]);
  regles.ModeDeduction = static_cast<TModeDeduction>(parametres.Entier(TParam::ModeDeduction));
  regles.ActivitesExt = LireTypeActivitesExt(parametres.GetParametre(TParam::ActivitesExt));
  return regles;
}

void SuivreReglesEcole(const TParametres& parametres, TReglesEcole& regles) {
  for (const auto& [param, champ, aussitot] : kDrapeaux)
    if (aussitot) regles.*champ = parametres.EstVrai(param);
  for (std::size_t i = 0; i < kPrixSuivis; ++i) {
    try {
      regles.PrixRepas[i + 1] = parametres.Montant(kPrixRepas[i]);
    } catch (const EConvertError&) {  // what is refused changes no amount
    }
  }
}
