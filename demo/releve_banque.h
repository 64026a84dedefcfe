#pragma once
#include <QByteArray>
#include <QDate>
#include <QString>
#include <vector>

#include "core/currency.h"

/// A movement on the school's account.
struct TMouvementBanque {
  QDate Date;
  QString Donneur, Compte;
  Currency Montant;
  QString Communication;
};

/// A statement as the bank's customers download it (layout of an empty parameter 58): thirteen header
/// lines, then a line a movement, in Windows-1252.
QByteArray TexteReleve(const std::vector<TMouvementBanque>& mouvements, const QString& compteEcole);
