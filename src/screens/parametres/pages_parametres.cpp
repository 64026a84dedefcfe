#include "screens/parametres/pages_parametres.h"

#include "core/conversions.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

using enum TParam;
using TTable = TTableChamps<TParametres>;

TTable Facturation() {
  return {
      Reglage(CommunicationFacture,
              {.Nom = u"memFacture"_s, .Libelle = u"Communication à placer sur les factures :"_s}),
      Reglage(DatePaiement,
              {.Nom = u"cbDatePaiement"_s, .Libelle = u"Indiquer une date de paiement sur la facture"_s}),
      Reglage(ModeProvision,
              {.Nom = u"cbFactureModeProvision"_s, .Libelle = u"Gérer la facturation en mode provision"_s}),
      Reglage(RepasMaternel,
              {.Nom = u"edRepasMaternel"_s, .Libelle = u"Prix repas maternelle:"_s, .Unite = u"euros"_s}),
      Reglage(RepasPrimaire,
              {.Nom = u"edRepasPrimaire"_s, .Libelle = u"Prix repas primaire:"_s, .Unite = u"euros"_s}),
      Reglage(ProvisionGarderie,
              {.Nom = u"edProvisionGarderie"_s, .Libelle = u"Provision services:"_s, .Unite = u"euros"_s}),
      Reglage(ProvisionFrais,
              {.Nom = u"edProvisionFrais"_s, .Libelle = u"Provision frais :"_s, .Unite = u"euros"_s}),
      Reglage(GarderieUnique, {.Nom = u"cbGarderieUnique"_s, .Libelle = u"Forfait garderie à la journée"_s}),
      Reglage(BalanceAnnuelle,
              {.Nom = u"cbBalance"_s,
               .Libelle = u"Imprimer la balance annuelle au lieu des rappels sur la facture"_s}),
  };
}

TTable ReleveFrais() {
  return {
      Reglage(CommunicationFraisEffectifs,
              {.Nom = u"memFraisEffectifs"_s,
               .Libelle = u"Communication à placer sur les relevés des frais effectifs :"_s}),
      Reglage(SansServices, {.Nom = u"cbImpressionService"_s,
                             .Libelle = u"Ne pas imprimer les services sur le relevé des frais effectifs"_s}),
  };
}

TTable Virements() {
  return {
      Reglage(VirementNom, {.Nom = u"edVirementBeneficiaire"_s, .Libelle = u"Nom du bénéficiaire:"_s}),
      Reglage(VirementIBAN, {.Nom = u"edVirementIBAN"_s, .Libelle = u"IBAN bénéficiaire :"_s}),
      Reglage(VirementBIC, {.Nom = u"edVirementBIC"_s, .Libelle = u"BIC bénéficiaire :"_s}),
      Reglage(VirementRue, {.Nom = u"edVirementAdresse"_s, .Libelle = u"Adresse et numéro :"_s}),
      Reglage(VirementCodePostal,
              {.Nom = u"edVirementCodePostal"_s, .Libelle = u"Code postal et localité :"_s, .Largeur = 80}),
      Reglage(VirementLocalite,
              {.Nom = u"edVirementLocalite"_s, .Nomme = u"Localité du bénéficiaire"_s, .Suite = true}),
      ReglageChoix(TypeCompteBancaire, {QString(), u"1"_s, u"2"_s},
                   {.Nom = u"cmbTypeCompteBancaire"_s,
                    .Libelle = u"Type de compte bancaire:"_s,
                    .Choix =
                        [] {
                          return QStringList{u"Belfius (Direct Net)"_s, u"Belfius Professionel"_s, u"ING"_s};
                        }}),
      Reglage(QrReference, {.Nom = u"cbQrReference"_s,
                            .Libelle = u"Code QR de paiement : la communication comme référence"_s}),
  };
}

TTable Divers() {
  return {
      ReglageChoix(TypeCodeBarre, {u"1"_s, u"2"_s},
                   {.Nom = u"cmbCodeBarre"_s,
                    .Libelle = u"Technologie de code à barre:"_s,
                    .Choix =
                        [] {
                          return QStringList{u"Codabar"_s, u"Code39"_s};
                        }}),
      Reglage(ServeurFTP, {.Nom = u"edServeurFTP"_s, .Libelle = u"Adresse du serveur FTP:"_s}),
      Reglage(UserFTP, {.Nom = u"edUserFTP"_s, .Libelle = u"Code utilisateur:"_s}),
      Reglage(MdpFTP, {.Nom = u"edMdpFTP"_s, .Libelle = u"Mot de passe:"_s}),
  };
}

bool EstMontant(const QString& texte) {
  try {
    StrToCurr(texte);
    return true;
  } catch (const EConvertError&) {
    return false;
  }
}

}  // namespace

std::vector<TPageDecrite> PagesDecrites() {
  return {{u"Facturation"_s, Facturation()},
          {u"Relevé des frais"_s, ReleveFrais()},
          {u"Virements"_s, Virements()},
          {u"Divers"_s, Divers()}};
}

QString AvisParametre(const TChamp& champ, const QString& texte) {
  if (champ.Nom == u"cbFactureModeProvision")
    return u"enregistré ; vaut dès que l'année est chargée à nouveau (menu des années, Ctrl+0)"_s;
  if (champ.Nom == u"edVirementIBAN" && texte.contains(u' '))
    return u"enregistré, mais le bulletin de virement le demande sans espaces"_s;
  const bool provision = champ.Nom == u"edProvisionGarderie" || champ.Nom == u"edProvisionFrais";
  if (provision && !texte.isEmpty() && !EstMontant(texte))
    return u"enregistré, mais « " % texte % u" » n'est pas un montant";
  return {};
}
