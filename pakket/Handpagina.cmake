# Writes the manual page of lb77-cli: the lists of options and commands are what its --help tells.
# cmake -DPROGRAMMA=... -DSJABLOON=... -DUITVOER=... -DPROJECT_VERSION=... -P Handpagina.cmake
execute_process(COMMAND ${PROGRAMMA} --help OUTPUT_VARIABLE hulp RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAMMA} --help: ${status}")
endif()

# Each line of the list under `kop` becomes an item; the first word, or the words up to two blanks,
# is its name.
function(lijst kop naar)
  string(REGEX MATCH "\n${kop}:\n(  [^\n]*\n)+" deel "${hulp}")
  string(REGEX REPLACE ";" "\\\\;" deel "${deel}")
  string(REGEX MATCHALL "  [^\n]*\n" regels "${deel}")
  set(tekst "")
  foreach(regel IN LISTS regels)
    if(regel MATCHES "^  ([^ ].*[^ ])   *([^ ].*)\n$")
      string(REPLACE "-" "\\-" wat "${CMAKE_MATCH_1}")
      string(STRIP "${wat}" wat)
      string(APPEND tekst ".TP\n.B ${wat}\n${CMAKE_MATCH_2}\n")
    endif()
  endforeach()
  if(tekst STREQUAL "")
    message(FATAL_ERROR "${PROGRAMMA} --help has no list \"${kop}\"")
  endif()
  string(STRIP "${tekst}" tekst)
  set(${naar} "${tekst}" PARENT_SCOPE)
endfunction()

lijst(Keuzes KEUZES)
lijst(Opdrachten OPDRACHTEN)
configure_file(${SJABLOON} ${UITVOER} @ONLY)
