#pragma once
#include <cstdint>

/// What the next save has to do with an object.
enum class TStatus : std::uint8_t { Inchange = 0, Nouveau = 1, Supprime = 2, Modifie = 3 };

class TDistributor;

/// Base of every record, and of the collections themselves.
struct TBaseObject {
  TBaseObject() = default;
  TBaseObject(const TBaseObject&) = delete;
  TBaseObject& operator=(const TBaseObject&) = delete;
  virtual ~TBaseObject() = default;

  TStatus Status = TStatus::Inchange;
  bool Tag = false;   ///< Free for the owner; nothing in the kernel reads it.
  int Position = -1;  ///< On a collection: index of the object last added; -1 after a removal.
  int Id = -1;        ///< Key of the row; -1 means not yet in the database.

  /// Rank in the sequence of its collection, -1 outside of one. It only ever grows, so it orders
  /// the objects of a collection and answers whether one belongs to it without a walk.
  int Rang() const { return rang_; }

 private:
  friend class TDistributor;
  int rang_ = -1;
};
