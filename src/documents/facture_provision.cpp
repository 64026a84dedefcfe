#include "documents/facture_provision.h"

#include "core/mois.h"
#include "core/parametres.h"
#include "documents/lettres.h"
#include "documents/noeud_facture.h"
#include "documents/postes_ouverts.h"
#include "documents/qr_paiement.h"
#include "documents/services_factures.h"
#include "payments/communication_structuree.h"
#include "pupils/eleve.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// A pupil's account in the making: what the two invoices do differently.
struct TCompte {
  explicit TCompte(const QString& typeFrais) : Mois(u"Services"_s, typeFrais) {}

  TSection Mois;
  TSection Paiements{u"Vos paiements"_s};
  QString Objet;       ///< what is charged: "Garderies"
  Currency Avant;      ///< charged before the period
  QString Negatif;     ///< mark of a balance below 0
  QString Structuree;  ///< communication of the month
};

TSection Balance(const TCompte& compte, const TPeriodeDocument& periode) {
  TSection balance(u"Balance"_s);
  balance.Ajouter(u"Vos paiements"_s, compte.Paiements.Total);
  balance.Ajouter(compte.Objet % u" des mois précédents", -compte.Avant);
  balance.Ajouter(compte.Objet % u" du mois en cours", compte.Objet % u' ' % periode.PeriodeTexte(),
                  -compte.Mois.Total);
  const auto signe = balance.Total <=> Currency();
  balance.Noeud.Valeurs.Ecrire(u"SoldePostif", signe > 0 ? u"1"_s : signe < 0 ? compte.Negatif : u"0"_s);
  return balance;
}

TNoeudRapport Rediger(TCompte compte, const TContexteDocument& contexte, const TEleve& eleve,
                      const TPeriodeDocument& periode, const TQrPaiement& qr) {
  TSection balance = Balance(compte, periode);
  TNoeudRapport noeud =
      NoeudFacture(eleve, balance.Total, TexteCommunication(contexte.Parametres, compte.Structuree));
  qr.Ajouter(noeud, compte.Structuree, -balance.Total);
  noeud.Enfants.push_back(compte.Mois.TerminerSousTotal());
  noeud.Enfants.push_back(compte.Paiements.TerminerSousTotal());
  noeud.Enfants.push_back(balance.TerminerSolde());
  return noeud;
}

TCompte CompteGarderies(const TContexteDocument& contexte, const TEleve& eleve,
                        const TPeriodeDocument& periode) {
  const bool repas = contexte.Parametres.Regles().CommunicationRepas;
  TCompte compte(repas ? u"Repas du mois"_s : u"Garderies du mois"_s);
  const TServicesOuverts ouverts(eleve, periode);
  AjouterServices(compte.Mois, kServicesFactures, contexte.Parametres.Regles().TitreGarderieSoir(),
                  [&](TService service) { return ouverts.Montant(service, false); });
  for (const TFraisEleve* ligne : eleve.VersementsLibres(TTypeFamilleFrais::Services))
    compte.Paiements.Montrer(ligne->Remarque, ligne->Remarque,
                             FormatDeuxDecimales(ligne->MontantVerse.Absolu()));
  compte.Paiements.Total = eleve.VersementsServices();
  compte.Objet = u"Garderies"_s;
  compte.Avant = eleve.CoutServicesPeriode(periode.Avant());
  compte.Negatif = u"0"_s;
  return compte;
}

TCompte CompteActivites(const TEleve& eleve, const TPeriodeDocument& periode) {
  TCompte compte(u"Activités du mois"_s);
  for (const TFraisEleve* frais : FraisOuverts(eleve, periode))
    compte.Mois.Ajouter(frais->LibelleFrais(), frais->MontantFrais());
  if (const TAllFraisEleve* lignes = eleve.GetAllFrais())
    for (const TFraisEleve& ligne : *lignes) {
      if (ligne.Previsionnel()) continue;
      compte.Paiements.Ajouter(ligne.Remarque, ligne.MontantVerse);
      // What was paid on a fee bears no word: the paper says which.
      if (ligne.Remarque.isEmpty())
        compte.Paiements.Noeud.Enfants.back().Annexes.Ecrire(u"FraisPaye", ligne.LibelleFrais());
    }
  compte.Objet = u"Activités"_s;
  compte.Avant = eleve.FraisPeriode(periode.Avant());
  compte.Negatif = u"-1"_s;
  return compte;
}

QString ModeleActivites(const TParametres& parametres) {
  const QString localite = parametres.GetParametre(TParam::LocaliteEcole);
  return localite.toUpper() == u"VALMONDE" ? u"FactureProvisionActiviteValmonde"_s : u"Facture3"_s;
}

}  // namespace

TResultat FactureProvision(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  const TPeriodeDocument& periode = demande.Periode;
  const bool repas = contexte.Parametres.Regles().CommunicationRepas;
  TRapport lettre = LettreEcole(u"Facture"_s, repas ? u"ReleveFacture"_s : u"Facture2"_s, contexte.Parametres,
                                periode.PeriodeTexte());
  const TQrPaiement qr(contexte.Parametres);
  qr.Avertir(lettre);
  const auto ecrire = [&](const TEleve& eleve, IDialogues& dialogues) -> std::optional<TNoeudRapport> {
    TCompte compte = CompteGarderies(contexte, eleve, periode);
    compte.Structuree = CommunicationDuMois(CommunicationServices, eleve, periode, dialogues);
    if (compte.Paiements.Total - compte.Avant - compte.Mois.Total == Currency()) return std::nullopt;
    return Rediger(std::move(compte), contexte, eleve, periode, qr);
  };
  return FaireLettres(std::move(lettre), SansRadies(demande.Eleves), ecrire, kAucuneFacture.toString());
}

TResultat FactureActivites(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  const TPeriodeDocument& periode = demande.Periode;
  TRapport lettre = LettreEcole(u"Facture"_s, ModeleActivites(contexte.Parametres), contexte.Parametres,
                                periode.PeriodeTexte());
  lettre.AjouterVariable(u"AnneeScolaire", AnneeEnTexte(periode.Annee));
  const TQrPaiement qr(contexte.Parametres);
  qr.Avertir(lettre);
  const auto ecrire = [&](const TEleve& eleve, IDialogues& dialogues) -> std::optional<TNoeudRapport> {
    TCompte compte = CompteActivites(eleve, periode);
    compte.Structuree = CommunicationDuMois(CommunicationFrais, eleve, periode, dialogues);
    return Rediger(std::move(compte), contexte, eleve, periode, qr);
  };
  return FaireLettres(std::move(lettre), SansRadies(demande.Eleves), ecrire, kAucuneFacture.toString());
}
