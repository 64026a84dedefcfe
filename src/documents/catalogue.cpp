#include "documents/catalogue.h"

#include "documents/accueil_one.h"
#include "documents/attestation.h"
#include "documents/badges.h"
#include "documents/balances.h"
#include "documents/caisse_repas.h"
#include "documents/comptabilisation_repas.h"
#include "documents/cuisine.h"
#include "documents/demande_provision.h"
#include "documents/etiquettes.h"
#include "documents/factures.h"
#include "documents/fiche_fiscale.h"
#include "documents/listes_codes_barres.h"
#include "documents/releve_detaille.h"
#include "documents/releve_frais.h"
#include "documents/tickets.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

constexpr TTitreDocument kTitres[] = {
    {.Titre = u"Etiquettes d'identification 89mm x 36mm (Etiquette Dymo 99012)",
     .Construire = EtiquettesGrandes,
     .Empechement = EmpechementGrandes},
    {.Titre = u"Etiquettes d'identification 54mm x 25mm (Etiquette Dymo 11352)",
     .Construire = EtiquettesPetites,
     .Empechement = EmpechementPetites},
    {.Titre = u"Badge individuel d'identification (85mm x 54mm)", .Construire = Badge},
    {.Titre = u"Badge individuel Xerox DocuCard (1 carte)", .Construire = Xerox},
    {.Titre = u"Liste d'identification par classe", .Construire = ListeCodesBarres},
    {.Titre = u"Liste d'identification par classe - grand format", .Construire = ListeCodesBarresLarge},
    {.Titre = u"Facture",
     .Construire = Factures,
     .AvecPeriode = true,
     .Courriel = true,
     .DemandeDate = FactureDemandeDate},
    {.Titre = u"Relevé des frais effectifs",
     .Construire = ReleveFraisEffectifs,
     .AvecPeriode = true,
     .Courriel = true},
    {.Titre = u"Relevé détaillé des services",
     .Construire = ReleveDetaille,
     .AvecPeriode = true,
     .Courriel = true},
    {.Titre = u"Liste prévisionnelle des frais",
     .Construire = ListePrevisionnelle,
     .AvecPeriode = true,
     .Courriel = true},
    {.Titre = u"Detail O.N.E. des accueils extrascolaires", .Construire = AccueilOne, .AvecPeriode = true},
    {.Titre = u"Balance des comptes provisoire", .Construire = BalanceProvisoire, .Courriel = true},
    {.Titre = u"Balance des comptes définitive", .Construire = BalanceDefinitive, .Courriel = true},
    {.Titre = u"Attestation fiscale", .Construire = AttestationFiscale},
    {.Titre = u"Comptabilisation des repas et des soupes",
     .Construire = ComptabilisationRepas,
     .AvecPeriode = true},
    {.Titre = u"Document de provision de compte", .Construire = DemandeProvision},
    {.Titre = u"Fiche fiscale 281.86", .Construire = FicheFiscale, .ParAnneeRevenus = true},

    {.Titre = u"Récapitulatif des tickets pour les parents",
     .Construire = TicketsParents,
     .Liste = TListeTitres::Tickets},
    {.Titre = u"Récapitulatif des tickets disponibles par classe",
     .Construire = TicketsParClasse,
     .Liste = TListeTitres::Tickets},
    {.Titre = u"Fiche de préparation",
     .Construire = FichePreparation,
     .AvecEleves = false,
     .Liste = TListeTitres::Cuisine},
    {.Titre = u"Détail des commandes",
     .Construire = DetailCommandes,
     .AvecEleves = false,
     .Liste = TListeTitres::Cuisine},
    {.Titre = u"Choix de repas", .Construire = ChoixDeRepas, .Liste = TListeTitres::Aucune},
    {.Titre = u"Caisse des repas",
     .Construire = CaisseDesRepas,
     .AvecEleves = false,
     .Liste = TListeTitres::Aucune},
    {.Titre = u"Tickets vendus",
     .Construire = TicketsVendus,
     .AvecPeriode = true,
     .AvecEleves = false,
     .Liste = TListeTitres::Aucune},
};

}  // namespace

std::vector<TTitreOffert> TitresOfferts(TListeTitres liste) {
  std::vector<TTitreOffert> titres;
  for (const TTitreDocument& titre : kTitres)
    if (titre.Liste == liste) titres.push_back({&titre, &titre});
  return titres;
}

std::vector<TTitreOffert> TitresCourriel() {
  const std::vector<TTitreOffert> tous = TitresOfferts(TListeTitres::Eleves);
  std::vector<TTitreOffert> titres;
  for (const TTitreOffert& titre : tous)
    if (titre.Montre->Courriel) titres.push_back({titre.Montre, tous[titres.size()].Fait});
  return titres;
}

const TTitreDocument* TrouverTitre(QStringView titre) {
  const auto* trouve =
      std::ranges::find(kTitres, titre, [](const TTitreDocument& t) { return QStringView(t.Titre); });
  return trouve == std::end(kTitres) ? nullptr : trouve;
}

QString Empechement(const TTitreDocument& titre, const TEtiquettes& etiquettes) {
  return titre.Empechement != nullptr ? titre.Empechement(etiquettes) : QString();
}

bool DemandeDatePaiement(const TTitreDocument& titre, const TParametres& parametres) {
  return titre.DemandeDate != nullptr && titre.DemandeDate(parametres);
}

TElevesChoisis ElevesDuChoix(const TEleves& eleves, const TChoixDocument& choix) {
  TElevesChoisis choisis = choix.Eleves;
  for (const TClasse* classe : choix.Classes)
    for (TEleve& eleve : eleves)
      if (eleve.Classe == classe) choisis.push_back(&eleve);
  return choisis;
}

TResultat FaireDocument(const TContexteDocument& contexte, const TTitreDocument& titre,
                        const TChoixDocument& choix) {
  return titre.Construire(contexte, {ElevesDuChoix(contexte.Eleves, choix),
                                     {contexte.Eleves.AnneeScolaire, choix.DateDebut, choix.DateFin},
                                     choix.DatePaiement,
                                     choix.Classes,
                                     choix.Jour,
                                     choix.NouveauxRepas,
                                     choix.AnneeRevenus,
                                     choix.TouteLEcole});
}
