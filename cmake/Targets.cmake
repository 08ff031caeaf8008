# What every target of this project has in common.

function(skerrymoor_compile_settings TARGET)
  target_compile_features(${TARGET} PUBLIC cxx_std_17)
  target_compile_definitions(${TARGET} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                               QT_USE_QSTRINGBUILDER)
  target_compile_options(${TARGET} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion)
  if(SKERRYMOOR_DEVELOPER)
    target_compile_options(${TARGET} PRIVATE -Werror)
  endif()
  set_target_properties(${TARGET} PROPERTIES AUTOMOC ON CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON
                                             CXX_EXTENSIONS OFF)
endfunction()

# One static library per layer, made of all files in the folders of that layer.
function(skerrymoor_add_layer LAYER)
  set(target skerrymoor_${LAYER})
  set(sources)
  set(includes)
  foreach(folder IN LISTS SKERRYMOOR_FOLDERS_${LAYER})
    set(path ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    file(GLOB files CONFIGURE_DEPENDS ${path}/*.cpp ${path}/*.h)
    if(files)
      list(APPEND sources ${files})
      list(APPEND includes ${path})
    endif()
  endforeach()
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC ${includes})
  skerrymoor_compile_settings(${target})
  # Ninja looks for changes only in the files that moc saw last time; this names the new ones, and
  # the list of all files, which is the first to know of a new folder.
  set(list ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${target}_autogen.dir/AutogenInfo.json)
  set_target_properties(${target} PROPERTIES AUTOGEN_TARGET_DEPENDS "${sources};${list}")
endfunction()

# Adds a test that never touches the settings and data of the user: it has a home of its own, empty
# at the start of every run, in which it works. DISPLAY: offscreen, or xvfb for tests that need a
# window system.
function(skerrymoor_register_test NAME DISPLAY)
  set(home ${CMAKE_CURRENT_BINARY_DIR}/home/${NAME})
  file(MAKE_DIRECTORY ${home})
  set(suppressions ${PROJECT_SOURCE_DIR}/tests/lsan.supp)
  set(environment HOME=${home} XDG_CONFIG_HOME=${home}/config XDG_DATA_HOME=${home}/data
      XDG_RUNTIME_DIR=${home}/run LC_ALL=C.UTF-8 UBSAN_OPTIONS=print_stacktrace=1
      LSAN_OPTIONS=suppressions=${suppressions}:print_suppressions=0)
  set(display)
  if(DISPLAY STREQUAL xvfb)
    set(display xvfb-run -a -s "-screen 0 1600x1200x24")
  else()
    list(APPEND environment QT_QPA_PLATFORM=offscreen)
  endif()
  add_test(NAME ${NAME} COMMAND ${PROJECT_SOURCE_DIR}/tests/in_empty_home ${home} ${display}
                                $<TARGET_FILE:${NAME}> ${ARGN})
  set_tests_properties(${NAME} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300
                                          WORKING_DIRECTORY ${home})
endfunction()
