# Runs clang-tidy on what is compiled, so that a second run checks only what has changed. The preset "tidy"
# enables it. That one compiles whole folders as one file: most of clang-tidy's time goes into headers, which
# are then read once a folder.
option(VANTOREL_CLANG_TIDY "Run clang-tidy on each compiled file" OFF)

if(VANTOREL_CLANG_TIDY)
  find_program(VANTOREL_CLANG_TIDY_PROGRAM clang-tidy REQUIRED)
  set(digests "")
  # clang-tidy looks for its choices beside and above the compiled file, and files of whole folders are in the
  # build folder.
  foreach(choice IN ITEMS .clang-tidy bench/.clang-tidy tests/.clang-tidy)
    configure_file("${PROJECT_SOURCE_DIR}/${choice}" "${CMAKE_BINARY_DIR}/${choice}" COPYONLY)
    file(MD5 "${PROJECT_SOURCE_DIR}/${choice}" digest)
    string(APPEND digests ${digest})
  endforeach()
  string(MD5 digest "${digests}")
  # The digest is part of the command line, so that changing the checks re-runs them on every file. The filter
  # leaves out generated files. Files of whole folders include sources.
  set(CMAKE_CXX_CLANG_TIDY "${VANTOREL_CLANG_TIDY_PROGRAM}" --quiet --extra-arg=-DVANTOREL_CHECKS_${digest}
    "--header-filter=^${PROJECT_SOURCE_DIR}/(bench|fuzz|src|tests|tools)/" --checks=-bugprone-suspicious-include)
endif()

# vantorel_check_moc(TARGET)
# In what moc writes, the parameters of signals have other names than in the class.
function(vantorel_check_moc target)
  if(VANTOREL_CLANG_TIDY)
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/.clang-tidy"
      "InheritParentConfig: true\nChecks: -readability-inconsistent-declaration-parameter-name\n")
  endif()
endfunction()
