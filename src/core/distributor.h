#pragma once
#include <QString>
#include <algorithm>
#include <memory>
#include <span>
#include <vector>

#include "core/base_object.h"
#include "core/colonne.h"
#include "core/index.h"

class TDataModule1;
class TDataSet;

/// The rows of one table, or of one selection of it, in memory. A collection loads when it is
/// constructed, knows which objects are new, modified or removed, and writes them in `Save`.
///
/// A concrete collection derives from TCollection<T> and supplies what it selects and its table of
/// columns (`DefineQuery`), and its finders. Its constructor stores its parameters, then calls `Charger`.
class TDistributor : public TBaseObject {
 public:
  ~TDistributor() override;

  int Count() const { return static_cast<int>(Items.size()); }

  /// Writes what is pending, deletions first (from the last removed to the first), then the objects
  /// in order, each in a statement that commits by itself. Always true; a failure raises
  /// EDistributor with the database's message, and what was not reached keeps its status.
  bool Save();

  /// After a refused save, or to give up what is pending: memory is again what the table holds. New
  /// objects are freed, removed ones are back in their place, changed ones have the values of their
  /// rows; one whose row has disappeared is freed. Raises EDistributor when rows cannot be read; what
  /// was not reached then stays pending.
  void Remettre();

 protected:
  /// Loading collection; `base` must outlive it.
  explicit TDistributor(TDataModule1& base) : base_(&base) {}
  /// Borrowing collection, filled from a local data set: it is never saved.
  explicit TDistributor(TDataSet& source) : Source(&source) {}

  /// `DefineQuery`, then every row of `SelectSql` or of `Source`. Raises EDistributor.
  void Charger();

  /// Sets SelectSql, TableName, KeyField, CounterName and the columns.
  virtual void DefineQuery() = 0;
  /// One row into a new object.
  virtual void LoadItems(TCurseur& ligne) = 0;
  /// One row of the local data set into a new object; only the collections of the off-line mode.
  virtual void LoadFromSource(TDataSet& source);
  /// The row in hand into the object, its key left out.
  virtual void LoadRecord(TBaseObject& objet, TCurseur& ligne) const = 0;
  /// An object's fields into the columns of its row, the key left out.
  virtual void StoreRecord(const TBaseObject& objet, TLigne& ligne) const = 0;
  virtual void Completer(TBaseObject& objet) = 0;
  virtual void Indexer(TBaseObject& objet) = 0;
  virtual void Desindexer(TBaseObject& objet) = 0;

  // See TCollection, where they are typed.
  bool Contains(const TBaseObject& objet) const;
  TBaseObject& Add(std::unique_ptr<TBaseObject> objet);
  void Add(TBaseObject& objet);
  std::unique_ptr<TBaseObject> Remove(TBaseObject& objet);
  std::unique_ptr<TBaseObject> Forget(TBaseObject& objet);
  TBaseObject* ParCle(int cle) const;

  /// An object of the load, read already, at the end of the list.
  TBaseObject& Placer(std::unique_ptr<TBaseObject> objet);
  /// Key of the row in hand into the object in hand.
  void LireCle(TCurseur& ligne, TBaseObject& objet) const { objet.Id = ligne.Entier(KeyField); }
  TDataModule1& Base() const { return *base_; }

  QString SelectSql;
  std::vector<TValeur> Cles;  ///< for the "?" of SelectSql; with any, the statement stays prepared
  QString TableName;
  const char* KeyField = nullptr;
  QString CounterName;  ///< "*": the owner chooses the key
  /// Columns that all rows of the selection share, as its WHERE names them; written at each save.
  std::vector<std::pair<const char*, int>> Communes;
  /// The order of the select statement matters to the look-ups: each save brings it about again.
  bool OrdreDuSelect = false;
  TDataSet* Source = nullptr;
  std::vector<std::unique_ptr<TBaseObject>> Items;
  std::vector<std::unique_ptr<TBaseObject>> Deleted;
  /// Changed objects whose rows the last save has not found.
  std::vector<TBaseObject*> Disparus;

