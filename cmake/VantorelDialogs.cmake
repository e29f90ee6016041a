# The page in dialogs of other programs.

# vantorel_dialog_libraries(NAME FOLDER PLACE FILE USES layer LIBRARIES target... [LINK_OPTIONS option...])
# Defines and installs the two libraries for a toolkit, from the sources of the current folder: the loader, which
# the toolkit loads into every program, and the dialog library with everything else, which the loader opens when
# the first colour dialog appears. The loader is PLACE/FILE.so below lib/vantorel, and links only LIBRARIES.
function(vantorel_dialog_libraries name)
  cmake_parse_arguments(arg "" "PLACE;FILE;USES" "LIBRARIES;LINK_OPTIONS" ${ARGN})
  set(library vantorel-dialog-${name})
  set(loader vantorel-loader-${name})
  set(folder "${CMAKE_BINARY_DIR}/lib/vantorel")

  add_library(${library} MODULE library/Exports.cpp)
  vantorel_use(${library} ${arg_USES})
  set_target_properties(${library} PROPERTIES
    PREFIX "" OUTPUT_NAME ${name} LIBRARY_OUTPUT_DIRECTORY "${folder}/dialogs")

  add_library(${loader} MODULE loader/Loader.cpp)
  vantorel_use(${loader} embedding/loader)
  target_link_libraries(${loader} PRIVATE ${arg_LIBRARIES} ${CMAKE_DL_LIBS})
  target_compile_definitions(${loader} PRIVATE VANTOREL_DIALOG_LIBRARY="${name}.so")
  target_link_options(${loader} PRIVATE ${arg_LINK_OPTIONS})
  set_target_properties(${loader} PROPERTIES
    PREFIX "" OUTPUT_NAME ${arg_FILE} LIBRARY_OUTPUT_DIRECTORY "${folder}/${arg_PLACE}")
  add_dependencies(${loader} ${library} QTXHexColorPicker)

  foreach(target IN ITEMS ${library} ${loader})
    vantorel_warnings(${target})
    # A symbol that is missing must fail the build, or the opening of the library: found out later, it ends
    # the program around us.
    target_link_options(${target} PRIVATE LINKER:-z,now LINKER:--as-needed LINKER:--exclude-libs,ALL)
    if(NOT VANTOREL_SANITIZE)
      # The sanitizers' functions are in the program.
      target_link_options(${target} PRIVATE LINKER:-z,defs)
    endif()
  endforeach()

  install(TARGETS ${library} LIBRARY DESTINATION lib/vantorel/dialogs)
  install(TARGETS ${loader} LIBRARY DESTINATION lib/vantorel/${arg_PLACE})
endfunction()
