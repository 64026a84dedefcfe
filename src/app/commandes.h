#pragma once
#include <QCommandLineParser>
#include <QStringList>

#include "app/terminal.h"
#include "application/controleur.h"

/// One run of the batch program: what the command line asks for, and what it works on.
struct TSession {
  const QCommandLineParser& Options;
  QStringList Arguments;  ///< behind the command's name
  TDialoguesTerminal& Dialogues;
  TDataModule1& Base;
  TControleur& Controleur;

  /// Opens the connection; true when the file of the database has just been made. Raises Exception.
  bool Connecter() const;
  /// The connection, the parameters, and the year on display. Raises Exception.
  void Ouvrir() const;
  /// The month of --mois, 1 to 12; raises Exception.
  int Mois() const;
  /// The value of an option; raises Exception when it is missing.
  QString Option(const QString& nom) const;
};

/// A command: its name, its number of arguments, and what it does. The function returns the exit code.
struct TCommande {
  const char* Nom;
  int ArgumentsMin, ArgumentsMax;
  const char* Usage;
  int (*Executer)(TSession&);
};

/// Every command of the batch program.
const std::vector<TCommande>& Commandes();

/// `document`, in a file of its own.
int CommandeDocument(TSession& session);
