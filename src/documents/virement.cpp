#include "documents/virement.h"

#include "core/parametres.h"
#include "report/rapport.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kCasesMontant = 10;

/// The value of each box. A character outside the first plane is one character all the same.
template <class TEcrire>
void Repartir(QStringView radical, const QString& texte, qsizetype cases, TEcrire ecrire) {
  const QList<uint> caracteres = texte.toUcs4();
  for (qsizetype i = 0; i < cases; ++i) {
    const char32_t caractere = i < caracteres.size() ? caracteres[i] : U' ';
    ecrire(radical % QString::number(i + 1), QString::fromUcs4(&caractere, 1));
  }
}

/// A part of the beneficiary: its boxes, and what it is called in a message.
struct TPartie {
  QStringView Radical;
  qsizetype Cases;
  QStringView Nom;
  QString Texte;
};

QString Centimes(Currency montant) { return FormatDeuxDecimales(montant).remove(u','); }

}  // namespace

bool TientDansVirement(Currency montant) { return Centimes(montant).size() <= kCasesMontant; }

void RemplirBeneficiaire(TRapport& rapport, const TParametres& parametres) {
  const auto texte = [&](TParam param) { return parametres.GetParametre(param); };
  const TPartie parties[] = {
      {u"CB", 16, u"Le compte IBAN", texte(TParam::VirementIBAN)},
      {u"BIC", 8, u"Le code BIC", texte(TParam::VirementBIC)},
      {u"NOM", 26, u"Le nom", texte(TParam::VirementNom)},
      {u"1ADRESSE", 26, u"L'adresse", texte(TParam::VirementRue)},
      {u"2ADRESSE", 26, u"La localité",
       texte(TParam::VirementCodePostal) % u' ' % texte(TParam::VirementLocalite)},
  };
  for (const auto& [radical, cases, nom, valeur] : parties) {
    Repartir(radical, valeur, cases, [&](const QString& variable, const QString& caractere) {
      rapport.AjouterVariable(variable, caractere);
    });
    if (valeur.toUcs4().size() > cases)
      rapport.Avertissements +=
          u"%1 du bénéficiaire, « %2 », ne tient pas dans les %3 cases de l'ordre de virement."_s.arg(
              nom.toString(), valeur, QString::number(cases));
  }
}

void RemplirVirement(TNoeudRapport& noeud, const QString& communication, std::optional<Currency> montant) {
  const auto ecrire = [&](const QString& nom, const QString& caractere) {
    noeud.Valeurs.Ecrire(nom, caractere);
  };
  Repartir(u"COMMUNICATION", communication, communication.size(), ecrire);
  const bool tient = montant && TientDansVirement(*montant);  // a part of it would be another amount
  const QString chiffres = tient ? Centimes(*montant) : QString();
  Repartir(u"EURO", chiffres.rightJustified(kCasesMontant), kCasesMontant, ecrire);
}
