# SPDX-License-Identifier: MIT
# What `cmake --install` installs besides the rooms themselves (cmake/Room.cmake): the two libraries that users name,
# Cardwright::Core without Qt and Cardwright::Qt, for find_package(Cardwright) and for pkg-config.
include(CMakePackageConfigHelpers)

# The rooms of a library that hold compiled code, users before used, as a linker wants static libraries.
function(cardwright_link_names result)
  set(names)
  foreach(room IN LISTS ARGN)
    if(TARGET cardwright_${room})
      get_target_property(type cardwright_${room} TYPE)
      if(type STREQUAL "STATIC_LIBRARY")
        list(PREPEND names "-lcardwright_${room}")
      endif()
    endif()
  endforeach()
  list(JOIN names " " names)
  set(${result} "${names}" PARENT_SCOPE)
endfunction()

set(coreRooms ${CARDWRIGHT_ROOMS})
list(REMOVE_ITEM coreRooms qt robot)

add_library(cardwright_core INTERFACE)
add_library(Cardwright::Core ALIAS cardwright_core)
foreach(room IN LISTS coreRooms)
  target_link_libraries(cardwright_core INTERFACE cardwright_${room})
endforeach()
add_library(cardwright_widgets INTERFACE)
add_library(Cardwright::Qt ALIAS cardwright_widgets)
target_link_libraries(cardwright_widgets INTERFACE cardwright_qt cardwright_core)
set_target_properties(cardwright_core PROPERTIES EXPORT_NAME Core)
set_target_properties(cardwright_widgets PROPERTIES EXPORT_NAME Qt)
install(TARGETS cardwright_core cardwright_widgets EXPORT CardwrightTargets)

set(packageFolder "${CMAKE_INSTALL_LIBDIR}/cmake/Cardwright")
install(EXPORT CardwrightTargets NAMESPACE Cardwright:: DESTINATION "${packageFolder}")
configure_package_config_file(cmake/CardwrightConfig.cmake.in "${PROJECT_BINARY_DIR}/CardwrightConfig.cmake"
                              INSTALL_DESTINATION "${packageFolder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/CardwrightConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/CardwrightConfig.cmake" "${PROJECT_BINARY_DIR}/CardwrightConfigVersion.cmake"
        DESTINATION "${packageFolder}")

# From the folder of the .pc files to the prefix, so that an installed tree may be moved.
file(RELATIVE_PATH CARDWRIGHT_PC_UP "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
cardwright_link_names(CARDWRIGHT_CORE_LIBS ${coreRooms})
cardwright_link_names(CARDWRIGHT_QT_LIBS qt)
foreach(name cardwright-core cardwright-qt)
  configure_file(cmake/${name}.pc.in "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endforeach()
