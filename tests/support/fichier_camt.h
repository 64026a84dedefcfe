// What writes a bank's camt.053 file.
#pragma once
#include "support/fichier_coda.h"

namespace FichierCamt {

/// A balance: "OPBD" or "CLBD", in euros.
inline QString Solde(const QString& genre, const QString& montant, const QString& sens = "CRDT",
                     const QString& date = "2016-10-05") {
  return u"<Bal><Tp><CdOrPrtry><Cd>%1</Cd></CdOrPrtry></Tp><Amt Ccy='EUR'>%2</Amt>"
         "<CdtDbtInd>%3</CdtDbtInd><Dt><Dt>%4</Dt></Dt></Bal>"_s.arg(genre, montant, sens, date);
}

/// An entry and what it holds behind its amount and "CRDT" or "DBIT".
inline QString Ecriture(const QString& montant, const QString& sens, const QString& reste) {
  return u"<Ntry><Amt Ccy='EUR'>%1</Amt><CdtDbtInd>%2</CdtDbtInd>%3</Ntry>"_s.arg(montant, sens, reste);
}

inline QString Valeur(const QString& date) { return u"<ValDt><Dt>%1</Dt></ValDt>"_s.arg(date); }

/// The payer and his words.
inline QString Detail(const QString& donneur, const QString& compte, const QString& remise) {
  return u"<RltdPties><Dbtr><Nm>%1</Nm></Dbtr><DbtrAcct><Id><IBAN>%2</IBAN></Id></DbtrAcct></RltdPties>"
         "<RmtInf>%3</RmtInf>"_s.arg(donneur, compte, remise);
}
/// The only details of an entry.
inline QString Details(const QString& detail) {
  return u"<NtryDtls><TxDtls>%1</TxDtls></NtryDtls>"_s.arg(detail);
}
inline QString Libre(const QString& texte) { return u"<Ustrd>%1</Ustrd>"_s.arg(texte); }

/// A statement of that number and account.
inline QString Releve(int numero, const QString& compte, const QString& contenu) {
  return u"<Stmt><Id>S</Id><LglSeqNb>%1</LglSeqNb><Acct><Id><IBAN>%2</IBAN></Id></Acct>%3</Stmt>"_s.arg(
      QString::number(numero), compte, contenu);
}

inline QByteArray Camt(const QString& releves, const QString& version = "02") {
  return u"<Document xmlns='urn:iso:std:iso:20022:tech:xsd:camt.053.001.%1'><BkToCstmrStmt><GrpHdr/>%2"
         "</BkToCstmrStmt></Document>"_s.arg(version, releves)
             .toUtf8();
}

}  // namespace FichierCamt
