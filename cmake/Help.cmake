# The manual as one compiled file.
find_program(FLUMEWISE_HELP_COMPILER NAMES chmcmd chmcmd-3.2.2 DOC "Compiles the help file")
if(NOT FLUMEWISE_HELP_COMPILER)
  message(STATUS "No help compiler (chmcmd): Flumewise is built without its help file")
endif()

# flumewise_help(manual docs/help build/flumewise.chm): a target that compiles the .hhp project of the folder. Without
# the compiler there is no such target.
function(flumewise_help target folder output)
  if(NOT FLUMEWISE_HELP_COMPILER)
    return()
  endif()
  file(GLOB_RECURSE pages CONFIGURE_DEPENDS ${folder}/*)
  add_custom_command(OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DCOMPILER=${FLUMEWISE_HELP_COMPILER} -DFOLDER=${folder} -DOUTPUT=${output}
      -DWORK=${CMAKE_CURRENT_BINARY_DIR}/${target} -P ${PROJECT_SOURCE_DIR}/cmake/CompileHelp.cmake
    DEPENDS ${pages} ${PROJECT_SOURCE_DIR}/cmake/CompileHelp.cmake
    COMMENT "Compiling the help file ${output}" VERBATIM)
  add_custom_target(${target} DEPENDS ${output})
endfunction()
