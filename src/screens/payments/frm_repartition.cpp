#include "screens/payments/frm_repartition.h"

#include <algorithm>

#include "core/comparaisons.h"
#include "core/exceptions.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

TFrmRepartition::TFrmRepartition(TContexteEcran& contexte, const TExtrait& extrait,
                                 const TCommunParts& commun, const std::vector<TProposition>& propositions)
    : Parts({{u"Élève"_s, 220},
             {u"Classe"_s, 70},
             {u"Doit"_s, 96, TGenre::Montant},
             {u"Part"_s, 96, TGenre::Montant}}),
      Eleves({{u"Élève"_s, 220}, {u"Classe"_s, 70}, {u"Pourquoi"_s, 240}}),
      contexte_(contexte),
      extrait_(extrait),
      commun_(commun),
      propositions_(propositions),
      champs_(Table(), TChamps::Aussitot) {
  champs_.SurEnregistrer = [this](const TChamp&) { tape_ = true; };
  liens_ += Parts.SurChoix.Suivre([this] { MontrerPart(); });
  RemplirEleves();
}

TTableChamps<TPartVirement> TFrmRepartition::Table() {
  TTableChamps<TPartVirement> table;
  table.push_back({{.Nom = u"edPart"_s,
                    .Libelle = u"Part de l'élève choisi:"_s,
                    .Genre = TGenreChamp::Montant,
                    .Obligatoire = true,
                    .Unite = u"euros"_s,
                    .Ensuite = [this] { Remplir(champs_.Objet()->Eleve); }},
                   Membre(&TPartVirement::Montant)});
  return table;
}

QString TFrmRepartition::Titre() const {
  const QString de = extrait_.DonneurOrdre.isEmpty() ? QString() : u", de " % extrait_.DonneurOrdre;
  return FormatMontant(ARepartir()) % u" à répartir" % de % u", le " % FormatDate(extrait_.DateVirement);
}

Currency TFrmRepartition::ARepartir() const {
  return Globals.Eleves->ResteExtrait(extrait_.Id, extrait_.Montant);
}

Currency TFrmRepartition::Reste() const {
  Currency reste = ARepartir();
  for (const TPartVirement& part : parts_) reste -= part.Montant;
  return reste;
}

QString TFrmRepartition::TexteReste() const {
  const Currency reste = Reste();
  if (reste == Currency()) return u"Tout est réparti"_s;
  return DeTrop() ? QString(FormatMontant(-reste) % u" de trop") : QString(u"Reste " % FormatMontant(reste));
}

QString TFrmRepartition::Raison(const TEleve& eleve) const {
  const auto la = std::ranges::find(propositions_, &eleve, &TProposition::Eleve);
  return la == propositions_.end() ? QString() : la->Raison;
}

// Who pays

/// Those who may have paid come first, then the whole year by name.
void TFrmRepartition::RemplirEleves() {
  const auto sansPart = [this](const TEleve* eleve) {
    return std::ranges::find(parts_, eleve, &TPartVirement::Eleve) == parts_.end();
  };
  std::vector<TEleve*> autres;
  for (TEleve* eleve : ElevesUneFois(*Globals.Eleves))
    if (sansPart(eleve) && Raison(*eleve).isEmpty()) autres.push_back(eleve);
  std::ranges::stable_sort(autres, [](const TEleve* a, const TEleve* b) { return ComparerNoms(*a, *b) < 0; });
  const TGrille::TLot lot(Eleves);
  Eleves.Vider();
  const auto ajouter = [this](TEleve& eleve) {
    Eleves.Ajouter({eleve.NomComplet(), eleve.LibelleClasse(), Raison(eleve)}, &eleve);
  };
  for (const TProposition& proposition : propositions_)
    if (sansPart(proposition.Eleve)) ajouter(*proposition.Eleve);
  for (TEleve* eleve : autres) ajouter(*eleve);
}

void TFrmRepartition::Ajouter(TEleve& eleve) {
  champs_.Montrer(nullptr);
  parts_.push_back({&eleve, Currency(), commun_.Famille, commun_.GroupeFraisId});
  if (tape_)
    parts_.back().Montant = std::max(Currency(), Reste());
  else
    Repartir();
  Remplir(&eleve);
  RemplirEleves();
}

void TFrmRepartition::btnAjouterClick() {
  const int ligne = Eleves.LigneCourante();
  if (ligne >= 0 && champs_.QuitterTout()) Ajouter(*Eleves.Ligne(ligne).Objet.En<TEleve>());
}

void TFrmRepartition::btnRetirerClick() {
  const int ligne = Parts.LigneCourante();
  if (ligne < 0) return;
  champs_.Montrer(nullptr);
  parts_.erase(parts_.begin() + ligne);
  if (!tape_) Repartir();
  Remplir(nullptr);
  RemplirEleves();
}

void TFrmRepartition::btnRepartirClick() {
  champs_.Montrer(nullptr);
  tape_ = false;
  Repartir();
  Remplir(nullptr);
}

// The amounts

void TFrmRepartition::Repartir() {
  std::vector<TEleve*> eleves;
  for (const TPartVirement& part : parts_) eleves.push_back(part.Eleve);
  const std::vector<TPartVirement> proposees = ProposerParts(extrait_, eleves);
  for (std::size_t i = 0; i < parts_.size(); ++i) parts_[i].Montant = proposees[i].Montant;
}

void TFrmRepartition::Remplir(const TEleve* courant) {
  int choisie = parts_.empty() ? -1 : 0;
  {
    const TGrille::TLot lot(Parts);
    Parts.Vider();
    for (const TPartVirement& part : parts_) {
      const int ligne = Parts.Ajouter(
          {part.Eleve->NomComplet(), part.Eleve->LibelleClasse(), SoldeDu(*part.Eleve), part.Montant},
          part.Eleve);
      if (part.Eleve == courant) choisie = ligne;
    }
    Parts.ChoisirLigne(choisie);
  }
  MontrerPart();
  Annoncer();
}

void TFrmRepartition::MontrerPart() {
  const int ligne = Parts.LigneCourante();
  const bool la = ligne >= 0 && ligne < static_cast<int>(parts_.size());
  champs_.Montrer(la ? &parts_[static_cast<std::size_t>(ligne)] : nullptr);
}

bool TFrmRepartition::btnValiderClick() {
  if (!champs_.QuitterTout()) return false;
  const auto nulle = [](const TPartVirement& part) { return part.Montant == Currency(); };
  std::vector<TPartVirement> parts = parts_;
  if (!std::ranges::all_of(parts, nulle)) std::erase_if(parts, nulle);  // else it is said that they are zero
  try {
    CrediterParts(extrait_, parts, commun_.Libelle);
  } catch (const Exception& e) {
    contexte_.Dialogues().Message(e.Message);
    Annoncer();  // less may be left of the movement than before
    return false;
  }
  ResultatModal = TResultatModal::Valide;
  return Fermer();
}
