#pragma once

class TDataModule1;

/// What the connection writes while it lives - saves of collections, statements by hand - takes effect
/// together at `Valider`, or not at all when it ends without. One at a time. Keys from counters are spent
/// either way, and readings do not see what is not yet valid. Collections that have saved in one that came
/// to nothing believe in rows that are not there: rebuild them.
class TTransactionCommune {
 public:
  /// Raises Exception; the connection must outlive it.
  explicit TTransactionCommune(TDataModule1& base);
  ~TTransactionCommune();
  TTransactionCommune(const TTransactionCommune&) = delete;
  TTransactionCommune& operator=(const TTransactionCommune&) = delete;

  /// Raises Exception.
  void Valider();

 private:
  TDataModule1& base_;
};
