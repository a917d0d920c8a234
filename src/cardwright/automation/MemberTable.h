// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <concepts>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"

namespace cardwright {

/// @name Conversion between C++ values and variants. Classes derived from Object are converted as references.
/// @{
/// Specialised for the types that FromVariant does not convert itself.
template <class T>
struct VariantCast;

/// The variant for a C++ value. Enumerations become Long, vectors of texts arrays.
template <class T>
Variant ToVariant(T&& value) {
  using Plain = std::remove_cvref_t<T>;
  if constexpr (std::is_enum_v<Plain>) {
    return Variant(static_cast<std::int32_t>(value));
  } else if constexpr (std::is_same_v<Plain, std::vector<Text>>) {
    return Variant(Array::FromTexts(value));
  } else {
    return Variant(std::forward<T>(value));
  }
}

/// The C++ value of a variant, by the conversions of Conversions.h; errors as there.
template <class T>
T FromVariant(Variant& value) {
  if constexpr (std::is_same_v<T, Variant>) {
    return value.Deref();
  } else if constexpr (std::is_same_v<T, Text>) {
    return ToText(value);
  } else if constexpr (std::is_same_v<T, bool>) {
    return ToBoolean(value);
  } else if constexpr (std::is_same_v<T, std::int16_t>) {
    return ToInteger(value);
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return ToLong(value);
  } else if constexpr (std::is_same_v<T, float>) {
    return ToSingle(value);
  } else if constexpr (std::is_same_v<T, double>) {
    return ToDouble(value);
  } else if constexpr (std::is_enum_v<T>) {
    return static_cast<T>(ToLong(value));
  } else {
    return VariantCast<T>::From(value);
  }
}

/// A missing argument is no value.
template <class T>
struct VariantCast<std::optional<T>> {
  static std::optional<T> From(Variant& value) {
    if (value.Deref().IsMissing()) return std::nullopt;
    return FromVariant<T>(value);
  }
};

/// Null for Nothing. Error 424 for a value that is no object, 13 for an object of another class.
template <class T>
requires std::is_base_of_v<Object, T>
struct VariantCast<Ref<T>> {
  static Ref<T> From(Variant& value) {
    const Variant& held = value.Deref();
    if (!held.IsObject()) Raise(ErrorNumber::ObjectRequired);
    if (!held.ObjectPtr()) return nullptr;
    auto* object = dynamic_cast<T*>(held.ObjectPtr());
    if (!object) Raise(ErrorNumber::TypeMismatch);
    return Ref<T>(object);
  }
};
/// @}

/// One member of a class reachable by name.
struct Member {
  /// A function that calls the member of `self`; the last argument of let and set is the new value.
  using Call = Variant (*)(Object& self, Args args);

