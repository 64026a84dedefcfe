#include "payments/releves_connus.h"

#include <algorithm>

#include "core/chaines.h"
#include "core/formats.h"
#include "payments/communication_structuree.h"
#include "payments/iban.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TReleveConnu> kColonnes[] = {
    Texte<&TEmpreinteReleve::Compte, TReleveConnu>("COMPTE"),
    Texte<&TEmpreinteReleve::Numero, TReleveConnu>("NUMERO"),
    Date<&TEmpreinteReleve::DateAncienSolde, TReleveConnu>("DATE_ANCIEN_SOLDE"),
    Date<&TEmpreinteReleve::DateNouveauSolde, TReleveConnu>("DATE_NOUVEAU_SOLDE"),
    Montant<&TEmpreinteReleve::AncienSolde, TReleveConnu>("ANCIEN_SOLDE"),
    Montant<&TEmpreinteReleve::NouveauSolde, TReleveConnu>("NOUVEAU_SOLDE"),
    Drapeau<&TEmpreinteReleve::SoldesConnus, TReleveConnu>("FLG_SOLDES"),
};

constexpr qsizetype kCompteMaximum = 50, kNumeroMaximum = 40;
/// A longer number is a reference, which does not count up.
constexpr qsizetype kChiffresNumero = 5;

TEmpreinteReleve Empreinte(const TEnteteReleve& entete) {
  TEmpreinteReleve connu;
  connu.Compte = IbanSansBlancs(entete.Compte).left(kCompteMaximum);
  connu.Numero = entete.Numero.left(kNumeroMaximum);
  connu.DateAncienSolde = entete.DateAncienSolde;
  connu.DateNouveauSolde = entete.DateNouveauSolde;
  connu.SoldesConnus = entete.AncienSolde && entete.NouveauSolde;
  if (connu.SoldesConnus) {
    connu.AncienSolde = *entete.AncienSolde;
    connu.NouveauSolde = *entete.NouveauSolde;
  }
  return connu;
}

/// A number that counts up within the year; 0 for none.
int Rang(const TEmpreinteReleve& releve) {
  const bool compte = releve.Numero.size() <= kChiffresNumero && EstChiffres(releve.Numero);
  return compte ? releve.Numero.toInt() : 0;
}

/// The same statement, in whatever form it comes: CODA and camt.053 do not write its number alike, nor the
/// day of its old balance.
bool EstLeMeme(const TEmpreinteReleve& a, const TEmpreinteReleve& b) {
  if (a == b) return true;
  const bool soldes =
      a.SoldesConnus && b.SoldesConnus && a.AncienSolde == b.AncienSolde && a.NouveauSolde == b.NouveauSolde;
  const bool numeros = Rang(a) == Rang(b) || Rang(a) == 0 || Rang(b) == 0;
  return soldes && numeros && a.Compte == b.Compte && a.DateNouveauSolde == b.DateNouveauSolde;
}

bool Contient(const std::vector<TEmpreinteReleve>& connus, const TEmpreinteReleve& releve) {
  return std::ranges::any_of(connus, [&](const TEmpreinteReleve& connu) { return EstLeMeme(connu, releve); });
}

/// The latest one of the account that is not later; null when there is none.
const TEmpreinteReleve* Precedent(const std::vector<TEmpreinteReleve>& connus,
                                  const TEmpreinteReleve& releve) {
  const TEmpreinteReleve* precedent = nullptr;
  for (const TEmpreinteReleve& c : connus)
    if (c.Compte == releve.Compte && c.DateNouveauSolde <= releve.DateNouveauSolde &&
        (precedent == nullptr || c.DateNouveauSolde >= precedent->DateNouveauSolde))
      precedent = &c;
  return precedent;
}

bool SeSuivent(const TEmpreinteReleve& precedent, const TEmpreinteReleve& releve) {
  if (precedent.SoldesConnus && releve.SoldesConnus && precedent.NouveauSolde != releve.AncienSolde)
    return false;
  const auto annee = [](const TEmpreinteReleve& r) { return DateVersQt(r.DateNouveauSolde).year(); };
  return Rang(precedent) == 0 || annee(precedent) != annee(releve) || Rang(releve) <= Rang(precedent) + 1;
}

