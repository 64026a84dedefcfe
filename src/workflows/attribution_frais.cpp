#include "workflows/attribution_frais.h"

#include <algorithm>

#include "core/curseur.h"
#include "core/exceptions.h"
#include "core/query_internal.h"
#include "workflows/credit_extraits.h"
#include "workflows/memoriser.h"
#include "workflows/repartition.h"

using namespace Qt::StringLiterals;

namespace {

/// What is known of who owes the fee is read again afterwards, however the work ends.
class TRelecture {
 public:
  explicit TRelecture(TFrais& frais) : frais_(frais) { frais_.InvalideElevesFrais(); }
  ~TRelecture() { frais_.InvalideElevesFrais(); }
  TRelecture(const TRelecture&) = delete;
  TRelecture& operator=(const TRelecture&) = delete;

 private:
  TFrais& frais_;
};

/// What is refused is out of memory too, so that the next save of that pupil does not try it again.
void Sauver(TAllFraisEleve& lignes) {
  try {
    lignes.Save();
  } catch (...) {
    lignes.Remettre();
    throw;
  }
}

QString NomDe(int eleveId) {
  const TEleve* eleve = Globals.Eleves->TrouverParId(eleveId);
  return eleve != nullptr ? eleve->NomComplet() : u"un élève d'une autre année"_s;
}

/// The fees of many pupils are read together.
void LireFrais(const std::vector<int>& cles) {
  std::vector<TEleve*> eleves;
  for (const int cle : cles)
    if (TEleve* eleve = Globals.Eleves->TrouverParId(cle)) eleves.push_back(eleve);
  Globals.Eleves->LireFrais(eleves);
}

/// Pupil by pupil, before the eyes of the user.
class TTravail {
 public:
  TTravail(IDialogues& dialogues, std::size_t total)
      : dialogues_(dialogues), attente_(dialogues), progression_(dialogues, static_cast<int>(total)) {}
  void Suivant(const QString& quoi, int eleveId) {
    dialogues_.TraiterEvenements();
    progression_.Avancer(++fait_, quoi % NomDe(eleveId));
  }

 private:
  IDialogues& dialogues_;
  TAttente attente_;
  TProgression progression_;
  int fait_ = 0;
};

/// A payment has come or gone with its line: its movement and its group are counted again.
void RelirePaiement(int extraitId, int groupeFraisId) {
  if (extraitId > 0) Globals.Eleves->ChargerExtraits = true;
  RelireGroupes(groupeFraisId);
}

void OterPaiement(TFraisEleve& ligne) {
  ligne.MontantVerse = Currency();
  ligne.DateVersement = 0.0;
  ligne.ExtraitId = ligne.GroupeFraisId = 0;
  ligne.FlgPart = false;
}

/// The row of a line that is not in memory.
void RetirerRangee(TDataModule1& base, int eleveId, int frais) {
  int extrait = 0, groupe = 0;
  TCurseur ligne(
      base, u"SELECT EXTRAIT_ID, GROUPE_FRAIS_ID FROM FRAIS_ELEVE WHERE LISTEFRAIS_ID = ? AND ELEVE_ID = ?"_s,
      {frais, eleveId});
  while (ligne.Suivant()) {
    extrait = std::max(extrait, ligne.Entier("EXTRAIT_ID"));
    groupe = std::max(groupe, ligne.Entier("GROUPE_FRAIS_ID"));
  }
  TQueryInternal(base, u"DELETE FROM FRAIS_ELEVE WHERE LISTEFRAIS_ID = :frais AND ELEVE_ID = :eleve"_s)
      .Parametre(u"frais"_s, frais)
      .Parametre(u"eleve"_s, eleveId)
      .Executer();
  RelirePaiement(extrait, groupe);
}

const QString kAjout = u"Ajout du frais à : "_s;
const QString kSuppression = u"Suppresion du frais chez : "_s;

}  // namespace

std::unique_ptr<TFraisEleve> CopieDe(const TFraisEleve& ligne) {
  auto copie = std::make_unique<TFraisEleve>();
  copie->ListeFraisId = ligne.ListeFraisId;
  copie->Remarque = ligne.Remarque;
  copie->MontantVerse = ligne.MontantVerse;
  copie->DateVersement = ligne.DateVersement;
  copie->Mois = ligne.Mois;
  copie->ExtraitId = ligne.ExtraitId;
  copie->TypeFamilleFrais = ligne.TypeFamilleFrais;
  copie->GroupeFraisId = ligne.GroupeFraisId;
  copie->FlgPart = ligne.FlgPart;
  return copie;
}

void TAttributionFrais::Ouvrir(TFrais* frais) {
  for (auto* cles : {&depart_, &coches_, &payes_, &marques_}) cles->clear();
  if (frais == nullptr) return;
  const std::vector<int>& doivent = frais->ElevesFrais();
  depart_.insert(doivent.begin(), doivent.end());
  coches_ = depart_;
  LireFrais(doivent);
  for (const int cle : depart_) {
    const TEleve* eleve = Globals.Eleves->TrouverParId(cle);
    const TFraisEleve* ligne = eleve != nullptr ? eleve->GetAllFrais()->LigneFrais(frais->Id) : nullptr;
    if (ligne != nullptr && ligne->EstPaye()) payes_.insert(cle);
  }
}

