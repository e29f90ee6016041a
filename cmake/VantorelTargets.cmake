# Functions that define targets: layers (the folders of src/), programs and tests.

option(VANTOREL_PRECOMPILED_HEADERS "Parse library headers once for all targets" ON)

# _vantorel_precompile(TARGET [QT] [TESTS]): precompiles the headers of the standard library, and with QT
# and TESTS those of Qt and GoogleTest. Parsing them is most of the work of a compilation, so all targets
# of a kind share them.
function(_vantorel_precompile target)
  cmake_parse_arguments(arg "QT;TESTS" "" "" ${ARGN})
  get_target_property(is_one_file ${target} UNITY_BUILD)
  if(NOT VANTOREL_PRECOMPILED_HEADERS OR is_one_file)
    return()
  endif()
  set(kind precompiled)
  set(headers
    <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string> <string_view> <utility>
    <variant> <vector>)
  set(libraries "")
  if(arg_QT)
    string(APPEND kind _qt)
    list(APPEND headers <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets>)
    list(APPEND libraries Qt6::Widgets)
  endif()
  if(arg_TESTS)
    string(APPEND kind _tests)
    list(APPEND headers <gmock/gmock.h> <gtest/gtest.h>)
    list(APPEND libraries GTest::gtest GTest::gmock)
  endif()
  if(NOT TARGET vantorel_${kind})
    set(source "${CMAKE_BINARY_DIR}/${kind}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "// Compiled for its precompiled headers.\n")
    add_library(vantorel_${kind} OBJECT "${source}")
    target_link_libraries(vantorel_${kind} PRIVATE ${libraries})
    if(arg_TESTS)
      # g++ rejects a precompiled header whose position-independence flags differ, and tests are executables.
      set_target_properties(vantorel_${kind} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
      target_compile_options(vantorel_${kind} PRIVATE -fPIE)
    endif()
    vantorel_warnings(vantorel_${kind})
    target_precompile_headers(vantorel_${kind} PRIVATE ${headers})
  endif()
  target_precompile_headers(${target} REUSE_FROM vantorel_${kind})
endfunction()

# vantorel_warnings(TARGET): enables the warnings for all our code. `make check` makes them errors.
function(vantorel_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wconversion -Wsign-conversion -Wpedantic -Wnon-virtual-dtor
    # In whole folders a name hides those of other files.
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wshadow>
    # g++ reports false overlaps and overflows in string concatenation. The sanitizers find real ones.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict;-Wno-array-bounds;-Wno-stringop-overflow;-Wno-stringop-overread>)
endfunction()

# vantorel_use(TARGET LAYER...): links layers.
function(vantorel_use target)
  foreach(layer IN LISTS ARGN)
    string(REPLACE "/" "_" name "${layer}")
    if(NOT TARGET vantorel_${name})
      message(FATAL_ERROR "${target} uses ${layer}, which is not a layer listed above it")
    endif()
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "STATIC_LIBRARY")
      target_link_libraries(${target} PUBLIC "$<BUILD_INTERFACE:vantorel_${name}>")
    else()
      target_link_libraries(${target} PRIVATE vantorel_${name})
    endif()
  endforeach()
endfunction()

# vantorel_layer(FOLDER [QT] [QT5] [GTK] [GTK2] [USES layer...] [LIBRARIES target...])
# Defines the static library vantorel_FOLDER ("/" becomes "_") from the sources in src/FOLDER, without
# sub-folders and main.cpp. A layer may include only its own headers and those of the layers in USES;
# tools/check-layers checks it. A CMakeLists.txt in the folder adds targets of its own.
# With QT the layer is compiled for Qt 6. With QT5 as well, vantorel_FOLDER_qt5 is the same for Qt 5, where
# that is installed; it links the layers in USES that were made for Qt 5, too.
# GTK and GTK2 are the same for GTK 3 and vantorel_FOLDER_gtk2; each needs all targets in LIBRARIES, of which
# PkgConfig::..._GTK3 becomes PkgConfig::..._GTK2.
function(vantorel_layer folder)
  cmake_parse_arguments(arg "QT;QT5;GTK;GTK2" "" "USES;LIBRARIES" ${ARGN})
  string(REPLACE "/" "_" name "${folder}")
  if(arg_QT)
    _vantorel_layer_library(vantorel_${name} "${folder}" QT 6 USES ${arg_USES} LIBRARIES ${arg_LIBRARIES})
  elseif(arg_GTK)
    _vantorel_gtk_layer(vantorel_${name} "${folder}" 3 USES ${arg_USES} LIBRARIES ${arg_LIBRARIES})
  else()
    _vantorel_layer_library(vantorel_${name} "${folder}" USES ${arg_USES} LIBRARIES ${arg_LIBRARIES})
  endif()
  if(arg_QT5 AND VANTOREL_QT5)
    list(TRANSFORM arg_LIBRARIES REPLACE "^Qt6::" "Qt5::")
    _vantorel_layers_for(qt5 uses ${arg_USES})
    _vantorel_layer_library(vantorel_${name}_qt5 "${folder}" QT 5 USES ${uses} LIBRARIES ${arg_LIBRARIES})
  endif()
  if(arg_GTK2)
    list(TRANSFORM arg_LIBRARIES REPLACE "_GTK3$" "_GTK2")
    _vantorel_layers_for(gtk2 uses ${arg_USES})
    _vantorel_gtk_layer(vantorel_${name}_gtk2 "${folder}" 2 USES ${uses} LIBRARIES ${arg_LIBRARIES})
  endif()
  if(EXISTS "${PROJECT_SOURCE_DIR}/src/${folder}/CMakeLists.txt")
    add_subdirectory("${PROJECT_SOURCE_DIR}/src/${folder}" "${PROJECT_BINARY_DIR}/src/${folder}")
  endif()
endfunction()

# _vantorel_layers_for(TOOLKIT RESULT LAYER...): the layers as that toolkit's, where they were made for it.
function(_vantorel_layers_for toolkit result)
  set(layers "")
  foreach(layer IN LISTS ARGN)
    string(REPLACE "/" "_" name "${layer}")
    if(TARGET vantorel_${name}_${toolkit})
      string(APPEND layer "_${toolkit}")
    endif()
    list(APPEND layers "${layer}")
  endforeach()
  set(${result} "${layers}" PARENT_SCOPE)
endfunction()

# _vantorel_gtk_layer(TARGET FOLDER VERSION [USES layer...] [LIBRARIES target...])
function(_vantorel_gtk_layer target folder version)
  cmake_parse_arguments(arg "" "" "USES;LIBRARIES" ${ARGN})
  foreach(library IN ITEMS PkgConfig::GTK${version} LISTS arg_LIBRARIES)
    if(NOT TARGET ${library})
      return()
    endif()
  endforeach()
  _vantorel_layer_library(${target} "${folder}" USES ${arg_USES}
    LIBRARIES PkgConfig::GTK${version} ${arg_LIBRARIES})
  # Calls that GTK 3 deprecates are those that both have.
  target_compile_definitions(${target} PUBLIC GDK_DISABLE_DEPRECATION_WARNINGS)
  # GTK's flags differ from those of the precompiled headers.
  set_target_properties(${target} PROPERTIES DISABLE_PRECOMPILE_HEADERS ON)
endfunction()

# _vantorel_layer_library(TARGET FOLDER [QT version] [USES layer...] [LIBRARIES target...])
function(_vantorel_layer_library target folder)
  cmake_parse_arguments(arg "" "QT" "USES;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>")
  vantorel_use(${target} ${arg_USES})
  target_link_libraries(${target} PUBLIC ${arg_LIBRARIES})
  vantorel_warnings(${target})
  if(NOT arg_QT)
    _vantorel_precompile(${target})
    return()
  endif()
  # moc looks at headers without a source of their name only when they are listed.
  file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.h")
  target_sources(${target} PRIVATE ${headers})
  target_link_libraries(${target} PUBLIC Qt${arg_QT}::Widgets)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  vantorel_check_moc(${target})
  if(arg_QT EQUAL 6)
    _vantorel_precompile(${target} QT)
  endif()
endfunction()

# vantorel_program(NAME SOURCES file... [USES layer...] [LIBRARIES target...])
function(vantorel_program name)
  cmake_parse_arguments(arg "" "" "SOURCES;USES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  vantorel_use(${name} ${arg_USES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
  vantorel_warnings(${name})
endfunction()

# vantorel_test(NAME [QT] [SOURCES file...] USES layer...)
# Defines the program NAME-test from the folder's *Test.cpp and the additional files in SOURCES. Each of its
# tests becomes a CTest test. With QT the tests have a QApplication without a screen and a temporary home.
function(vantorel_test name)
  cmake_parse_arguments(arg "QT" "" "SOURCES;USES" ${ARGN})
  set(target ${name}-test)
  file(GLOB sources CONFIGURE_DEPENDS "*Test.cpp")
  list(APPEND sources ${arg_SOURCES})
  if(arg_QT)
    list(APPEND sources "${PROJECT_SOURCE_DIR}/tests/hosts/qt/QtTestMain.cpp")
  endif()
  vantorel_program(${target} SOURCES ${sources} USES ${arg_USES} LIBRARIES GTest::gtest GTest::gmock)
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support")
  if(arg_QT)
    target_link_libraries(${target} PRIVATE Qt6::Test)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    _vantorel_precompile(${target} QT TESTS)
    gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  else()
    target_link_libraries(${target} PRIVATE GTest::gtest_main)
    _vantorel_precompile(${target} TESTS)
    gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST PROPERTIES ENVIRONMENT "LC_ALL=C.UTF-8")
  endif()
endfunction()
