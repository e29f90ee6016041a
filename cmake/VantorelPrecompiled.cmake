# Most of a compilation is reading the headers of the standard library, of Qt and of GoogleTest, so
# targets of several files read them once. The preset "clang" goes without: it shows that each file
# includes what it needs.
option(VANTOREL_PRECOMPILED_HEADERS "Read the libraries' headers once for each target" ON)

set(_vantorel_standard_headers
  <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string> <string_view> <utility>
  <variant> <vector>)
set(_vantorel_qt_headers <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets>)
set(_vantorel_test_headers <gmock/gmock.h> <gtest/gtest.h>)
set(_vantorel_fewest_files 4)

# vantorel_precompile(TARGET [QT] [TESTS]): besides the standard library, Qt or GoogleTest, too.
function(vantorel_precompile target)
  cmake_parse_arguments(arg "QT;TESTS" "" "" ${ARGN})
  get_target_property(sources ${target} SOURCES)
  list(LENGTH sources count)
  if(NOT VANTOREL_PRECOMPILED_HEADERS OR count LESS _vantorel_fewest_files)
    return()
  endif()
  set(headers ${_vantorel_standard_headers})
  if(arg_QT)
    list(APPEND headers ${_vantorel_qt_headers})
  endif()
  if(arg_TESTS)
    list(APPEND headers ${_vantorel_test_headers})
  endif()
  target_precompile_headers(${target} PRIVATE ${headers})
endfunction()
