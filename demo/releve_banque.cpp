#include "demo/releve_banque.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLignesEntete = 12;

QString Jour(const QDate& date) { return date.toString(u"dd/MM/yyyy"_s); }

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
                     u"Montant à partir de;"_s,
                     u"Montant jusqu'à;"_s,
                     u"Numéro d'extrait à partir de;"_s,
                     u"Numéro d'extrait jusqu'au;"_s,
                     u"Communication;"_s,
                     u"Nom contrepartie contient;"_s,
                     u"Compte contrepartie;"_s,
                     u"Compte;" % compte};
  while (lignes.size() < kLignesEntete) lignes.append(u";"_s);
  lignes.append(
      u"Compte;Date de comptabilisation;Numéro d'extrait;Numéro de transaction;Compte contrepartie;"
      "Nom contrepartie;Rue et numéro;Code postal et localité;Transaction;Date valeur;Montant;Devise;BIC;"
      "Code pays;Communications"_s);
  return lignes;
}

}  // namespace

QByteArray TexteReleve(const std::vector<TMouvementBanque>& mouvements, const QString& compteEcole) {
  if (mouvements.empty()) return {};
  QStringList lignes = Entete(mouvements, compteEcole);
  int numero = 0;
  for (const TMouvementBanque& m : mouvements) {
    const QString date = Jour(m.Date);
    lignes.append(QStringList{compteEcole, date, u"00006"_s, QString::number(++numero), m.Compte,
                              SansAccent(m.Donneur), QString(), QString(), u"Virement"_s, date,
                              FormatDeuxDecimales(m.Montant), u"EUR"_s, QString(), u"BE"_s, m.Communication}
                      .join(u';'));
  }
  return QString(lignes.join(u"\r\n") % u"\r\n").toLatin1();
}
