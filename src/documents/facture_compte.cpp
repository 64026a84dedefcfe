#include "documents/facture_compte.h"

#include "core/formats.h"
#include "core/parametres.h"
#include "documents/lettres.h"
#include "documents/noeud_facture.h"
#include "documents/postes_ouverts.h"
#include "documents/qr_paiement.h"
#include "documents/services_factures.h"
#include "documents/virement.h"
#include "payments/communication_structuree.h"
#include "pupils/eleve.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// How a school words its account.
struct TTextes {
  const char16_t* Mois;
  bool AvecActivites;  ///< a section of their own
  const char16_t* Precedents;
  const char16_t* Court;
};

constexpr struct {
  bool TReglesEcole::*Si;
  TTextes Textes;
} kTextes[] = {
    {&TReglesEcole::CommunicationRepas, {u"Repas du mois", false, u"Repas des mois précédents", u"Repas"}},
    {&TReglesEcole::SansActivitesMois,
     {u"Garderies du mois", false, u"Garderies des mois précédents", u"Garderies"}},
    {&TReglesEcole::FactureDebiteurs,
     {u"Services du mois", true, u"Services des mois précédents", u"Services"}},
};
constexpr TTextes kTextesSinon{u"Garderies du mois", true, u"Garderies et études des mois précédents",
                               u"Garderies et études"};

/// The first setting that is true decides.
TTextes TextesDe(const TReglesEcole& regles) {
  for (const auto& [si, textes] : kTextes)
    if (regles.*si) return textes;
  return kTextesSinon;
}

/// The accounts of a school, as its settings have them.
class TComptes {
 public:
  TComptes(const TContexteDocument& contexte, const TPeriodeDocument& periode)
      : regles_(contexte.Parametres.Regles()),
        periode_(periode),
        textes_(TextesDe(regles_)),
        qr_(contexte.Parametres) {}

  QString Modele() const;
  /// What the office has to know before it prints.
  void Avertir(TRapport& lettre) const { qr_.Avertir(lettre); }
  /// None for a pupil who does not get one.
  std::optional<TNoeudRapport> Rediger(const TEleve& eleve, IDialogues& dialogues) const;

 private:
  TSection ServicesDuMois(const TEleve& eleve) const;
  TSection ActivitesDuMois(const TEleve& eleve) const;
  TSection Etat(const TEleve& eleve, Currency services, Currency activites) const;
  Currency Paiements(const TEleve& eleve) const;
  int GenreCommunication() const { return regles_.CommunicationRepas ? 3 : regles_.FactureDebiteurs ? 0 : 1; }

  const TReglesEcole& regles_;
  const TPeriodeDocument& periode_;
  const TTextes textes_;
  const TQrPaiement qr_;
};

QString TComptes::Modele() const {
  if (regles_.CommunicationRepas) return u"ReleveFactureBrumeval"_s;
  return regles_.FactureDebiteurs ? u"FactureVirement"_s : u"ReleveFactureVesper"_s;
}

std::optional<TNoeudRapport> TComptes::Rediger(const TEleve& eleve, IDialogues& dialogues) const {
  TSection services = ServicesDuMois(eleve);
  TSection activites = ActivitesDuMois(eleve);
  TSection etat = Etat(eleve, services.Total, activites.Total);
  const Currency solde = etat.Total;
  const QString communication = CommunicationCompacte(dialogues, eleve.Id, GenreCommunication(),
                                                      periode_.Annee, regles_.AnneeDeSelection);
  const auto signe = solde <=> Currency();
  if (regles_.FactureDebiteurs && signe >= 0) return std::nullopt;

  TNoeudRapport noeud = NoeudFacture(eleve, solde, communication);
  noeud.Valeurs.Ecrire(u"SoldePostif", signe > 0 ? u"1"_s : signe < 0 ? u"0"_s : u"2"_s);
  RemplirVirement(noeud, communication, solde.Absolu());
  qr_.Ajouter(noeud, communication, -solde);
  noeud.Enfants.push_back(services.TerminerSousTotal());
  if (textes_.AvecActivites) noeud.Enfants.push_back(activites.TerminerSousTotal());
  noeud.Enfants.push_back(etat.TerminerSolde());
  return noeud;
}

TSection TComptes::ServicesDuMois(const TEleve& eleve) const {
  TSection section(u"Services"_s, QString::fromUtf16(textes_.Mois));
  AjouterServices(section, kServicesFactures, regles_.TitreGarderieSoir(),
                  CoutsEntiers(eleve, periode_.Jours()));
  for (const TFraisEleve* frais : FraisOuverts(eleve, periode_))
    if (frais->FraisService()) section.Ajouter(frais->LibelleFrais(), frais->MontantFrais());
  return section;
}

/// A fee that counts as a service stands here too; nothing where there is no such section.
TSection TComptes::ActivitesDuMois(const TEleve& eleve) const {
  TSection section(u"Services"_s, u"Activités du mois"_s);
  if (!textes_.AvecActivites) return section;
  for (const TFraisEleve* frais : FraisOuverts(eleve, periode_))
    section.Ajouter(frais->LibelleFrais(), frais->MontantFrais());
  return section;
}

/// The account itself; its sum is the balance.
TSection TComptes::Etat(const TEleve& eleve, Currency services, Currency activites) const {
  const TPeriode avant = periode_.Avant();
  const QString periode = u' ' % periode_.PeriodeTexte();
  TSection etat(u"Etat de votre compte"_s);
  etat.Ajouter(u"Vos paiements depuis le 1er septembre"_s, Paiements(eleve));
  const QString objet = regles_.FactureDebiteurs ? u"Services"_s : u"Garderies"_s;
  etat.Ajouter(objet % u" des mois précédents", QString::fromUtf16(textes_.Precedents),
               -(eleve.CoutServicesPeriode(avant) + eleve.FraisServicesPeriode(avant)));
  etat.Ajouter(objet % u" du mois en cours", QString::fromUtf16(textes_.Court) % periode, -services);
  if (regles_.CommunicationRepas || regles_.FactureDebiteurs) {
    etat.Total -= activites;  // they count without a row
    return etat;
  }
  etat.Ajouter(u"Frais des mois précédents"_s, u"Activités des mois précédents"_s,
               -eleve.FraisPeriode(avant));
  etat.Ajouter(u"Frais du mois en cours"_s, u"Activités" % periode, -activites);
  return etat;
}

/// Where only debtors are billed, what was paid on fee lines counts twice.
Currency TComptes::Paiements(const TEleve& eleve) const {
  const Currency frais = eleve.FraisPayes();
  const Currency paiements = eleve.VersementsServices() + frais + eleve.PaiementsAnnee();
  return regles_.FactureDebiteurs ? paiements + frais : paiements;
}

}  // namespace

TResultat FactureCompteCourant(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  const TComptes comptes(contexte, demande.Periode);
  TRapport lettre =
      LettreEcole(u"Facture"_s, comptes.Modele(), contexte.Parametres, demande.Periode.PeriodeTexte());
  lettre.AjouterVariable(u"DatePaiement",
                         demande.DatePaiement ? FormatJourLong(*demande.DatePaiement) : QString());
  if (!contexte.Parametres.Regles().CommunicationRepas) lettre.AjouterVariable(u"TypeService", u"1"_s);
  RemplirBeneficiaire(lettre, contexte.Parametres);
  comptes.Avertir(lettre);
  const auto ecrire = [&](const TEleve& eleve, IDialogues& dialogues) {
    return comptes.Rediger(eleve, dialogues);
  };
  return FaireLettres(std::move(lettre), SansRadies(demande.Eleves), ecrire, kAucuneFacture.toString());
}