 private:
  class TEnregistrement;
  std::size_t Indice(const TBaseObject& objet) const;
  std::unique_ptr<TBaseObject> Detacher(TBaseObject& objet);
  TBaseObject& Inserer(std::unique_ptr<TBaseObject> objet);
  void Suivre(TBaseObject& objet);
  bool Enregistrer();
  bool Relire(TBaseObject& objet);
  void Reprendre(std::unique_ptr<TBaseObject> objet);
  void Ranger();
  void Attendre(std::size_t place) { premierEnAttente_ = std::min(premierEnAttente_, place); }

  TDataModule1* base_ = nullptr;
  int prochainRang_ = 0;
  std::size_t premierEnAttente_ = 0;  // the objects before it have nothing for the next Save
  mutable bool clesIndexees_ = false;
  mutable TIndex<int, TBaseObject> parCle_;
};

/// Typed face of TDistributor.
template <class T>
class TCollection : public TDistributor {
 public:
  /// `indice` from 0 to Count() - 1.
  T& operator[](int indice) const { return static_cast<T&>(*Items[static_cast<std::size_t>(indice)]); }

  /// A new object: the next Save inserts it. Returns the object held.
  T& Add(std::unique_ptr<T> objet) { return static_cast<T&>(TDistributor::Add(std::move(objet))); }
  /// Marks a loaded object modified; to be called after its fields have changed.
  T& Add(T& objet) {
    TDistributor::Add(objet);
    return objet;
  }
  /// Takes the object out; the next Save deletes its row. An object that never had a row is handed
  /// back; one that is not in the collection is left alone.
  std::unique_ptr<T> Remove(T& objet) { return Rendre(TDistributor::Remove(objet)); }
  /// Takes the object out and leaves its row in the database. The object is handed back.
  std::unique_ptr<T> Forget(T& objet) { return Rendre(TDistributor::Forget(objet)); }
  bool Contains(const T& objet) const { return TDistributor::Contains(objet); }
  /// The first object of that key, or null.
  T* ParCle(int cle) const { return static_cast<T*>(TDistributor::ParCle(cle)); }
  /// The objects whose changes the last save could not write, because another workstation has deleted
  /// their rows. They stay modified; `Remettre` takes them out.
  std::vector<T*> RangeesDisparues() const {
    std::vector<T*> disparues;
    for (TBaseObject* objet : Disparus) disparues.push_back(static_cast<T*>(objet));
    return disparues;
  }

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

  /// Set by DefineQuery.
  std::span<const TColonne<T>> Colonnes;

  /// What an object needs beside its columns, once it has been read. It has its place then, but stands
  /// in no index.
  virtual void Completer(T&) {}
  /// An object has entered, its owner says that it has changed, or its insertion has given it its
  /// key: the place to keep an index.
  virtual void Indexer(T&) {}
  /// An object is about to leave.
  virtual void Desindexer(T&) {}

  void LoadItems(TCurseur& ligne) override {
    auto objet = std::make_unique<T>();
    LireCle(ligne, *objet);
    LoadRecord(*objet, ligne);
    Placer(std::move(objet));
  }

 private:
  static std::unique_ptr<T> Rendre(std::unique_ptr<TBaseObject> objet) {
    return std::unique_ptr<T>(static_cast<T*>(objet.release()));
  }
  void LoadRecord(TBaseObject& objet, TCurseur& ligne) const final {
    for (const TColonne<T>& colonne : Colonnes)
      if (colonne.Charger != nullptr) colonne.Charger(static_cast<T&>(objet), ligne, colonne.Nom);
  }
  void StoreRecord(const TBaseObject& objet, TLigne& ligne) const final {
    for (const TColonne<T>& colonne : Colonnes)
      if (colonne.Ecrire != nullptr) colonne.Ecrire(static_cast<const T&>(objet), ligne, colonne.Nom);
  }
  void Completer(TBaseObject& objet) final { Completer(static_cast<T&>(objet)); }
  void Indexer(TBaseObject& objet) final { Indexer(static_cast<T&>(objet)); }
  void Desindexer(TBaseObject& objet) final { Desindexer(static_cast<T&>(objet)); }
};
