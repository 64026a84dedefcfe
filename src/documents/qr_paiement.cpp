#include "documents/qr_paiement.h"

#include "core/parametres.h"
#include "payments/communication_structuree.h"
#include "payments/iban.h"
#include "report/rapport.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kNomMax = 70;
constexpr Currency kMontantMax = Currency::Brut(9'999'999'999'900);  // 999,999,999.99 euros

QString PremierRempli(const QString& texte, const QString& sinon) { return texte.isEmpty() ? sinon : texte; }

/// No half of a character and no blank at its end.
QString Coupe(QString nom) {
  nom.truncate(kNomMax);
  if (!nom.isEmpty() && nom.back().isHighSurrogate()) nom.chop(1);
  return nom.trimmed();
}

}  // namespace

TQrPaiement::TQrPaiement(const TParametres& parametres)
    : nom_(Coupe(PremierRempli(parametres.GetParametre(TParam::VirementNom).simplified(),
                               parametres.GetParametre(TParam::NomEcole).simplified()))),
      compte_(IbanSansBlancs(parametres.CompteEcole())),
      valide_(IbanValide(compte_)),
      reference_(parametres.Regles().QrReference) {}

QString TQrPaiement::Texte(const QString& communication, Currency montant) const {
  const QString euros = FormatDeuxDecimales(montant).replace(u',', u'.');
  const bool due = montant > Currency() && montant <= kMontantMax && euros != u"0.00";
  if (!valide_ || nom_.isEmpty() || !due || !CommunicationValide(communication)) return {};
  QStringList lignes{u"BCD"_s, u"002"_s, u"1"_s,           u"SCT"_s, QString(),
                     nom_,     compte_,  u"EUR"_s + euros, QString()};
  if (reference_)
    lignes += QString(communication).remove(u'+').remove(u'/');
  else
    lignes += {QString(), communication};  // anything more would make it a free one
  return lignes.join(u'\n');
}

void TQrPaiement::Ajouter(TNoeudRapport& eleve, const QString& communication, Currency montant) const {
  const QString texte = Texte(communication, montant);
  if (!texte.isEmpty()) eleve.Annexes.Ecrire(u"QrPaiement", texte);
}

void TQrPaiement::Avertir(TRapport& rapport) const {
  if (!valide_ && !compte_.isEmpty())
    rapport.Avertissements +=
        u"Le compte « %1 » n'est pas un IBAN valable : les papiers n'ont pas de code QR de paiement."_s.arg(
            compte_);
}
