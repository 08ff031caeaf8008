# cmake -D SOURCE=<repository> -P format.cmake: fails when clang-format would change a file.

find_program(CLANG_FORMAT NAMES clang-format REQUIRED)
set(files)
foreach(folder src tests benchmarks tools)
  file(GLOB_RECURSE found ${SOURCE}/${folder}/*.cpp ${SOURCE}/${folder}/*.h)
  list(APPEND files ${found})
endforeach()
if(NOT files)
  message(FATAL_ERROR "No source files in \"${SOURCE}\"")
endif()

execute_process(COMMAND ${CLANG_FORMAT} --style=file --dry-run -Werror ${files}
                RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "Not formatted; run: clang-format -i <file>")
endif()
list(LENGTH files count)
message("${count} files are formatted")
