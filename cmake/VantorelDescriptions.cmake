# Manual pages and completions. `vantorel` generates them from its tables of both programs' arguments.
include(GNUInstallDirs)

# vantorel_describe(PROGRAM [OPTION...]): generates and installs the manual pages, one in each language, and
# the completions of a program. OPTION... select the program on `vantorel`'s command line.
function(vantorel_describe program)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/descriptions")
  set(in_english "${CMAKE_COMMAND}" -E env --unset=LANGUAGE LC_ALL=C $<TARGET_FILE:vantorel>)
  set(page "${folder}/${program}.1")
  set(bash "${folder}/${program}.bash")
  set(zsh "${folder}/_${program}")
  set(fish "${folder}/${program}.fish")
  add_custom_command(OUTPUT "${page}" "${bash}" "${zsh}" "${fish}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
    COMMAND ${in_english} manpage ${ARGN} > "${page}"
    COMMAND ${in_english} completions bash ${ARGN} > "${bash}"
    COMMAND ${in_english} completions zsh ${ARGN} > "${zsh}"
    COMMAND ${in_english} completions fish ${ARGN} > "${fish}"
    DEPENDS vantorel
    VERBATIM)
  install(FILES "${page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  install(FILES "${bash}" RENAME ${program}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${zsh}" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
  install(FILES "${fish}" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")

  set(translated_pages)
  file(GLOB translations CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/vantorel_*.ts")
  foreach(translation IN LISTS translations)
    string(REGEX REPLACE "^.*/vantorel_(.*)[.]ts$" "\\1" language "${translation}")
    set(translated_page "${folder}/${language}/${program}.1")
    add_custom_command(OUTPUT "${translated_page}"
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}/${language}"
      COMMAND "${CMAKE_COMMAND}" -E env --unset=LANGUAGE LC_ALL=${language}
        $<TARGET_FILE:vantorel> manpage ${ARGN} > "${translated_page}"
      DEPENDS vantorel "${translation}"
      VERBATIM)
    install(FILES "${translated_page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/${language}/man1")
    list(APPEND translated_pages "${translated_page}")
  endforeach()
  add_custom_target(${program}-descriptions ALL
    DEPENDS "${page}" "${bash}" "${zsh}" "${fish}" ${translated_pages})
endfunction()
