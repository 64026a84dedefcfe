#include "workflows/transfert_soldes.h"

#include "core/transaction_commune.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

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

QString Annees(int annee) { return QString::number(annee) % u'-' % QString::number(annee + 1); }

/// The two lines of a pupil: the balance arrives in one year and leaves the other.
class TVirement {
 public:
  TVirement(const TEleve& depart, const TEleve& arrivee, Currency solde, const QString& mot)
      : depart_(*depart.GetAllFrais()),
        arrivee_(*arrivee.GetAllFrais()),
        entree_(AjouterLigne(arrivee_, solde, kMoisArrivee,
                             mot % kArrivee % Annees(depart.Eleves->AnneeScolaire))),
        sortie_(AjouterLigne(depart_, -solde, kMoisDepart,
                             mot % kDepart % Annees(arrivee.Eleves->AnneeScolaire))) {}

  void Ranger(TDataModule1& base) {
    try {
      TTransactionCommune ensemble(base);
      arrivee_.Save();
      depart_.Save();
      ensemble.Valider();
    } catch (...) {
      arrivee_.Forget(entree_);
      depart_.Forget(sortie_);
      throw;
    }
  }

 private:
  TAllFraisEleve& depart_;
  TAllFraisEleve& arrivee_;
  TFraisEleve& entree_;
  TFraisEleve& sortie_;
};

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
         u"reporter."_s.arg(Annees(anneeTravail));
}

QString QuestionTransfert(TSensTransfert sens, int anneeTravail) {
  const QString quoi = sens == TSensTransfert::Positifs ? u"positifs"_s : u"négatifs"_s;
  return u"Voulez-vous transférer les soldes %1 vers l'année scolaire %2 ?"_s.arg(quoi, Annees(anneeTravail));
}

std::vector<TMontantEleve> TransfererSoldes(const TEleves& eleves, int anneeTravail,
                                            const std::vector<TEleve*>& lesquels, TSensTransfert sens) {
  const TEleves travail(eleves.BaseDeDonnees(), anneeTravail);
  const bool positifs = sens == TSensTransfert::Positifs;
  eleves.LireFrais(lesquels);
  std::vector<TMontantEleve> reportes;
  for (const TEleve* ligne : lesquels) {
    TEleve* eleve = eleves.TrouverParId(ligne->Id);  // who is enrolled twice has one account
    const Currency solde = eleve->Solde(true, true);
    const bool concerne = positifs ? solde > Currency() : solde < Currency();
    const TEleve* arrivee = concerne ? travail.TrouverParId(eleve->Id) : nullptr;
    if (arrivee == nullptr) continue;
    TVirement(*eleve, *arrivee, solde, positifs ? kTransfert : kReport).Ranger(eleves.BaseDeDonnees());
    reportes.push_back({eleve, solde});
  }
  return reportes;
}
