#include "support/base_essai.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>

#include "core/firebird_interne.h"
#include "core/query_internal.h"

TBaseEssai::TBaseEssai() : TBaseEssai(QStringLiteral(CALPENNE_MODELE)) {}

TBaseEssai::TBaseEssai(const QString& depart) {
  for (const auto scope : {QSettings::UserScope, QSettings::SystemScope})
    QSettings(QSettings::NativeFormat, scope, u"Tarnvale"_s, u"Orbelin"_s).clear();
  EXPECT_TRUE(QFile::copy(depart, FichierDeDonnees()));
  QFile::setPermissions(FichierDeDonnees(), QFile::ReadOwner | QFile::WriteOwner);
  module_.ServerName = FichierDeDonnees();
  module_.Connecter();
}

QString TBaseEssai::Fichier(const QString& nom, const QByteArray& contenu) const {
  QFile fichier(Chemin(nom));
  EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
  fichier.write(contenu);
  return Chemin(nom);
}

namespace {

QString EnTexte(const Firebird::TChamp& champ) {
  if (champ.nul < 0) return u"-"_s;
  if (champ.type == SQL_TYPE_DATE) return DateVersQt(Firebird::Date(champ)).toString(Qt::ISODate);
  if (champ.type == SQL_TYPE_TIME) return HeureVersQt(Firebird::Heure(champ)).toString(u"HH:mm:ss.zzz"_s);
  if (champ.echelle < 0 || champ.type == SQL_DOUBLE) return FormatQuatreDecimales(Firebird::Montant(champ));
  return Firebird::Texte(champ);
}

}  // namespace

QStringList TBaseEssai::Rangees(const QString& sql) {
  Firebird::TTransaction transaction(module_.Attache().Poignee(), false);
  Firebird::TInstruction instruction(module_.Attache().Poignee(), transaction, sql.toUtf8());
  instruction.Executer();
  QStringList rangees;
  while (instruction.Suivant()) {
    QStringList valeurs;
    for (const Firebird::TChamp& champ : instruction.Champs()) valeurs += EnTexte(champ);
    rangees += valeurs.join(u';');
  }
  return rangees;
}

QString TBaseEssai::Valeur(const QString& sql) {
  const QString rangee = Rangees(sql).value(0);
  return rangee == u"-" ? QString() : rangee;
}

void TBaseEssai::Sql(const QString& sql) { TQueryInternal(module_, sql).Executer(); }
