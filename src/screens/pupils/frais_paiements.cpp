#include "screens/pupils/frais_paiements.h"

#include <numeric>

#include "core/formats.h"
#include "core/mois.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

TValeurVue MontantOuVide(Currency montant) {
  return montant == Currency() ? TValeurVue() : TValeurVue(montant);
}

TEtatFrais EtatDe(Currency du, Currency verse) {
  if (verse >= du) return EtatPaye;
  return verse == Currency() ? EtatDu : EtatPartiel;
}

}  // namespace

TFraisPaiements::TFraisPaiements() {
  Grille.DefinirColonnes({{u"Libellé"_s, 290},
                          {u"Mois"_s, 92, TGenre::Mois},
                          {u"Dû"_s, 72, TGenre::Montant},
                          {u"Payé"_s, 72, TGenre::Montant},
                          {u"État"_s, 86, TGenre::Etat}});
  Grille.CasesACocher = true;
  Grille.Etats = {{u"Payé"_s, u"dialog-ok-apply"_s},
                  {u"Dû"_s, u"data-warning"_s},
                  {u"Partiel"_s, u"data-warning"_s},
                  {u"Reçu"_s, u"dialog-ok-apply"_s},
                  {u"Prévision"_s, u"data-information"_s}};
  Vider();
}

TFraisPaiements::~TFraisPaiements() = default;

void TFraisPaiements::Vider() {
  Grille.Vider();
  impayes_.clear();
  Pied = {{u"Total"_s}, {u"Balance"_s}};
  Solde = totalDu_ = totalVerse_ = {};
}

void TFraisPaiements::Remplir(const TEleve& eleve) {
  const TGrille::TLot lot(Grille);
  Vider();
  AjouterFrais(eleve);
  const auto couts = eleve.CoutsServicesMois();
  AjouterServices(eleve, couts);
  AjouterPaiementsLibres(eleve);
  Solde = eleve.Solde(true, false) + eleve.SoldeServices(std::reduce(couts.begin(), couts.end()));
  EcrirePied(eleve.Eleves->Regles != nullptr && eleve.Eleves->Regles->ModeProvision);
}

void TFraisPaiements::AjouterFrais(const TEleve& eleve) {
  const TAllFraisEleve* lignes = eleve.GetAllFrais();
  if (lignes == nullptr) return;
  for (TFraisEleve& ligne : *lignes) {
    if (ligne.EstLibre()) continue;
    const Currency du = ligne.MontantFrais();
    const Currency verse = ligne.MontantVerse;
    const int place = Grille.Ajouter({ligne.LibelleFrais(), ligne.MoisFrais(), du, MontantOuVide(verse)},
                                     &ligne, ligne.Previsionnel() ? EtatPrevision : EtatDe(du, verse));
    Grille.Cocher(place, ligne.EstPaye());
    if (!ligne.Previsionnel()) Compter(du, verse);
  }
}

// What the month costs less its fees, which have rows of their own, is what its services cost. A month that
// was paid stays in sight when its services have come to nothing, so that the payment can be taken back.
void TFraisPaiements::AjouterServices(const TEleve& eleve, std::span<const Currency> couts) {
  const TPaiements* paiements = eleve.Eleves->Paiements;
  for (std::size_t i = 0; i < kMoisScolaires.size(); ++i) {
    const int mois = kMoisScolaires[i];
    const Currency du = std::max(Currency(), couts[i]);
    TPaiement* paye = paiements != nullptr ? paiements->PaiementMois(eleve.Id, mois) : nullptr;
    if (du == Currency() && paye == nullptr) continue;
    const Currency verse = eleve.PaiementsMois(mois);
    const int place =
        Grille.Ajouter({QString(u"Services " % NomMoisCourant(mois)), mois, du, MontantOuVide(verse)},
                       paye != nullptr ? paye : &Impaye(eleve, mois, du), EtatDe(du, verse));
    Grille.Cocher(place, paye != nullptr);
    Compter(du, verse);
  }
}

TPaiement& TFraisPaiements::Impaye(const TEleve& eleve, int mois, Currency du) {
  auto paiement = std::make_unique<TPaiement>();
  paiement->EleveId = eleve.Id;
  paiement->Mois = mois;
  paiement->Annee = eleve.Eleves->AnneeScolaire;
  paiement->Montant = du;
  return *impayes_.emplace_back(std::move(paiement));
}

std::unique_ptr<TPaiement> TFraisPaiements::PrendreImpaye(const TPaiement& paiement) {
  for (auto& impaye : impayes_)
    if (impaye.get() == &paiement) return std::move(impaye);
  return nullptr;
}

void TFraisPaiements::AjouterPaiementsLibres(const TEleve& eleve) {
  const TAllFraisEleve* lignes = eleve.GetAllFrais();
  if (lignes == nullptr) return;
  std::vector<TFraisEleve*> libres;
  lignes->PaiementsLibres(libres);
  for (TFraisEleve* ligne : libres) {
    Grille.OterCase(Grille.Ajouter({ligne->Remarque, ligne->Mois, {}, ligne->MontantVerse}, ligne, EtatRecu));
    Compter({}, ligne->MontantVerse);
  }
}

void TFraisPaiements::Compter(Currency du, Currency verse) {
  totalDu_ += du;
  totalVerse_ += verse;
}

// What is ticked moves no balance where families pay provisions.
void TFraisPaiements::EcrirePied(bool provision) {
  Pied = {
      {u"Total"_s, {}, FormatMontant(totalDu_), FormatMontant(totalVerse_)},
      {provision ? u"Balance (provisions, sans les coches)"_s : u"Balance"_s, {}, {}, FormatMontant(Solde)}};
}
