# Most of a compilation is reading the headers of the standard library, of Qt and of GoogleTest, so
# they are read once for all layers and once for all tests. The preset "clang" goes without: it shows
# that each file includes what it needs. Where several files are compiled together nothing is gained.
option(VANTOREL_PRECOMPILED_HEADERS "Read the libraries' headers once for all targets" ON)

set(_vantorel_standard_headers
  <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string> <string_view> <utility>
  <variant> <vector>)
set(_vantorel_qt_headers <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets>)
set(_vantorel_test_headers <gmock/gmock.h> <gtest/gtest.h>)

# vantorel_precompile(TARGET [JSON] [QT] [TESTS]): besides the standard library, nlohmann's JSON, Qt or
# GoogleTest, too. What is for tests is for executables: the compiler keeps what it has read for those
# and for libraries apart.
function(vantorel_precompile target)
  cmake_parse_arguments(arg "JSON;QT;TESTS" "" "" ${ARGN})
  if(NOT VANTOREL_PRECOMPILED_HEADERS OR CMAKE_UNITY_BUILD)
    return()
  endif()
  set(holder vantorel_precompiled)
  set(headers ${_vantorel_standard_headers})
  set(libraries "")
  if(arg_JSON)
    string(APPEND holder _json)
    list(APPEND headers <nlohmann/json.hpp>)
    list(APPEND libraries nlohmann_json::nlohmann_json)
  endif()
  if(arg_QT)
    string(APPEND holder _qt)
    list(APPEND headers ${_vantorel_qt_headers})
    list(APPEND libraries Qt6::Widgets)
  endif()
  if(arg_TESTS)
    string(APPEND holder _tests)
    list(APPEND headers ${_vantorel_test_headers})
    list(APPEND libraries GTest::gtest GTest::gmock)
  endif()
  if(NOT TARGET ${holder})
    set(source "${CMAKE_BINARY_DIR}/${holder}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "// Only the headers that are precompiled with it count.\n")
    add_library(${holder} OBJECT "${source}")
    target_link_libraries(${holder} PRIVATE ${libraries})
    if(arg_TESTS)
      set_target_properties(${holder} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
      target_compile_options(${holder} PRIVATE -fPIE)
    endif()
    vantorel_warnings(${holder})
    target_precompile_headers(${holder} PRIVATE ${headers})
  endif()
  target_precompile_headers(${target} REUSE_FROM ${holder})
endfunction()
