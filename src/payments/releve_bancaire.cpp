#include "payments/releve_bancaire.h"

#include "core/exceptions.h"
#include "payments/communication_structuree.h"

using namespace Qt::StringLiterals;

namespace {

/// As all banks' texts are compared: single blanks, "+++" for the stars of a communication, which is
/// recognised while it is whole.
void Nettoyer(TMouvement& mouvement) {
  for (QString* texte : {&mouvement.Donneur, &mouvement.Communication, &mouvement.Compte})
    *texte = texte->simplified();
  mouvement.Communication.replace(u"***"_s, u"+++"_s);
  mouvement.Communication = CommunicationNormalisee(mouvement.Communication);
  Tronquer(mouvement);
}

}  // namespace

std::optional<TReleveBancaire> LireReleveBancaire(const QByteArray& octets) {
  const bool coda = EstCoda(octets);
  if (!coda && !EstXml(octets)) return {};
  TReleveBancaire releve = coda ? LireCoda(octets) : LireCamt(octets);
  for (TMouvement& mouvement : releve.Mouvements) Nettoyer(mouvement);
  return releve;
}

Currency Additionner(Currency a, Currency b) {
  std::int64_t somme = 0;
  if (__builtin_add_overflow(a.EnBrut(), b.EnBrut(), &somme))
    throw Exception(u"Les montants du fichier sont trop grands."_s);
  return Currency::Brut(somme);
}

QString PreuveDesSoldes(const TEnteteReleve& entete, Currency mouvements) {
  if (!entete.AncienSolde || !entete.NouveauSolde) return {};
  const Currency attendu = Additionner(*entete.AncienSolde, mouvements);
  if (attendu == *entete.NouveauSolde) return {};
  return u"Compte %1, relevé %2 : l'ancien solde et les mouvements font %3, et le nouveau solde est %4."_s
      .arg(entete.Compte, entete.Numero, FormatDeuxDecimales(attendu),
           FormatDeuxDecimales(*entete.NouveauSolde));
}
