#include "attendance/presences.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/mois.h"
#include "core/transaction_commune.h"
#include "documents/accueil_extrascolaire.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "pupils/reserver.h"
#include "screens/attendance/frm_ajout_releve.h"
#include "screens/attendance/frm_releve_calendrier.h"
#include "screens/payments/frm_paiement.h"
#include "screens/pupils/frm_signaletique.h"
#include "services/frais_eleve.h"
#include "workflows/attribution_frais.h"
#include "workflows/credit_extraits.h"
#include "workflows/import_presences.h"

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<TPresence> Copie(const TPresence& releve) {
  auto copie = std::make_unique<TPresence>();
  copie->EleveId = releve.EleveId;
  copie->TypePresence = releve.TypePresence;
  copie->DateReleve = releve.DateReleve;
  copie->HeureEntree = releve.HeureEntree;
  copie->HeureSortie = releve.HeureSortie;
  copie->CodeImplantation = releve.CodeImplantation;
  return copie;
}

QString Jour(const TPresence& releve) { return FormatJour(releve.DateReleve); }

}  // namespace

// What was deleted last

void TFrmSignaletique::Retablir() {
  if (!PeutRetablir()) return;
  const std::function<void()> faire = annulation_.Faire;  // what is stored ends it, what is refused does not
  faire();
}

/// What was deleted of this pupil, and how it comes back.
void TFrmSignaletique::Offrir(const QString& supprime, std::function<void()> retour) {
  annulation_ = {Globals.EleveCourant->Id, std::move(retour)};
  contexte_.Principal.Etat(TNiveauEtat::Succes, QString(supprime % u" (Ctrl+Z rétablit)"));
}

bool TFrmSignaletique::PeutRetablir() const {
  return annulation_.Faire && Globals.EleveCourant != nullptr &&
         annulation_.EleveId == Globals.EleveCourant->Id;
}

// Monthly list

void TFrmSignaletique::btnAjoutFaitClick() {
  if (!ExigeEleve()) return;
  TFrmAjoutReleve saisie(contexte_);
  saisie.Charger(TTypePresence::Garderie, 0.0, 0.0, contexte_.Controleur.Horloge().Aujourdhui());
  if (contexte_.Modale.MontrerModal(saisie) != TResultatModal::Valide) return;
  const TDateTime date = saisie.DateReleve();
  const TPeriode annee = BornesAnnee(Globals.Eleves->AnneeScolaire);
  if ((date < annee.Premier || date > annee.Dernier) &&
      !contexte_.Dialogues().ConfirmerGrave(
          u"Le %1 n'est pas dans l'année scolaire affichée : le relevé n'y "
          "apparaîtra pas. Voulez-vous l'ajouter ?"_s.arg(FormatDate(date))))
    return;
  auto releve = std::make_unique<TPresence>();
  releve->EleveId = Globals.EleveCourant->Id;
  releve->TypePresence = saisie.TypePresence();
  releve->DateReleve = date;
  releve->HeureEntree = saisie.HeureEntree();
  releve->HeureSortie = saisie.HeureSortie();
  releve->CodeImplantation = saisie.CodeImplantation();
  std::unique_ptr<TPresence> derive = GarderieDuRepas(*releve);
  AjouterReleve(std::move(releve), std::move(derive));
}

void TFrmSignaletique::AjouterReleve(std::unique_ptr<TPresence> releve, std::unique_ptr<TPresence> derive) {
  TPresences& presences = *Globals.Presences;
  const std::unique_ptr<TPresence> demande = Copie(*releve);
  const QString quoi = u"Relevé du " % FormatDate(demande->DateReleve);
  const auto sortieConnue = [&] {
    return presences.ChercheDoublon(demande->EleveId, demande->DateReleve, 0.0, demande->HeureSortie) !=
           nullptr;
  };
  const bool connue = sortieConnue();
  const bool garde = presences.AjoutePresence(std::move(releve)) != nullptr;
  const bool prolonge = !garde && !connue && sortieConnue();
  if (!Enregistrer(presences, quoi)) return RelireListes();
  if (derive && presences.AjoutePresence(std::move(derive)) != nullptr)
    Enregistrer(presences, quoi % u" et son forfait");
  DireReleve(*demande, garde, prolonge);
  RelireListes();
}

