#include <QRegularExpression>
#include <QXmlStreamReader>

#include "core/chaines.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "payments/arbre_xml.h"
#include "payments/communication_structuree.h"
#include "payments/iban.h"
#include "payments/releve_bancaire.h"

using namespace Qt::StringLiterals;

namespace {

const QString kEuro = u"EUR"_s;

bool EstCredit(const TElementXml& element) { return element.Lire(u"CdtDbtInd") == u"CRDT"; }

/// Taken back: the money goes the other way than the entry that it cancels.
bool EstExtourne(const TElementXml& ecriture) {
  const QString indice = ecriture.Lire(u"RvslInd");
  return indice == u"true" || indice == u"1";
}

/// Whichever says credit or debit of a transaction: itself, else its entry.
const TElementXml& AyantSens(const TElementXml& transaction, const TElementXml& ecriture) {
  return transaction.Trouver(u"CdtDbtInd") != nullptr ? transaction : ecriture;
}

/// An amount in euros. Raises Exception for another currency, EConvertError for what is no amount.
Currency Montant(const TElementXml& montant) {
  if (montant.Devise != kEuro)
    throw Exception(u"Un montant est en « %1 » et non en euros."_s.arg(montant.Devise.left(10)));
  if (montant.Texte.startsWith(u'-') || montant.Texte.contains(u','))
    throw EConvertError(u"« %1 » n'est pas un montant."_s.arg(montant.Texte.left(40)));
  return StrToCurr(QString(montant.Texte).replace(u'.', u','));
}

/// Minus for a debit.
Currency MontantSigne(const TElementXml& element) {
  const TElementXml* montant = element.Trouver(u"Amt");
  const QString sens = element.Lire(u"CdtDbtInd");
  if (montant == nullptr || (sens != u"CRDT" && sens != u"DBIT"))
    throw Exception(u"Le montant ou le sens d'un mouvement ou d'un solde manque."_s);
  return EstCredit(element) ? Montant(*montant) : -Montant(*montant);
}

/// The day as it is written, whatever the hour and its zone; 0 without one.
TDateTime Jour(const TElementXml* date) {
  if (date == nullptr) return 0.0;
  const QString texte = date->Lire(u"Dt").isEmpty() ? date->Lire(u"DtTm") : date->Lire(u"Dt");
  if (texte.isEmpty()) return 0.0;
  const QDate jour = QDate::fromString(texte.left(10), Qt::ISODate);
  if (!jour.isValid()) throw EConvertError(u"« %1 » n'est pas une date."_s.arg(texte.left(40)));
  return DateDeQt(jour);
}

QString NumeroCompte(const TElementXml* compte) {
  if (compte == nullptr) return {};
  const QString iban = compte->Lire(u"Id/IBAN");
  return iban.isEmpty() ? compte->Lire(u"Id/Othr/Id") : iban;
}

/// What a reference of the creditor says: twelve digits that are a communication as such, else its text.
QString Reference(const TElementXml& structuree) {
  const QString texte = structuree.Lire(u"CdtrRefInf/Ref");
  QString chiffres = texte;
  chiffres.remove(u'+').remove(u'*').remove(u'/').remove(u' ');
  const bool douze = chiffres.size() == 12 && EstChiffres(chiffres);
  const bool belge = structuree.Lire(u"CdtrRefInf/Tp/Issr") == u"BBA";
  return douze && (belge || CommunicationValide(chiffres)) ? CommunicationPresentee(chiffres) : texte;
}

QString Communication(const TElementXml& detail, const TElementXml& ecriture) {
  QStringList libres;
  if (const TElementXml* remise = detail.Trouver(u"RmtInf")) {
    QString premiere;
    for (const TElementXml* structuree : remise->Tous(u"Strd")) {
      const QString reference = Reference(*structuree);
      if (!TexteInterieur(reference).isEmpty()) return reference;
      if (premiere.isEmpty()) premiere = reference;
    }
    if (!premiere.isEmpty()) return premiere;
    for (const TElementXml* libre : remise->Tous(u"Ustrd"))
      if (!libre->Texte.isEmpty()) libres += libre->Texte;
  }
  if (!libres.isEmpty()) return libres.join(u' ');
  const QString information = detail.Lire(u"AddtlTxInf");
  return information.isEmpty() ? ecriture.Lire(u"AddtlNtryInf") : information;
}

class TLecteurCamt {
 public:
  TReleveBancaire Lire(const QByteArray& octets) {
    QXmlStreamReader xml(octets);
    int profondeur = 0;
    while (!xml.atEnd()) {
      xml.readNext();
      VerifierXml(xml);
      if (xml.isEndElement()) --profondeur;
      if (!xml.isStartElement()) continue;
      if (++profondeur == 2) VerifierMessage(xml);
      if (profondeur < 3 || xml.name() != u"Stmt" || xml.namespaceUri() != espace_) {
        if (profondeur < 3) continue;
        xml.skipCurrentElement();
      } else {
        Releve(LireElementXml(xml));
      }
      VerifierXml(xml);
      --profondeur;
    }
    if (espace_.isEmpty()) throw Exception(u"Ce fichier XML n'est pas un relevé de compte camt.053."_s);
    return std::move(releve_);
  }

