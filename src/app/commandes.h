#pragma once
#include <QCommandLineParser>
#include <QStringList>
#include <span>

#include "app/terminal.h"
#include "application/controleur.h"
#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"

/// One run of the batch program: what the command line asks for, and what it works on.
struct TSession {
  const QCommandLineParser& Options;
  QStringList Arguments;  ///< behind the command's name
  TDialoguesTerminal& Dialogues;
  TDataModule1& Base;
  TControleur& Controleur;

  /// Opens the connection; true when the file of the database has just been made, which only `creer` may
  /// do. Raises Exception.
  bool Connecter(bool creer = false) const;
  /// The connection, the parameters, and the year on display. Raises Exception.
  void Ouvrir() const;

  /// Whether the option is given.
  bool A(const QString& option) const { return Options.isSet(option); }
  /// The value of an option; raises Exception when it is missing.
  QString Option(const QString& nom) const;
  /// The one option of these that is given. Raises Exception when there is none, or more than one.
  QString UneSeule(const QStringList& noms) const;
  /// A date that is written dd/mm/yyyy. Raises Exception when it is missing, EConvertError when it is none.
  TDateTime Date(const QString& option) const;
  /// --du and --au, as they stand.
  TPeriode LirePeriode() const;
  /// The month of --mois, 1 to 12; raises Exception.
  int Mois() const;
  /// --mois, --du with --au, or --annee-scolaire, in the year on display. Raises Exception.
  TPeriode Periode() const;
  /// The pupil of the year on display with that key. Raises Exception.
  TEleve& Eleve(const QString& numero) const;
};

inline constexpr int kSansLimite = 1000;

/// A call that cannot be meant: nothing was done.
struct EMauvaisAppel : Exception {
  using Exception::Exception;
};

/// A command. The options that it takes are those that its usage names, besides the ones that every
/// command has.
struct TCommandeLot {
  const char* Nom;    ///< one word, or two: "solde", "ticket acheter"
  const char* Usage;  ///< what stands behind the name: arguments, then "--nom" or "--nom VALEUR"
  int ArgumentsMin, ArgumentsMax;
  int (*Executer)(TSession&);  ///< gives the exit code

  QString Ligne() const;  ///< name and usage
  /// The option is one of this command's.
  bool Prend(const QString& option) const;
};

/// The commands of each family; a family is a file of its own, and a row in `Commandes`.
std::span<const TCommandeLot> CommandesBase();
std::span<const TCommandeLot> CommandesEcole();
std::span<const TCommandeLot> CommandesDocuments();
std::span<const TCommandeLot> CommandesBanque();
std::span<const TCommandeLot> CommandesStatistiques();
std::span<const TCommandeLot> CommandesRepas();
std::span<const TCommandeLot> CommandesTablette();

/// Every command of the batch program.
const std::vector<TCommandeLot>& Commandes();
/// The command that the first words name; null when there is none.
const TCommandeLot* TrouverCommande(const QStringList& mots);
/// Declares the options of every command, and those that all have.
void DeclarerOptions(QCommandLineParser& options);
/// The first option given that the command does not have; "" when there is none.
QString OptionEtrangere(const TCommandeLot& commande, const QCommandLineParser& options);
