# Writes OUT = root { ORRERY { <each fragment of FRAGMENTS> } }.
file(WRITE ${OUT} "root {\n    ORRERY {\n")
foreach(fragment IN LISTS FRAGMENTS)
  file(READ ${fragment} text)
  file(APPEND ${OUT} "${text}\n")
endforeach()
file(APPEND ${OUT} "    }\n}\n")
