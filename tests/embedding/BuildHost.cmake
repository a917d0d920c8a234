# Installs a built library into a folder, builds the example host there as a project of its own, and starts it for a
# moment: a window that stays open is a host that works.
function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endfunction()

file(REMOVE_RECURSE "${FOLDER}/prefix" "${FOLDER}/host")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${FOLDER}/prefix")
run("${CMAKE_COMMAND}" -S "${SOURCE}/examples/embedding" -B "${FOLDER}/host" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${FOLDER}/prefix" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_BUILD_TYPE=${TYPE}"
    "-DCMAKE_CXX_FLAGS=${FLAGS}")
run("${CMAKE_COMMAND}" --build "${FOLDER}/host")
execute_process(COMMAND "${FOLDER}/host/design_host" "${FOLDER}/no-such-form.cwf" TIMEOUT 3 RESULT_VARIABLE result)
if(NOT result MATCHES "timeout")
  message(FATAL_ERROR "the host ended by itself: ${result}")
endif()
file(REMOVE_RECURSE "${FOLDER}/prefix")
