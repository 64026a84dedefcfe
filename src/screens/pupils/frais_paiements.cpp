#include "screens/pupils/frais_paiements.h"

#include "core/formats.h"
#include "documents/periode.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

QString Texte(const char16_t* texte) { return QString::fromUtf16(texte); }

QString MoisOuVide(int mois) { return mois >= 1 && mois <= 12 ? NomMois(mois) : QString(); }

QString MontantOuVide(Currency montant) { return montant == Currency() ? QString() : FormatMontant(montant); }

TEtatFrais EtatDe(Currency du, Currency verse) {
  if (verse >= du) return EtatPaye;
  return verse == Currency() ? EtatDu : EtatPartiel;
}

}  // namespace

TFraisPaiements::TFraisPaiements() {
  Grille.DefinirColonnes({{Texte(u"Libellé"), 180},
                          {Texte(u"Mois"), 88},
                          {Texte(u"Dû"), 80, TAlignement::Droite, TOrdre::Nombre},
                          {Texte(u"Payé"), 80, TAlignement::Droite, TOrdre::Nombre},
                          {Texte(u"État"), 94}});
  Grille.Etats = {{Texte(u"Payé"), Texte(u"dialog-ok-apply")},
                  {Texte(u"Dû"), Texte(u"data-warning")},
                  {Texte(u"Partiel"), Texte(u"data-warning")},
                  {Texte(u"Reçu"), Texte(u"dialog-ok-apply")},
                  {Texte(u"Prévision"), Texte(u"data-information")}};
  Vider();
}

void TFraisPaiements::Vider() {
  Grille.Vider();
  Pied = {{Texte(u"Total")}, {Texte(u"Balance")}};
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
    Grille.Ajouter({ligne.LibelleFrais(), MoisOuVide(ligne.MoisFrais()), FormatMontant(du),
                    ligne.EstPaye() ? FormatMontant(verse) : QString()},
                   &ligne, ligne.Previsionnel() ? EtatPrevision : EtatDe(du, verse));
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
    Grille.Ajouter(
        {u"Services " % NomMois(mois).toLower(), NomMois(mois), FormatMontant(du), MontantOuVide(verse)},
        paiements != nullptr ? paiements->PaiementMois(eleve.Id, mois) : nullptr, EtatDe(du, verse));
    Compter(du, verse);
  }
}

void TFraisPaiements::AjouterPaiementsLibres(const TEleve& eleve) {
  const TAllFraisEleve* lignes = eleve.GetAllFrais();
  if (lignes == nullptr) return;
  std::vector<TFraisEleve*> libres;
  lignes->PaiementsLibres(libres);
  for (TFraisEleve* ligne : libres) {
    Grille.Ajouter({ligne->Remarque, MoisOuVide(ligne->Mois), {}, FormatMontant(ligne->MontantVerse)}, ligne,
                   EtatRecu);
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
