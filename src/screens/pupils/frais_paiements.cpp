#include "screens/pupils/frais_paiements.h"

#include "core/formats.h"
#include "documents/periode.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

TValeur MontantOuVide(Currency montant) { return montant == Currency() ? TValeur() : TValeur(montant); }

TEtatFrais EtatDe(Currency du, Currency verse) {
  if (verse >= du) return EtatPaye;
  return verse == Currency() ? EtatDu : EtatPartiel;
}

}  // namespace

TFraisPaiements::TFraisPaiements() {
  Grille.DefinirColonnes({{u"Libellé"_s, 180},
                          {u"Mois"_s, 88, TGenre::Mois},
                          {u"Dû"_s, 80, TGenre::Montant},
                          {u"Payé"_s, 80, TGenre::Montant},
                          {u"État"_s, 94, TGenre::Etat}});
  Grille.Etats = {{u"Payé"_s, u"dialog-ok-apply"_s},
                  {u"Dû"_s, u"data-warning"_s},
                  {u"Partiel"_s, u"data-warning"_s},
                  {u"Reçu"_s, u"dialog-ok-apply"_s},
                  {u"Prévision"_s, u"data-information"_s}};
  Vider();
}

void TFraisPaiements::Vider() {
  Grille.Vider();
  Pied = {{u"Total"_s}, {u"Balance"_s}};
  Solde = totalDu_ = totalVerse_ = {};
}

void TFraisPaiements::Remplir(const TEleve& eleve) {
  const TGrille::TLot lot(Grille);
  Vider();
  AjouterFrais(eleve);
  AjouterServices(eleve);
  AjouterPaiementsLibres(eleve);
  Solde = eleve.Solde(true, true);
  EcrirePied();
}

void TFraisPaiements::AjouterFrais(const TEleve& eleve) {
  const TAllFraisEleve* lignes = eleve.GetAllFrais();
  if (lignes == nullptr) return;
  for (TFraisEleve& ligne : *lignes) {
    if (ligne.EstLibre()) continue;
    const Currency du = ligne.MontantFrais();
    const Currency verse = ligne.MontantVerse;
    Grille.Ajouter({ligne.LibelleFrais(), ligne.MoisFrais(), du, MontantOuVide(verse)}, &ligne,
                   ligne.Previsionnel() ? EtatPrevision : EtatDe(du, verse));
    if (!ligne.Previsionnel()) Compter(du, verse);
  }
}

// What the month costs less its fees, which have rows of their own, is what its services cost.
void TFraisPaiements::AjouterServices(const TEleve& eleve) {
  const TPaiements* paiements = eleve.Eleves->Paiements;
  for (const int mois : kMoisFacturation) {
    const Currency du = eleve.CoutServicesPeriode(BornesMois(mois, eleve.Eleves->AnneeScolaire));
    if (du <= Currency()) continue;
    const Currency verse = eleve.PaiementsMois(mois);
    Grille.Ajouter({QString(u"Services " % NomMois(mois).toLower()), mois, du, MontantOuVide(verse)},
                   paiements != nullptr ? paiements->PaiementMois(eleve.Id, mois) : nullptr,
                   EtatDe(du, verse));
    Compter(du, verse);
  }
}

void TFraisPaiements::AjouterPaiementsLibres(const TEleve& eleve) {
  const TAllFraisEleve* lignes = eleve.GetAllFrais();
  if (lignes == nullptr) return;
  std::vector<TFraisEleve*> libres;
  lignes->PaiementsLibres(libres);
  for (TFraisEleve* ligne : libres) {
    Grille.Ajouter({ligne->Remarque, ligne->Mois, {}, ligne->MontantVerse}, ligne, EtatRecu);
    Compter({}, ligne->MontantVerse);
  }
}

void TFraisPaiements::Compter(Currency du, Currency verse) {
  totalDu_ += du;
  totalVerse_ += verse;
}

void TFraisPaiements::EcrirePied() {
  Pied = {{u"Total"_s, {}, FormatMontant(totalDu_), FormatMontant(totalVerse_)},
          {u"Balance"_s, {}, {}, FormatMontant(Solde)}};
}
