#include "demo/releve_banque.h"

#include <QStringList>
#include <algorithm>

#include "core/formats.h"

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

QString LigneA(const TMouvementBanque& m, const QString& compte, int numero) {
  const QString date = Jour(m.Date);
  return QStringList{compte,
                     date,
                     u"00006"_s,
                     QString::number(numero),
                     m.Compte,
                     SansAccent(m.Donneur),
                     QString(),
                     QString(),
                     u"Virement"_s,
                     date,
                     FormatDeuxDecimales(m.Montant),
                     u"EUR"_s,
                     QString(),
                     u"BE"_s,
                     m.Communication}
      .join(u';');
}

QString LigneB(const TMouvementBanque& m, const QString& compte, int numero) {
  const QString date = Jour(m.Date);
  return QStringList{compte,
                     u"00006"_s,
                     QString::number(numero),
                     date,
                     m.Compte,
                     SansAccent(m.Donneur),
                     QString(),
                     QString(),
                     m.Communication,
                     date,
                     FormatDeuxDecimales(m.Montant),
                     u"EUR"_s}
      .join(u';');
}

/// The labels of the detail text are set apart by blanks; stars stand around a structured communication.
QString LigneC(const TMouvementBanque& m, const QString& compte, int numero) {
  const QString blancs(12, u' ');
  const bool recu = m.Montant >= Currency();
  const QString detail = u"Virement en euros" % blancs % (recu ? u"De: " : u"Vers: ") %
                         SansAccent(m.Donneur) % blancs % u"IBAN: " % m.Compte % blancs %
                         u"Communication : " % QString(m.Communication).replace(u"+++"_s, u"***"_s) % u' ';
  return QStringList{compte,
                     u"ECOLE"_s,
                     QString(),
                     QString::number(numero),
                     m.Date.toString(u"dd-MM-yyyy"_s),
                     QString(),
                     FormatMontant(m.Montant).section(u' ', 0, -2).replace(QChar(0x202F), u'.'),
                     u"EUR"_s,
                     u"Virement"_s,
                     detail}
      .join(u';');
}

struct TForme {
  QString Parametre;
  int Entete;
  QString (*Ligne)(const TMouvementBanque&, const QString&, int);
};

}  // namespace

QByteArray TexteReleve(const std::vector<TMouvementBanque>& mouvements, const QString& compteEcole,
                       const QString& disposition) {
  static const TForme formes[] = {{u""_s, 13, LigneA}, {u"1"_s, 14, LigneB}, {u"2"_s, 1, LigneC}};
  if (mouvements.empty()) return {};
  const TForme& forme = *std::ranges::find(formes, disposition, &TForme::Parametre);
  const QStringList entete = Entete(mouvements, compteEcole);
  QStringList lignes(forme.Entete - 1, u";"_s);
  for (int i = 0; i + 1 < std::min<int>(forme.Entete, 12); ++i) lignes[i] = entete[i];
  lignes.append(entete.last());
  int numero = 0;
  for (const TMouvementBanque& m : mouvements) lignes.append(forme.Ligne(m, compteEcole, ++numero));
  return QString(lignes.join(u"\r\n") % u"\r\n").toLatin1();
}
