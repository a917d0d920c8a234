#include "cardwright/vbscript/builtins/HostObjects.h"

#include "cardwright/vbscript/NamedError.h"
#include "cardwright/vbscript/builtins/Arguments.h"

namespace cardwright::vbscript {

namespace {

Variant Required(Ref<Object> object, ErrorNumber error) {
  if (!object) Raise(error);
  return object;
}

// The report to the host names the class that there is none of.
Variant Create(Context& context, const Text& progid, const Text& server) {
  try {
    return Required(context.Host().CreateObject(progid, server), ErrorNumber::CannotCreateObject);
  } catch (const Error& error) {
    if (!error.Is(ErrorNumber::CannotCreateObject)) throw;
    throw NamedError(ErrorNumber::CannotCreateObject, progid);
  }
}

}  // namespace

Variant CreateObjectFunction(Context& context, Args args) {
  const Text progid = RequiredText(args, 0);
  return Create(context, progid, TextOr(args, 1, {}));
}

Variant GetObjectFunction(Context& context, Args args) {
  const bool hasPath = ArgumentAt(args, 0) != nullptr;
  const Text path = TextOr(args, 0, {});
  const Text progid = TextOr(args, 1, {});
  if (path.IsEmpty() && progid.IsEmpty())
    Raise(hasPath ? ErrorNumber::FileOrClassNotFound : ErrorNumber::InvalidCall);
  // An empty path asks for a new object of the class, one left out for the running one.
  if (hasPath && path.IsEmpty()) return Create(context, progid, {});
  return Required(context.Host().GetObject(path, progid),
                  hasPath ? ErrorNumber::FileOrClassNotFound : ErrorNumber::CannotCreateObject);
}

Variant LoadPictureFunction(Context& context, Args args) {
  return Required(context.Host().LoadPicture(RequiredText(args, 0)), ErrorNumber::InvalidPicture);
}

}  // namespace cardwright::vbscript