bool TAttributionFrais::EstPaye(const TEleve& eleve) const {
  return EstCoche(eleve) && (depart_.contains(eleve.Id) ? payes_ : marques_).contains(eleve.Id);
}

void TAttributionFrais::Cocher(const TEleve& eleve, bool coche) {
  if (coche) {
    coches_.insert(eleve.Id);
    if (modePaye_) marques_.insert(eleve.Id);
  } else {
    coches_.erase(eleve.Id);
    marques_.erase(eleve.Id);
  }
}

void TAttributionFrais::DefinirModePaye(bool paye) {
  modePaye_ = paye;
  if (!paye) marques_.clear();
}

void TAttributionFrais::Enregistrer(TFrais& frais) {
  ExigerCle(frais);  // its lines would name no fee
  const TRelecture relecture(frais);
  const std::vector<int> doivent = frais.ElevesFrais();
  const std::set<int> dejaLa(doivent.begin(), doivent.end());
  std::vector<int> ajouts, retraits;
  for (const TEleve& eleve : *Globals.Eleves)
    if (EstCoche(eleve) && !dejaLa.contains(eleve.Id)) ajouts.push_back(eleve.Id);
  for (const int cle : doivent)
    if (depart_.contains(cle) && !coches_.contains(cle)) retraits.push_back(cle);
  LireFrais(ajouts);
  TTravail travail(controleur_.Dialogues(), ajouts.size() + retraits.size());
  for (const int cle : ajouts) {
    travail.Suivant(kAjout, cle);
    const bool paye = modePaye_ && marques_.contains(cle);
    auto ligne = std::make_unique<TFraisEleve>();
    if (paye) ligne->MontantVerse = frais.Cout;
    Donner(cle, std::move(ligne), frais.Id);
    depart_.insert(cle);
    if (paye) payes_.insert(cle);
  }
  for (const int cle : retraits) {
    travail.Suivant(kSuppression, cle);
    Retirer(cle, frais.Id);
    depart_.erase(cle);
    payes_.erase(cle);
  }
  depart_ = coches_;  // with those that another workstation had stored already
}

void TAttributionFrais::RetirerATous(TFrais& frais, TLignesRetirees& retirees) {
  const TRelecture relecture(frais);
  const std::vector<int> doivent = frais.ElevesFrais();
  LireFrais(doivent);
  TTravail travail(controleur_.Dialogues(), doivent.size());
  for (const int cle : doivent) {
    travail.Suivant(kSuppression, cle);
    if (auto retiree = Retirer(cle, frais.Id)) retirees.push_back(std::move(*retiree));
  }
}

void TAttributionFrais::Rendre(TFrais& frais, TLignesRetirees& lignes) {
  const TRelecture relecture(frais);
  TTravail travail(controleur_.Dialogues(), lignes.size());
  QStringList refus;
  for (; !lignes.empty(); lignes.erase(lignes.begin())) {
    const TLigneRetiree& ligne = lignes.front();
    travail.Suivant(kAjout, ligne.EleveId);
    if (Globals.Eleves->TrouverParId(ligne.EleveId) == nullptr) {
      refus += ligne.Nom % u" : n'est plus dans l'année affichée"_s;
      continue;
    }
    try {
      Donner(ligne.EleveId, CopieDe(*ligne.Ligne), frais.Id);
    } catch (const ERefusMouvement& e) {
      refus += ligne.Nom % u", sans son paiement : " % e.Message;
      auto impayee = CopieDe(*ligne.Ligne);
      OterPaiement(*impayee);
      Donner(ligne.EleveId, std::move(impayee), frais.Id);
    }
  }
  if (!refus.isEmpty())
    controleur_.Dialogues().Message(u"Le frais n'est pas rendu tout entier :\n" % refus.join(u'\n'));
}

// Nobody in the table owes it at this moment, so a line that memory still has lost its row to another
// workstation.
void TAttributionFrais::Donner(int eleveId, std::unique_ptr<TFraisEleve> neuve, int frais) {
  const TEleve& eleve = *Globals.Eleves->TrouverParId(eleveId);
  TAllFraisEleve& lignes = *eleve.GetAllFrais();
  if (TFraisEleve* perdue = lignes.LigneFrais(frais)) lignes.Forget(*perdue);
  neuve->ListeFraisId = frais;
  const int groupe = neuve->GroupeFraisId;
  RangerPaiement(lignes, lignes.Add(std::move(neuve)));
  RelireGroupes(groupe);
}

// A pupil of another year, or a line that another workstation added, is not in memory: its row goes by its
// key.
std::optional<TAttributionFrais::TLigneRetiree> TAttributionFrais::Retirer(int eleveId, int frais) {
  const TEleve* eleve = Globals.Eleves->TrouverParId(eleveId);
  TAllFraisEleve* lignes = eleve != nullptr ? eleve->GetAllFrais() : nullptr;
  if (TFraisEleve* ligne = lignes != nullptr ? lignes->LigneFrais(frais) : nullptr) {
    TLigneRetiree retiree{eleveId, eleve->NomComplet(), CopieDe(*ligne)};
    lignes->Remove(*ligne);
    Sauver(*lignes);
    RelirePaiement(retiree.Ligne->ExtraitId, retiree.Ligne->GroupeFraisId);
    return retiree;
  }
  RetirerRangee(controleur_.Base(), eleveId, frais);
  return std::nullopt;
}