/// A number without check digits is that of the account whose IBAN ends with it.
bool EstDeLEcole(const QString& compte, const QString& compteEcole) {
  return compte.isEmpty() || compteEcole.isEmpty() || compte == compteEcole ||
         (EstChiffres(compte) && compteEcole.endsWith(compte));
}

QString Nom(const TEmpreinteReleve& releve) {
  const QString numero = releve.Numero.isEmpty() ? u"sans numéro"_s : u"n° "_s + releve.Numero;
  const QString date = FormatDate(releve.DateNouveauSolde);
  return date.isEmpty() ? numero : numero % u" du " % date;
}

TCleExtrait CleProche(const TExtrait& extrait) {
  TCleExtrait cle(extrait);
  cle.DonneurOrdre.clear();
  cle.Communication.clear();
  cle.NumCptDonneur = IbanSansBlancs(cle.NumCptDonneur);
  return cle;
}

}  // namespace

TRelevesConnus::TRelevesConnus(TDataModule1& base) : TCollection(base) { Charger(); }

void TRelevesConnus::DefineQuery() {
  SelectSql = u"SELECT * FROM RELEVE_BANQUE ORDER BY RELEVE_BANQUE_ID"_s;
  TableName = u"RELEVE_BANQUE"_s;
  KeyField = "RELEVE_BANQUE_ID";
  CounterName = u"RELEVE_BANQUE"_s;
  Colonnes = kColonnes;
}

QStringList TRelevesConnus::Doutes(const std::vector<TEnteteReleve>& entetes,
                                   const QString& compteEcole) const {
  QStringList doutes;
  std::vector<TEmpreinteReleve> connus = Empreintes();
  for (const TEnteteReleve& entete : entetes) {
    const TEmpreinteReleve releve = Empreinte(entete);
    if (!EstDeLEcole(releve.Compte, IbanSansBlancs(compteEcole)))
      doutes += u"Le relevé %1 est celui du compte %2, et le compte de l'école est %3."_s.arg(
          Nom(releve), releve.Compte, IbanSansBlancs(compteEcole));
    if (Contient(connus, releve))
      doutes += u"Le relevé %1 du compte %2 a déjà été importé."_s.arg(Nom(releve), releve.Compte);
    else if (const TEmpreinteReleve* precedent = Precedent(connus, releve);
             precedent != nullptr && !SeSuivent(*precedent, releve))
      doutes += u"Le relevé %1 du compte %2 ne suit pas le relevé %3 : il en manque un entre les deux."_s.arg(
          Nom(releve), releve.Compte, Nom(*precedent));
    connus.push_back(releve);
  }
  return doutes;
}

bool TRelevesConnus::Couvre(TDateTime jour) const {
  for (const TReleveConnu& releve : *this)
    if (releve.DateAncienSolde <= jour && jour <= releve.DateNouveauSolde) return true;
  return false;
}

void TRelevesConnus::Retenir(const std::vector<TEnteteReleve>& entetes) {
  for (const TEnteteReleve& entete : entetes) {
    auto releve = std::make_unique<TReleveConnu>();
    static_cast<TEmpreinteReleve&>(*releve) = Empreinte(entete);
    if (!Contient(Empreintes(), *releve)) Add(std::move(releve));
  }
  Save();
}

std::vector<TEmpreinteReleve> TRelevesConnus::Empreintes() const {
  std::vector<TEmpreinteReleve> empreintes;
  for (const TReleveConnu& releve : *this) empreintes.push_back(releve);
  return empreintes;
}

void TProches::Ajouter(const TExtraits& extraits, const std::unordered_set<int>& sauf) {
  for (const TExtrait& extrait : extraits)
    if (!sauf.contains(extrait.Id)) communications_[CleProche(extrait)] += extrait.Communication;
}

bool TProches::Contient(const TExtrait& extrait) const {
  const auto proches = communications_.find(CleProche(extrait));
  if (proches == communications_.end()) return false;
  const bool valide = CommunicationValide(extrait.Communication);
  return std::ranges::any_of(proches->second, [&](const QString& autre) {
    return !valide || !CommunicationValide(autre) || autre == extrait.Communication;
  });
}
