#include "screens/meals/frm_compte_eleve.h"

#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "documents/caisse_repas.h"
#include "pupils/eleves.h"
#include "screens/commun/nom_de_liste.h"
#include "screens/documents/imprimeur.h"

using namespace Qt::StringLiterals;

namespace {

QString Euros(Currency montant) { return FormatDeuxDecimales(montant) % u" €"; }

}  // namespace

TFrmCompteEleve::TFrmCompteEleve(TContexteEcran& contexte)
    : TFrmClasseJour(contexte, GenerationRepas(true),
                     {{u"Nom de l'élève"_s, 260}, {u"Solde Compte"_s, 200, TGenre::Montant}}) {
  liens_ += Grille.SurChoix.Suivre([this] { Annoncer(); });
}

void TFrmCompteEleve::FormShow() {
  jour_.Definir(Aujourdhui());
  Globals.Eleves->LibererCommandes();
  Globals.Eleves->LibererRepasPaiements();
  cmbClasseChange(0);
}

void TFrmCompteEleve::cmbClasseChange(int indice) {
  btnAnnulerClick();
  classe_ = indice;
  Grille.ChoisirLigne(-1);
  Remplir();
}

void TFrmCompteEleve::ChangerJour(void (TJourEcran::*pas)()) {
  (jour_.*pas)();
  Annoncer();
}

QString TFrmCompteEleve::Titre() const {
  return Classe() != nullptr ? u"Compte classe du " % FormatJourLong(Aujourdhui()) : QString();
}

QStringList TFrmCompteEleve::NomComptes() const { return NomDeListeDu(NomClasse(), Aujourdhui()); }

QString TFrmCompteEleve::NoteMonnaie() const {
  return u"Reçu aujourd'hui, " % FormatJour(Aujourdhui()) % u" :";
}

QString TFrmCompteEleve::TotalRecu() const {
  Currency total;
  if (const TClasse* classe = Classe())
    for (const TEleve* eleve : classe->ListeEleves) total += eleve->RecuLe(Aujourdhui());
  return u"Total reçu ce jour : " % Euros(total);
}

TMontantNote TFrmCompteEleve::Solde(const TEleve& eleve) const {
  const bool paye = Globals.Eleves->RepasPaiements().PaiementDu(eleve.Id, Aujourdhui(),
                                                                TPaiementRepas::Liquide) != nullptr ||
                    eleve.RecuLe(Aujourdhui()) != Currency();
  return {eleve.SoldeRepas(),
          paye ? QString(u"  (+" % FormatDeuxDecimales(eleve.RecuLe(Aujourdhui())) % u')') : QString()};
}

// What cannot be read leaves the list as it was.
void TFrmCompteEleve::Remplir() {
  TEleve* courant = Courant();
  std::vector<std::pair<TEleve*, TMontantNote>> soldes;
  if (const TClasse* classe = Classe())
    for (TEleve* eleve : classe->ListeEleves) soldes.emplace_back(eleve, Solde(*eleve));
  {
    const TGrille::TLot lot(Grille);
    Grille.Vider();
    for (const auto& [eleve, solde] : soldes) AjouterEleve(Grille, *eleve, {eleve->NomComplet(), solde});
    const int ligne = courant != nullptr ? Grille.TrouverObjet(courant) : -1;
    Grille.ChoisirLigne(ligne >= 0 ? ligne : qMin(0, Grille.NombreLignes() - 1));
  }
  Annoncer();
}

TRepasPaiement* TFrmCompteEleve::PaiementDuJour() const {
  const TEleve* eleve = Courant();
  if (eleve == nullptr) return nullptr;
  return Globals.Eleves->RepasPaiements().PaiementDu(eleve->Id, Aujourdhui(), TPaiementRepas::Liquide);
}

QString TFrmCompteEleve::TitreAjouteArgent() const {
  return PaiementDuJour() != nullptr ? u"Modifier le paiement"_s : u"Ajouter un paiement"_s;
}

void TFrmCompteEleve::btnAjouteArgentClick() {
  if (Courant() == nullptr) {
    contexte_.Dialogues().Message(u"Veuillez sélectionner un élève dans la liste"_s);
    return;
  }
  Vider();
  const TRepasPaiement* paiement = PaiementDuJour();
  if (paiement != nullptr)
    if (const TDetailPaiementLiquide* detail = Globals.Eleves->RepasPaiements().Detail(*paiement))
      for (std::size_t i = 0; i < kNombreCoupures; ++i) champs_[i] = IntOuVide(detail->Comptage[i]);
  enSaisie_ = true;
  Annoncer();
}

void TFrmCompteEleve::edChange(int coupure, const QString& texte) {
  champs_[static_cast<std::size_t>(coupure)] = texte;
  compte_ = true;
  Annoncer();
}

void TFrmCompteEleve::btnCoupureClick(int coupure) {
  const QString plus = QString::number(LireNombreCoupures(Champ(coupure)) + 1);
  if (LireNombreCoupures(plus) > 0) edChange(coupure, plus);  // beyond the greatest count it would be none
}

TComptage TFrmCompteEleve::Comptage() const {
  TComptage comptage{};
  for (std::size_t i = 0; i < kNombreCoupures; ++i) comptage[i] = LireNombreCoupures(champs_[i]);
  return comptage;
}

QString TFrmCompteEleve::lblTotal() const {
  const TRepasPaiement* paiement = compte_ ? nullptr : PaiementDuJour();
  return Euros(paiement != nullptr ? paiement->Montant : Total(Comptage()));
}

void TFrmCompteEleve::btnValiderClick() {
  TEleve* eleve = Courant();
  if (!enSaisie_ || eleve == nullptr) return;
  try {
    eleve->EncaisserRepas(Aujourdhui(), Comptage());
  } catch (...) {  // what was counted stays, beside what is stored
    try {
      Remplir();
    } catch (const Exception&) {  // the first failure is the one to tell
    }
    throw;
  }
  contexte_.Principal.Etat(TNiveauEtat::Succes,
                           u"Enregistré pour " % eleve->NomComplet() % u" : " % lblTotal());
  Vider();
  Remplir();
}

void TFrmCompteEleve::btnAnnulerClick() {
  Vider();
  Annoncer();
}

void TFrmCompteEleve::Vider() {
  champs_.fill({});
  enSaisie_ = false;
  compte_ = false;
}

void TFrmCompteEleve::ImprimerCaisse() {
  TImprimeur(contexte_, {}).Faire([&](const TContexteDocument& contexte) {
    return CaisseDesRepas(contexte, Aujourdhui());
  });
}

QString TFrmCompteEleve::EnSuspens() const {
  return enSaisie_ && compte_ ? u"l'argent compté pour " % NomEleve() : QString();
}

bool TFrmCompteEleve::FormCloseQuery() {
  return EnSuspens().isEmpty() || contexte_.Dialogues().ConfirmerGrave(
                                      u"L'argent compté pour %1 n'est pas enregistré. Quitter tout de "
                                      "même cet écran ?"_s.arg(NomEleve()));
}
