#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "automation/Ref.h"
#include "automation/Text.h"

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
  double days = 0;
};
/// Ten-thousandths of a unit.
struct Currency {
  std::int64_t tenThousandths = 0;
};
/// (-1)^negative * (high * 2^64 + low) / 10^scale.
struct Decimal {
  std::uint64_t low = 0;
  std::uint32_t high = 0;
  std::uint8_t scale = 0;
  bool negative = false;
};
/// Number of an error carried as a value, as a missing argument is.
struct ErrorValue {
  std::int32_t code = 0;
};

/// The value that a call receives for an argument left out.
inline constexpr std::int32_t kMissingArgument = static_cast<std::int32_t>(0x80020004u);

/// The script-visible variant: 16 bytes, numbers unboxed, texts, objects and arrays counted.
class Variant {
 public:
  Variant() noexcept = default;
  Variant(bool value) noexcept : m_Type(VarType::Boolean) { m_Data.longValue = value; }
  Variant(std::uint8_t value) noexcept : m_Type(VarType::Byte) { m_Data.longValue = value; }
  Variant(std::int16_t value) noexcept : m_Type(VarType::Integer) { m_Data.longValue = value; }
  Variant(std::int32_t value) noexcept : m_Type(VarType::Long) { m_Data.longValue = value; }
  Variant(float value) noexcept : m_Type(VarType::Single) { m_Data.single = value; }
  Variant(double value) noexcept : m_Type(VarType::Double) { m_Data.real = value; }
  Variant(Date value) noexcept : m_Type(VarType::Date) { m_Data.real = value.days; }
  Variant(Currency value) noexcept : m_Type(VarType::Currency) { m_Data.currency = value.tenThousandths; }
  Variant(Decimal value) noexcept;
  Variant(ErrorValue value) noexcept : m_Type(VarType::Error) { m_Data.longValue = value.code; }
  Variant(Text value) noexcept;
  Variant(std::u16string_view value) : Variant(Text(value)) {}
  Variant(const char16_t* value) : Variant(Text(value)) {}
  template <class T, class = std::enable_if_t<std::is_base_of_v<Object, T>>>
  Variant(Ref<T> object) noexcept : m_Type(VarType::Object) {
    m_Data.object = object.Detach();
  }
  Variant(Ref<Array> array) noexcept;
  template <class T>
  Variant(T*) = delete;  // a pointer must not turn into a Boolean

  Variant(const Variant& other) noexcept
      : m_Type(other.m_Type),
        m_Scale(other.m_Scale),
        m_Negative(other.m_Negative),
        m_High(other.m_High),
        m_Data(other.m_Data) {
    if (IsCounted()) Retain();
  }
  Variant(Variant&& other) noexcept
      : m_Type(other.m_Type),
        m_Scale(other.m_Scale),
        m_Negative(other.m_Negative),
        m_High(other.m_High),
        m_Data(other.m_Data) {
    other.m_Type = VarType::Empty;
  }
  ~Variant() {
    if (IsCounted()) Drop();
  }
  // What is overwritten goes last: its release may run code that looks at this very variable.
  Variant& operator=(const Variant& other) noexcept {
    if (IsCounted() || other.IsCounted()) {
      Variant copy(other);
      Swap(copy);
    } else {
      TakeBits(other);
    }
    return *this;
  }
  Variant& operator=(Variant&& other) noexcept {
    if (IsCounted()) {
      Variant taken(std::move(other));
      Swap(taken);
    } else {
      TakeBits(other);
      if (&other != this) other.m_Type = VarType::Empty;
    }
    return *this;
  }
  void Swap(Variant& other) noexcept {
    const Variant* const self = this;
    Variant held;
    held.TakeBits(*self);
    TakeBits(other);
    other.TakeBits(held);
    held.m_Type = VarType::Empty;
  }

  /// @name Assignment of a plain value in place, without a temporary
  /// @{
  void Reset() noexcept {
    if (IsCounted()) {
      const Variant old(std::move(*this));
    } else {
      m_Type = VarType::Empty;
    }
  }
  void Put(bool value) noexcept {
    Reset();
    m_Type = VarType::Boolean;
    m_Data.longValue = value;
  }
  void Put(double value) noexcept {
    Reset();
    m_Type = VarType::Double;
    m_Data.real = value;
  }
  void Put(std::int32_t value) noexcept { PutWhole(value, VarType::Long); }
  /// `type` is Long, or Integer or Byte where the value fits one.
  void PutWhole(std::int32_t value, VarType type) noexcept {
    Reset();
    m_Type = type;
    m_Data.longValue = value;
  }
  /// @}
  /// Adds characters to the text held, in place where nobody shares it. The type must be String.
  void Append(std::u16string_view tail);

