# Static checks as a part of the build: each file goes through clang-tidy when it is compiled, so a
# second run looks only at what has changed. The preset "check" switches it on.
option(VANTOREL_CLANG_TIDY "Let clang-tidy look at each file that is compiled" OFF)

if(VANTOREL_CLANG_TIDY)
  find_program(VANTOREL_CLANG_TIDY_PROGRAM clang-tidy REQUIRED)
  set(digests "")
  foreach(choice IN ITEMS .clang-tidy bench/.clang-tidy tests/.clang-tidy)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${choice}")
    file(MD5 "${PROJECT_SOURCE_DIR}/${choice}" digest)
    string(APPEND digests ${digest})
  endforeach()
  string(MD5 digest "${digests}")
  # A changed command makes a file be looked at again, so the choice of checks is part of it.
  set(CMAKE_CXX_CLANG_TIDY "${VANTOREL_CLANG_TIDY_PROGRAM}" --quiet --extra-arg=-DVANTOREL_CHECKS_${digest})
  # What is generated is not ours to mend. A choice of no check at all is an error.
  file(WRITE "${CMAKE_BINARY_DIR}/.clang-tidy" "Checks: '-*,llvm-twine-local'\n")
endif()
