#pragma once
#include "core/distributor.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

/// Raises EDistributor when a save has left the object without a row, as its key could not be had.
inline void ExigerCle(const TBaseObject& objet) {
  if (objet.Status == TStatus::Nouveau)
    throw EDistributor(u"Aucun numéro n'a pu être donné à ce qui devait être mémorisé."_s);
}

/// Adds an object and saves at once. One that cannot be stored leaves again, so that no later save meets it;
/// raises EDistributor then.
template <class T>
T& Memoriser(TCollection<T>& collection, std::unique_ptr<T> objet) {
  T& place = collection.Add(std::move(objet));
  try {
    collection.Save();
    ExigerCle(place);
  } catch (const EDistributor&) {
    collection.Remettre();
    throw;
  }
  return place;
}
