#pragma once
#include <QString>
#include <memory>
#include <vector>

#include "core/base_object.h"
#include "core/curseur.h"
#include "core/ligne.h"

class TDataModule1;
class TDataSet;

/// The rows of one table, or of one selection of it, in memory. A collection loads when it is
/// constructed, knows which objects are new, modified or removed, and writes them in `Save`.
///
/// A concrete collection derives from TCollection<T> and supplies what it selects (`DefineQuery`),
/// how a row becomes an object (`LoadItems`), how an object becomes a row (`StoreRecord`), and its
/// finders. Its constructor stores its parameters, then calls `Charger`.
class TDistributor : public TBaseObject {
 public:
  ~TDistributor() override;

  int Count() const { return static_cast<int>(Items.size()); }

  /// Writes what is pending, deletions first (from the last removed to the first), then the objects
  /// in order, each in a statement that commits by itself. Always true; a failure raises
  /// EDistributor with the database's message, and what was not reached keeps its status.
  bool Save();

 protected:
  /// Loading collection; `base` must outlive it.
  explicit TDistributor(TDataModule1& base) : base_(&base) {}
  /// Borrowing collection, filled from a local data set: it is never saved.
  explicit TDistributor(TDataSet& source) : Source(&source) {}

  /// `DefineQuery`, then every row of `SelectSql` or of `Source`. Raises EDistributor.
  void Charger();

  /// Sets SelectSql, TableName, KeyField and CounterName.
  virtual void DefineQuery() = 0;
  /// One row into a new object (`Nouveau()` of TCollection).
  virtual void LoadItems(TCurseur& ligne) = 0;
  /// One row of the local data set into a new object; only the collections of the off-line mode.
  virtual void LoadFromSource(TDataSet& source);
  /// An object's fields into the columns of its row, the key left out.
  virtual void StoreRecord(const TBaseObject& objet, TLigne& ligne) const = 0;
  /// An object has entered, its owner says that it has changed, or its insertion has given it its
  /// key: the place to keep an index.
  virtual void Entre(TBaseObject&) {}
  /// An object is about to leave.
  virtual void Sort(TBaseObject&) {}

  bool Contient(const TBaseObject& objet) const;
  TBaseObject& Ajouter(std::unique_ptr<TBaseObject> objet);
  void Toucher(TBaseObject& objet);
  std::unique_ptr<TBaseObject> Retirer(TBaseObject& objet);
  std::unique_ptr<TBaseObject> Oublier(TBaseObject& objet);
  TBaseObject& Charge(std::unique_ptr<TBaseObject> objet);
  /// Key of the row in hand into the object in hand.
  void LireCle(TCurseur& ligne, TBaseObject& objet) const;
  TDataModule1& Base() const { return *base_; }

  QString SelectSql;
  std::vector<int> Cles;  ///< for the "?" of SelectSql; with any, the statement stays prepared
  QString TableName;
  QByteArray KeyField;
  QString CounterName;  ///< "*": the owner chooses the key
  TDataSet* Source = nullptr;
  std::vector<std::unique_ptr<TBaseObject>> Items;
  std::vector<std::unique_ptr<TBaseObject>> Deleted;

 private:
  class TEnregistrement;
  std::size_t Indice(const TBaseObject& objet) const;
  std::unique_ptr<TBaseObject> Detacher(TBaseObject& objet);

  TDataModule1* base_ = nullptr;
  int prochainRang_ = 0;
};

/// Typed face of TDistributor.
template <class T>
class TCollection : public TDistributor {
 public:
  /// `indice` from 0 to Count() - 1.
  T& operator[](int indice) const { return static_cast<T&>(*Items[static_cast<std::size_t>(indice)]); }

  /// A new object: the next Save inserts it. Returns the object held.
  T& Add(std::unique_ptr<T> objet) { return static_cast<T&>(Ajouter(std::move(objet))); }
  /// Marks a loaded object modified; to be called after its fields have changed.
  T& Add(T& objet) {
    Toucher(objet);
    return objet;
  }
  /// Takes the object out; the next Save deletes its row. An object that never had a row is handed
  /// back; one that is not in the collection is left alone.
  std::unique_ptr<T> Remove(T& objet) { return Rendre(Retirer(objet)); }
  /// Takes the object out and leaves its row in the database. The object is handed back.
  std::unique_ptr<T> Forget(T& objet) { return Rendre(Oublier(objet)); }
  bool Contains(const T& objet) const { return Contient(objet); }

  class TIterateur {
   public:
    TIterateur(const TCollection& c, int i) : c_(c), i_(i) {}
    T& operator*() const { return c_[i_]; }
    TIterateur& operator++() {
      ++i_;
      return *this;
    }
    bool operator!=(const TIterateur& a) const { return i_ != a.i_; }

   private:
    const TCollection& c_;
    int i_;
  };
  TIterateur begin() const { return {*this, 0}; }
  TIterateur end() const { return {*this, Count()}; }

 protected:
  using TDistributor::TDistributor;

  virtual void StoreRecord(const T& objet, TLigne& ligne) const = 0;
  virtual void Indexer(T&) {}
  virtual void Desindexer(T&) {}

  /// A new object of the load, its key read from the row.
  T& Nouveau(TCurseur& ligne) {
    auto objet = std::make_unique<T>();
    LireCle(ligne, *objet);
    return static_cast<T&>(Charge(std::move(objet)));
  }

 private:
  static std::unique_ptr<T> Rendre(std::unique_ptr<TBaseObject> objet) {
    return std::unique_ptr<T>(static_cast<T*>(objet.release()));
  }
  void StoreRecord(const TBaseObject& objet, TLigne& ligne) const final {
    StoreRecord(static_cast<const T&>(objet), ligne);
  }
  void Entre(TBaseObject& objet) final { Indexer(static_cast<T&>(objet)); }
  void Sort(TBaseObject& objet) final { Desindexer(static_cast<T&>(objet)); }
};
