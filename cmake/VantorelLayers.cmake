# The folders under src/ are layers: each sees only the folders that it names. A layer's include
# path holds nothing but the folders it may use, so an include that goes against the order does not
# compile.

# vantorel_warnings(TARGET): the warnings that all our code is held to, as errors.
function(vantorel_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wpedantic -Wnon-virtual-dtor -Werror
    # g++ 12 sees overlaps and overflows in string concatenation that are not there; real ones are
    # found by the sanitizers.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict;-Wno-array-bounds;-Wno-stringop-overflow>)
endfunction()

# _vantorel_include_root(FOLDER OUT): a directory from which only FOLDER can be included.
function(_vantorel_include_root folder out)
  set(root "${CMAKE_BINARY_DIR}/include-roots/${folder}")
  get_filename_component(parent "${root}/${folder}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/src/${folder}" "${root}/${folder}" SYMBOLIC)
  set(${out} "${root}" PARENT_SCOPE)
endfunction()

# vantorel_layer(FOLDER [JSON] [QT] SOURCES file... [USES layer...])
# Makes the static library vantorel_FOLDER ("/" becomes "_") from files of src/FOLDER.
function(vantorel_layer folder)
  cmake_parse_arguments(arg "JSON;QT" "" "SOURCES;USES" ${ARGN})
  string(REPLACE "/" "_" name "${folder}")
  set(target "vantorel_${name}")
  add_library(${target} STATIC ${arg_SOURCES})
  _vantorel_include_root(${folder} root)
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${root}>")
  foreach(used IN LISTS arg_USES)
    string(REPLACE "/" "_" used_name "${used}")
    target_link_libraries(${target} PUBLIC vantorel_${used_name})
  endforeach()
  vantorel_warnings(${target})
  set(libraries "")
  foreach(library IN ITEMS JSON QT)
    if(arg_${library})
      list(APPEND libraries ${library})
    endif()
  endforeach()
  vantorel_precompile(${target} ${libraries})
endfunction()
