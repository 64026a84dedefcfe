#pragma once
#include <QString>
#include <QStringList>

/// The tables that the upgrade script presumes, for a database made from nothing. Safe to run again.
QString ScriptTablesDeBase();

/// The statements of a script, cut at each ";" outside quotes; empty ones left out.
QStringList Instructions(const QString& script);
