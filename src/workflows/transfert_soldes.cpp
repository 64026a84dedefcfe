#include "workflows/transfert_soldes.h"

#include <algorithm>

#include "core/curseur.h"
#include "core/mois.h"
#include "core/transaction_commune.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "pupils/reserver.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

namespace {

const QString kTransfert = u"Transfert"_s;  // of a positive balance
const QString kReport = u"Report"_s;
const QString kArrivee = u" de l'année scolaire "_s;
const QString kDepart = u" vers l'année scolaire "_s;
constexpr int kMoisArrivee = 9;
constexpr int kMoisDepart = 6;

/// A free line in the ledger of a pupil, not yet stored.
TFraisEleve& AjouterLigne(TAllFraisEleve& lignes, Currency montant, int mois, const QString& remarque) {
  auto ligne = std::make_unique<TFraisEleve>();
  ligne->TypeFamilleFrais = TTypeFamilleFrais::Frais;
  ligne->Mois = mois;
  ligne->MontantVerse = montant;
  ligne->Remarque = remarque;
  return lignes.Add(std::move(ligne));
}

QString TexteChange(const TEleve& eleve) {
  return u"Les paiements de %1 ont été changés par un autre poste : relisez les données (F5)."_s.arg(
      eleve.NomComplet());
}

bool MemeLigne(const TFraisEleve& a, const TFraisEleve& b) {
  return a.MontantVerse == b.MontantVerse && a.TypeFamilleFrais == b.TypeFamilleFrais &&
         std::max(a.ListeFraisId, 0) == std::max(b.ListeFraisId, 0);
}

/// The ledger is what the table holds now.
bool EstAJour(const TEleve& eleve) {
  const TAllFraisEleve& lignes = *eleve.GetAllFrais();
  const TAllFraisEleve table(eleve.Eleves->BaseDeDonnees(), eleve.Id, eleve.Eleves->AnneeScolaire, nullptr);
  for (const TFraisEleve& ligne : table) {
    const TFraisEleve* lue = lignes.ParCle(ligne.Id);
    if (lue == nullptr || !MemeLigne(*lue, ligne)) return false;
  }
  return lignes.Count() == table.Count();
}

/// The services that the pupil has paid are those that the table holds now; with provisions they are no part
/// of the balance.
bool ServicesAJour(const TEleve& eleve) {
  const TEleves& eleves = *eleve.Eleves;
  if (eleves.Regles != nullptr && eleves.Regles->ModeProvision) return true;
  TCurseur ligne(
      eleves.BaseDeDonnees(),
      u"SELECT MONTANT FROM PAIEMENTS WHERE ELEVE_ID = ? AND ANNEE_SCOLAIRE = ? AND TYPE_PAIEMENT = ?"_s,
      {eleve.Id, eleves.AnneeScolaire, kPaiementServices});
  Currency total;
  while (ligne.Suivant()) total += ligne.Montant("MONTANT");
  return total == eleve.PaiementsAnnee();
}

/// The two lines of a pupil: the balance arrives in one year and leaves the other. They go again unless they
/// are stored.
class TDeuxLignes {
 public:
  TDeuxLignes(const TEleve& depart, const TEleve& arrivee, Currency solde, const QString& mot)
      : depart_(*depart.GetAllFrais()),
        arrivee_(*arrivee.GetAllFrais()),
        entree_(&AjouterLigne(arrivee_, solde, kMoisArrivee,
                              mot % kArrivee % AnneeCompacte(depart.Eleves->AnneeScolaire))),
        sortie_(&AjouterLigne(depart_, -solde, kMoisDepart,
                              mot % kDepart % AnneeCompacte(arrivee.Eleves->AnneeScolaire))) {}
  ~TDeuxLignes() {
    if (rangees_) return;
    arrivee_.Forget(*entree_);
    depart_.Forget(*sortie_);
  }
  TDeuxLignes(const TDeuxLignes&) = delete;
  TDeuxLignes& operator=(const TDeuxLignes&) = delete;

  void Ranger(TTransactionCommune& ensemble) {
    for (auto [lignes, ligne] : {std::pair(&arrivee_, entree_), std::pair(&depart_, sortie_)}) {
      lignes->Save();
      ExigerCle(*ligne);
    }
    ensemble.Valider();
    rangees_ = true;
  }

 private:
  TAllFraisEleve& depart_;
  TAllFraisEleve& arrivee_;
  TFraisEleve* entree_;
  TFraisEleve* sortie_;
  bool rangees_ = false;
};

/// What a pupil paid is looked at again when nobody else can carry it any more.
void Reporter(const TEleve& depart, const TEleve& arrivee, Currency solde, const QString& mot) {
  TTransactionCommune ensemble(depart.Eleves->BaseDeDonnees());
  Reserver(depart);
  if (!EstAJour(depart) || !ServicesAJour(depart)) throw Exception(TexteChange(depart));
  TDeuxLignes(depart, arrivee, solde, mot).Ranger(ensemble);
}

}  // namespace

TReport ReportDe(const TFraisEleve& ligne) {
  for (const QString& mot : {kTransfert, kReport}) {
    if (ligne.Remarque.startsWith(mot % kArrivee)) return TReport::Arrive;
    if (ligne.Remarque.startsWith(mot % kDepart))
      return mot == kReport ? TReport::DetteParti : TReport::Parti;
  }
  return TReport::Aucun;
}

QString RefusTransfert(const TEleves& eleves, int anneeTravail) {
  if (eleves.AnneeScolaire != anneeTravail) return {};
  return u"L'année affichée est l'année de travail %1 : affichez d'abord l'année dont les soldes sont à "
         u"reporter."_s.arg(AnneeCompacte(anneeTravail));
}

QString QuestionTransfert(TSensTransfert sens, const QString& deQui, int anneeTravail) {
  const QString quoi = sens == TSensTransfert::Positifs ? u"positifs"_s : u"négatifs"_s;
  return u"Voulez-vous transférer les soldes %1 de %2 vers l'année scolaire %3 ?"_s.arg(
      quoi, deQui, AnneeCompacte(anneeTravail));
}

void TransfererSoldes(const TEleves& eleves, int anneeTravail, const std::vector<TEleve*>& lesquels,
                      TSensTransfert sens, const std::function<void(const TMontantEleve&)>& reporte) {
  const TEleves travail(eleves.BaseDeDonnees(), anneeTravail);
  const bool positifs = sens == TSensTransfert::Positifs;
  eleves.LireFrais(lesquels);
  for (const TEleve* ligne : lesquels) {
    TEleve* eleve = eleves.TrouverParId(ligne->Id);  // who is enrolled twice has one account
    const Currency solde = eleve->Solde(true, true);
    const bool concerne = positifs ? solde > Currency() : solde < Currency();
    const TEleve* arrivee = concerne ? travail.TrouverParId(eleve->Id) : nullptr;
    if (arrivee == nullptr) continue;
    Reporter(*eleve, *arrivee, solde, positifs ? kTransfert : kReport);
    reporte({eleve, solde});
  }
}
