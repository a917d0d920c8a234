#include "vbscript/machine/Elements.h"

#include <array>

#include "automation/Conversions.h"
#include "vbscript/machine/ScriptFault.h"
#include "vbscript/machine/SlowPaths.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kMaxDimensions = 60;

std::vector<Bounds> FromZero(std::span<const std::int32_t> uppers) {
  std::vector<Bounds> bounds;
  bounds.reserve(uppers.size());
  for (const std::int32_t upper : uppers) bounds.push_back({0, upper});
  return bounds;
}

// Only the last bound may change where values are to stay.
bool KeepsShape(const Array& array, std::span<const std::int32_t> uppers) {
  const auto dimensions = array.Dimensions();
  if (dimensions.size() != uppers.size()) return false;
  for (std::size_t k = 0; k + 1 < uppers.size(); ++k)
    if (dimensions[k].upper != uppers[k] || dimensions[k].lower != 0) return false;
  return true;
}

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
    view.Spend(i.b + k);
    if (uppers.back() < -1) Raise(ErrorNumber::SubscriptOutOfRange);
  }
  Variant& holder = view.R[i.a].Deref();
  Array* old = holder.IsArray() ? holder.ArrayPtr() : nullptr;
  if (old && (old->IsFixed() || old->IsLocked())) Raise(10);
  if (preserve && old && !old->Dimensions().empty()) {
    if (!KeepsShape(*old, uppers)) Raise(ErrorNumber::SubscriptOutOfRange);
    Array::Writable(holder).ResizeLast(uppers.back());
  } else {
    holder = Variant(MakeRef<Array>(FromZero(uppers)));
  }
  view.R[i.a].Reset();
}

void EraseArray(Variant& holder) {
  if (!holder.IsArray()) Raise(ErrorNumber::TypeMismatch);
  if (holder.ArrayPtr()->IsLocked()) Raise(10);
  if (!holder.ArrayPtr()->IsFixed()) {
    holder = Variant(MakeRef<Array>());
    return;
  }
  for (Variant& element : Array::Writable(holder).Values()) element.Reset();
}

std::size_t ElementPosition(const Array& array, Args indices) {
  if (indices.size() > kMaxDimensions) Raise(ErrorNumber::SubscriptOutOfRange);
  std::array<std::int32_t, kMaxDimensions> whole;
  for (std::size_t k = 0; k < indices.size(); ++k) whole[k] = ToLong(indices[k]);
  return array.Position({whole.data(), indices.size()});
}

const Variant& ElementAt(const Array& array, Args indices) {
  return array.Values()[ElementPosition(array, indices)];
}

Variant ElementOf(const Variant& holder, Args indices) {
  if (!holder.IsArray()) Raise(ErrorNumber::TypeMismatch);
  return ElementAt(*holder.ArrayPtr(), indices);
}

void PutElement(Variant& holder, Args arguments, bool isSet, const Text& name) {
  Variant& value = arguments.back();
  if (holder.IsArray()) {
    const Args indices = arguments.first(arguments.size() - 1);
    const std::size_t position = ElementPosition(*holder.ArrayPtr(), indices);
    // The value may be an object whose default member changes this very array.
    Variant plain;
    isSet ? AssignObject(plain, value, true) : AssignPlain(plain, value, true);
    Array& array = Array::Writable(holder);
    if (position >= array.Values().size()) Raise(ErrorNumber::SubscriptOutOfRange);
    array.Values()[position] = std::move(plain);
    return;
  }
  if (!holder.IsObject()) throw NamedError(static_cast<int>(ErrorNumber::TypeMismatch), name);
  const Ref<Object> object(&RequireObject(holder));
  const MemberId member = object->DefaultMember();
  if (member == kNoMember) Raise(ErrorNumber::NotSupported);
  if (!isSet && value.Deref().IsObject()) value = DefaultValue(value);
  object->Invoke(member, isSet ? CallKind::Set : CallKind::Let, arguments);
}

}  // namespace cardwright::vbscript