 private:
  /// The second element of the document says what it is.
  void VerifierMessage(const QXmlStreamReader& xml) {
    static const QRegularExpression version(u"camt\\.053\\.001\\.0[2-8]$"_s);
    if (xml.name() != u"BkToCstmrStmt")
      throw Exception(u"Ce fichier XML n'est pas un relevé de compte camt.053."_s);
    espace_ = xml.namespaceUri().toString();
    if (!version.match(espace_).hasMatch())
      throw Exception(u"Cette version de camt.053 n'est pas connue : « %1 »."_s.arg(espace_.left(80)));
  }

  void Releve(const TElementXml& releve) {
    TEnteteReleve entete;
    entete.Compte = NumeroCompte(releve.Trouver(u"Acct"));
    for (const char16_t* numero : {u"ElctrncSeqNb", u"LglSeqNb", u"Id"})
      if (entete.Numero.isEmpty()) entete.Numero = releve.Lire(numero);
    const QString devise = releve.Lire(u"Acct/Ccy");
    if (!devise.isEmpty() && devise != kEuro)
      throw Exception(u"Le compte est en « %1 » et non en euros."_s.arg(devise.left(10)));
    Soldes(releve, entete);
    Currency mouvements;
    for (const TElementXml* ecriture : releve.Tous(u"Ntry"))
      mouvements = Additionner(mouvements, Ecriture(*ecriture, entete.Compte));
    if (const QString preuve = PreuveDesSoldes(entete, mouvements); !preuve.isEmpty())
      releve_.Preuves += preuve;
    releve_.Entetes.push_back(std::move(entete));
  }

  static void Soldes(const TElementXml& releve, TEnteteReleve& entete) {
    for (const char16_t* ancien : {u"OPBD", u"PRCD"}) {
      if (entete.AncienSolde) break;
      Solde(releve, ancien, entete.AncienSolde, entete.DateAncienSolde);
    }
    Solde(releve, u"CLBD", entete.NouveauSolde, entete.DateNouveauSolde);
  }

  static void Solde(const TElementXml& releve, QStringView genre, std::optional<Currency>& solde,
                    TDateTime& date) {
    for (const TElementXml* balance : releve.Tous(u"Bal")) {
      if (balance->Lire(u"Tp/CdOrPrtry/Cd") != genre) continue;
      solde = MontantSigne(*balance);
      date = Jour(balance->Trouver(u"Dt"));
      return;
    }
  }

