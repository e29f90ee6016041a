# Picker pages as plug-ins of the panel: for our own one, and installed for those of others.

# Below the install prefix. The panel looks there from its own place.
set(VANTOREL_PICKERS_FOLDER lib/vantorel/pickers)

# vantorel_add_picker_plugin(NAME SOURCES file... [RESOURCES file...])
# Makes the plug-in NAME.so from the sources, one of which has the two symbols of
# host/HostPluginEntry.h. Resources come into the folder NAME.resources beside it, where the plug-in
# finds them by their names.
function(vantorel_add_picker_plugin name)
  cmake_parse_arguments(arg "" "" "SOURCES;RESOURCES" ${ARGN})
  if(NOT arg_SOURCES OR arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "vantorel_add_picker_plugin(${name}): write SOURCES file... [RESOURCES file...]")
  endif()
  add_library(${name} MODULE ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE Vantorel::Picker)
  # Plug-ins and panel each have their own copy of the host layer, and none may reach for another's.
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

# vantorel_install_picker_plugin(NAME): where an installed panel of the same prefix finds it.
function(vantorel_install_picker_plugin name)
  install(TARGETS ${name} LIBRARY DESTINATION "${VANTOREL_PICKERS_FOLDER}")
  get_target_property(resources ${name} VANTOREL_RESOURCES)
  install(FILES ${resources} DESTINATION "${VANTOREL_PICKERS_FOLDER}/${name}.resources")
endfunction()
