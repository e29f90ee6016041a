# Manual pages and completions. `vantorel` generates them from its tables of both programs' arguments.
include(GNUInstallDirs)

# vantorel_describe(PROGRAM [OPTION...]): generates and installs the manual page and the completions of a
# program. OPTION... select the program on `vantorel`'s command line.
function(vantorel_describe program)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/descriptions")
  set(page "${folder}/${program}.1")
  set(bash "${folder}/${program}.bash")
  set(zsh "${folder}/_${program}")
  set(fish "${folder}/${program}.fish")
  add_custom_command(OUTPUT "${page}" "${bash}" "${zsh}" "${fish}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
    COMMAND vantorel manpage ${ARGN} > "${page}"
    COMMAND vantorel completions bash ${ARGN} > "${bash}"
    COMMAND vantorel completions zsh ${ARGN} > "${zsh}"
    COMMAND vantorel completions fish ${ARGN} > "${fish}"
    DEPENDS vantorel
    VERBATIM)
  add_custom_target(${program}-descriptions ALL DEPENDS "${page}" "${bash}" "${zsh}" "${fish}")
  install(FILES "${page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  install(FILES "${bash}" RENAME ${program}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${zsh}" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
  install(FILES "${fish}" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endfunction()
