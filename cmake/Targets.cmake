# What every target of this project has in common.

function(skerrymoor_compile_settings TARGET)
  target_compile_features(${TARGET} PUBLIC cxx_std_17)
  target_compile_definitions(${TARGET} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                               QT_USE_QSTRINGBUILDER)
  target_compile_options(${TARGET} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion)
  if(SKERRYMOOR_DEVELOPER)
    target_compile_options(${TARGET} PRIVATE -Werror)
  endif()
  set_target_properties(${TARGET} PROPERTIES AUTOMOC ON CXX_EXTENSIONS OFF)
  skerrymoor_moc_new_files(${TARGET})
endfunction()

# With Ninja, CMake does not run moc again when a target has gained files and no old one has
# changed, as after a pull. Without its time stamp it has to.
function(skerrymoor_moc_new_files TARGET)
  get_target_property(sources ${TARGET} SOURCES)
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_sources.txt)
  set(known "")
  if(EXISTS ${list})
    file(READ ${list} known)
  endif()
  if(NOT "${known}" STREQUAL "${sources}")
    file(WRITE ${list} "${sources}")
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_autogen/timestamp)
  endif()
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
  # Ninja looks for changes only in the files that moc saw last time; this names the new ones.
  set_target_properties(${target} PROPERTIES AUTOGEN_TARGET_DEPENDS "${sources}")
endfunction()
