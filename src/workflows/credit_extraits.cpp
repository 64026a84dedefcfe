#include "workflows/credit_extraits.h"

#include <span>

#include "core/conversions.h"
#include "core/formats.h"
#include "payments/communication_structuree.h"
#include "services/lignes_extrait.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSiecle = 2000;

/// The digit of a communication that says what is paid, and what that is. Month layout: the digits 1 and
/// 2 stand for the families 2 and 1.
struct TGenre {
  QChar Chiffre;
  TTypeFamilleFrais Famille;
};

constexpr TGenre kGenresMois[] = {{u'1', TTypeFamilleFrais::Services}, {u'2', TTypeFamilleFrais::Frais}};
constexpr TGenre kGenresCompacts[] = {{u'0', TTypeFamilleFrais::General},
                                      {u'1', TTypeFamilleFrais::Services},
                                      {u'2', TTypeFamilleFrais::Frais},
                                      {u'3', TTypeFamilleFrais::Services}};

TTypeFamilleFrais Famille(std::span<const TGenre> genres, const QString& chiffre) {
  for (const TGenre& genre : genres)
    if (chiffre == genre.Chiffre) return genre.Famille;
  return TTypeFamilleFrais::General;
}

/// The inner text without its slashes; "" when there is none.
QString Chiffres(const QString& communication) { return TexteInterieur(communication).remove(u'/'); }

}  // namespace

std::optional<TAttribution> LireCommunicationMois(const QString& communication, int annee) {
  if (TexteInterieur(communication).isEmpty()) return {};
  const QString chiffres = Chiffres(communication);
  const int eleve = StrToInt(chiffres.mid(0, 5));
  const int mois = StrToInt(chiffres.mid(5, 2));
  if (StrToInt(chiffres.mid(7, 2)) + kSiecle != annee || mois < 1 || mois > 12) return {};
  return TAttribution{eleve, mois, Famille(kGenresMois, chiffres.mid(9, 1))};
}

std::optional<TAttribution> LireCommunicationCompacte(const QString& communication, int annee,
                                                      bool sansAnnee) {
  if (TexteInterieur(communication).isEmpty()) return {};
  const QString chiffres = Chiffres(communication);
  const int eleve = StrToInt(chiffres.mid(2, 5));
  const int anneeLue = StrToInt(chiffres.mid(8, 2));
  if (!sansAnnee && anneeLue + kSiecle != annee) return {};
  return TAttribution{eleve, 0, Famille(kGenresCompacts, chiffres.mid(0, 1))};
}

QString LibelleVirement(const TExtrait& extrait) {
  return u"Votre virement du " % FormatDate(extrait.DateVirement);
}

std::unique_ptr<TFraisEleve> PaiementDe(const TExtrait& extrait, Currency montant, const QString& libelle,
                                        TTypeFamilleFrais famille) {
  auto paiement = std::make_unique<TFraisEleve>();
  paiement->Remarque = libelle;
  paiement->MontantVerse = montant;
  paiement->ExtraitId = extrait.Id;
  paiement->TypeFamilleFrais = famille;
  return paiement;
}

std::unordered_map<int, std::vector<TAttribution>> LireAttributions(TDataModule1& base) {
  std::unordered_map<int, std::vector<TAttribution>> attributions;
  for (const TLigneExtrait& ligne : LireLignesExtrait(base))
    attributions[ligne.ExtraitId].push_back({ligne.EleveId, ligne.Mois, ligne.Famille});
  return attributions;
}

// What a group has received is read once: a payment to it is another list.
void RelireGroupes(int groupeFraisId) {
  if (groupeFraisId > 0)
    Globals.GroupesFrais = std::make_unique<TGroupesFrais>(Globals.Eleves->BaseDeDonnees());
}

void CrediterEleve(const TAttribution& attribution, const TExtrait& extrait) {
  TEleve* eleve = Globals.Eleves->TrouverParId(attribution.EleveId);
  if (eleve == nullptr || Globals.Eleves->ExtraitVersEleve(extrait.Id) != 0) return;
  TAllFraisEleve* frais = eleve->GetAllFrais();
  if (frais->ExisteExtrait(extrait.Id)) return;
  auto paiement = PaiementDe(extrait, extrait.Montant, LibelleVirement(extrait), attribution.Famille);
  paiement->Mois = attribution.Mois;
  Memoriser(*frais, std::move(paiement));
}
