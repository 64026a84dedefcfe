#include "demo/chargement_repas.h"

#include <QDir>

#include "application/globals.h"
#include "core/fichiers.h"
#include "demo/calendrier.h"
#include "demo/tirage.h"
#include "meals/commandes.h"
#include "workflows/prix_repas.h"
#include "workflows/transfert_repas.h"

using namespace Qt::StringLiterals;

namespace {

/// The flow of random numbers of the meals.
constexpr std::uint64_t kFluxRepas = 61;

const QDate kAchats(2016, 10, 24);       ///< the tickets of November are sold
const QDate kDernierJour(2016, 11, 30);  ///< of the orders
const QDate kJourTablette(2016, 11, 22);

/// Columns that make an order, and how often it is chosen.
struct TChoixRepas {
  int Poids;
  std::vector<int> Colonnes;
};

const std::vector<TChoixRepas> kChoix = {
    {620, {1}},   {90, {2, 4}},    {50, {2, 4, 7}}, {30, {2, 5, 8}},
    {80, {3, 5}}, {60, {3, 4, 7}}, {40, {3, 6, 8}}, {20, {2}},  // the filling has been forgotten
    {10, {}},                                                   // ordered, then cleared
};

class TRepasExemple {
 public:
  explicit TRepasExemple(std::uint64_t graine) : tirage_(graine, kFluxRepas) {}

  /// Some buy many tickets, some too few, some none: meals are then eaten on credit.
  void Acheter(TEleve& eleve) {
    if (!tirage_.Chance(750)) return;
    const int nombre = tirage_.Entier(1, 4) * 5;
    const auto paiement = tirage_.Chance(600) ? TPaiementTicket::Virement : TPaiementTicket::Comptant;
    eleve.AcheterTickets(nombre, paiement, PrixSection(eleve.Categorie()),
                         DateDeQt(kAchats.addDays(tirage_.Entier(0, 4))));
  }

  void Commander(TEleve& eleve, const QDate& jour) {
    if (!tirage_.Chance(400)) return;
    std::vector<int> poids;
    for (const TChoixRepas& choix : kChoix) poids.push_back(choix.Poids);
    const TChoixRepas& choix = kChoix[tirage_.Poids(poids)];
    eleve.SetCommande(DateDeQt(jour), PrixSection(eleve.Categorie()), [&](TCommande& commande) {
      for (const int colonne : choix.Colonnes) Marquer(commande, colonne);
    });
  }

  void Encaisser(TEleve& eleve) {
    if (!tirage_.Chance(300)) return;
    TComptage comptage{};
    comptage[3] = tirage_.Entier(0, 2);
    comptage[5] = tirage_.Entier(0, 5);
    comptage[7] = tirage_.Entier(0, 3);
    eleve.EncaisserRepas(DateDeQt(QDate(2016, 11, tirage_.Entier(2, 4))), comptage);
  }

  bool Sert() { return tirage_.Chance(450); }

 private:
  TTirage tirage_;
};

void ChargerTablette(TRepasExemple& repas, IDialogues& dialogues, const QString& dossier) {
  if (!QDir().mkpath(dossier)) return;
  const TFichiersTablette fichiers(dossier);
  CopierEleves(fichiers, true, dialogues);
  std::vector<QByteArray> lignes;
  for (const QDate& jour : {JourEcoleSuivant(kJourTablette.addDays(-1)), kJourTablette})
    for (const TEleve& eleve : *Globals.Eleves)
      if (repas.Sert()) lignes.push_back(LigneRepas(eleve.Matricule, DateDeQt(jour)));
  EcrireFichier(fichiers.Repas, TexteDesLignes(lignes));
}

}  // namespace

void ChargerRepas(IDialogues& dialogues, const QString& dossier) {
  TRepasExemple repas(kAnneeExemple);
  std::vector<TEleve*> eleves;
  for (TEleve& eleve : *Globals.Eleves)
    if (!eleve.FlgRadie) eleves.push_back(&eleve);
  dialogues.Information(u"Tickets, commandes et comptes de repas"_s);
  Globals.Eleves->LireTickets(eleves);
  for (TEleve* eleve : eleves) {
    repas.Acheter(*eleve);
    repas.Encaisser(*eleve);
  }
  int fait = 0;
  for (const QDate& jour : JoursEcole()) {
    if (jour.month() != kDernierJour.month() || jour > kDernierJour || !EstJourRepas(jour)) continue;
    for (TEleve* eleve : eleves) repas.Commander(*eleve, jour);
    dialogues.Progression(++fait, kDernierJour.day(), jour.toString(u"dd/MM/yyyy"_s));
  }
  dialogues.Progression(0, 0, {});
  ChargerTablette(repas, dialogues, dossier % u"/tablette");
}
