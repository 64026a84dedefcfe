#pragma once
// Shared by the files of this folder that call the client library; nothing above includes it.
#include <ibase.h>

#include <map>
#include <memory>
#include <vector>

#include "core/dates.h"
#include "core/valeur.h"

namespace Firebird {

/// Raises Exception with the engine's text when the status vector holds an error.
void Verifier(const ISC_STATUS_ARRAY statut, const QString& fichier = {});

/// A transaction that ends with its object: committed by `Valider`, else rolled back. It sees what others
/// have committed, and waits for who writes the same row.
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

// The value of a field; 0 or "" when NULL.
/// Digits of a number without regard to its scale; 0 for what is no number.
std::int64_t EntierBrut(const TChamp& champ);
/// Whole number, decimals cut.
std::int64_t Entier(const TChamp& champ);
/// A fixed-width text comes without its padding; a number as its digits.
QString Texte(const TChamp& champ);
Currency Montant(const TChamp& champ);
TDateTime Date(const TChamp& champ);
/// In whole milliseconds.
TDateTime Heure(const TChamp& champ);
/// Of a blob, read in that transaction.
QByteArray Octets(const TChamp& champ, isc_db_handle base, TTransaction& transaction);

using TValeurs = std::vector<TValeur>;

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
  /// Runs the statement with a value for each "?".
  void Executer(const TValeurs& valeurs = {});
  /// Runs a statement that gives exactly one row.
  void ExecuterUneLigne(const TValeurs& valeurs);
  /// The next row into the fields; false at the end.
  bool Suivant();
  /// Rows that the last run has written.
  int RangeesEcrites();
  const std::vector<TChamp>& Champs() const { return champs_; }

 private:
  XSQLDA* Resultat() { return reinterpret_cast<XSQLDA*>(resultat_.data()); }
  void DecrireResultat();

  /// Drops the statement also when its preparation fails.
  struct TPoignee {
    isc_stmt_handle valeur = 0;
    ~TPoignee();
  };

  isc_db_handle base_;
  TTransaction* transaction_;
  TPoignee poignee_;
  std::vector<char> resultat_;
  std::vector<TChamp> champs_;
};

/// Room for the description of so many values.
std::vector<char> Tampon(std::size_t colonnes);

/// The values of a statement in the form in which the engine takes them; it must outlive the call.
class TLiaison {
 public:
  /// Writes the blobs among the values. Raises Exception for a text that no column can hold.
  TLiaison(isc_db_handle base, TTransaction& transaction, const TValeurs& valeurs);
  /// Null without values.
  XSQLDA* Sqlda();

 private:
  struct TPlace {
    QByteArray octets;
    short nul = 0;
  };
  std::vector<char> tampon_;
  std::vector<TPlace> places_;
};

/// A connection. What has been prepared in it must go before it does.
class TAttache {
 public:
  /// `hote` is "" for a file. Raises Exception.
  TAttache(const QString& hote, const QString& base, const QString& utilisateur, const QString& motDePasse);
  ~TAttache();
  TAttache(const TAttache&) = delete;
  TAttache& operator=(const TAttache&) = delete;
  isc_db_handle Poignee() const { return poignee_; }

  /// A statement that writes.
  std::unique_ptr<TInstruction> Preparer(const QByteArray& sql);
  /// Runs it in a transaction of its own, or in the common one while there is one; rows written.
  int Executer(TInstruction& instruction, const TValeurs& valeurs = {});

  /// One transaction for all that is written from here to ValiderCommune or AnnulerCommune.
  void OuvrirCommune();
  void ValiderCommune();
  void AnnulerCommune() { commune_.reset(); }

 private:
  isc_db_handle poignee_ = 0;
  std::unique_ptr<TTransaction> commune_;
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

/// The counters of one connection. Each key is taken in a short transaction of its own, which waits for
/// the other workstations instead of failing; the statements stay prepared from one key to the next.
class TCompteurs {
 public:
  /// `base` must stay attached as long as the object.
  explicit TCompteurs(isc_db_handle base) : base_(base) {}
  /// Adds one to the counter and returns the new value; -1 when the counter does not exist. Raises
  /// Exception with the engine's message.
  int ProchaineCle(const QString& compteur);

 private:
  void Preparer(TTransaction& transaction);

  isc_db_handle base_;
  std::unique_ptr<TInstruction> verrou_, ajout_;
};

}  // namespace Firebird
