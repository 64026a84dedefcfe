#pragma once
#include <QString>
#include <QStringList>

/// The tables that the upgrade script presumes, for a database made from nothing. Safe to run again.
QString ScriptTablesDeBase();

class TDataModule1;

/// What a script makes: "TABLE", "TABLE.COLUMN" of the columns added, and "compteur NAME".
QStringList ElementsAttendus(const QString& script);
/// The same of the open database. Raises Exception.
QStringList ElementsDuSchema(TDataModule1& base);

/// The statements of a script, cut at each ";" outside quotes; empty ones left out.
QStringList Instructions(const QString& script);
