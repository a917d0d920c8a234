// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

#include "cardwright/automation/MemoryBudget.h"

namespace cardwright {

/// Base of everything that is shared by reference count. Counts are not atomic: an object belongs to the one
/// thread that made it, as all of this library's objects do.
class RefCounted {
 public:
  RefCounted() = default;
  RefCounted(const RefCounted&) = delete;
  RefCounted& operator=(const RefCounted&) = delete;

  /// @name References, which Ref counts
  /// @{
  void AddRef() const noexcept { ++m_Count; }
  void Release() const noexcept {
    if (--m_Count == 0) Destroy();
  }
  /// @}
  /// True with exactly one reference, whose holder may then change the object in place.
  bool IsUnique() const noexcept { return m_Count == 1; }
  /// @name Allocation is charged to the thread's MemoryBudget, as that of texts and arrays.
  /// @{
  static void* operator new(std::size_t size) {
    MemoryBudget::Charge(size);
    return ::operator new(size);
  }
  static void operator delete(void* memory, std::size_t size) noexcept {
    ::operator delete(memory);
    MemoryBudget::Refund(size);
  }
  /// @}
  /// False during construction and destruction, and while no reference was made yet.
  bool IsHeld() const noexcept { return m_Count != 0; }

 protected:
  virtual ~RefCounted() = default;
  /// Called when the last reference is released. An override may do something first, and may hand out
  /// references that keep the object alive.
  virtual void OnLastRelease() const noexcept { delete this; }
  std::uint32_t Count() const noexcept { return m_Count; }

 private:
  // Bounds the recursion through chains of objects.
  void Destroy() const noexcept;

  mutable std::uint32_t m_Count = 0;
};

/// Counted reference to a RefCounted object, or nothing.
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  Ref(T* object) noexcept : m_Object(object) {
    if (m_Object) m_Object->AddRef();
  }
  Ref(const Ref& other) noexcept : Ref(other.m_Object) {}
  Ref(Ref&& other) noexcept : m_Object(std::exchange(other.m_Object, nullptr)) {}
  template <class U>
  Ref(const Ref<U>& other) noexcept : Ref(other.get()) {}
  ~Ref() {
    if (m_Object) m_Object->Release();
  }
  Ref& operator=(Ref other) noexcept {
    std::swap(m_Object, other.m_Object);
    return *this;
  }

  T* get() const noexcept { return m_Object; }
  T* operator->() const noexcept { return m_Object; }
  T& operator*() const noexcept { return *m_Object; }
  explicit operator bool() const noexcept { return m_Object != nullptr; }
  /// Gives the reference away without releasing it.
  T* Detach() noexcept { return std::exchange(m_Object, nullptr); }

  friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.m_Object == b.m_Object; }
  friend bool operator==(const Ref& a, const T* b) noexcept { return a.m_Object == b; }

 private:
  T* m_Object = nullptr;
};

/// Creates an object, with the first reference to it.
template <class T, class... Args>
Ref<T> MakeRef(Args&&... args) {
  return Ref<T>(new T(std::forward<Args>(args)...));
}

}  // namespace cardwright
