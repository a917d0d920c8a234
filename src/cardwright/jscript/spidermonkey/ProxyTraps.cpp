// SPDX-License-Identifier: MIT
// Debian builds the library without RTTI, so classes that derive from the library's must be compiled without
// it too. This file is, and therefore has no polymorphic classes but the handlers.
#include "cardwright/jscript/spidermonkey/ProxyTraps.h"

#include <js/PropertyDescriptor.h>

// Handlers are constants and never deleted.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace cardwright::jscript {
namespace {

using Descriptor = JS::MutableHandle<mozilla::Maybe<JS::PropertyDescriptor>>;

constexpr char kHostFamily = 0, kNameFamily = 0;

// A proxy on which no property can be defined or deleted.
class ClosedHandler : public js::BaseProxyHandler {
 public:
  explicit constexpr ClosedHandler(const void* family) : BaseProxyHandler(family) {}

  bool defineProperty(JSContext*, JS::HandleObject, JS::HandleId, JS::Handle<JS::PropertyDescriptor>,
                      JS::ObjectOpResult& result) const override {
    return result.failCantDefineWindowElement();
  }
  bool ownPropertyKeys(JSContext*, JS::HandleObject, JS::MutableHandleIdVector) const override {
    return true;
  }
  bool delete_(JSContext*, JS::HandleObject, JS::HandleId, JS::ObjectOpResult& result) const override {
    return result.failCantDelete();
  }
  bool preventExtensions(JSContext*, JS::HandleObject, JS::ObjectOpResult& result) const override {
    return result.failCantPreventExtensions();
  }
  bool isExtensible(JSContext*, JS::HandleObject, bool* extensible) const override {
    *extensible = true;
    return true;
  }
};

class HostObjectHandler final : public ClosedHandler {
 public:
  constexpr HostObjectHandler() : ClosedHandler(&kHostFamily) {}

  // Describing a member must not read it: a getter of the host may do anything.
  bool getOwnPropertyDescriptor(JSContext* cx, JS::HandleObject proxy, JS::HandleId id,
                                Descriptor descriptor) const override {
    bool has = false;
    descriptor.reset();
    if (!traps::HostHas(cx, proxy, id, has)) return false;
    if (has)
      descriptor.set(mozilla::Some(JS::PropertyDescriptor::Data(
          JS::UndefinedValue(), {JS::PropertyAttribute::Configurable, JS::PropertyAttribute::Enumerable,
                                 JS::PropertyAttribute::Writable})));
    return true;
  }
  bool ownPropertyKeys(JSContext* cx, JS::HandleObject proxy,
                       JS::MutableHandleIdVector names) const override {
    return traps::HostNames(cx, proxy, names);
  }
  bool getOwnEnumerablePropertyKeys(JSContext* cx, JS::HandleObject proxy,
                                    JS::MutableHandleIdVector names) const override {
    return traps::HostNames(cx, proxy, names);
  }
  bool enumerate(JSContext* cx, JS::HandleObject proxy, JS::MutableHandleIdVector names) const override {
    return traps::HostNames(cx, proxy, names);
  }
  bool getPrototypeIfOrdinary(JSContext*, JS::HandleObject, bool* isOrdinary,
                              JS::MutableHandleObject prototype) const override {
    *isOrdinary = true;
    prototype.set(nullptr);
    return true;
  }
  bool has(JSContext* cx, JS::HandleObject proxy, JS::HandleId id, bool* has) const override {
    return traps::HostHas(cx, proxy, id, *has);
  }
  bool hasOwn(JSContext* cx, JS::HandleObject proxy, JS::HandleId id, bool* has) const override {
    return traps::HostHas(cx, proxy, id, *has);
  }
  bool get(JSContext* cx, JS::HandleObject proxy, JS::HandleValue, JS::HandleId id,
           JS::MutableHandleValue value) const override {
    return traps::HostGet(cx, proxy, id, value);
  }
  bool set(JSContext* cx, JS::HandleObject proxy, JS::HandleId id, JS::HandleValue value, JS::HandleValue,
           JS::ObjectOpResult& result) const override {
    return traps::HostSet(cx, proxy, id, value) && result.succeed();
  }
  bool call(JSContext* cx, JS::HandleObject proxy, const JS::CallArgs& args) const override {
    return traps::HostCall(cx, proxy, args);
  }
  bool isCallable(JSObject* proxy) const override { return traps::HostIsCallable(proxy); }
  const char* className(JSContext*, JS::HandleObject) const override { return "Object"; }

  // Releasing a host object may run any code, so it must happen on this thread.
  bool finalizeInBackground(const JS::Value&) const override { return false; }
  void finalize(JS::GCContext*, JSObject* proxy) const override { traps::HostFinalize(proxy); }
  size_t objectMoved(JSObject* proxy, JSObject*) const override {
    traps::HostMoved(proxy);
    return 0;
  }
};

class HostNameHandler final : public ClosedHandler {
 public:
  constexpr HostNameHandler() : ClosedHandler(&kNameFamily) {}

  bool getOwnPropertyDescriptor(JSContext*, JS::HandleObject, JS::HandleId,
                                Descriptor descriptor) const override {
    descriptor.reset();
    return true;
  }
  bool getPrototypeIfOrdinary(JSContext*, JS::HandleObject proxy, bool* isOrdinary,
                              JS::MutableHandleObject prototype) const override {
    *isOrdinary = true;
    prototype.set(js::GetProxyPrivate(proxy).toObjectOrNull());
    return true;
  }
  bool has(JSContext* cx, JS::HandleObject proxy, JS::HandleId id, bool* has) const override {
    return traps::NameHas(cx, proxy, id, *has);
  }
  bool get(JSContext* cx, JS::HandleObject proxy, JS::HandleValue receiver, JS::HandleId id,
           JS::MutableHandleValue value) const override {
    return traps::NameGet(cx, proxy, receiver, id, value);
  }
  bool set(JSContext* cx, JS::HandleObject proxy, JS::HandleId id, JS::HandleValue value,
           JS::HandleValue receiver, JS::ObjectOpResult& result) const override {
    return traps::NameSet(cx, proxy, id, value, receiver, result);
  }
};

constexpr HostObjectHandler kHostHandler;
constexpr HostNameHandler kNameHandler;

}  // namespace

const js::BaseProxyHandler* HostHandler() noexcept { return &kHostHandler; }
const js::BaseProxyHandler* NameHandler() noexcept { return &kNameHandler; }

}  // namespace cardwright::jscript
