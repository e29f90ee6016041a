# Runs clang-tidy on each file as it is compiled, so that a second run checks only changed files. The
# preset "check" enables it.
option(VANTOREL_CLANG_TIDY "Run clang-tidy on each compiled file" OFF)

if(VANTOREL_CLANG_TIDY)
  find_program(VANTOREL_CLANG_TIDY_PROGRAM clang-tidy REQUIRED)
  set(digests "")
  foreach(choice IN ITEMS .clang-tidy bench/.clang-tidy tests/.clang-tidy)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${choice}")
    file(MD5 "${PROJECT_SOURCE_DIR}/${choice}" digest)
    string(APPEND digests ${digest})
  endforeach()
  string(MD5 digest "${digests}")
  # The digest is part of the command line, so that changing the checks re-runs them on every file.
  set(CMAKE_CXX_CLANG_TIDY "${VANTOREL_CLANG_TIDY_PROGRAM}" --quiet --extra-arg=-DVANTOREL_CHECKS_${digest})
  # Generated files are not checked. clang-tidy rejects an empty list, so one harmless check stays enabled.
  file(WRITE "${CMAKE_BINARY_DIR}/.clang-tidy" "Checks: '-*,llvm-twine-local'\n")
endif()
