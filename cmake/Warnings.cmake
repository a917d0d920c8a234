# SPDX-License-Identifier: MIT
# Warnings are errors everywhere in this project; what includes us as a library is not judged by them.
# -Wno-restrict: GCC 12 reports overlapping copies in std::string where there are none.
add_library(cardwright_warnings INTERFACE)
target_compile_options(cardwright_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                     $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                                                     -Woverloaded-virtual -Wold-style-cast -Werror)

if(CARDWRIGHT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(CARDWRIGHT_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
