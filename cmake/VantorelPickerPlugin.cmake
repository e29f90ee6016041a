# Functions that build picker pages as plug-ins. Used for our own page, and installed for third parties.

# Relative to the install prefix. The panel finds it relative to its own executable.
set(VANTOREL_PICKERS_FOLDER lib/vantorel/pickers)

# vantorel_add_picker_plugin(NAME SOURCES file... [RESOURCES file...])
# Builds the plug-in NAME.so. One of the sources must define the two symbols of host/HostPluginEntry.h.
# Resources are copied into the folder NAME.resources beside it, where the plug-in finds them by name.
function(vantorel_add_picker_plugin name)
  cmake_parse_arguments(arg "" "" "SOURCES;RESOURCES" ${ARGN})
  if(NOT arg_SOURCES OR arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "vantorel_add_picker_plugin(${name}): write SOURCES file... [RESOURCES file...]")
  endif()
  add_library(${name} MODULE ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE Vantorel::Picker)
  # Panel and plug-ins each have their own copy of the host layer, and must not bind to another copy.
  target_link_options(${name} PRIVATE -Wl,--exclude-libs,ALL)
  set_target_properties(${name} PROPERTIES
    PREFIX ""
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  set(paths "")
  foreach(resource IN LISTS arg_RESOURCES)
    cmake_path(ABSOLUTE_PATH resource OUTPUT_VARIABLE path)
    list(APPEND paths "${path}")
  endforeach()
  set_target_properties(${name} PROPERTIES VANTOREL_RESOURCES "${paths}")
  if(paths)
    set(folder "$<TARGET_FILE_DIR:${name}>/${name}.resources")
    add_custom_command(TARGET ${name} POST_BUILD
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
      COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${paths} "${folder}"
      VERBATIM)
  endif()
endfunction()

# vantorel_install_picker_plugin(NAME): installs it where a panel of the same prefix finds it.
function(vantorel_install_picker_plugin name)
  install(TARGETS ${name} LIBRARY DESTINATION "${VANTOREL_PICKERS_FOLDER}")
  get_target_property(resources ${name} VANTOREL_RESOURCES)
  install(FILES ${resources} DESTINATION "${VANTOREL_PICKERS_FOLDER}/${name}.resources")
endfunction()