  /// Its amount, 0 when it is not booked.
  Currency Ecriture(const TElementXml& ecriture, const QString& compte) {
    if (const TElementXml* etat = ecriture.Trouver(u"Sts"))
      if (etat->Texte != u"BOOK" && etat->Lire(u"Cd") != u"BOOK") return {};
    TMouvement mouvement;
    mouvement.Montant = MontantSigne(ecriture);
    mouvement.Date = Jour(ecriture.Trouver(u"ValDt"));
    if (mouvement.Date == 0.0) mouvement.Date = Jour(ecriture.Trouver(u"BookgDt"));
    if (mouvement.Date == 0.0) throw Exception(u"Un mouvement n'a pas de date."_s);
    for (const auto& [detail, montant, credit] : Details(ecriture, mouvement.Montant)) {
      TMouvement& rendu = releve_.Mouvements.emplace_back(mouvement);
      rendu.Montant = montant;
      Donneur(*detail, credit != EstExtourne(ecriture), compte, rendu);
      rendu.Communication = Communication(*detail, ecriture);
    }
    return mouvement.Montant;
  }

  /// What tells of a movement, its amount, and whether it is a credit, which an amount of 0 does not say.
  struct TDetail {
    const TElementXml* Element;
    Currency Montant;
    bool Credit;
  };
  using TDetails = std::vector<TDetail>;

  /// The transactions of an entry with their amounts; the entry itself when they do not make it up.
  static TDetails Details(const TElementXml& ecriture, Currency total) {
    std::vector<const TElementXml*> transactions;
    for (const TElementXml* groupe : ecriture.Tous(u"NtryDtls"))
      for (const TElementXml* transaction : groupe->Tous(u"TxDtls")) transactions.push_back(transaction);
    if (transactions.size() == 1) return {{transactions[0], total, EstCredit(ecriture)}};
    TDetails details;
    Currency somme;
    for (const TElementXml* transaction : transactions) {
      const auto montant = MontantTransaction(*transaction, ecriture);
      if (!montant) continue;
      details.push_back({transaction, *montant, EstCredit(AyantSens(*transaction, ecriture))});
      somme = Additionner(somme, *montant);
    }
    if (details.empty() || somme != total) return {{&ecriture, total, EstCredit(ecriture)}};
    return details;
  }

  /// None when it has no amount in euros of its own; what was ordered in the beginning is none.
  static std::optional<Currency> MontantTransaction(const TElementXml& transaction,
                                                    const TElementXml& ecriture) {
    const TElementXml* montant = transaction.Trouver(u"Amt");
    if (montant == nullptr) montant = transaction.Trouver(u"AmtDtls/TxAmt/Amt");
    if (montant == nullptr || montant->Devise != kEuro) return {};
    return EstCredit(AyantSens(transaction, ecriture)) ? Montant(*montant) : -Montant(*montant);
  }

  /// The debtor or the creditor, whichever is asked for, but never the school itself.
  static void Donneur(const TElementXml& detail, bool debiteur, const QString& compte,
                      TMouvement& mouvement) {
    const TElementXml* parties = detail.Trouver(u"RltdPties");
    if (parties == nullptr) return;
    for (const bool cote : {debiteur, !debiteur}) {
      const QString partie = cote ? u"Dbtr"_s : u"Cdtr"_s;
      const QString numero = NumeroCompte(parties->Trouver(QString(partie + u"Acct")));
      if (!numero.isEmpty() && IbanSansBlancs(numero) == IbanSansBlancs(compte)) continue;
      const TElementXml* qui = parties->Trouver(partie);
      mouvement.Compte = numero;
      if (qui != nullptr) mouvement.Donneur = qui->Lire(qui->Trouver(u"Pty") != nullptr ? u"Pty/Nm" : u"Nm");
      return;
    }
  }

  TReleveBancaire releve_;
  QString espace_;
};

}  // namespace

bool EstXml(const QByteArray& octets) {
  const QByteArray debut = octets.left(100);
  return QByteArray(debut).replace("\xEF\xBB\xBF", "").trimmed().startsWith('<') ||
         debut.startsWith("\xFF\xFE<") || debut.startsWith(QByteArray("\xFE\xFF\0<", 4));
}

TReleveBancaire LireCamt(const QByteArray& octets) { return TLecteurCamt().Lire(octets); }