// What is not seen in the list is told.
void TFrmSignaletique::DireReleve(const TPresence& demande, bool garde, bool prolonge) const {
  const int mois = DecodeDate(demande.DateReleve).Mois;
  if (prolonge)
    contexte_.Principal.Etat(TNiveauEtat::Succes,
                             u"La sortie de ce soir-là est maintenant la plus tardive"_s);
  else if (!garde)
    Signaler(u"Relevé non ajouté : cet élève en a déjà un pour ce service ce jour-là"_s);
  else if (mois != MoisVu())
    contexte_.Principal.Etat(TNiveauEtat::Succes,
                             QString(u"Relevé ajouté au mois de " % NomMoisCourant(mois)));
}

void TFrmSignaletique::btnDeleteFaitClick() {
  if (!ExigeEleve()) return;
  const int ligne = Releve.Grille.LigneCourante();
  auto* releve = ligne < 0 ? nullptr : Releve.Grille.Ligne(ligne).Objet.En<TPresence>();
  if (releve == nullptr)
    return contexte_.Dialogues().Message(u"Veuillez sélectionner un relevé à supprimer"_s);
  if (!contexte_.Dialogues().ConfirmerGrave(
          u"Confirmez-vous la suppression définitive du relevé sélectionné ?"_s))
    return;
  const std::shared_ptr<TPresence> copie = Copie(*releve);
  Releve.Grille.ChoisirLigne(Releve.Grille.Voisine(ligne));
  Globals.Presences->Remove(*releve);
  if (Enregistrer(*Globals.Presences, u"Suppression du relevé du " % Jour(*copie)))
    Offrir(u"Relevé du %1 supprimé"_s.arg(Jour(*copie)), [this, copie] { AjouterReleve(Copie(*copie)); });
  RelireListes();
}

void TFrmSignaletique::btnCalendrierClick() {
  if (!ExigeEleve()) return;
  TFrmReleveCalendrier calendrier(contexte_, *Globals.EleveCourant, vuCalendrier_);
  contexte_.Modale.MontrerModal(calendrier);
  contexte_.Principal.Etat(TNiveauEtat::Neutre, calendrier.Note());
  RelireListes();
}

void TFrmSignaletique::SpeedButton3Click() {
  imprimeur_.Faire(
      [mois = MoisVu()](const TContexteDocument& contexte) { return AccueilExtraScolaire(contexte, mois); });
}

// Fees and payments

void TFrmSignaletique::SpeedButton1Click() {
  if (!ExigeEleve()) return;
  TFrmPaiement saisie(indiceMois_);
  if (contexte_.Modale.MontrerModal(saisie) != TResultatModal::Valide) return;
  auto paiement = std::make_unique<TFraisEleve>();
  saisie.EcrireDans(*paiement);
  AjouterLigne(std::move(paiement), u"Paiement de " % FormatMontant(saisie.Saisi.Montant));
}

void TFrmSignaletique::AjouterLigne(std::unique_ptr<TFraisEleve> ligne, const QString& fait) {
  TAllFraisEleve* lignes = Globals.EleveCourant->GetAllFrais();
  if (lignes == nullptr) return;
  const int groupe = ligne->GroupeFraisId;
  EnregistrerPaiement(*lignes, lignes->Add(std::move(ligne)), fait);
  RelireGroupes(groupe);
  RelireListes();
}

void TFrmSignaletique::grdListeFraisDblClick() {
  const int ligne = Frais.Grille.LigneCourante();
  auto* paiement = ligne < 0 ? nullptr : Frais.Grille.Ligne(ligne).Objet.En<TFraisEleve>();
  if (paiement == nullptr || !paiement->EstLibre() || paiement->Remarque.contains(u"Services du mois"_s))
    return Signaler(
        u"Seul un paiement introduit à la main se modifie ; Espace marque un frais ou un mois payé"_s);
  TFrmPaiement saisie(*paiement);
  if (contexte_.Modale.MontrerModal(saisie) != TResultatModal::Valide) return;
  const int groupe = paiement->GroupeFraisId;
  saisie.EcrireDans(*paiement);
  const int nouveau = paiement->GroupeFraisId;
  TAllFraisEleve& lignes = *Globals.EleveCourant->GetAllFrais();
  EnregistrerPaiement(lignes, lignes.Add(*paiement), u"Paiement de " % FormatMontant(paiement->MontantVerse));
  RelireGroupes(std::max(groupe, nouveau));
  RelireListes();
}

