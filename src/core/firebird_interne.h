#pragma once
// Shared by the files of this folder that call the client library; nothing above includes it.
#include <ibase.h>

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <map>
#include <memory>
#include <vector>

namespace Firebird {

/// Raises Exception with the engine's text when the status vector holds an error.
void Verifier(const ISC_STATUS_ARRAY statut, const QString& fichier = {});

/// The attachment behind Qt's connection. Not owned.
isc_db_handle Attache(const QVariant& poignee);

/// A transaction that ends with its object: committed by `Valider`, else rolled back.
class TTransaction {
 public:
  TTransaction(isc_db_handle base, bool ecriture);
  ~TTransaction();
  TTransaction(const TTransaction&) = delete;
  TTransaction& operator=(const TTransaction&) = delete;
  void Valider();
  isc_tr_handle* Poignee() { return &poignee_; }

 private:
  isc_tr_handle poignee_ = 0;
};

/// One column of a row buffer.
struct TChamp {
  QByteArray nom;     ///< alias, upper case
  short type = 0;     ///< SQL_... without the null bit
  short echelle = 0;  ///< negative power of ten
  short nul = 0;      ///< -1 when the value is NULL
  std::vector<char> donnees;
};

/// A prepared statement with the buffers of its result.
class TInstruction {
 public:
  TInstruction(isc_db_handle base, TTransaction& transaction, const QByteArray& sql);
  TInstruction(const TInstruction&) = delete;
  TInstruction& operator=(const TInstruction&) = delete;

  /// From now on runs in that transaction; a statement outlives the one that it was prepared in.
  void Dans(TTransaction& transaction) { transaction_ = &transaction; }
  /// Ends a select before its rows do, so that it can run again.
  void Fermer();
  /// Runs the statement; `parametre`, when given, is its one text parameter.
  void Executer(const QByteArray* parametre = nullptr);
  /// The same with whole numbers for its parameters, in order.
  void Executer(const std::vector<int>& cles);
  /// Runs a statement that gives exactly one row.
  void ExecuterUneLigne(const QByteArray& parametre);
  /// The next row into the fields; false at the end.
  bool Suivant();
  const std::vector<TChamp>& Champs() const { return champs_; }

 private:
  XSQLDA* Resultat() { return reinterpret_cast<XSQLDA*>(resultat_.data()); }
  void DecrireResultat();

  /// Drops the statement also when its preparation fails.
  struct TPoignee {
    isc_stmt_handle valeur = 0;
    ~TPoignee();
  };

  TTransaction* transaction_;
  TPoignee poignee_;
  std::vector<char> resultat_;
  std::vector<TChamp> champs_;
};

/// The selects by key of one connection: what the engine has prepared serves each later reading. They
/// run in one read-only transaction that sees what others have committed and keeps nobody waiting.
class TLectures {
 public:
  /// `base` must stay attached as long as the object.
  explicit TLectures(isc_db_handle base) : base_(base), transaction_(base, false) {}
  TTransaction& Transaction() { return transaction_; }
  /// Prepared, and out of the store until it is given back.
  std::unique_ptr<TInstruction> Prendre(const QByteArray& sql);
  /// Once its rows are read.
  void Rendre(const QByteArray& sql, std::unique_ptr<TInstruction> instruction);

 private:
  isc_db_handle base_;
  TTransaction transaction_;
  std::map<QByteArray, std::unique_ptr<TInstruction>> libres_;
};

/// Digits of a number field without regard to its scale; 0 when NULL or not a number.
std::int64_t EntierBrut(const TChamp& champ);
/// Whole number of a field, decimals cut; 0 when NULL or not a number.
std::int64_t Entier(const TChamp& champ);

}  // namespace Firebird