  static Variant Null() noexcept;
  /// The object reference that refers to none.
  static Variant Nothing() noexcept;
  static Variant Missing() noexcept { return ErrorValue{kMissingArgument}; }
  /// A reference to `target`, which must outlive it: an argument passed by reference.
  static Variant ByRef(Variant& target) noexcept;
  /// Likewise to the element at a position of the array that `holder` has: the array may be resized or
  /// replaced meanwhile; an element that is gone reads as Empty.
  static Variant ByRefElement(Variant& holder, std::uint32_t position) noexcept;

  VarType Type() const noexcept { return m_Type; }
  bool IsEmpty() const noexcept { return m_Type == VarType::Empty; }
  bool IsNull() const noexcept { return m_Type == VarType::Null; }
  bool IsString() const noexcept { return m_Type == VarType::String; }
  bool IsObject() const noexcept { return m_Type == VarType::Object; }
  bool IsArray() const noexcept { return m_Type == VarType::Array; }
  bool IsByRef() const noexcept { return m_Type == VarType::ByRef || m_Type == VarType::ByRefElement; }
  bool IsMissing() const noexcept { return m_Type == VarType::Error && m_Data.longValue == kMissingArgument; }

  /// The value itself, or what a by-reference value refers to.
  const Variant& Deref() const noexcept {
    if (m_Type == VarType::ByRef) return *m_Data.reference;
    return m_Type == VarType::ByRefElement ? ReadElement() : *this;
  }
  /// For writing: an element's array is made the holder's own first.
  Variant& Deref() {
    if (m_Type == VarType::ByRef) return *m_Data.reference;
    return m_Type == VarType::ByRefElement ? WriteElement() : *this;
  }

  /// @name Access without conversion; the type must be the one asked for.
  /// @{
  bool Boolean() const noexcept { return m_Data.longValue != 0; }
  std::uint8_t Byte() const noexcept { return static_cast<std::uint8_t>(m_Data.longValue); }
  std::int16_t Integer() const noexcept { return static_cast<std::int16_t>(m_Data.longValue); }
  std::int32_t Long() const noexcept { return m_Data.longValue; }  ///< Long, Integer and Byte
  float Single() const noexcept { return m_Data.single; }
  double Double() const noexcept { return m_Data.real; }  ///< Double and Date
  cardwright::Currency CurrencyValue() const noexcept { return {m_Data.currency}; }
  cardwright::Decimal DecimalValue() const noexcept { return {m_Data.low, m_High, m_Scale, m_Negative}; }
  std::int32_t ErrorCode() const noexcept { return m_Data.longValue; }
  std::u16string_view StringView() const noexcept;
  Text String() const noexcept;
  cardwright::Object* ObjectPtr() const noexcept { return m_Data.object; }  ///< null for Nothing
  cardwright::Array* ArrayPtr() const noexcept { return m_Data.array; }
  /// @}

 private:
  bool IsCounted() const noexcept {
    return m_Type == VarType::String || m_Type == VarType::Object || m_Type == VarType::Array;
  }
  void TakeBits(const Variant& other) noexcept {
    m_Type = other.m_Type;
    m_Scale = other.m_Scale;
    m_Negative = other.m_Negative;
    m_High = other.m_High;
    m_Data = other.m_Data;
  }
  const Variant& ReadElement() const noexcept;
  Variant& WriteElement();
  void Retain() const noexcept;
  void Drop() noexcept;

  VarType m_Type = VarType::Empty;
  std::uint8_t m_Scale = 0;  // Decimal only, as the two fields that follow
  bool m_Negative = false;
  std::uint32_t m_High = 0;
  union {
    std::uint64_t low = 0;
    std::int32_t longValue;  // sign-extended for the narrower types, so that all whole numbers read alike
    float single;
    double real;
    std::int64_t currency;
    Text::Rep* text;
    cardwright::Object* object;
    cardwright::Array* array;
    Variant* reference;
  } m_Data;
};

static_assert(sizeof(Variant) == 16);

}  // namespace cardwright
