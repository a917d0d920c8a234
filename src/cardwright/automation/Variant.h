// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "cardwright/automation/Ref.h"
#include "cardwright/automation/Text.h"

namespace cardwright {

class Object;
class Array;

/// Type of a Variant. The numbers are those that VarType answers to scripts.
enum class VarType : std::uint16_t {
  Empty = 0,
  Null = 1,
  Integer = 2,   ///< 16-bit signed
  Long = 3,      ///< 32-bit signed
  Single = 4,    ///< 32-bit floating point
  Double = 5,    ///< 64-bit floating point
  Currency = 6,  ///< 64-bit count of ten-thousandths
  Date = 7,      ///< days since 1899-12-30, the fraction being the time of day
  String = 8,
  Object = 9,  ///< an object or Nothing
  Error = 10,
  Boolean = 11,
  Decimal = 14,  ///< 96-bit integer with sign and a scale of 0 to 28
  Byte = 17,
  Array = 0x2000,
  ByRef = 0x4000,         ///< refers to another Variant that outlives the call
  ByRefElement = 0x4001,  ///< refers to an element of the array in such a Variant
};

/// Days since 1899-12-30; a type of its own so that a date is never taken for a number.
struct Date {
  double days = 0;  ///< days since 1899-12-30, with the time of day as fraction
};
/// Ten-thousandths of a unit.
struct Currency {
  std::int64_t tenThousandths = 0;  ///< the value times 10,000
};
/// (-1)^negative * (high * 2^64 + low) / 10^scale.
struct Decimal {
  std::uint64_t low = 0;   ///< the lower 64 bits of the integer
  std::uint32_t high = 0;  ///< its upper 32 bits
  std::uint8_t scale = 0;  ///< decimal places, 0 to 28
  bool negative = false;   ///< the sign
};
/// An error number as a value. A missing argument is one.
struct ErrorValue {
  std::int32_t code = 0;  ///< the error number
};

/// The error value that stands for an argument that was left out.
inline constexpr std::int32_t kMissingArgument = static_cast<std::int32_t>(0x80020004u);

/// The script-visible variant: 16 bytes, numbers unboxed, texts, objects and arrays counted.
class Variant {
 public:
  Variant() noexcept = default;
  Variant(bool value) noexcept : m_Header(HeaderOf(VarType::Boolean)) { m_Data.whole = value; }
  Variant(std::uint8_t value) noexcept : m_Header(HeaderOf(VarType::Byte)) { m_Data.whole = value; }
  Variant(std::int16_t value) noexcept : m_Header(HeaderOf(VarType::Integer)) { m_Data.whole = value; }
  Variant(std::int32_t value) noexcept : m_Header(HeaderOf(VarType::Long)) { m_Data.whole = value; }
  Variant(float value) noexcept : m_Header(HeaderOf(VarType::Single)) { m_Data.single = value; }
  Variant(double value) noexcept : m_Header(HeaderOf(VarType::Double)) { m_Data.real = value; }
  Variant(Date value) noexcept : m_Header(HeaderOf(VarType::Date)) { m_Data.real = value.days; }
  Variant(Currency value) noexcept : m_Header(HeaderOf(VarType::Currency)) {
    m_Data.whole = value.tenThousandths;
  }
  Variant(Decimal value) noexcept;
  Variant(ErrorValue value) noexcept : m_Header(HeaderOf(VarType::Error)) { m_Data.whole = value.code; }
  Variant(Text value) noexcept;
  Variant(std::u16string_view value) : Variant(Text(value)) {}
  Variant(const char16_t* value) : Variant(Text(value)) {}
  template <class T, class = std::enable_if_t<std::is_base_of_v<Object, T>>>
  Variant(Ref<T> object) noexcept : m_Header(HeaderOf(VarType::Object)) {
    m_Data.object = object.Detach();
  }
  Variant(Ref<Array> array) noexcept;
  template <class T>
  Variant(T*) = delete;  // a pointer must not turn into a Boolean

  Variant(const Variant& other) noexcept {
    CopyBits(other);
    if (IsCounted()) Retain();
  }
  Variant(Variant&& other) noexcept {
    CopyBits(other);
    other.m_Header = 0;
  }
  ~Variant() {
    if (IsCounted()) Drop();
  }
  // The old value is released last: that may run code that reads this variable.
  Variant& operator=(const Variant& other) noexcept {
    if ((m_Header | other.m_Header) & kCounted) {
      AssignCounted(other);
    } else {
      CopyBits(other);
    }
    return *this;
  }
  Variant& operator=(Variant&& other) noexcept {
    if (IsCounted()) {
      AssignCounted(std::move(other));
    } else {
      CopyBits(other);
      if (&other != this) other.m_Header = 0;
    }
    return *this;
  }
  /// Exchanges two values without copying them.
  void Swap(Variant& other) noexcept {
    std::swap(m_Header, other.m_Header);
    std::swap(m_Data, other.m_Data);
  }

  /// @name Assignment of a plain value in place, without a temporary
  /// @{
  void Reset() noexcept {
    if (IsCounted()) {
      ResetCounted();
    } else {
      m_Header = 0;
    }
  }
  void Put(bool value) noexcept {
    Free();
    m_Header = HeaderOf(VarType::Boolean);
    m_Data.whole = value;
  }
  void Put(double value) noexcept {
    Free();
    m_Header = HeaderOf(VarType::Double);
    m_Data.real = value;
  }
  void Put(std::int32_t value) noexcept { PutWhole(value, VarType::Long); }
  /// `type` is Long, or Integer or Byte where the value fits one.
  void PutWhole(std::int32_t value, VarType type) noexcept {
    Free();
    m_Header = static_cast<std::uint16_t>(type);
    m_Data.whole = value;
  }
  /// @}
  /// Appends to the text, in place unless it is shared. The type must be String.
  void Append(std::u16string_view tail);

