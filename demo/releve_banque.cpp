#include "demo/releve_banque.h"

#include <QStringList>

namespace {

constexpr int kLignesEntete = 12;

QString Jour(const QDate& date) { return date.toString(QStringLiteral("dd/MM/yyyy")); }

/// The bank writes names in capitals without accents.
QString SansAccent(const QString& texte) {
  QString lettres;
  for (const QChar lettre : texte.normalized(QString::NormalizationForm_D))
    if (lettre.unicode() < 128) lettres += lettre.toUpper();
  return lettres;
}

QStringList Entete(const std::vector<TMouvementBanque>& mouvements, const QString& compte) {
  QStringList lignes{u"Date de comptabilisation à partir de;" % Jour(mouvements.front().Date),
                     u"Date de comptabilisation jusqu'au;" % Jour(mouvements.back().Date),
                     QStringLiteral("Montant à partir de;"),
                     QStringLiteral("Montant jusqu'à;"),
                     QStringLiteral("Numéro d'extrait à partir de;"),
                     QStringLiteral("Numéro d'extrait jusqu'au;"),
                     QStringLiteral("Communication;"),
                     QStringLiteral("Nom contrepartie contient;"),
                     QStringLiteral("Compte contrepartie;"),
                     u"Compte;" % compte};
  while (lignes.size() < kLignesEntete) lignes.append(QStringLiteral(";"));
  lignes.append(QStringLiteral(
      "Compte;Date de comptabilisation;Numéro d'extrait;Numéro de transaction;Compte contrepartie;"
      "Nom contrepartie;Rue et numéro;Code postal et localité;Transaction;Date valeur;Montant;Devise;BIC;"
      "Code pays;Communications"));
  return lignes;
}

}  // namespace

QByteArray TexteReleve(const std::vector<TMouvementBanque>& mouvements, const QString& compteEcole) {
  if (mouvements.empty()) return {};
  QStringList lignes = Entete(mouvements, compteEcole);
  int numero = 0;
  for (const TMouvementBanque& m : mouvements) {
    const QString date = Jour(m.Date);
    lignes.append(QStringList{compteEcole, date, QStringLiteral("00006"), QString::number(++numero), m.Compte,
                              SansAccent(m.Donneur), QString(), QString(), QStringLiteral("Virement"), date,
                              FormatDeuxDecimales(m.Montant), QStringLiteral("EUR"), QString(),
                              QStringLiteral("BE"), m.Communication}
                      .join(u';'));
  }
  return QString(lignes.join(u"\r\n") % u"\r\n").toLatin1();
}
