#pragma once
#include <QByteArray>
#include <QString>
#include <QVariant>

class TDataModule1;

/// A statement written by hand outside the collections: user data travel as named parameters, and
/// the statement commits by itself. Selects are read through TCurseur.
class TQueryInternal {
 public:
  TQueryInternal(TDataModule1& base, QString sql);

  /// ":nom" in the text.
  TQueryInternal& Parametre(const QString& nom, const QVariant& valeur);
  /// Rows touched. Raises Exception with the database's message.
  int Executer();

 private:
  TDataModule1& base_;
  QString sql_;
  QVariantMap parametres_;
};
