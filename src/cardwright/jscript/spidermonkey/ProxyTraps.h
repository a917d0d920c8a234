#pragma once

#include <js/Proxy.h>

namespace cardwright::jscript {

/// @name What the proxies do: the library's traps end here, in HostObjects.cpp and GlobalNames.cpp.
/// @{
namespace traps {
bool HostGet(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, JS::MutableHandleValue value);
bool HostSet(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, JS::HandleValue value);
bool HostHas(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, bool& has);
bool HostNames(JSContext* cx, JS::HandleObject proxy, JS::MutableHandleIdVector names);
bool HostCall(JSContext* cx, JS::HandleObject proxy, const JS::CallArgs& args);
bool HostIsCallable(JSObject* proxy);
void HostFinalize(JSObject* proxy);
void HostMoved(JSObject* proxy);

bool NameGet(JSContext* cx, JS::HandleObject proxy, JS::HandleValue receiver, JS::HandleId name,
             JS::MutableHandleValue value);
bool NameSet(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, JS::HandleValue value,
             JS::HandleValue receiver, JS::ObjectOpResult& result);
bool NameHas(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, bool& has);
}  // namespace traps
/// @}

/// Handler of host objects.
const js::BaseProxyHandler* HostHandler() noexcept;
/// Handler of the object behind the global one, in which the names are found that the host gave.
const js::BaseProxyHandler* NameHandler() noexcept;

}  // namespace cardwright::jscript
