#include "screens/payments/frm_attribution_virement.h"

#include <algorithm>

#include "core/comparaisons.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "screens/payments/frm_paiement.h"
#include "screens/payments/frm_repartition.h"
#include "screens/payments/frm_virement.h"
#include "workflows/credit_extraits.h"
#include "workflows/repartition.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLibelleMax = 200;

}  // namespace

TFrmAttributionVirement::TFrmAttributionVirement(TContexteEcran& contexte, TFrmVirement& virements)
    : LUCombo1({{u"Nom de l'élève"_s, 260}, {u"Classe"_s, 80}, {u"Pourquoi"_s, 260}}),
      contexte_(contexte),
      virements_(virements),
      groupes_{QString()},
      idsGroupes_{0},
      champs_(Table(), TChamps::TousALaFois) {
  std::vector<TLibelleGroupe> libelles;
  Globals.GroupesFrais->LibellesGroupes(libelles);
  for (const TLibelleGroupe& groupe : libelles) {
    groupes_ += groupe.Libelle;
    idsGroupes_.push_back(groupe.Groupe->Id);
  }
  liens_ += LUCombo1.SurChoix.Suivre([this] { Annoncer(); });
}

TTableChamps<TSaisieAttribution> TFrmAttributionVirement::Table() {
  using T = TSaisieAttribution;
  using enum TGenreChamp;
  return {
      {{.Nom = u"edLibellePaiement"_s, .Libelle = u"Libellé du paiement:"_s, .Longueur = kLibelleMax},
       Membre(&T::Libelle)},
      {{.Nom = u"rbTP"_s, .Libelle = u"Pour:"_s, .Genre = Choix, .Boutons = true, .Choix = FamillesPaiement},
       Membre(&T::Famille)},
      {{.Nom = u"cmbGroupePaiement"_s,
        .Libelle = u"Groupe de paiement:"_s,
        .Genre = Choix,
        .Choix = [this] { return groupes_; }},
       Membre(&T::IndexGroupe)}};
}

void TFrmAttributionVirement::FormShow() {
  LireOrdre();
  LireEleves();
  payeurs_ = std::make_unique<TPropositions>(*Globals.Eleves);
  MontrerMouvement();
}

// A movement that is given away may leave its place on the screen: the order is that of the opening.
void TFrmAttributionVirement::LireOrdre() {
  ordre_ = virements_.Ordre();
  const int ligne = virements_.Historique.LigneCourante();
  const auto ici = std::ranges::find(ordre_, ligne);
  place_ = static_cast<int>(ici - ordre_.begin());
  if (ici == ordre_.end()) ordre_.push_back(ligne);
}

// The map was left as it stood while the dialog was open.
void TFrmAttributionVirement::FormClose() { Globals.Eleves->ChargerExtraits = true; }

void TFrmAttributionVirement::LireEleves() {
  eleves_.clear();
  for (TEleve* eleve : ElevesUneFois(*Globals.Eleves)) {
    const QString nom = eleve->Nom % u' ' % eleve->Prenom;
    eleves_.push_back({eleve, nom, Simplifier(nom)});
  }
  std::ranges::stable_sort(
      eleves_, [](const TCandidat& a, const TCandidat& b) { return ComparerTextes(a.Nom, b.Nom) < 0; });
}

// The movement

const TExtrait& TFrmAttributionVirement::Extrait() const { return *virements_.Courant(); }

QString TFrmAttributionVirement::Cellule(int colonne) const {
  return virements_.Historique.Texte(virements_.Historique.LigneCourante(), colonne);
}

QString TFrmAttributionVirement::lblDonneurOrdre() const { return Extrait().DonneurOrdre; }
QString TFrmAttributionVirement::lblMontant() const { return FormatMontant(Extrait().Montant); }
QString TFrmAttributionVirement::lblDateVirement() const { return FormatDate(Extrait().DateVirement); }
QString TFrmAttributionVirement::lblCommunication() const { return Extrait().Communication; }
QString TFrmAttributionVirement::lblCompte() const { return Extrait().NumCptDonneur; }

