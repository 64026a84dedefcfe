#pragma once
#include <cstddef>
#include <typeinfo>

/// A look at an object of a higher layer that keeps its exact class: what a row or a node stands
/// for. Nothing is owned.
class TObjetVu {
 public:
  TObjetVu() = default;
  TObjetVu(std::nullptr_t) {}
  template <class T>
  TObjetVu(T* objet) : objet_(objet), type_(&typeid(T)) {}

  /// The object when it was given as a T, else null.
  template <class T>
  T* En() const {
    return type_ && *type_ == typeid(T) ? static_cast<T*>(objet_) : nullptr;
  }
  explicit operator bool() const { return objet_ != nullptr; }
  /// The same object.
  bool operator==(const TObjetVu& autre) const { return objet_ == autre.objet_; }

 private:
  void* objet_ = nullptr;
  const std::type_info* type_ = nullptr;
};
