# Exit statuses and output of lb77-cli, run as a program: -DPROGRAMMA=... -DMAP=...
file(REMOVE_RECURSE ${MAP})
file(MAKE_DIRECTORY ${MAP})

function(verwacht status patroon)
  execute_process(COMMAND ${PROGRAMMA} ${ARGN} RESULT_VARIABLE uitslag OUTPUT_VARIABLE uit
    ERROR_VARIABLE fout)
  if(NOT uitslag EQUAL status)
    message(SEND_ERROR "lb77-cli ${ARGN}: status ${uitslag}, not ${status}\n${uit}${fout}")
  endif()
  if(NOT "${uit}${fout}" MATCHES "${patroon}")
    message(SEND_ERROR "lb77-cli ${ARGN}: no '${patroon}' in\n${uit}${fout}")
  endif()
endfunction()

verwacht(0 "kwartierstaat" --help)
verwacht(2 "" )
verwacht(2 "" dans)
verwacht(2 "" --map ${MAP} kwartierstaat)
verwacht(2 "" --map ${MAP} kwartierstaat A 2 --zet MaxGen)
verwacht(2 "" --map ${MAP} --klok gisteren sets)
verwacht(2 "" --map ${MAP} speel ${MAP}/weg.txt)
verwacht(0 "nieuw IniBestand" --map ${MAP} nieuw PROEF "Mijn proef")
verwacht(0 "PROEF +Mijn proef +0 personen, 0 relaties" --map ${MAP} sets)
verwacht(1 "staat niet in de lijst" --map ${MAP} zoek WEG iets)
file(WRITE ${MAP}/draaiboek.txt "toon Statusbalk\n")
verwacht(0 "= Statusbalk .Actieve bestandenset: PROEF,Mijn proef." --map ${MAP}
  --klok "2026-11-21 12:00:00" speel ${MAP}/draaiboek.txt)

# A directory as the caller sees it, and output that cannot be written.
get_filename_component(BOVEN ${MAP} DIRECTORY)
get_filename_component(NAAM ${MAP} NAME)
execute_process(COMMAND ${PROGRAMMA} --map ${NAAM} sets WORKING_DIRECTORY ${BOVEN}
  RESULT_VARIABLE uitslag OUTPUT_VARIABLE uit)
if(uitslag OR NOT uit MATCHES "PROEF")
  message(SEND_ERROR "lb77-cli --map ${NAAM} sets: status ${uitslag}\n${uit}")
endif()
if(EXISTS /dev/full)
  execute_process(COMMAND ${PROGRAMMA} --map ${MAP} sets OUTPUT_FILE /dev/full
    RESULT_VARIABLE uitslag ERROR_VARIABLE fout)
  if(NOT uitslag EQUAL 1 OR NOT fout MATCHES "de uitvoer kon niet worden geschreven")
    message(SEND_ERROR "lb77-cli sets > /dev/full: status ${uitslag}\n${fout}")
  endif()
endif()
