#pragma once
#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

#include "core/currency.h"
#include "core/dates.h"

/// A movement as a bank's file tells it.
struct TMouvement {
  QString Donneur;
  TDateTime Date = 0.0;
  Currency Montant;  ///< negative when the school pays
  QString Communication;
  QString Compte;
};

/// The row that ended a reading: what it holds, as it is written, and why it cannot be read.
struct TFauteReleve {
  QString Message;
  QString Donneur, Date, Montant, Communication, Compte;
};

/// What a bank's file gave: the movements in the order of the file, up to a fault if there is one.
struct TReleveLu {
  std::vector<TMouvement> Mouvements;
  std::optional<TFauteReleve> Faute;
};

/// How a bank writes its file.
enum class TDispositionReleve { A, B, C };

/// The layout that parameter 58 stands for; any other value than "1" and "2" is A.
TDispositionReleve DispositionDuParametre(const QString& valeur);

/// The movements of a file in that layout, texts cut to what can be stored. Raises Exception when the bytes
/// are not a text.
TReleveLu LireReleve(const QByteArray& octets, TDispositionReleve disposition);

/// Cuts the texts to what can be stored: a file that is read again is then recognised.
void Tronquer(TMouvement& mouvement);
/// "Ligne 14 : ..."; `ligne` counts from 0.
QString FauteDeLigne(int ligne, const QString& message);

// The readers behind `LireReleve`.
/// Layouts A and B: a table whose first rows are the bank's header, whatever they hold.
TReleveLu LireTableau(const QByteArray& octets, TDispositionReleve disposition);
/// Layout C: a line a movement, whose last field tells payer, account and communication by labels.
TReleveLu LireLignesEtiquetees(const QByteArray& octets);