void TFrmSignaletique::SpeedButton2Click() {
  if (!ExigeEleve()) return;
  const int ligne = Frais.Grille.LigneCourante();
  if (ligne < 0) return Signaler(u"Choisissez d'abord la ligne à supprimer"_s);
  auto* frais = Frais.Grille.Ligne(ligne).Objet.En<TFraisEleve>();
  if (frais == nullptr)
    return Signaler(u"Un mois de services ne se supprime pas : Espace ôte son paiement"_s);
  const QString question = frais->EstLibre()
                               ? u"Confirmez-vous la suppression du paiement de %1 euros (%2)"_s.arg(
                                     FormatDeuxDecimales(frais->MontantVerse), frais->Remarque)
                               : u"Confirmez-vous la suppression de ce frais : %1 (%2 euros)"_s.arg(
                                     frais->LibelleFrais(), FormatDeuxDecimales(frais->MontantFrais()));
  if (!contexte_.Dialogues().ConfirmerGrave(question)) return;
  const std::shared_ptr<TFraisEleve> copie = CopieDe(*frais);
  const QString quoi = frais->EstLibre() ? frais->Remarque : frais->LibelleFrais();
  TAllFraisEleve& lignes = *Globals.EleveCourant->GetAllFrais();
  const int voisine = Frais.Grille.Voisine(ligne);
  Frais.Grille.ChoisirLigne(-1);
  lignes.Remove(*frais);
  if (Enregistrer(lignes, u"Suppression de " % quoi)) {
    if (copie->ExtraitId > 0) Globals.Eleves->ChargerExtraits = true;  // its movement is free again
    Offrir(quoi % u" : supprimé", [this, copie, quoi] { AjouterLigne(CopieDe(*copie), quoi); });
  }
  RelireGroupes(copie->GroupeFraisId);
  RelireListes(-1);
  Frais.Grille.ChoisirApresRetrait(ligne, voisine);
}

void TFrmSignaletique::grdListeFraisCocheClick(int ligne) {
  const TLigneGrille& vue = Frais.Grille.Ligne(ligne);
  auto* mois = vue.Objet.En<TPaiement>();
  auto* frais = vue.Objet.En<TFraisEleve>();
  const bool partiel = vue.Etat == EtatPartiel ||
                       (frais != nullptr && frais->EstPaye() && frais->MontantVerse < frais->MontantFrais());
  if (partiel && !contexte_.Dialogues().ConfirmerGrave(
                     u"« %1 » n'est payé qu'en partie. Voulez-vous ôter ce paiement ?"_s.arg(
                         Frais.Grille.Texte(ligne, TFraisPaiements::Libelle))))
    return RelireListes();
  if (mois != nullptr)
    BasculerMois(*mois);
  else if (frais != nullptr && !frais->EstLibre())
    BasculerFrais(*frais);
  RelireListes(ligne);
}

void TFrmSignaletique::BasculerMois(TPaiement& mois) {
  TPaiements& paiements = *Globals.Paiements;
  const QString quoi = u"Services " % NomMoisCourant(mois.Mois);
  if (auto impaye = Frais.PrendreImpaye(mois)) return PayerMois(std::move(impaye), quoi);
  Frais.Grille.ChoisirLigne(-1);
  paiements.MarqueImpaye(mois);
  Enregistrer(paiements, quoi);
}

// Marked on two workstations, a month would be paid twice.
void TFrmSignaletique::PayerMois(std::unique_ptr<TPaiement> mois, const QString& quoi) {
  TPaiements& paiements = *Globals.Paiements;
  TPaiement* ecrit = nullptr;
  try {
    TTransactionCommune ensemble(contexte_.Controleur.Base());
    Reserver(*Globals.EleveCourant);
    if (paiements.EstPayeEnBase(mois->EleveId, mois->Mois))
      throw Exception(u"Un autre poste vient de marquer ce mois comme payé. Relisez les données (F5)."_s);
    TPaiement* const paye = paiements.MarquePaye(std::move(mois));
    paiements.Save();
    ecrit = paye;
    ensemble.Valider();
    DireEnregistre(quoi);
  } catch (const Exception& e) {
    if (ecrit != nullptr) paiements.Forget(*ecrit);  // it came to nothing
    paiements.Remettre();
    DireNonEnregistre(e);
  }
}

void TFrmSignaletique::BasculerFrais(TFraisEleve& frais) {
  frais.EstPaye() ? frais.MarqueImpaye() : frais.MarquePaye();
  TAllFraisEleve& lignes = *Globals.EleveCourant->GetAllFrais();
  lignes.Add(frais);
  Enregistrer(lignes, frais.LibelleFrais());
}

void TFrmSignaletique::Signaler(const QString& texte) const {
  contexte_.Principal.Etat(TNiveauEtat::Alerte, texte);
}
