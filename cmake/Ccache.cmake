# SPDX-License-Identifier: MIT
# Compiles through ccache where it is installed and nobody chose another launcher.
find_program(CARDWRIGHT_CCACHE ccache)
mark_as_advanced(CARDWRIGHT_CCACHE)
if(CARDWRIGHT_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CARDWRIGHT_CCACHE}")
endif()
