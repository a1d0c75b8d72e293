#pragma once

#include <cstddef>
#include <utility>

namespace SysUtility {

/// Smart pointer to a counted object (`CRef`). An empty pointer means that there is no such object.
///
/// Made from a raw pointer, it adopts the first reference of a newly constructed object and adds none; a borrowed raw
/// pointer becomes a `_ptr_t` through `retain`. Copying adds a reference, destruction gives one back. Two pointers are
/// equal when they hold the same object.
template <class T>
class _ptr_t {
public:
  _ptr_t() noexcept = default;
  _ptr_t(std::nullptr_t) noexcept {}

  /// Adopts the reference that `object` already carries for its creator.
  explicit _ptr_t(T* object) noexcept : object_(object) {}

  _ptr_t(_ptr_t const& other) noexcept : object_(other.object_) { addReference(); }
  _ptr_t(_ptr_t&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

  /// From a pointer to a derived class. Downwards there is `ptr_cast`.
  template <class U>
  _ptr_t(_ptr_t<U> const& other) noexcept : object_(other.get()) {
    addReference();
  }

  ~_ptr_t() {
    if (object_) object_->Release();
  }

  _ptr_t& operator=(_ptr_t other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  T* operator->() const noexcept { return object_; }
  T& operator*() const noexcept { return *object_; }

  /// The object, borrowed.
  T* get() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

private:
  void addReference() const noexcept {
    if (object_) object_->AddRef();
  }

  T* object_ = nullptr;
};

template <class T, class U>
bool operator==(_ptr_t<T> const& a, _ptr_t<U> const& b) noexcept {
  return a.get() == b.get();
}
template <class T, class U>
bool operator!=(_ptr_t<T> const& a, _ptr_t<U> const& b) noexcept {
  return a.get() != b.get();
}
template <class T>
bool operator==(_ptr_t<T> const& a, std::nullptr_t) noexcept {
  return !a;
}
template <class T>
bool operator!=(_ptr_t<T> const& a, std::nullptr_t) noexcept {
  return static_cast<bool>(a);
}

/// A counted pointer to a borrowed object: adds a reference. Null gives an empty pointer.
template <class T>
_ptr_t<T> retain(T* borrowed) noexcept {
  if (borrowed) borrowed->AddRef();
  return _ptr_t<T>(borrowed);
}

/// Checked cast to another class of the same object; empty when the object is of another kind, or when there is none.
template <class T, class U>
_ptr_t<T> ptr_cast(_ptr_t<U> const& other) {
  return retain(dynamic_cast<T*>(other.get()));
}

/// A new object, held by its first reference.
template <class T, class... Arguments>
_ptr_t<T> make(Arguments&&... arguments) {
  return _ptr_t<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace SysUtility
