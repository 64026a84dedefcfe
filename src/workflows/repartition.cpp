#include "workflows/repartition.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>

#include "application/globals.h"
#include "core/curseur.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/transaction_commune.h"
#include "pupils/reserver.h"
#include "services/lignes_extrait.h"
#include "workflows/credit_extraits.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t kCent = 100;
/// A product of two amounts.
using TGrand = __int128;

Currency Somme(const std::vector<Currency>& montants) {
  return std::accumulate(montants.begin(), montants.end(), Currency());
}

/// Cuts each share to the cent, and hands the cents that are left to the first ones who have a share.
std::vector<Currency> EnProportion(Currency montant, const std::vector<Currency>& poids) {
  const std::int64_t total = Somme(poids).EnBrut();
  std::vector<Currency> parts;
  for (const Currency un : poids) {
    const TGrand part = TGrand(montant.EnBrut()) * un.EnBrut() / total;
    parts.push_back(Currency::Brut(static_cast<std::int64_t>(part)).TronqueAuCent());
  }
  Currency reste = montant - Somme(parts);
  for (std::size_t i = 0; reste > Currency(); i = (i + 1) % parts.size()) {
    if (poids[i] == Currency()) continue;
    const Currency un = std::min(reste, Currency::Brut(kCent));
    parts[i] += un;
    reste -= un;
  }
  return parts;
}

std::unique_ptr<TFraisEleve> LignePart(const TExtrait& extrait, const TPartVirement& part,
                                       const QString& libelle, bool entier) {
  auto ligne = PaiementDe(extrait, part.Montant, libelle, part.Famille);
  ligne->FlgPart = !entier;
  ligne->GroupeFraisId = part.GroupeFraisId;
  return ligne;
}

/// The lines in their ledgers, and out again unless they have been stored.
class TLignesParts {
 public:
  ~TLignesParts() {
    for (const auto& [lignes, ligne] : posees_) lignes->Forget(*ligne);
  }
  void Poser(TAllFraisEleve& lignes, std::unique_ptr<TFraisEleve> ligne) {
    posees_.push_back({&lignes, &lignes.Add(std::move(ligne))});
  }
  /// Raises Exception with the reason why not, as it is when nobody else can give the movement any more.
  void Ranger(const TExtrait& extrait, const std::function<QString()>& refus) {
    TDataModule1& base = Globals.Eleves->BaseDeDonnees();
    TTransactionCommune ensemble(base);
    ReserverExtrait(base, extrait.Id);
    if (const QString raison = refus(); !raison.isEmpty()) throw Exception(raison);
    for (const auto& [lignes, ligne] : posees_) {
      lignes->Save();
      ExigerCle(*ligne);
    }
    ensemble.Valider();
    posees_.clear();
  }

 private:
  std::vector<std::pair<TAllFraisEleve*, TFraisEleve*>> posees_;
};

/// The movement as it is stored now.
TCurseur LireExtrait(TDataModule1& base, int extrait) {
  return {base, u"SELECT MONTANT, FLG_IGNORE FROM EXTRAITS WHERE EXTRAIT_ID = ?"_s, {extrait}};
}

/// Read by its own statements: the map of the movements stays as it is while many are given one by one.
QString RefusEntier(const TExtrait& extrait) {
  TDataModule1& base = Globals.Eleves->BaseDeDonnees();
  TCurseur ligne = LireExtrait(base, extrait.Id);
  if (!ligne.Suivant()) return u"Ce mouvement n'existe plus : un autre poste l'a supprimé."_s;
  if (const auto parts = LireLignesExtrait(base, extrait.Id); !parts.empty()) {
    const TEleve* eleve = Globals.Eleves->TrouverParId(parts.front().EleveId);
    return u"Ce mouvement est déjà attribué à %1."_s.arg(eleve == nullptr ? u"un élève d'une autre année"_s
                                                                          : eleve->NomComplet());
  }
  return ligne.Entier("FLG_IGNORE") == 1 ? u"Ce mouvement a été caché par un autre poste."_s : QString();
}

}  // namespace

std::vector<TEleve*> ElevesUneFois(TEleves& eleves) {
  std::vector<TEleve*> uneFois;
  for (TEleve& eleve : eleves)
    if (eleves.TrouverParId(eleve.Id) == &eleve) uneFois.push_back(&eleve);
  return uneFois;
}

Currency SoldeDu(const TEleve& eleve) {
  const Currency du = -eleve.Solde(true, true);
  return std::max(Currency(), Currency::Brut((du.EnBrut() + kCent / 2) / kCent * kCent));
}

std::vector<Currency> RepartirMontant(Currency montant, const std::vector<Currency>& dus) {
  if (dus.empty()) return {};
  const Currency total = Somme(dus);
  if (total == Currency())
    return EnProportion(montant, std::vector<Currency>(dus.size(), Currency::Euros(1)));
  if (montant < total) return EnProportion(montant, dus);
  std::vector<Currency> parts = dus;
  // Whoever owes nothing is not given the rest.
  *std::ranges::find_if(parts, [](Currency part) { return part > Currency(); }) += montant - total;
  return parts;
}

