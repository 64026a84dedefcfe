#include "core/regles_ecole.h"

#include "core/parametres.h"

using namespace Qt::StringLiterals;

namespace {

constexpr struct {
  TParam Param;
  bool TReglesEcole::*Champ;
} kDrapeaux[] = {
    {TParam::GarderieUnique, &TReglesEcole::GarderieUnique},
    {TParam::DeductionEtude, &TReglesEcole::DeductionEtude},
    {TParam::ModeProvision, &TReglesEcole::ModeProvision},
    {TParam::SansServices, &TReglesEcole::SansServices},
    {TParam::DatePaiement, &TReglesEcole::DatePaiement},
    {TParam::BalanceAnnuelle, &TReglesEcole::BalanceAnnuelle},
    {TParam::TitreSoirEtudes, &TReglesEcole::SoirEtEtudes},
    {TParam::CompteCourant, &TReglesEcole::CompteCourant},
    {TParam::CommunicationRepas, &TReglesEcole::CommunicationRepas},
    {TParam::FactureDebiteurs, &TReglesEcole::FactureDebiteurs},
    {TParam::SignatureASBL, &TReglesEcole::SignatureASBL},
    {TParam::SansActivitesMois, &TReglesEcole::SansActivitesMois},
    {TParam::AnneeDeSelection, &TReglesEcole::AnneeDeSelection},
    {TParam::PlusieursImplantations, &TReglesEcole::PlusieursImplantations},
    {TParam::QrReference, &TReglesEcole::QrReference},
};

constexpr TParam kPrixRepas[] = {TParam::RepasMaternel, TParam::RepasPrimaire, TParam::RepasPersonnel};

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
  for (const auto& [param, champ] : kDrapeaux) regles.*champ = parametres.EstVrai(param);
  for (std::size_t i = 0; i < std::size(kPrixRepas); ++i)
    regles.PrixRepas[i + 1] = parametres.Montant(kPrixRepas[i]);
  regles.ModeDeduction = static_cast<TModeDeduction>(parametres.Entier(TParam::ModeDeduction));
  regles.ActivitesExt = LireTypeActivitesExt(parametres.GetParametre(TParam::ActivitesExt));
  return regles;
}
