# cmake -D GENERATOR=<make_recording> -D EXAMPLES=<folder> -D SCRATCH=<folder> -P ...
# Makes the example anew and compares it with the one that is kept, byte for byte.

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
execute_process(COMMAND ${GENERATOR} --output ${SCRATCH} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "make_recording failed: ${result}")
endif()

file(GLOB made RELATIVE ${SCRATCH} ${SCRATCH}/*)
file(GLOB kept RELATIVE ${EXAMPLES} ${EXAMPLES}/*.csv ${EXAMPLES}/*.txt)
if(NOT made OR NOT "${made}" STREQUAL "${kept}")
  message(FATAL_ERROR "Made: ${made}\nKept: ${kept}")
endif()
foreach(file IN LISTS made)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${SCRATCH}/${file} ${EXAMPLES}/${file}
                  RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(SEND_ERROR "${file} differs; make it anew with make_recording --output examples")
  endif()
endforeach()
