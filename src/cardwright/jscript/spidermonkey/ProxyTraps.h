// SPDX-License-Identifier: MIT
#pragma once

#include <js/Proxy.h>

namespace cardwright::jscript {

/// @name What the proxies do. The handlers' traps call these functions of HostProxies.cpp and
/// GlobalNames.cpp.
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

/// The handler of the host objects' proxies.
const js::BaseProxyHandler* HostHandler() noexcept;
/// The handler of the global object's prototype, which resolves the names that the host added.
const js::BaseProxyHandler* NameHandler() noexcept;

}  // namespace cardwright::jscript
