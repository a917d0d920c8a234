# SPDX-License-Identifier: MIT
# Fails when a module defines a symbol that the program has: cmake -D NM=nm -D PROGRAM=... -D MODULE=... -P this.
# Weak symbols are left out, as the loader makes one of them.
cmake_minimum_required(VERSION 3.25)

function(strong_symbols file result)
  execute_process(COMMAND "${NM}" --defined-only --extern-only --format=posix "${file}"
                  OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "_ZN[^ \n]* [TDBR] " symbols "${listing}")
  set(${result} "${symbols}" PARENT_SCOPE)
endfunction()

strong_symbols("${PROGRAM}" held)
strong_symbols("${MODULE}" brought)
list(LENGTH held heldCount)
list(LENGTH brought broughtCount)
if(heldCount LESS 100 OR broughtCount LESS 100)
  message(FATAL_ERROR "too few symbols found: ${heldCount} and ${broughtCount}")
endif()
set(copies)
foreach(symbol IN LISTS brought)
  if(symbol IN_LIST held)
    list(APPEND copies "${symbol}")
  endif()
endforeach()
if(copies)
  list(JOIN copies "\n  " copies)
  message(FATAL_ERROR "the module brings copies of:\n  ${copies}")
endif()
