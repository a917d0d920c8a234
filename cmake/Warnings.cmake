# Warnings are errors everywhere in this project; what includes us as a library is not judged by them.
add_library(cardwright_warnings INTERFACE)
target_compile_options(cardwright_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                     -Woverloaded-virtual -Wold-style-cast -Werror)

if(CARDWRIGHT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
