# Compiles a folder of pages with COMPILER into OUTPUT, in a copy of the FOLDER under WORK. The compiler's status says
# little: whether there is a file, and one that is not empty, is what counts. The SHA-256 of the file is added to its
# end, by which the reader knows that it is whole.
file(REMOVE_RECURSE ${WORK})
file(REMOVE ${OUTPUT})
file(COPY ${FOLDER}/ DESTINATION ${WORK})
file(GLOB project RELATIVE ${WORK} ${WORK}/*.hhp)
execute_process(COMMAND ${COMPILER} ${project} WORKING_DIRECTORY ${WORK} OUTPUT_VARIABLE said ERROR_VARIABLE said)
file(GLOB compiled ${WORK}/*.chm)
set(size 0)
if(compiled)
  file(SIZE ${compiled} size)
endif()
if(size EQUAL 0)
  message(FATAL_ERROR "The help file could not be compiled:\n${said}")
endif()
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  # The compiler writes the time twice, into the head (big-endian) and as entry 10 of the system table, which comes
  # first. For the same help file from the same pages both are that of the source.
  execute_process(COMMAND perl -0777 -pi -e
    "substr($_, 16, 4) = pack('N', $ENV{SOURCE_DATE_EPOCH}); s/(\\x0a\\x00\\x04\\x00)..../$1 . pack('V', $ENV{SOURCE_DATE_EPOCH})/se"
    ${compiled} COMMAND_ERROR_IS_FATAL ANY)
endif()
file(SHA256 ${compiled} digest)
file(APPEND ${compiled} ${digest})
file(RENAME ${compiled} ${OUTPUT})
