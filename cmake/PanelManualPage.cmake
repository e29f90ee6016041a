# cmake -D PROGRAM=vantorel-panel -D VERSION=NUMBER -D PAGE=FILE -P PanelManualPage.cmake
# Writes the panel's manual page from its own help.
execute_process(COMMAND "${PROGRAM}" --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
if(NOT help MATCHES "^[^\n]*\n(.*)\n\nOptions:\n(.*)\n$")
  message(FATAL_ERROR "The help of ${PROGRAM} has another form than is known here:\n${help}")
endif()
set(description "${CMAKE_MATCH_1}")
set(options "${CMAKE_MATCH_2}")

# In a list ";" parts elements, and brackets keep them together.
string(ASCII 31 semicolon)
foreach(text IN ITEMS description options)
  string(REPLACE "\\" "\\(rs" ${text} "${${text}}")
  string(REPLACE "-" "\\-" ${text} "${${text}}")
  string(REPLACE "[" "\\(lB" ${text} "${${text}}")
  string(REPLACE "]" "\\(rB" ${text} "${${text}}")
  string(REPLACE ";" "${semicolon}" ${text} "${${text}}")
endforeach()

set(entries "")
string(REPLACE "\n" ";" lines "${options}")
foreach(line IN LISTS lines)
  if(line MATCHES "^  (\\\\-\\\\-[^ ]+)( <([^>]+)>)? +(.*)$")
    string(APPEND entries ".TP\n.B ${CMAKE_MATCH_1}")
    set(text "${CMAKE_MATCH_4}")
    if(CMAKE_MATCH_3)
      string(APPEND entries " \\fI${CMAKE_MATCH_3}\\fP")
    endif()
    string(APPEND entries "\n${text}\n")
  else()
    string(STRIP "${line}" line)
    string(APPEND entries "${line}\n")
  endif()
endforeach()

foreach(text IN ITEMS description entries)
  string(REPLACE "${semicolon}" ";" ${text} "${${text}}")
endforeach()
file(WRITE "${PAGE}" ".TH VANTOREL\\-PANEL 1 \"\" \"Vantorel ${VERSION}\" \"User Commands\"
.SH NAME
vantorel\\-panel \\- a colour panel with pages by plug\\-ins
.SH SYNOPSIS
.B vantorel\\-panel
.RI [ option ...]
.SH DESCRIPTION
${description}
.SH OPTIONS
${entries}.SH EXIT STATUS
.TP
.B 0
Done.
.TP
.B 1
The user left the pick; a picture could not be written; there is no display.
.TP
.B 2
An option is wrong.
.TP
.B 3
Picking or copying is not possible here; standard error says why.
.SH FILES
.TP
.I $XDG_DATA_HOME/Vantorel/
Settings, colour lists and plug\\-ins of the user;
.I ~/.local/share/Vantorel/
where the variable is not set.
.SH SEE ALSO
.BR vantorel (1)
")
