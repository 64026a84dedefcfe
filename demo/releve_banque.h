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

/// A statement as the bank's customers download it, in Windows-1252, in the layout of parameter 58: ""
/// thirteen header lines and then a line a movement, "1" fourteen, "2" a line a movement with a detail text
/// of labels.
QByteArray TexteReleve(const std::vector<TMouvementBanque>& mouvements, const QString& compteEcole,
                       const QString& disposition = {});
