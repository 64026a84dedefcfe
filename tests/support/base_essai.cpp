#include "support/base_essai.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTime>

using namespace Qt::StringLiterals;

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

QStringList TBaseEssai::Rangees(const QString& sql) {
  QSqlQuery requete(module_.UniConnection1());
  requete.setForwardOnly(true);
  EXPECT_TRUE(requete.exec(sql)) << requete.lastError().text().toStdString();
  QStringList rangees;
  while (requete.next()) {
    QStringList valeurs;
    for (int i = 0; i < requete.record().count(); ++i) {
      const QVariant valeur = requete.value(i);
      if (valeur.isNull())
        valeurs += u"-"_s;
      else if (valeur.metaType().id() == QMetaType::QTime)
        valeurs += valeur.toTime().toString(u"HH:mm:ss.zzz"_s);
      else if (valeur.metaType().id() == QMetaType::Double)
        valeurs += QString::number(valeur.toDouble(), 'f', 4);
      else
        valeurs += valeur.toString();
    }
    rangees += valeurs.join(u';');
  }
  return rangees;
}

QString TBaseEssai::Valeur(const QString& sql) {
  const QString rangee = Rangees(sql).value(0);
  return rangee == u"-" ? QString() : rangee;
}

void TBaseEssai::Sql(const QString& sql) {
  QSqlQuery requete(module_.UniConnection1());
  EXPECT_TRUE(requete.exec(sql)) << sql.toStdString() << "\n" << requete.lastError().text().toStdString();
}