std::pair<TNiveauEtat, QString> TFrmAttributionVirement::Etat() const {
  if (Partiel()) return {TNiveauEtat::Alerte, u"Attribué en partie"_s};
  if (imgValide()) return {TNiveauEtat::Succes, u"Comptabilisé"_s};
  if (!Actif()) return {TNiveauEtat::Alerte, u"Mouvement caché : il ne peut pas être attribué"_s};
  return {TNiveauEtat::Neutre, Place()};
}

QString TFrmAttributionVirement::Place() const {
  return u"Mouvement %1 sur %2"_s.arg(place_ + 1).arg(ordre_.size());
}

bool TFrmAttributionVirement::imgValide() const { return !Cellule(TFrmVirement::Eleve).isEmpty(); }

bool TFrmAttributionVirement::Actif() const { return !imgValide() && !Extrait().FlgIgnore; }

bool TFrmAttributionVirement::Partiel() const { return EtatExtrait(Extrait()) == TEtatMouvement::Partiel; }

bool TFrmAttributionVirement::PeutRepartir() const {
  return Extrait().Montant > Currency() && (Actif() || Partiel());
}

void TFrmAttributionVirement::MontrerMouvement() {
  saisie_ = {LibelleVirement(Extrait()), saisie_.Famille, 0};
  champs_.Montrer(nullptr);
  champs_.Montrer(&saisie_);
  champs_.DefinirLectureSeule(!Actif());
  saisieEleve_ = Cellule(TFrmVirement::Eleve);
  LirePropositions();
  ProposerEleves();
  Annoncer();
  SurMouvement();
}

// What is chosen for one payment holds for the next; a group does not.
bool TFrmAttributionVirement::Aller(int pas) {
  const int voulue = place_ + pas;
  if (voulue < 0 || voulue >= static_cast<int>(ordre_.size())) return false;
  champs_.EcrireDans(saisie_);
  place_ = voulue;
  virements_.Historique.ChoisirLigne(ordre_[static_cast<std::size_t>(place_)]);
  MontrerMouvement();
  return true;
}

// The pupil

void TFrmAttributionVirement::LUCombo1Change(const QString& texte) {
  if (!Actif()) return;
  saisieEleve_ = texte;
  ProposerEleves();
  Annoncer();
}

void TFrmAttributionVirement::LirePropositions() {
  propositions_.clear();
  if (PeutRepartir()) propositions_ = payeurs_->Pour(Extrait());
}

QString TFrmAttributionVirement::Raison(const TEleve& eleve) const {
  const auto la = std::ranges::find(propositions_, &eleve, &TProposition::Eleve);
  return la == propositions_.end() ? QString() : la->Raison;
}

// Before anything is typed, those who may have paid come first, the strongest reason above.
void TFrmAttributionVirement::ProposerEleves() {
  const TGrille::TLot lot(LUCombo1);
  LUCombo1.Vider();
  if (!Actif()) return;
  const QString cherche = Simplifier(saisieEleve_.trimmed());
  const auto ajouter = [this](TEleve& eleve) {
    return LUCombo1.Ajouter({QString(eleve.Nom % u' ' % eleve.Prenom), eleve.LibelleClasse(), Raison(eleve)},
                            &eleve);
  };
  if (cherche.isEmpty())
    for (const TProposition& proposition : propositions_) ajouter(*proposition.Eleve);
  int choisi = -1;
  for (const TCandidat& candidat : eleves_) {
    if (!ContientMots(candidat.Cle, cherche) || (cherche.isEmpty() && !Raison(*candidat.Eleve).isEmpty()))
      continue;
    const int ligne = ajouter(*candidat.Eleve);
    if (choisi < 0 && candidat.Cle.startsWith(cherche)) choisi = ligne;
  }
  LUCombo1.ChoisirLigne(cherche.isEmpty() ? -1 : std::max(choisi, 0));
}

const TProposition* TFrmAttributionVirement::Proposition() const {
  const bool libre = Actif() && EleveChoisi() == nullptr && saisieEleve_.trimmed().isEmpty();
  return libre ? TPropositions::Evidente(propositions_) : nullptr;
}

QString TFrmAttributionVirement::lblProposition() const {
  const TProposition* p = Proposition();
  if (p == nullptr) return {};
  return u"Proposition : %1 (%2), %3"_s.arg(p->Eleve->NomComplet(), p->Eleve->LibelleClasse(), p->Raison);
}

