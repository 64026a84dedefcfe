#include "documents/facture.h"

#include "core/formats.h"
#include "core/parametres.h"
#include "documents/entete_ecole.h"
#include "documents/libelles_services.h"
#include "documents/postes_ouverts.h"
#include "documents/recueil_messages.h"
#include "documents/sections.h"
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
        balanceAnnuelle_(contexte.Parametres.EstVrai(TParam::BalanceAnnuelle)) {}

  /// The pupil's node; none when exactly nothing is owed.
  std::optional<TNoeudRapport> Faire(const QString& datePaiement, IDialogues& dialogues);

 private:
  void AjouterFrais();
  void AjouterServices();
  void AjouterService(TService service, const TServicesOuverts& ouverts);
  void AjouterArrieres();
  void AjouterRappels();
  Currency VersementsLibres(int mois) const;
  Currency VersementsPeriode() const;
  QString Communication(const QString& datePaiement, IDialogues& dialogues) const;

  const TContexteDocument& contexte_;
  const TEleve& eleve_;
  const TPeriodeDocument& periode_;
  const bool balanceAnnuelle_;
  TSection obligatoires_{u"Frais Obligatoire"_s, u"Frais obligatoires"_s};
  TSection nonObligatoires_{u"Frais Non Obligatoire"_s, u"Frais non obligatoires"_s};
  TSection services_{u"Services"_s, u"Services"_s};
  TSection rappel_{u"Rappel"_s, u"Rappel"_s};
};

std::optional<TNoeudRapport> TFactureEleve::Faire(const QString& datePaiement, IDialogues& dialogues) {
  AjouterFrais();
  AjouterServices();
  if (balanceAnnuelle_)
    AjouterArrieres();
  else
    AjouterRappels();
  const Currency verse = VersementsPeriode();
  const Currency total =
      obligatoires_.Total + nonObligatoires_.Total + services_.Total + rappel_.Total - verse;
  const QString communication = Communication(datePaiement, dialogues);
  if (total == Currency()) return std::nullopt;

  TNoeudRapport noeud = NoeudEleve(eleve_);
  noeud.Valeurs.Ecrire(u"SoldeFacture", FormatDeuxDecimales(total));
  noeud.Valeurs.Ecrire(u"SoldeFacture2", FormatDeuxDecimales(total.Absolu()));
  noeud.Valeurs.Ecrire(u"Communication", communication);
  if (verse > Currency()) noeud.Valeurs.Ecrire(u"Paiement", FormatDeuxDecimales(verse));
  noeud.Valeurs.Ecrire(u"TotalGeneral", FormatDeuxDecimales(total));
  for (TSection* section : {&obligatoires_, &nonObligatoires_, &services_, &rappel_})
    noeud.Enfants.push_back(section->Terminer());
  return noeud;
}

void TFactureEleve::AjouterFrais() {
  for (const TFraisEleve* frais : FraisOuverts(eleve_, periode_))
    if (!frais->FraisService())
      (frais->NonObligatoire() ? nonObligatoires_ : obligatoires_)
          .Ajouter(frais->LibelleFrais(), frais->MontantFrais());
}

void TFactureEleve::AjouterServices() {
  const TServicesOuverts ouverts(eleve_, periode_);
  for (const TService service : {TService::Matin, TService::Midi, TService::Soir, TService::Mercredi})
    AjouterService(service, ouverts);
  for (const TFraisEleve* frais : FraisOuverts(eleve_, periode_))
    if (frais->FraisService()) services_.Ajouter(frais->LibelleFrais(), frais->MontantFrais());
  for (const TService service : {TService::Repas, TService::Soupe, TService::Etude})
    AjouterService(service, ouverts);
}

void TFactureEleve::AjouterService(TService service, const TServicesOuverts& ouverts) {
  if (const std::optional<Currency> montant = ouverts.Montant(service, true))
    services_.Ajouter(LibelleFacture(service, contexte_), *montant);
}

// What was charged and paid from the start of the year to the day before the period.
void TFactureEleve::AjouterArrieres() {
  const TPeriode avant{BornesAnnee(periode_.Annee).Premier, periode_.DateDebut - 1};
  if (avant.Dernier <= avant.Premier) return;
  const Currency factures = eleve_.FraisPeriode(avant) + eleve_.CoutServicesPeriode(avant);
  Currency paiements;
  for (const int mois : kMoisFacturation) {
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
  for (const int mois : kMoisFacturation) {
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
  return lignes->TotalLibresPeriode({periode_.DateDebut, periode_.DateFin}, periode_.Annee);
}

QString TFactureEleve::Communication(const QString& datePaiement, IDialogues& dialogues) const {
  QString structuree;
  if (const int mois = periode_.MoisFacture())
    structuree = CommunicationServices(dialogues, eleve_.Id, mois, periode_.Annee);
  QString communication = contexte_.Parametres.GetParametre(TParam::CommunicationFacture);
  communication.replace(u"[ComStructParFacture]"_s, structuree);
  if (!datePaiement.isEmpty()) communication.replace(u"[DatePaiementFacture]"_s, datePaiement);
  return communication;
}

}  // namespace

TResultat FactureFraisEffectifs(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TRapport rapport(u"Relevé des frais effectifs"_s, u"Facture"_s);
  rapport.NomUsuel = u"Facture"_s;  // another document is called what its title says
  rapport.EffacerVariables();
  const QString date = demande.DatePaiement ? FormatJourLong(*demande.DatePaiement) : QString();
  TRecueilMessages recueil;
  TArbreRapport arbre;
  for (const TEleve* eleve : SansRadies(demande.Eleves))
    if (auto noeud = TFactureEleve(contexte, *eleve, demande.Periode).Faire(date, recueil))
      arbre.push_back(std::move(*noeud));
  rapport.AjouterVariable(u"MoisReleve", demande.Periode.PeriodeTexte());
  AjouterEnteteEcole(rapport, contexte.Parametres);
  rapport.AjouterVariable(u"DatePaiement", date);
  SupprimerNoeudsVides(arbre);

  TResultat resultat;
  resultat.Messages = recueil.Messages;
  resultat.Ajouter(Presenter(std::move(rapport), std::move(arbre),
                             u"Aucune facture n'est à établir pour la période choisie."_s));
  return resultat;
}
