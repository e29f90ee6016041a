# The user's manual: its files, and the address that the help button opens.
include(GNUInstallDirs)

set(VANTOREL_MANUAL_FOLDER "${PROJECT_SOURCE_DIR}/docs/manual")
set(VANTOREL_MANUAL_PAGE supportManual.htm)
# The pages of all languages and their pictures, relative to the folder.
file(GLOB VANTOREL_MANUAL_FILES CONFIGURE_DEPENDS RELATIVE "${VANTOREL_MANUAL_FOLDER}"
  "${VANTOREL_MANUAL_FOLDER}/*.htm" "${VANTOREL_MANUAL_FOLDER}/pictures/*.png"
  "${VANTOREL_MANUAL_FOLDER}/pictures/*/*.png")

# _vantorel_file_url(PATH OUT): sets OUT to the file:// address of a path. Bytes that an address cannot
# contain are escaped.
function(_vantorel_file_url path out)
  string(HEX "${path}" hex)
  string(REGEX MATCHALL ".." bytes "${hex}")
  set(url "file://")
  foreach(byte IN LISTS bytes)
    math(EXPR code "0x${byte}")
    if(code GREATER 32 AND code LESS 127)
      string(ASCII ${code} character)
    else()
      set(character "")
    endif()
    if(character MATCHES "^[A-Za-z0-9/._~-]$")
      string(APPEND url "${character}")
    else()
      string(TOUPPER "${byte}" byte)
      string(APPEND url "%${byte}")
    endif()
  endforeach()
  set(${out} "${url}" PARENT_SCOPE)
endfunction()

_vantorel_file_url("${CMAKE_INSTALL_FULL_DATADIR}/doc/vantorel/${VANTOREL_MANUAL_PAGE}" installed_manual_url)
set(VANTOREL_MANUAL_URL "" CACHE STRING
  "Address of the manual that the help button opens, ending in /${VANTOREL_MANUAL_PAGE}; empty for the installed page")

# The effective address. It is not cached, because it depends on the install prefix.
if(VANTOREL_MANUAL_URL STREQUAL "")
  set(VANTOREL_MANUAL_URL_IN_FORCE "${installed_manual_url}")
else()
  set(VANTOREL_MANUAL_URL_IN_FORCE "${VANTOREL_MANUAL_URL}")
endif()
if(NOT VANTOREL_MANUAL_URL_IN_FORCE MATCHES "^[a-z][a-z0-9+.-]*://[!-~]*/supportManual[.]htm$" OR
   VANTOREL_MANUAL_URL_IN_FORCE MATCHES "[\"\\\\]")
  message(FATAL_ERROR "VANTOREL_MANUAL_URL is \"${VANTOREL_MANUAL_URL_IN_FORCE}\"; set it to an address such as "
    "https://HOST/${VANTOREL_MANUAL_PAGE}, with spaces and non-ASCII characters escaped")
endif()

install(DIRECTORY "${VANTOREL_MANUAL_FOLDER}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/vantorel")