void TFrmAttributionVirement::btnAccepterClick() {
  const TProposition* proposition = Proposition();
  if (proposition == nullptr) return;
  LUCombo1.ChoisirLigne(LUCombo1.TrouverObjet(proposition->Eleve));
  Button3Click();
}

void TFrmAttributionVirement::EntreeClick() {
  lblProposition().isEmpty() ? Button3Click() : btnAccepterClick();
}

TEleve* TFrmAttributionVirement::EleveChoisi() const {
  const int ligne = LUCombo1.LigneCourante();
  return ligne < 0 ? nullptr : LUCombo1.Ligne(ligne).Objet.En<TEleve>();
}

QString TFrmAttributionVirement::lblClasse() const {
  if (imgValide()) return Cellule(TFrmVirement::Classe);
  const TEleve* eleve = EleveChoisi();
  return eleve == nullptr ? QString() : eleve->LibelleClasse();
}

// The payment

void TFrmAttributionVirement::btnAjoutLibelleClick() {
  const int libelle = champs_.Indice(u"edLibellePaiement"_s);
  const int index = champs_.Entier(champs_.Indice(u"cmbGroupePaiement"_s));
  const QString groupe = groupes_.value(index);
  const QString texte = champs_.Texte(libelle);
  if (!Actif() || index <= 0 || texte.contains(groupe)) return;
  champs_.Taper(libelle, QString(texte % u" (" % groupe % u')').left(kLibelleMax));
}

void TFrmAttributionVirement::Button3Click() {
  if (!champs_.Verifier()) return;
  champs_.EcrireDans(saisie_);
  TEleve* eleve = Actif() ? EleveChoisi() : nullptr;
  if (eleve != nullptr && !Crediter(*eleve)) return MontrerMouvement();
  if (!Aller(1)) MontrerMouvement();
}

int TFrmAttributionVirement::Groupe() const {
  return idsGroupes_[static_cast<std::size_t>(std::max(saisie_.IndexGroupe, 0))];
}

// Those whom the account itself tells have a part each to begin with, and the one who is chosen or proposed.
void TFrmAttributionVirement::btnRepartirClick() {
  if (!PeutRepartir() || !champs_.Verifier()) return;
  champs_.EcrireDans(saisie_);
  TFrmRepartition repartition(contexte_, Extrait(), {saisie_.Libelle, saisie_.Famille, Groupe()},
                              propositions_);
  std::vector<TEleve*> avecPart = TPropositions::DuCompte(propositions_);
  const TProposition* proposition = Proposition();
  TEleve* choisi = proposition != nullptr ? proposition->Eleve : EleveChoisi();
  if (choisi != nullptr && std::ranges::find(avecPart, choisi) == avecPart.end()) avecPart.push_back(choisi);
  for (TEleve* eleve : avecPart) repartition.Ajouter(*eleve);
  if (contexte_.Modale.MontrerModal(repartition) != TResultatModal::Valide) return;
  virements_.MontrerCourant();
  for (const TPartExtrait& part : Globals.Eleves->PartsExtrait(Extrait().Id))
    if (const TEleve* eleve = Globals.Eleves->TrouverParId(part.EleveId))
      payeurs_->Apprendre(Extrait(), *eleve);
  contexte_.Principal.Etat(TNiveauEtat::Succes, TexteParts(Extrait()));
  if (!Aller(1)) MontrerMouvement();
}

// Refused, the movement shows whom another workstation gave it to.
bool TFrmAttributionVirement::Crediter(TEleve& eleve) {
  const TExtrait& extrait = Extrait();
  try {
    CrediterEntier(extrait, {&eleve, extrait.Montant, saisie_.Famille, Groupe()}, saisie_.Libelle);
  } catch (const Exception& e) {
    contexte_.Dialogues().Message(e.Message);
    Globals.Eleves->ChargerExtraits = true;
    virements_.MontrerCourant();
    return false;
  }
  virements_.Attribue(eleve);
  payeurs_->Apprendre(extrait, eleve);
  contexte_.Principal.Etat(TNiveauEtat::Succes,
                           QString(FormatMontant(extrait.Montant) % u" attribués à " % eleve.NomComplet()));
  return true;
}
