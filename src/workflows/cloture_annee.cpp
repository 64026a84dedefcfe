#include "workflows/cloture_annee.h"

#include <unordered_set>

#include "core/accord.h"
#include "core/mois.h"
#include "core/query_internal.h"

using namespace Qt::StringLiterals;

namespace {

/// The accounts are those on display: of another year, they would be written once and for all.
QString AutreAnneeAffichee() {
  const int affichee = Globals.Eleves->AnneeScolaire;
  if (affichee == Globals.AnneeScolaire) return {};
  return u"Attention : l'année affichée est %1. La clôture écrirait ses comptes comme étant ceux de %2, et "
         u"ne "
         "peut pas être refaite. Répondez « Non » et affichez d'abord %2.\n"_s.arg(
             AnneeEnTexte(affichee), AnneeEnTexte(Globals.AnneeScolaire));
}

}  // namespace

QString TClotureAnnee::Annonce(int eleves) {
  const int annee = Globals.AnneeScolaire;
  std::unordered_set<int> comptes, professeurs;
  for (const TEleve& eleve : *Globals.Eleves)
    (CategorieDeClasse(eleve.CodeClasse) == TCategorie::Personnel ? professeurs : comptes).insert(eleve.Id);
  QString qui = CompterEleves(static_cast<qint64>(comptes.size()));
  QString reste;
  if (!professeurs.empty()) {
    const auto nombre = static_cast<qint64>(professeurs.size());
    qui += u" et de " % Compter(nombre, u"professeur"_s, u"professeurs"_s);
    reste =
        u"\nAucun professeur ne passe : ajoutez-les dans la nouvelle année, par le menu de la liste des élèves."_s;
  }
  return AutreAnneeAffichee() %
         u"La clôture écrit la balance de %1 pour l'année %2, fait passer %3 du fichier en %4 et quitte "
         "%2."_s.arg(qui, AnneeEnTexte(annee), CompterEleves(eleves), AnneeEnTexte(annee + 1)) %
         reste;
}

void TClotureAnnee::Cloturer() {
  try {
    EcrireBalances();
    AvancerAnnee();
  } catch (const Exception& e) {
    throw ECloture(u"La clôture est arrêtée : l'année scolaire n'a pas changé.\n" % e.Message);
  }
  controleur_.Dialogues().Information(
      u"L'année scolaire est clôturée.\r\n"
      "Vous pouvez commnencer le transfert des nouvelles informations."_s);
}

// A year that was refused must not move with what is saved next.
void TClotureAnnee::AvancerAnnee() {
  TParametres& parametres = *Globals.Parametres;
  parametres.SetParametre(TParam::AnneeScolaire,
                          QString::number(parametres.Entier(TParam::AnneeScolaire) + 1));
  try {
    parametres.Save();
  } catch (const Exception&) {
    parametres.Remettre();
    throw;
  }
  Globals.AnneeScolaire = parametres.Entier(TParam::AnneeScolaire);
}

void TClotureAnnee::EcrireBalances() {
  IDialogues& dialogues = controleur_.Dialogues();
  TProgression progression(dialogues, Globals.Eleves->Count());
  int fait = 0;
  std::unordered_set<int> clotures;  // a pupil who is enrolled twice has one account
  for (const TEleve& eleve : *Globals.Eleves) {
    if (!clotures.insert(eleve.Id).second) continue;
    EcrireBalance(eleve);
    progression.Avancer(++fait, eleve.NomComplet());
    dialogues.TraiterEvenements();
  }
}

void TClotureAnnee::EcrireBalance(const TEleve& eleve) {
  TDataModule1& base = controleur_.Base();
  const Currency frais = eleve.Solde(true, false);
  const Currency services = eleve.Solde(false, true);
  const Currency total = eleve.Solde(true, true);
  const int cle = base.GetNextId(u"BALANCE"_s);
  if (cle == -1) throw Exception(u"Le compte de " % eleve.NomComplet() % u" n'a pas reçu de numéro.");
  TQueryInternal ajout(base,
                       u"insert into balance values (:iBalanceID, :iEleveId, "
                       ":iAnneeScolaire, :mTotService, :mTotFrais, :mTotal)"_s);
  ajout.Parametre(u"iBalanceID"_s, cle)
      .Parametre(u"iEleveId"_s, eleve.Id)
      .Parametre(u"iAnneeScolaire"_s, Globals.AnneeScolaire)
      .Parametre(u"mTotService"_s, services)
      .Parametre(u"mTotFrais"_s, frais)
      .Parametre(u"mTotal"_s, total)
      .Executer();
}
