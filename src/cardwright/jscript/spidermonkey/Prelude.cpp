// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/Prelude.h"

namespace cardwright::jscript {

const char16_t kPrelude[] =
    uR"js((function (global, makeEnumerator, parseLocal, mapError) {
'use strict';
const hide = (object, name, value) =>
  Object.defineProperty(object, name, {value: value, writable: true, configurable: true, enumerable: false});
const OldDate = Date, OldError = Error, getTime = Date.prototype.getTime, oldSubstr = String.prototype.substr;

// JScript has none of these, and their memory lies outside the heap whose limit is checked.
for (const name of ['ArrayBuffer', 'SharedArrayBuffer', 'Atomics', 'DataView', 'WebAssembly', 'Int8Array',
    'Uint8Array', 'Uint8ClampedArray', 'Int16Array', 'Uint16Array', 'Int32Array', 'Uint32Array', 'Float32Array',
    'Float64Array', 'BigInt64Array', 'BigUint64Array'])
  delete global[name];

const functions = {
  ScriptEngine() { return 'JScript'; },
  ScriptEngineMajorVersion() { return 5; },
  ScriptEngineMinorVersion() { return 8; },
  ScriptEngineBuildVersion() { return 16384; }
};
for (const name in functions) hide(global, name, functions[name]);

class Enumerator {
  #collection; #enumerator; #isAtEnd = true;
  constructor(collection) { this.#collection = collection; this.moveFirst(); }
  atEnd() { return this.#isAtEnd; }
  item() { return this.#isAtEnd ? undefined : this.#enumerator.Item; }
  moveFirst() {
    if (this.#collection === undefined) return;
    this.#enumerator = makeEnumerator(this.#collection);
    this.#isAtEnd = !this.#enumerator.Next();
  }
  moveNext() { if (!this.#isAtEnd) this.#isAtEnd = !this.#enumerator.Next(); }
}
hide(global, 'Enumerator', Enumerator);

// A year of two digits is one of the twentieth century.
function parse(text) {
  text = String(text);
  const short = /^\s*(\d{1,2}[\/-]\d{1,2}[\/-])(\d{2})(?!\d)([^]*)$/.exec(text);
  const instant = OldDate.parse(short ? short[1] + '19' + short[2] + short[3] : text);
  return instant === instant ? instant : parseLocal(text);
}
function NewDate(first) {
  if (!new.target) return OldDate();
  const isText = arguments.length === 1 && (typeof first === 'string' || first instanceof String);
  return Reflect.construct(OldDate, isText ? [parse(first)] : arguments, new.target);
}
hide(NewDate, 'name', 'Date');
Object.defineProperty(NewDate, 'prototype', {value: OldDate.prototype, writable: false});
hide(NewDate, 'UTC', OldDate.UTC);
hide(NewDate, 'now', OldDate.now);
hide(NewDate, 'parse', parse);
hide(OldDate.prototype, 'constructor', NewDate);
hide(global, 'Date', NewDate);
const dateMethods = {
  getYear() {
    const year = this.getFullYear();
    return year >= 1900 && year <= 1999 ? year - 1900 : year;
  },
  getVarDate() { return new OldDate(getTime.call(this)); }
};
for (const name in dateMethods) hide(OldDate.prototype, name, dateMethods[name]);

hide(String.prototype, 'substr', {substr(start, length) {
  start = Math.max(Math.trunc(start) || 0, 0);
  return length === undefined ? oldSubstr.call(this, start) : oldSubstr.call(this, start, length);
}}.substr);

function NewError(first, second) {
  const hasNumber = typeof first === 'number' || (arguments.length > 1 && typeof second !== 'object');
  const text = hasNumber ? second : first;
  const error = Reflect.construct(OldError, text === undefined ? [] : [text], new.target || NewError);
  hide(error, 'number', hasNumber ? first | 0 : 0);
  hide(error, 'description', text === undefined ? '' : String(text));
  if (text === undefined) hide(error, 'message', '');
  return error;
}
hide(NewError, 'name', 'Error');
Object.defineProperty(NewError, 'prototype', {value: OldError.prototype, writable: false});
hide(OldError.prototype, 'constructor', NewError);
hide(global, 'Error', NewError);
for (const kind of [EvalError, RangeError, ReferenceError, SyntaxError, TypeError, URIError])
  Object.setPrototypeOf(kind, NewError);
const defineFallback = (name, get) => Object.defineProperty(OldError.prototype, name, {
  get: get, set(value) { hide(this, name, value); }, configurable: true, enumerable: false});
defineFallback('number', function () { const known = mapError(this); return known ? known[0] : 0; });
defineFallback('description', function () { const known = mapError(this); return known ? known[1] : this.message; });
}))js";

}  // namespace cardwright::jscript
