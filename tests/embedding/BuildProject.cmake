# SPDX-License-Identifier: MIT
# Builds the project in SOURCE from scratch in BUILD against the library installed in PREFIX, then includes the script RUN.
function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endfunction()

file(REMOVE_RECURSE "${BUILD}")
run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${BUILD}" -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${PREFIX}"
    "-DINCLUDE_FOLDER=${PREFIX}/include" "-DREADME=${README}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_BUILD_TYPE=${TYPE}"
    "-DCMAKE_CXX_FLAGS=${FLAGS}")
run("${CMAKE_COMMAND}" --build "${BUILD}")
include("${RUN}")
