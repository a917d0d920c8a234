# SPDX-License-Identifier: MIT
# Starts the host for a moment: a window that stays open is a host that works.
execute_process(COMMAND "${BUILD}/design_host" "${BUILD}/no-such-form.cwf" TIMEOUT 3 RESULT_VARIABLE result)
if(NOT result MATCHES "timeout")
  message(FATAL_ERROR "the host ended by itself: ${result}")
endif()
