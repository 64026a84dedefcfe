#include "screens/parametres/pages_parametres.h"

#include "core/conversions.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

using enum TGenreChamp;
using enum TParam;
using TTable = TTableChamps<TParametres>;

TTable Facturation() {
  return {
      {{.Nom = u"memFacture"_s,
        .Libelle = u"Communication à placer sur les factures :"_s,
        .Genre = Lignes,
        .Longueur = kParametreMaximum},
       Reglage(CommunicationFacture)},
      {{.Nom = u"cbDatePaiement"_s,
        .Libelle = u"Indiquer une date de paiement sur la facture"_s,
        .Genre = Coche},
       ReglageCoche(DatePaiement)},
      {{.Nom = u"cbFactureModeProvision"_s,
        .Libelle = u"Gérer la facturation en mode provision"_s,
        .Genre = Coche},
       ReglageCoche(ModeProvision)},
      {{.Nom = u"edRepasMaternel"_s,
        .Libelle = u"Prix repas maternelle:"_s,
        .Genre = TexteMontant,
        .Longueur = kParametreMaximum,
        .Unite = u"euros"_s},
       Reglage(RepasMaternel)},
      {{.Nom = u"edRepasPrimaire"_s,
        .Libelle = u"Prix repas primaire:"_s,
        .Genre = TexteMontant,
        .Longueur = kParametreMaximum,
        .Unite = u"euros"_s},
       Reglage(RepasPrimaire)},
      {{.Nom = u"edProvisionGarderie"_s,
        .Libelle = u"Provision services:"_s,
        .Genre = TexteMontant,
        .Longueur = kParametreMaximum,
        .Unite = u"euros"_s},
       Reglage(ProvisionGarderie)},
      {{.Nom = u"edProvisionFrais"_s,
        .Libelle = u"Provision frais :"_s,
        .Genre = TexteMontant,
        .Longueur = kParametreMaximum,
        .Unite = u"euros"_s},
       Reglage(ProvisionFrais)},
      {{.Nom = u"cbGarderieUnique"_s, .Libelle = u"Forfait garderie à la journée"_s, .Genre = Coche},
       ReglageCoche(GarderieUnique)},
      {{.Nom = u"cbBalance"_s,
        .Libelle = u"Imprimer la balance annuelle au lieu des rappels sur la facture"_s,
        .Genre = Coche},
       ReglageCoche(BalanceAnnuelle)},
  };
}

TTable ReleveFrais() {
  return {
      {{.Nom = u"memFraisEffectifs"_s,
        .Libelle = u"Communication à placer sur les relevés des frais effectifs :"_s,
        .Genre = Lignes,
        .Longueur = kParametreMaximum},
       Reglage(CommunicationFraisEffectifs)},
      {{.Nom = u"cbImpressionService"_s,
        .Libelle = u"Ne pas imprimer les services sur le relevé des frais effectifs"_s,
        .Genre = Coche},
       ReglageCoche(SansServices)},
  };
}

TTable Virements() {
  return {
      {{.Nom = u"edVirementBeneficiaire"_s,
        .Libelle = u"Nom du bénéficiaire:"_s,
        .Longueur = kParametreMaximum},
       Reglage(VirementNom)},
      {{.Nom = u"edVirementIBAN"_s, .Libelle = u"IBAN bénéficiaire :"_s, .Longueur = kParametreMaximum},
       Reglage(VirementIBAN)},
      {{.Nom = u"edVirementBIC"_s, .Libelle = u"BIC bénéficiaire :"_s, .Longueur = kParametreMaximum},
       Reglage(VirementBIC)},
      {{.Nom = u"edVirementAdresse"_s, .Libelle = u"Adresse et numéro :"_s, .Longueur = kParametreMaximum},
       Reglage(VirementRue)},
      {{.Nom = u"edVirementCodePostal"_s,
        .Libelle = u"Code postal et localité :"_s,
        .Longueur = kParametreMaximum,
        .Largeur = 80},
       Reglage(VirementCodePostal)},
      {{.Nom = u"edVirementLocalite"_s,
        .Longueur = kParametreMaximum,
        .Nomme = u"Localité du bénéficiaire"_s,
        .Suite = true},
       Reglage(VirementLocalite)},
      {{.Nom = u"cmbTypeCompteBancaire"_s,
        .Libelle = u"Type de compte bancaire:"_s,
        .Genre = Choix,
        .Choix =
            [] {
              return QStringList{u"Belfius (Direct Net)"_s, u"Belfius Professionel"_s, u"ING"_s};
            }},
       ReglageChoix(TypeCompteBancaire, {QString(), u"1"_s, u"2"_s})},
  };
}

TTable Divers() {
  return {
      {{.Nom = u"cmbCodeBarre"_s,
        .Libelle = u"Technologie de code à barre:"_s,
        .Genre = Choix,
        .Choix =
            [] {
              return QStringList{u"Codabar"_s, u"Code39"_s};
            }},
       ReglageChoix(TypeCodeBarre, {u"1"_s, u"2"_s})},
      {{.Nom = u"edServeurFTP"_s, .Libelle = u"Adresse du serveur FTP:"_s, .Longueur = kParametreMaximum},
       Reglage(ServeurFTP)},
      {{.Nom = u"edUserFTP"_s, .Libelle = u"Code utilisateur:"_s, .Longueur = kParametreMaximum},
       Reglage(UserFTP)},
      {{.Nom = u"edMdpFTP"_s, .Libelle = u"Mot de passe:"_s, .Genre = Secret, .Longueur = kParametreMaximum},
       Reglage(MdpFTP)},
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
