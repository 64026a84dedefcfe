#include "documents/facture.h"

#include "core/formats.h"
#include "core/mois.h"
#include "core/parametres.h"
#include "documents/lettres.h"
#include "documents/noeud_facture.h"
#include "documents/postes_ouverts.h"
#include "documents/qr_paiement.h"
#include "documents/sections_frais.h"
#include "documents/services_factures.h"
#include "payments/communication_structuree.h"
#include "pupils/eleve.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// One pupil's invoice in the making.
class TFactureEleve {
 public:
  TFactureEleve(const TContexteDocument& contexte, const TEleve& eleve, const TPeriodeDocument& periode)
      : contexte_(contexte),
        eleve_(eleve),
        periode_(periode),
        balanceAnnuelle_(contexte.Parametres.Regles().BalanceAnnuelle) {}

  /// The pupil's node; none when exactly nothing is owed.
  std::optional<TNoeudRapport> Faire(const QString& datePaiement, const TQrPaiement& qr,
                                     IDialogues& dialogues);

 private:
  void AjouterFrais();
  void AjouterServices();
  void AjouterArrieres();
  void AjouterRappels();
  Currency VersementsLibres(int mois) const;
  Currency VersementsPeriode() const;

  const TContexteDocument& contexte_;
  const TEleve& eleve_;
  const TPeriodeDocument& periode_;
  const bool balanceAnnuelle_;
  TSectionsFrais frais_;
  TSection services_{u"Services"_s};
  TSection rappel_{u"Rappel"_s};
};

std::optional<TNoeudRapport> TFactureEleve::Faire(const QString& datePaiement, const TQrPaiement& qr,
                                                  IDialogues& dialogues) {
  AjouterFrais();
  AjouterServices();
  if (balanceAnnuelle_)
    AjouterArrieres();
  else
    AjouterRappels();
  const Currency verse = VersementsPeriode();
  const Currency total = frais_.Total() + services_.Total + rappel_.Total - verse;
  const QString structuree = CommunicationDuMois(CommunicationServices, eleve_, periode_, dialogues);
  if (total == Currency()) return std::nullopt;

  TNoeudRapport noeud =
      NoeudFacture(eleve_, total, TexteCommunication(contexte_.Parametres, structuree, datePaiement));
  qr.Ajouter(noeud, structuree, total);
  if (verse > Currency()) noeud.Valeurs.Ecrire(u"Paiement", FormatDeuxDecimales(verse));
  noeud.Valeurs.Ecrire(u"TotalGeneral", FormatDeuxDecimales(total));
  frais_.Terminer(noeud);
  noeud.Enfants.push_back(services_.Terminer());
  noeud.Enfants.push_back(rappel_.Terminer());
  return noeud;
}

void TFactureEleve::AjouterFrais() {
  for (const TFraisEleve* frais : FraisOuverts(eleve_, periode_))
    if (!frais->FraisService()) frais_.Ajouter(*frais);
}

void TFactureEleve::AjouterServices() {
  const TServicesOuverts ouverts(eleve_, periode_);
  const auto ajouter = [&](std::span<const TService> services) {
    ::AjouterServices(services_, services, contexte_.Parametres.Regles().TitreGarderieSoir(),
                      [&](TService service) { return ouverts.Montant(service, true); });
  };
  const std::span<const TService> services(kServicesFactures);
  constexpr std::size_t duJour = 4;
  ajouter(services.first(duJour));
  for (const TFraisEleve* frais : FraisOuverts(eleve_, periode_))
    if (frais->FraisService()) services_.Ajouter(frais->LibelleFrais(), frais->MontantFrais());
  ajouter(services.subspan(duJour));
}

// What was charged and paid from the start of the year to the day before the period.
void TFactureEleve::AjouterArrieres() {
  const TPeriode avant = periode_.Avant();
  if (avant.Dernier <= avant.Premier) return;
  const Currency factures = eleve_.FraisPeriode(avant) + eleve_.CoutServicesPeriode(avant);
  Currency paiements;
  for (const int mois : kMoisScolaires) {
    const TPeriode bornes = BornesMois(mois, periode_.Annee);
    if (bornes.Premier > avant.Dernier) break;
    paiements += eleve_.VersementsPeriode(bornes);
  }
  rappel_.Total = factures - paiements;
  if (rappel_.Total == Currency()) return;

  const QString annee = QString::number(periode_.Annee);
  const QString jusque = FormatDateLongue(avant.Dernier);
  rappel_.Noeud.Valeurs.Ecrire(u"TypeFrais", u"Arriérés"_s);
  rappel_.Montrer(u"Total des factures"_s,
                  u"Total des factures émises du 1 septembre " % annee % u" au " % jusque,
                  FormatDeuxDecimales(factures.Absolu()));
  // The second "au" belongs to the wording that the parents know.
  rappel_.Montrer(u"Total payé"_s, u"Total des paiements reçus du 1 septembre au " % annee % u" au " % jusque,
                  u'-' % FormatDeuxDecimales(paiements.Absolu()));
}

// What is left unpaid of each month before the period.
void TFactureEleve::AjouterRappels() {
  for (const int mois : kMoisScolaires) {
    const TPeriode bornes = BornesMois(mois, periode_.Annee);
    if (bornes.Premier > periode_.DateDebut || bornes.Dernier > periode_.DateFin) break;
    if (periode_.Contient(mois)) continue;
    const Currency reste = eleve_.VersementsPeriode(bornes) - eleve_.FraisHorsServicesPeriode(bornes) -
                           eleve_.SoldeMois(mois, periode_.Annee) + VersementsLibres(mois);
    if (reste < Currency()) rappel_.Ajouter(NomMois(mois), reste.Absolu());
  }
}

Currency TFactureEleve::VersementsLibres(int mois) const {
  Currency total;
  if (const TAllFraisEleve* lignes = eleve_.GetAllFrais())
    for (const TFraisEleve& ligne : *lignes)
      if (ligne.EstLibre() && ligne.Mois == mois) total += ligne.MontantVerse;
  return total;
}

Currency TFactureEleve::VersementsPeriode() const {
  const TAllFraisEleve* lignes = eleve_.GetAllFrais();
  if (balanceAnnuelle_ || !lignes) return {};
  return lignes->TotalLibresPeriode(periode_.Jours(), periode_.Annee);
}

}  // namespace

TResultat FactureFraisEffectifs(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TRapport lettre = LettreEcole(u"Relevé des frais effectifs"_s, u"Facture"_s, contexte.Parametres,
                                demande.Periode.PeriodeTexte());
  lettre.NomUsuel = u"Facture"_s;  // another document is called what its title says
  const QString date = demande.DatePaiement ? FormatJourLong(*demande.DatePaiement) : QString();
  lettre.AjouterVariable(u"DatePaiement", date);
  const TQrPaiement qr(contexte.Parametres);
  qr.Avertir(lettre);
  const auto ecrire = [&](const TEleve& eleve, IDialogues& dialogues) {
    return TFactureEleve(contexte, eleve, demande.Periode).Faire(date, qr, dialogues);
  };
  return FaireLettres(std::move(lettre), SansRadies(demande.Eleves), ecrire, kAucuneFacture.toString());
}
