// "Historique des virements"
#include <algorithm>
#include <numeric>

#include "core/exceptions.h"
#include "core/formats.h"
#include "core/mois.h"
#include "core/transaction_commune.h"
#include "pupils/reserver.h"
#include "screens/payments/frm_attribution_virement.h"
#include "screens/payments/frm_virement.h"
#include "screens/payments/lignes_virement.h"

using namespace Qt::StringLiterals;

namespace {

const QString kComptabilise = u"Vous ne pouvez pas cacher un mouvement comptabilisé !"_s;

}  // namespace

bool TFrmVirement::EstComptabilise(const TExtrait& extrait) const {
  return Globals.Eleves->ExtraitVersEleve(extrait.Id) != 0;
}

void TFrmVirement::RemplirHistorique() {
  TExtraits& extraits = contexte_.Controleur.Extraits();
  TExtrait* const courant = Courant();
  compta_ = inconnu_ = 0;
  {
    const TGrille::TLot lot(Historique);
    Historique.Vider();
    for (TExtrait& extrait : extraits)
      if (!extrait.FlgIgnore || voitCaches_) AjouterMouvement(extrait);
    Historique.ChoisirLigne(courant == nullptr ? -1 : Historique.TrouverObjet(courant));
  }
  total_ = compta_ + inconnu_;
  const TPeriode bornes = extraits.BornesDates();
  titre_ =
      bornes.Premier > 0.0 && bornes.Dernier > 0.0
          ? QString(u"Récapitulatif du " % FormatDate(bornes.Premier) % u" au " % FormatDate(bornes.Dernier))
          : u"Récapitulatif"_s;
  Annoncer();
}

/// Counted whatever the two filters show of it.
void TFrmVirement::AjouterMouvement(TExtrait& extrait) {
  const bool comptabilise = EstComptabilise(extrait);
  ++(comptabilise ? compta_ : inconnu_);
  if (!(comptabilise ? voitComptabilises_ : voitInconnus_)) return;
  Historique.Ajouter(CellulesHistorique(extrait), &extrait, static_cast<int>(EtatExtrait(extrait)));
}

TCellules TFrmVirement::CellulesHistorique(const TExtrait& extrait) {
  TCellules cellules = CellulesMouvement(extrait);
  AjouterEleve(cellules, Globals.Eleves->ExtraitVersEleve(extrait.Id));
  if (const QString parts = TexteParts(extrait); !parts.isEmpty()) cellules[Eleve] = parts;
  cellules.push_back(extrait.TypeResponsable > 0 ? TValeurVue(extrait.TypeResponsable) : TValeurVue());
  return cellules;
}

void TFrmVirement::Basculer(bool& drapeau) {
  drapeau = !drapeau;
  RemplirHistorique();
}

TExtrait* TFrmVirement::Courant() const {
  const int ligne = Historique.LigneCourante();
  return ligne < 0 ? nullptr : Historique.Ligne(ligne).Objet.En<TExtrait>();
}

bool TFrmVirement::ExigeMouvement() const {
  if (enCours_) return false;
  if (Courant() == nullptr) Signaler(TNiveauEtat::Alerte, u"Choisissez d'abord un mouvement"_s);
  return Courant() != nullptr;
}

// Attribution

std::vector<int> TFrmVirement::Ordre() const {
  std::vector<int> lignes(static_cast<std::size_t>(Historique.NombreLignes()));
  std::iota(lignes.begin(), lignes.end(), 0);
  SurOrdre(lignes);
  return lignes;
}

TVide TFrmVirement::HistoriqueVide() const {
  if (Historique.NombreLignes() > 0) return {};
  if (!voitComptabilises_ && !voitInconnus_) return {u"Aucun état choisi : activez un filtre"_s};
  if (total_ > 0)
    return {u"Aucun mouvement dans cet état"_s, u"Activez l'autre filtre pour voir les autres."_s};
  return {u"Aucun mouvement cette année"_s,
          u"Importez le fichier de la banque dans la page « Importation des virements »."_s};
}

int TFrmVirement::Voisine(int pas) const {
  const std::vector<int> ordre = Ordre();
  const auto ici = std::ranges::find(ordre, Historique.LigneCourante());
  if (ici == ordre.end()) return -1;
  const auto voulue = ici - ordre.begin() + pas;
  return voulue < 0 || voulue >= std::ssize(ordre) ? -1 : ordre[static_cast<std::size_t>(voulue)];
}

void TFrmVirement::grdHistoriqueDblClick() {
  if (!ExigeMouvement()) return;
  TFrmAttributionVirement attribution(contexte_, *this);
  contexte_.Modale.MontrerModal(attribution);
}