  std::u16string_view name;  ///< as scripts spell it, in any case
  Call method = nullptr;     ///< null if the member is no method
  Call get = nullptr;        ///< null if it cannot be read
  Call let = nullptr;        ///< null if it cannot be assigned a value
  Call set = nullptr;        ///< null if it cannot be assigned an object
};

namespace detail {

template <class T>
inline constexpr bool kIsOptional = false;
template <class T>
inline constexpr bool kIsOptional<std::optional<T>> = true;

template <class Function>
struct Signature;
template <class R, class T, class... A>
struct Signature<R (T::*)(A...)> {
  using Result = R;
  using Self = T;
  using Arguments = std::tuple<std::remove_cvref_t<A>...>;
};
template <class R, class T, class... A>
struct Signature<R (T::*)(A...) const> : Signature<R (T::*)(A...)> {};
template <class R, class T, class... A>
struct Signature<R (T::*)(A...) noexcept> : Signature<R (T::*)(A...)> {};
template <class R, class T, class... A>
struct Signature<R (T::*)(A...) const noexcept> : Signature<R (T::*)(A...)> {};
template <class R, class T, class... A>
struct Signature<R (*)(T&, A...)> : Signature<R (T::*)(A...)> {};

template <class Tuple, std::size_t I>
std::tuple_element_t<I, Tuple> Argument(Args args) {
  using T = std::tuple_element_t<I, Tuple>;
  if (I < args.size()) {
    if constexpr (!kIsOptional<T> && !std::is_same_v<T, Variant>) {
      if (args[I].Deref().IsMissing()) Raise(ErrorNumber::ArgumentNotOptional);
    }
    return FromVariant<T>(args[I]);
  }
  if constexpr (kIsOptional<T>) {
    return std::nullopt;
  } else {
    Raise(ErrorNumber::WrongArgumentCount);
  }
}

/// The default member of the object in `result`, called with `args`; error 450 where there is no object.
Variant CallDefault(const Variant& result, Args args);

/// Calls `Function` on the object with the arguments converted to what it takes. Arguments for a function
/// that takes none belong to the default member of the object that it returns: `o.Items(1)` is
/// `o.Items.Item(1)`.
template <auto Function>
Variant Thunk(Object& self, Args args) {
  using S = Signature<decltype(Function)>;
  constexpr std::size_t kCount = std::tuple_size_v<typename S::Arguments>;
  if (args.size() > kCount) {
    if constexpr (kCount == 0 && !std::is_void_v<typename S::Result>) {
      return CallDefault(Thunk<Function>(self, {}), args);
    }
    Raise(ErrorNumber::WrongArgumentCount);
  }
  auto& typed = static_cast<typename S::Self&>(self);
  return [&]<std::size_t... I>(std::index_sequence<I...>)->Variant {
    auto call = [&]() -> decltype(auto) {
      if constexpr (std::is_member_function_pointer_v<decltype(Function)>) {
        return (typed.*Function)(Argument<typename S::Arguments, I>(args)...);
      } else {
        return Function(typed, Argument<typename S::Arguments, I>(args)...);
      }
    };
    if constexpr (std::is_void_v<decltype(call())>) {
      call();
      return {};
    } else {
      return ToVariant(call());
    }
  }
  (std::make_index_sequence<kCount>());
}

template <auto Function>
constexpr Member::Call ThunkOrNone() {
  if constexpr (std::is_same_v<decltype(Function), std::nullptr_t>) {
    return nullptr;
  } else {
    return &Thunk<Function>;
  }
}

}  // namespace detail

/// A method: a member function, or a function whose first parameter is the object.
template <auto Function>
constexpr Member Method(std::u16string_view name) {
  return {.name = name, .method = &detail::Thunk<Function>};
}
/// A property, parameterised where the functions take arguments before the value; nullptr for an accessor
/// that the property does not have.
template <auto Get, auto Let = nullptr, auto Set = nullptr>
constexpr Member Property(std::u16string_view name) {
  return {.name = name,
          .get = detail::ThunkOrNone<Get>(),
          .let = detail::ThunkOrNone<Let>(),
          .set = detail::ThunkOrNone<Set>()};
}

namespace detail {
template <class>
struct FieldOf;
template <class C, class T>
struct FieldOf<T C::*> {
  using Class = C;
  using Value = T;
};
template <auto Member>
typename FieldOf<decltype(Member)>::Value GetField(typename FieldOf<decltype(Member)>::Class& object) {
  return object.*Member;
}
template <auto Member>
void LetField(typename FieldOf<decltype(Member)>::Class& object,
              typename FieldOf<decltype(Member)>::Value value) {
  object.*Member = std::move(value);
}
}  // namespace detail

/// A property that is a plain field of the class: `PlainField<&CItem::m_Text>(u"Text")`.
template <auto Member>
constexpr cardwright::Member PlainField(std::u16string_view name) {
  return Property<&detail::GetField<Member>, &detail::LetField<Member>>(name);
}

/// The members of one class in declared order, with an index by name. Built once for each class:
/// `static const MemberTable table(kMembers, u"Item");`
class MemberTable {
 public:
  /// `members` must outlive the table; `defaultMember` is the name of the default member, or "".
  explicit MemberTable(std::span<const Member> members, std::u16string_view defaultMember = {});

  /// The member of a name in any case, or kNoMember.
  MemberId Find(std::u16string_view name) const noexcept;
  /// The default member, or kNoMember.
  MemberId Default() const noexcept { return m_Default; }
  /// All members in declared order.
  std::span<const Member> Members() const noexcept { return m_Members; }
  /// A Get of a method calls it; a Set of a property without one is a Let. Errors as Object::Invoke.
  Variant Invoke(Object& self, MemberId member, CallKind kind, Args args) const;

 private:
  std::span<const Member> m_Members;
  std::vector<MemberId> m_Buckets;  // open addressing over the folded names
  MemberId m_Default = kNoMember;
};

/// An object with a table of members.
class TableObject : public Object {
 public:
  MemberId FindMember(std::u16string_view name) const override { return Members().Find(name); }
  MemberId DefaultMember() const override { return Members().Default(); }
  Variant Invoke(MemberId member, CallKind kind, Args args) override {
    return Members().Invoke(*this, member, kind, args);
  }
  std::vector<Text> MemberNames() const override;
  const void* Shape() const override { return &Members(); }

 protected:
  virtual const MemberTable& Members() const = 0;
};

}  // namespace cardwright
