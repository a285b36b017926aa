# Puts the sounds, the help document and the initial data files into the program's folder. A data
# file that is already there belongs to the player and stays as it is; so does a link, wherever it
# leads.
#   cmake -DASSETS=... -DFOLDER=... -P StockFolder.cmake
file(COPY ${ASSETS}/sounds/ DESTINATION ${FOLDER} FILES_MATCHING PATTERN "*.wav")
if(EXISTS ${ASSETS}/help/ParlinoHelp.rtf)
  file(COPY ${ASSETS}/help/ParlinoHelp.rtf DESTINATION ${FOLDER})
endif()
file(GLOB dataFiles ${ASSETS}/data/*.dat)
foreach(dataFile IN LISTS dataFiles)
  cmake_path(GET dataFile FILENAME name)
  if(NOT EXISTS ${FOLDER}/${name} AND NOT IS_SYMLINK ${FOLDER}/${name})
    file(COPY ${dataFile} DESTINATION ${FOLDER})
  endif()
endforeach()
