#pragma once
#include <QString>
#include <memory>

#include "core/dialogues.h"
#include "core/reglages_poste.h"

namespace Firebird {
class TAttache;
class TCompteurs;
class TLectures;
}  // namespace Firebird

/// The one connection of the program, the allocator of row keys and the runner of SQL scripts.
class TDataModule1 {
 public:
  /// Both must outlive the module. Nothing is opened yet.
  TDataModule1(IDialogues& dialogues, TReglagesPoste& reglages);
  ~TDataModule1();
  TDataModule1(const TDataModule1&) = delete;
  TDataModule1& operator=(const TDataModule1&) = delete;

  /// Finds the server's name (machine, then user, then the user is asked) and opens the connection.
  /// False when no name is known and none was given: the program ends. A failure raises Exception.
  bool ConnectToServer();
  /// Opens the connection to `ServerName` as it stands. Raises Exception.
  void Connecter();
  void Deconnecter();
  bool EstConnecte() const { return uniConnection1_ != nullptr; }

  /// Copies `Serveur` of that scope into ServerName; "" when the scope has none or cannot be opened.
  void ReadServerName(TRacine racine);
  /// The same of the machine, or else of the user.
  void ReadServerName();
  /// Writes ServerName into `Serveur` of that scope when it opens.
  void WriteServerName(TRacine racine);
  bool CanWriteMachineKey() const;
  /// Asks the user for the server's name and keeps the answer; a blank answer changes nothing.
  void AskServerName();
  /// Asks which data file of this computer to open, and keeps the answer; false when the user gives up.
  bool AskDataFile();

  /// The next key of a counter, never given twice; -1 after having told the user why not.
  int GetNextId(const QString& counterName);
  /// Runs SQL statements separated by ";". One that fails is passed over without a word.
  void RunScript(const QString& lignes);
  /// The upgrade script on the open database: brings any older layout to the present one.
  void MettreAJour();
  /// The base tables, where there are none yet, and the upgrade script. Raises Exception when a table, a
  /// column or a counter is missing afterwards.
  void CreerTables();
  /// Forced writes, of a local file only: off while a whole school is loaded. Raises Exception.
  void EcrituresForcees(bool forcees);

  /// True when ServerName names a file of this computer ("local", or a path that ends in ".fdb").
  bool EstLocal() const { return !FichierLocal().isEmpty(); }
  /// The file that ServerName stands for; "" for a server.
  QString FichierLocal() const;

  /// The open connection. Raises Exception when there is none.
  Firebird::TAttache& Attache() const;
  /// The prepared selects of the open connection. Raises Exception when there is none.
  std::shared_ptr<Firebird::TLectures> Lectures();
  /// After a failure, and before tables change: the next reading prepares its statement again.
  void OublierLectures() { lectures_.reset(); }
  IDialogues& Dialogues() const { return dialogues_; }

  /// A host, "host/port", "local", or the path of a ".fdb" file; as typed.
  QString ServerName;
  /// A name that was given for this run: it holds, and settings are not looked at. "" when there is none.
  QString ServeurImpose;

 private:
  void KeepServerName(const QString& nom);
  void OuvrirFichier(const QString& chemin);
  void CreerFichier(const QString& chemin);
  void Ouvrir(const QString& hote, const QString& base);

  IDialogues& dialogues_;
  TReglagesPoste& reglages_;
  std::unique_ptr<Firebird::TAttache> uniConnection1_;
  std::unique_ptr<Firebird::TCompteurs> compteurs_;  // of the open connection, as are
  std::shared_ptr<Firebird::TLectures> lectures_;
};

/// `GetNextId` on the given module.
int NextId(TDataModule1& base, const QString& counterName);
