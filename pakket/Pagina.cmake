# Writes the manual as a page for the browser; each heading can be gone to by its words.
# cmake -DCMARK=... -DBRON=... -DUITVOER=... -P Pagina.cmake
execute_process(COMMAND ${CMARK} --unsafe --extension table ${BRON}
  OUTPUT_VARIABLE inhoud RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${CMARK} ${BRON}: ${status}")
endif()

# "Uw eerste familie" is the place "uw-eerste-familie".
while(inhoud MATCHES "<(h[1-6])>([^\n]*)</h[1-6]>")
  set(graad ${CMAKE_MATCH_1})
  set(kop "${CMAKE_MATCH_2}")
  string(REGEX REPLACE "<[^>]*>|&[a-z]+;" "" plek "${kop}")
  string(TOLOWER "${plek}" plek)
  string(REGEX REPLACE "[!-,./:-@{-~]" "" plek "${plek}")
  string(REPLACE " " "-" plek "${plek}")
  string(REPLACE "<${graad}>${kop}</" "<${graad} id=\"${plek}\">${kop}</" inhoud "${inhoud}")
endwhile()

file(WRITE ${UITVOER} "<!DOCTYPE html>
<html lang=\"nl\">
<head>
<meta charset=\"utf-8\">
<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">
<title>Handleiding van LB77</title>
<link rel=\"stylesheet\" href=\"handleiding.css\">
</head>
<body>
${inhoud}</body>
</html>
")