  /// The value Null, of no valid data.
  static Variant Null() noexcept;
  /// The object reference without an object.
  static Variant Nothing() noexcept;
  /// The value of an argument that was left out.
  static Variant Missing() noexcept { return ErrorValue{kMissingArgument}; }
  /// A reference to `target`, which must outlive it: an argument passed by reference.
  static Variant ByRef(Variant& target) noexcept;
  /// A reference to an element of the array in `holder`. The array may be resized or replaced meanwhile; an
  /// element that no longer exists reads as Empty.
  static Variant ByRefElement(Variant& holder, std::uint32_t position) noexcept;

  /// The type of the value; ByRef or ByRefElement for a reference.
  VarType Type() const noexcept { return static_cast<VarType>(m_Header & 0xFFFF); }
  /// @name Tests of the type; a reference is not dereferenced.
  /// @{
  bool IsEmpty() const noexcept { return m_Header == 0; }
  bool IsNull() const noexcept { return Type() == VarType::Null; }
  bool IsString() const noexcept { return Type() == VarType::String; }
  bool IsObject() const noexcept { return Type() == VarType::Object; }
  bool IsArray() const noexcept { return Type() == VarType::Array; }
  bool IsByRef() const noexcept { return (m_Header & kReference) != 0; }
  /// True for a plain value: neither counted nor a reference.
  bool IsInPlace() const noexcept { return (m_Header & (kCounted | kReference)) == 0; }
  /// Integer or Long.
  bool IsWhole() const noexcept { return Type() == VarType::Long || Type() == VarType::Integer; }
  /// Whether both are.
  static bool AreWhole(const Variant& x, const Variant& y) noexcept {
    static_assert(static_cast<int>(VarType::Integer) == 2 && static_cast<int>(VarType::Long) == 3);
    return ((x.m_Header ^ 2) | (y.m_Header ^ 2)) <= 1;
  }
  bool IsMissing() const noexcept { return Type() == VarType::Error && m_Data.whole == kMissingArgument; }

  /// @}

  /// The value itself, or what a by-reference value refers to.
  const Variant& Deref() const noexcept {
    if (!IsByRef()) return *this;
    return Type() == VarType::ByRef ? *m_Data.reference : ReadElement();
  }
  /// For writing: the array of an element is copied first if it is shared.
  Variant& Deref() {
    if (!IsByRef()) return *this;
    return Type() == VarType::ByRef ? *m_Data.reference : WriteElement();
  }

  /// @name Access without conversion; the type must be the one asked for.
  /// @{
  bool Boolean() const noexcept { return m_Data.whole != 0; }
  std::uint8_t Byte() const noexcept { return static_cast<std::uint8_t>(m_Data.whole); }
  std::int16_t Integer() const noexcept { return static_cast<std::int16_t>(m_Data.whole); }
  std::int32_t Long() const noexcept {
    return static_cast<std::int32_t>(m_Data.whole);
  }  ///< also Integer and Byte
  float Single() const noexcept { return m_Data.single; }
  double Double() const noexcept { return m_Data.real; }  ///< Double and Date
  cardwright::Currency CurrencyValue() const noexcept { return {m_Data.whole}; }
  cardwright::Decimal DecimalValue() const noexcept;
  std::int32_t ErrorCode() const noexcept { return static_cast<std::int32_t>(m_Data.whole); }
  std::u16string_view StringView() const noexcept;
  Text String() const noexcept;
  cardwright::Object* ObjectPtr() const noexcept { return m_Data.object; }  ///< null for Nothing
  cardwright::Array* ArrayPtr() const noexcept { return m_Data.array; }
  /// @}

 private:
  // The header is one word like the data: a copy by whole words can be read back at once, where a copy by
  // parts would stall the processor (store forwarding). Its low 16 bits are the type, then come these flags,
  // which follow from the type.
  static constexpr std::uint64_t kCounted = 1u << 16, kReference = 1u << 17;
  // The sign and scale of a Decimal. The upper half holds its high part, or the position of a ByRefElement.
  static constexpr std::uint64_t kNegative = 1u << 18;
  static constexpr int kScaleShift = 24, kHighShift = 32;

  static constexpr std::uint64_t HeaderOf(VarType type) noexcept {
    const bool counted = type == VarType::String || type == VarType::Object || type == VarType::Array;
    const bool reference = type == VarType::ByRef || type == VarType::ByRefElement;
    return static_cast<std::uint16_t>(type) | (counted ? kCounted : 0) | (reference ? kReference : 0);
  }
  std::uint32_t High() const noexcept { return static_cast<std::uint32_t>(m_Header >> kHighShift); }
  bool IsCounted() const noexcept { return (m_Header & kCounted) != 0; }
  void CopyBits(const Variant& other) noexcept {
    m_Header = other.m_Header;
    m_Data = other.m_Data;
  }
  // Before a plain value overwrites this one.
  void Free() noexcept {
    if (IsCounted()) ResetCounted();
  }
  const Variant& ReadElement() const noexcept;
  Variant& WriteElement();
  void Retain() const noexcept;
  void Drop() noexcept;
  void ResetCounted() noexcept;
  void AssignCounted(const Variant& other) noexcept;
  void AssignCounted(Variant&& other) noexcept;

  std::uint64_t m_Header = 0;
  union {
    std::int64_t whole = 0;  // sign-extended for the narrower types, so that all whole numbers read alike
    float single;
    double real;
    Text::Rep* text;
    cardwright::Object* object;
    cardwright::Array* array;
    Variant* reference;
  } m_Data;
};

static_assert(sizeof(Variant) == 16);

}  // namespace cardwright
