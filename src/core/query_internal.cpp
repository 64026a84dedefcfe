#include "core/query_internal.h"

#include <QRegularExpression>

#include "core/data_module.h"
#include "core/firebird_interne.h"

using namespace Qt::StringLiterals;

TQueryInternal::TQueryInternal(TDataModule1& base, const QString& sql) : base_(base) {
  // A name is not looked for inside a quoted text, which may hold a time.
  static const QRegularExpression morceau(u"'[^']*'|:(\\w+)"_s);
  qsizetype fin = 0;
  for (auto i = morceau.globalMatch(sql); i.hasNext();) {
    const auto lu = i.next();
    if (!lu.hasCaptured(1)) continue;
    sql_ += QStringView(sql).sliced(fin, lu.capturedStart() - fin) % u'?';
    fin = lu.capturedEnd();
    places_ += lu.captured(1).toUpper();
  }
  sql_ += QStringView(sql).sliced(fin);
}

TQueryInternal::~TQueryInternal() = default;

TQueryInternal& TQueryInternal::Parametre(const QString& nom, const TValeur& valeur) {
  valeurs_[nom.toUpper()] = valeur;
  return *this;
}

int TQueryInternal::Executer() {
  Firebird::TAttache& attache = base_.Attache();
  if (!instruction_) instruction_ = attache.Preparer(sql_.toUtf8());
  Firebird::TValeurs valeurs;
  for (const QString& nom : places_) valeurs.push_back(valeurs_[nom]);
  return attache.Executer(*instruction_, valeurs);
}
