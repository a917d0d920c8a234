// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Elements.h"

#include <algorithm>
#include <array>
#include <utility>

#include "cardwright/automation/Conversions.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/machine/ScriptFault.h"
#include "cardwright/vbscript/machine/SlowPaths.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kMaxDimensions = 60;

std::vector<Bounds> FromZero(std::span<const std::int32_t> uppers) {
  std::vector<Bounds> bounds;
  bounds.reserve(uppers.size());
  for (const std::int32_t upper : uppers) bounds.push_back({0, upper});
  return bounds;
}

// Preserving values, only the last bound may change.
bool KeepsShape(const Array& array, std::span<const std::int32_t> uppers) {
  const auto dimensions = array.Dimensions();
  if (dimensions.size() != uppers.size()) return false;
  for (std::size_t k = 0; k + 1 < uppers.size(); ++k)
    if (dimensions[k].upper != uppers[k] || dimensions[k].lower != 0) return false;
  return true;
}

// Indices as whole numbers. Converting an object may run code that replaces the array, so all indices are
// converted before the array is looked at.
class WholeIndices {
 public:
  explicit WholeIndices(Args indices) : m_Count(indices.size()) {
    if (m_Count > kMaxDimensions) Raise(ErrorNumber::SubscriptOutOfRange);
    for (std::size_t k = 0; k < m_Count; ++k) m_Whole[k] = ToLong(indices[k]);
  }
  std::size_t In(const Array& array) const { return array.Position({m_Whole.data(), m_Count}); }

 private:
  std::array<std::int32_t, kMaxDimensions> m_Whole;
  std::size_t m_Count;
};

}  // namespace

Variant NewArray(const ArrayShape& shape) {
  if (shape.bounds.empty()) return Variant(MakeRef<Array>());
  auto array = MakeRef<Array>(FromZero(shape.bounds));
  array->SetFixed();
  return Variant(std::move(array));
}

void ReDimArray(RegisterView view, Instruction i, bool preserve) {
  std::vector<std::int32_t> uppers;
  for (std::uint32_t k = 0; k < i.n; ++k) {
    uppers.push_back(ToLong(view.R[i.b + k]));
    view.ClearTemporary(i.b + k);
    if (uppers.back() < -1) Raise(ErrorNumber::SubscriptOutOfRange);
  }
  Variant& holder = view.R[i.a].Deref();
  Array* old = holder.IsArray() ? holder.ArrayPtr() : nullptr;
  if (old && (old->IsFixed() || old->IsLocked())) Raise(ErrorNumber::ArrayIsFixedOrLocked);
  if (preserve && old && !old->Dimensions().empty()) {
    if (!KeepsShape(*old, uppers)) Raise(ErrorNumber::SubscriptOutOfRange);
    Array::Writable(holder).ResizeLast(uppers.back());
  } else {
    holder = Variant(MakeRef<Array>(FromZero(uppers)));
  }
  Context::ChargeWork(std::as_const(view.R[i.a]).Deref().ArrayPtr()->Values().size());
  view.R[i.a].Reset();
}

void EraseArray(Variant& holder) {
  if (!holder.IsArray()) Raise(ErrorNumber::TypeMismatch);
  if (holder.ArrayPtr()->IsLocked()) Raise(ErrorNumber::ArrayIsFixedOrLocked);
  if (!holder.ArrayPtr()->IsFixed()) {
    holder = Variant(MakeRef<Array>());
    return;
  }
  // The objects end only after all elements are Empty, since what they do then may use the array.
  const std::span<Variant> values = Array::Writable(holder).Values();
  std::vector<Variant> erased(values.size());
  std::swap_ranges(values.begin(), values.end(), erased.begin());
}

const Variant& ElementAt(const Array& array, Args indices) {
  return array.Values()[WholeIndices(indices).In(array)];
}

Variant ElementOf(const Variant& holder, Args indices) {
  const WholeIndices whole(indices);
  const Variant& held = holder.Deref();
  if (!held.IsArray()) Raise(ErrorNumber::TypeMismatch);
  return std::as_const(*held.ArrayPtr()).Values()[whole.In(*held.ArrayPtr())];
}

std::size_t ElementPosition(const Variant& holder, Args indices) {
  const WholeIndices whole(indices);
  const Variant& held = holder.Deref();
  if (!held.IsArray()) Raise(ErrorNumber::TypeMismatch);
  return whole.In(*held.ArrayPtr());
}

void AssignElement(Variant& place, Args arguments, bool isSet, const Text& name) {
  Variant& value = arguments.back();
  const Variant& held = std::as_const(place).Deref();
  if (held.IsArray()) {
    const WholeIndices whole(arguments.first(arguments.size() - 1));
    // The value may be an object whose default member changes this very array: the bounds are checked now,
    // and again when the value is there.
    if (std::as_const(place).Deref().IsArray()) whole.In(*std::as_const(place).Deref().ArrayPtr());
    Variant plain;
    isSet ? AssignObject(plain, value, true) : AssignPlain(plain, value, true);
    Array& array = Array::Writable(place);
    Context::ChargeWork(array.Values().size());
    array.Values()[whole.In(array)] = std::move(plain);
    return;
  }
  if (!held.IsObject()) throw NamedError(ErrorNumber::TypeMismatch, name);
  const Ref<Object> object(&RequireObject(held));
  const MemberId member = object->DefaultMember();
  if (member == kNoMember) Raise(ErrorNumber::NotSupported);
  if (!isSet && value.Deref().IsObject()) value = DefaultValue(value);
  object->Invoke(member, isSet ? CallKind::Set : CallKind::Let, arguments);
}

}  // namespace cardwright::vbscript
