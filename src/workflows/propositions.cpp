#include "workflows/propositions.h"

#include <algorithm>

#include "core/comparaisons.h"
#include "core/curseur.h"
#include "core/formats.h"
#include "payments/iban.h"
#include "workflows/repartition.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kElevesParCompte = 4;

/// The weight of a reason is more than that of all the lesser ones.
enum TForce { kNom = 1, kSolde = 2, kMouvements = 4, kCompte = 8 };

QString Compte(const QString& numero) { return IbanSansBlancs(numero).toUpper(); }

QSet<QString> Mots(const QString& texte) {
  QString lettres = Simplifier(texte);
  for (QChar& c : lettres)
    if (!c.isLetterOrNumber()) c = u' ';
  const QStringList mots = lettres.split(u' ', Qt::SkipEmptyParts);
  return {mots.begin(), mots.end()};
}

/// An adult: the whole name, or the initial for the first name.
std::vector<QSet<QString>> Noms(const QString& nom, const QString& prenom) {
  if (Mots(nom).isEmpty()) return {};
  std::vector<QSet<QString>> noms{Mots(nom) + Mots(prenom)};
  if (const QString premier = Simplifier(prenom.trimmed()); !premier.isEmpty())
    noms.push_back(Mots(nom) + QSet<QString>{premier.first(1)});
  return noms;
}

std::vector<QSet<QString>> Adultes(const TEleve& eleve) {
  std::vector<QSet<QString>> adultes;
  for (const auto& noms :
       {Noms(eleve.NomResponsable, eleve.PrenomResponsable),
        Noms(eleve.NomResponsable2, eleve.PrenomResponsable2), Noms(eleve.NomTitulaireCompte, {})})
    adultes.insert(adultes.end(), noms.begin(), noms.end());
  return adultes;
}

}  // namespace

TPropositions::TPropositions(TEleves& eleves) : eleves_(eleves) {
  const std::vector<TEleve*> tous = ElevesUneFois(eleves_);
  eleves_.LireFrais(tous);
  for (TEleve* eleve : tous)
    connus_.push_back({eleve, Compte(eleve->NumCompte), Adultes(*eleve), SoldeDu(*eleve)});
  LireComptes();
}

void TPropositions::LireComptes() {
  TCurseur ligne(eleves_.BaseDeDonnees(),
                 u"SELECT NUM_CPT_DONNEUR, ELEVE_ID FROM FRAIS_ELEVE, EXTRAITS "
                 "WHERE FRAIS_ELEVE.EXTRAIT_ID=EXTRAITS.EXTRAIT_ID"_s);
  while (ligne.Suivant()) ++comptes_[Compte(ligne.Texte("NUM_CPT_DONNEUR"))][ligne.Entier("ELEVE_ID")];
  comptes_.erase(QString());
}

void TPropositions::Apprendre(const TExtrait& extrait, const TEleve& eleve) {
  if (const QString compte = Compte(extrait.NumCptDonneur); !compte.isEmpty()) ++comptes_[compte][eleve.Id];
  for (TConnu& connu : connus_)
    if (connu.Eleve == &eleve) connu.Du = SoldeDu(eleve);
}

bool TPropositions::Public(const QString& compte) const {
  QSet<int> eleves;
  if (const auto payes = comptes_.find(compte); payes != comptes_.end())
    for (const auto& [eleve, nombre] : payes->second) eleves += eleve;
  for (const TConnu& connu : connus_)
    if (!compte.isEmpty() && connu.Compte == compte) eleves += connu.Eleve->Id;
  return static_cast<std::size_t>(eleves.size()) > kElevesParCompte;
}

std::vector<TProposition> TPropositions::Pour(const TExtrait& extrait) {
  const Currency reste = eleves_.ResteExtrait(extrait.Id, extrait.Montant);
  if (reste <= Currency() || Public(Compte(extrait.NumCptDonneur))) return {};
  std::vector<TProposition> propositions;
  for (const TConnu& connu : connus_) {
    QStringList raisons;
    const int force = Force(connu, extrait, reste, raisons);
    if (force > 0) propositions.push_back({connu.Eleve, raisons.join(u", "_s), force});
  }
  std::ranges::stable_sort(propositions, std::greater(), &TProposition::Force);
  return propositions;
}

int TPropositions::Force(const TConnu& connu, const TExtrait& extrait, Currency reste,
                         QStringList& raisons) const {
  int force = 0;
  const auto ajouter = [&](int poids, const QString& raison) {
    force += poids;
    raisons += raison;
  };
  const QString compte = Compte(extrait.NumCptDonneur);
  if (!compte.isEmpty() && connu.Compte == compte) ajouter(kCompte, u"compte de l'élève"_s);
  if (const auto payes = comptes_.find(compte); payes != comptes_.end())
    if (payes->second.contains(connu.Eleve->Id)) ajouter(kMouvements, u"a déjà payé par ce compte"_s);
  if (connu.Du == reste) ajouter(kSolde, u"doit %1"_s.arg(FormatMontant(connu.Du)));
  const QSet<QString> donneur = Mots(extrait.DonneurOrdre);
  if (std::ranges::any_of(connu.Adultes, [&](const auto& nom) { return donneur.contains(nom); }))
    ajouter(kNom, u"nom d'un adulte"_s);
  return force;
}

const TProposition* TPropositions::Evidente(const std::vector<TProposition>& propositions) {
  if (propositions.empty()) return nullptr;
  const bool seule = propositions.size() == 1 || propositions[1].Force < propositions[0].Force;
  return seule ? &propositions[0] : nullptr;
}

std::vector<TEleve*> TPropositions::DuCompte(const std::vector<TProposition>& propositions) {
  std::vector<TEleve*> eleves;
  for (const TProposition& proposition : propositions)
    if (proposition.Force >= kMouvements) eleves.push_back(proposition.Eleve);
  return eleves;
}
