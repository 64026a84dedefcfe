#include "core/query_internal.h"

#include <QSqlError>
#include <QSqlQuery>

#include "core/data_module.h"
#include "core/exceptions.h"
#include "core/firebird.h"

TQueryInternal::TQueryInternal(TDataModule1& base, QString sql) : base_(base), sql_(std::move(sql)) {}

TQueryInternal& TQueryInternal::Parametre(const QString& nom, const QVariant& valeur) {
  parametres_.insert(u':' + nom, valeur);
  return *this;
}

int TQueryInternal::Executer() {
  QSqlQuery requete(base_.UniConnection1());
  bool fait = requete.prepare(sql_);
  if (fait) {
    for (auto i = parametres_.cbegin(); i != parametres_.cend(); ++i) requete.bindValue(i.key(), i.value());
    fait = requete.exec();
  }
  if (!fait) throw Exception(MessageBaseDeDonnees(requete.lastError().text()));
  return requete.numRowsAffected();
}