void TFrmVirement::Attribue(const TEleve& eleve) {
  ++compta_;
  --inconnu_;
  const int ligne = Historique.LigneCourante();
  TCellules cellules = Historique.Ligne(ligne).Cellules;
  cellules[Eleve] = eleve.NomComplet();
  cellules[Classe] = eleve.LibelleClasse();
  Historique.EcrireLigne(ligne, std::move(cellules));
  Historique.ChangerEtat(ligne, static_cast<int>(TEtatMouvement::Comptabilise));
  Annoncer();
}

void TFrmVirement::MontrerCourant() {
  const int ligne = Historique.LigneCourante();
  const TExtrait& extrait = *Courant();
  const int devenu = int{EstComptabilise(extrait)} - int{!Historique.Texte(ligne, Eleve).isEmpty()};
  compta_ += devenu;
  inconnu_ -= devenu;
  Historique.EcrireLigne(ligne, CellulesHistorique(extrait));
  Historique.ChangerEtat(ligne, static_cast<int>(EtatExtrait(extrait)));
  Annoncer();
}

// Other commands

/// The row that follows it on the screen takes its place.
void TFrmVirement::RetirerCourante() {
  const int ligne = Historique.LigneCourante();
  const int suivante = Voisine(1);
  Historique.ChoisirLigne(suivante >= 0 ? suivante : Voisine(-1));
  Historique.Retirer(ligne);
  inconnu_ = std::max(inconnu_ - 1, 0);
  Annoncer();
}

void TFrmVirement::AttribuerAnnee(int pas) {
  if (!ExigeMouvement()) return;
  TExtraits& extraits = contexte_.Controleur.Extraits();
  TExtrait* const extrait = Courant();
  const bool comptabilise = EstComptabilise(*extrait);
  const QString annee = AnneeCompacte(extraits.AnneeScolaire + pas);
  extraits.Deplacer(*extrait, extraits.AnneeScolaire + pas);  // refused, it stays where it is shown
  import_.Oublier(extrait);
  Globals.ExtraitsPrecedents.reset();
  RetirerCourante();
  RemplirApercu();
  if (comptabilise)
    Signaler(TNiveauEtat::Alerte, u"Mouvement attribué à %1 ; son paiement reste en %2"_s.arg(
                                      annee, AnneeCompacte(extraits.AnneeScolaire)));
  else
    Signaler(TNiveauEtat::Succes, QString(u"Mouvement attribué à " % annee));
}

void TFrmVirement::Supprimerlextrait1Click() {
  if (!ExigeMouvement()) return;
  TExtrait& extrait = *Courant();
  if (EstComptabilise(extrait)) return contexte_.Dialogues().Message(kComptabilise);
  if (extrait.FlgIgnore) return;
  extrait.FlgIgnore = true;
  if (!Enregistrer(extrait, u"Mouvement caché"_s, true)) return;
  if (voitCaches_)
    Historique.ChangerEtat(Historique.LigneCourante(), static_cast<int>(TEtatMouvement::Cache));
  else
    RetirerCourante();
}

void TFrmVirement::Repondre(int responsable) {
  if (!ExigeMouvement()) return;
  TExtrait& extrait = *Courant();
  extrait.TypeResponsable = responsable;
  if (Enregistrer(extrait, u"Payé par le responsable %1"_s.arg(responsable)))
    Historique.Ecrire(Historique.LigneCourante(), Resp, responsable);
}

/// False after a message, and memory is then what the table holds. `libre`: only while nobody has it.
bool TFrmVirement::Enregistrer(TExtrait& extrait, const QString& fait, bool libre) {
  TExtraits& extraits = contexte_.Controleur.Extraits();
  try {
    TTransactionCommune ensemble(contexte_.Controleur.Base());
    ReserverExtrait(contexte_.Controleur.Base(), extrait.Id);
    Globals.Eleves->ChargerExtraits = true;  // another workstation may have given it since it was shown
    if (libre && EstComptabilise(extrait)) throw Exception(kComptabilise);
    extraits.Add(extrait);
    extraits.Save();
    if (!extraits.RangeesDisparues().empty()) {
      Historique.ChoisirLigne(-1);  // the movement ends with its row
      import_.Oublier(&extrait);
      throw Exception(u"Ce mouvement n'existe plus : un autre poste l'a supprimé."_s);
    }
    ensemble.Valider();
    Signaler(TNiveauEtat::Succes, fait);
    return true;
  } catch (const Exception& e) {
    Signaler(TNiveauEtat::Refus, u"Non enregistré"_s);
    contexte_.Dialogues().Message(e.Message);
    extraits.Add(extrait);  // also when it was written, and that came to nothing
    extraits.Remettre();
    RemplirApercu();
    RemplirHistorique();
    return false;
  }
}