std::vector<TPartVirement> ProposerParts(const TExtrait& extrait, const std::vector<TEleve*>& eleves) {
  std::vector<Currency> dus;
  for (const TEleve* eleve : eleves) dus.push_back(SoldeDu(*eleve));
  const auto montants = RepartirMontant(Globals.Eleves->ResteExtrait(extrait.Id, extrait.Montant), dus);
  std::vector<TPartVirement> parts;
  for (std::size_t i = 0; i < eleves.size(); ++i) parts.push_back({eleves[i], montants[i]});
  return parts;
}

QString FauteParts(const TExtrait& extrait, const std::vector<TPartVirement>& parts) {
  const Currency reste = Globals.Eleves->ResteExtrait(extrait.Id, extrait.Montant);
  if (reste <= Currency()) return u"Ce mouvement est déjà attribué en entier."_s;
  if (parts.empty()) return u"Aucun élève n'a été sélectionné !"_s;
  Currency total;
  for (const TPartVirement& part : parts) {
    if (part.Montant <= Currency())
      return u"La part de %1 doit être plus grande que zéro."_s.arg(part.Eleve->NomComplet());
    total += part.Montant;
  }
  if (total <= reste) return {};
  return u"Les parts font %1, plus que les %2 qui restent de ce mouvement."_s.arg(FormatMontant(total),
                                                                                  FormatMontant(reste));
}

QString RefusMouvement(const TFraisEleve& paiement, Currency montant) {
  if (paiement.ExtraitId < 1) return {};
  TDataModule1& base = Globals.Eleves->BaseDeDonnees();
  bool donne = false;
  Currency autres, range;
  for (const TLigneExtrait& part : LireLignesExtrait(base, paiement.ExtraitId)) {
    const bool sien = part.Id == paiement.Id;
    (sien ? range : autres) += part.Montant;
    donne = donne || (!sien && !(paiement.FlgPart && part.FlgPart));
  }
  if (paiement.Id > 0 && montant <= range) return {};
  if (donne) return u"Le mouvement de la banque a été attribué autrement entre-temps."_s;
  TCurseur extrait = LireExtrait(base, paiement.ExtraitId);
  if (!extrait.Suivant()) return u"Le mouvement de la banque n'existe plus."_s;
  if (paiement.Id < 1 && extrait.Entier("FLG_IGNORE") == 1)
    return u"Le mouvement de la banque a été caché entre-temps."_s;
  if (!paiement.FlgPart) return {};
  const Currency reste = extrait.Montant("MONTANT") - autres - range, enPlus = montant - range;
  if (enPlus <= reste) return {};
  return u"Il ne reste que %1 de ce mouvement de la banque : il manque %2."_s.arg(
      FormatMontant(reste), FormatMontant(enPlus - reste));
}

void RangerPaiement(TAllFraisEleve& lignes, TFraisEleve& paiement) {
  const int extrait = paiement.ExtraitId;
  try {
    TDataModule1& base = Globals.Eleves->BaseDeDonnees();
    std::optional<TTransactionCommune> ensemble;
    if (extrait > 0) {
      ensemble.emplace(base);
      ReserverExtrait(base, extrait);
      if (const QString raison = RefusMouvement(paiement, paiement.MontantVerse); !raison.isEmpty())
        throw ERefusMouvement(raison);
    }
    lignes.Save();
    ExigerCle(paiement);
    if (!lignes.RangeesDisparues().empty())
      throw Exception(u"Cette ligne n'existe plus : un autre poste l'a supprimée."_s);
    if (ensemble) ensemble->Valider();
  } catch (...) {
    lignes.Add(paiement);  // also when it was written, and that came to nothing
    lignes.Remettre();
    if (extrait > 0) Globals.Eleves->ChargerExtraits = true;
    throw;
  }
  if (extrait > 0) Globals.Eleves->ChargerExtraits = true;
}

// Another workstation may have given it to somebody since it was shown.
void CrediterParts(const TExtrait& extrait, const std::vector<TPartVirement>& parts, const QString& libelle) {
  TLignesParts lignes;
  for (const TPartVirement& part : parts)
    lignes.Poser(*part.Eleve->GetAllFrais(), LignePart(extrait, part, libelle, false));
  lignes.Ranger(extrait, [&] {
    Globals.Eleves->ChargerExtraits = true;
    return FauteParts(extrait, parts);
  });
  Globals.Eleves->ChargerExtraits = true;
  for (const TPartVirement& part : parts) RelireGroupes(part.GroupeFraisId);
}

void CrediterEntier(const TExtrait& extrait, const TPartVirement& part, const QString& libelle) {
  TLignesParts lignes;
  lignes.Poser(*part.Eleve->GetAllFrais(), LignePart(extrait, part, libelle, true));
  lignes.Ranger(extrait, [&] { return RefusEntier(extrait); });
  RelireGroupes(part.GroupeFraisId);
}
