#include "core/param.h"

#include <algorithm>
#include <iterator>

namespace {

using enum TGenreParam;
using enum TParam;

constexpr TReglesParam kRegles[] = {
    {NomEcole},
    {RueEcole},
    {CodePostalEcole},
    {LocaliteEcole},
    {TelephoneEcole},
    {DispositionRegistre},
    {NomImplantation},
    {CommunicationFacture, Lignes},
    {CompteBanque},
    {HeureDebutLMJV, Entier},
    {MinuteDebutLMJV, Entier},
    {HeureFinLMJV, Entier},
    {MinuteFinLMJV, Entier},
    {HeureDebutMercredi, Entier},
    {MinuteDebutMercredi, Entier},
    {HeureFinMercredi, Entier},
    {MinuteFinMercredi, Entier},
    {EmailEcole},
    {NomDirection},
    {PrenomDirection},
    {TitreDirection},
    {SansServices, OuiNon},
    {ModeProvision, OuiNon},
    {CommunicationFraisEffectifs, Lignes},
    {AnneeScolaire, Entier},
    {TypeCodeBarre},
    {GarderieUnique, OuiNon},
    {CodeEtablissement},
    {DatePaiement, OuiNon},
    {ServeurFTP},
    {UserFTP},
    {MdpFTP, Secret},
    {ImportDirect, OuiNon},
    {CalculAttestation},
    {ModuleRepas},
    {BalanceAnnuelle, OuiNon},
    {VirementNom},
    {VirementIBAN},
    {VirementBIC},
    {VirementRue},
    {VirementCodePostal},
    {VirementLocalite},
    {ProvisionGarderie, Montant, u"0"},
    {ProvisionFrais, Montant, u"0"},
    {TypeCompteBancaire},
    {ActivitesExt},
    {RepasMaternel, Montant, u"0"},
    {RepasPrimaire, Montant, u"0"},
    {TitreSoirEtudes, OuiNon},
    {MaximumParJour, OuiNon},
    {ModeDeduction, Entier, u"0"},
    {RepasPersonnel, Montant, u"0"},
    {CompteCourant, OuiNon},
    {CommunicationRepas, OuiNon},
    {DeductionEtude, OuiNon},
    {FactureDebiteurs, OuiNon},
    {SignatureASBL, OuiNon},
    {SansActivitesMois, OuiNon},
    {PlusieursImplantations, OuiNon},
    {AnneeDeSelection, OuiNon},
    {DatePhoto},
    {QrReference, OuiNon},
    {NumeroEntreprise},
};

}  // namespace

TReglesParam Regles(TParam param) {
  const auto* regle = std::find_if(std::begin(kRegles), std::end(kRegles),
                                   [param](const TReglesParam& r) { return r.Param == param; });
  return regle == std::end(kRegles) ? TReglesParam{param} : *regle;
}
