# FFTW in double precision with its threads: the target FFTW3::fftw3.

find_path(FFTW3_INCLUDE_DIR fftw3.h)
find_library(FFTW3_LIBRARY fftw3)
find_library(FFTW3_THREADS_LIBRARY fftw3_threads)
mark_as_advanced(FFTW3_INCLUDE_DIR FFTW3_LIBRARY FFTW3_THREADS_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(FFTW3 REQUIRED_VARS FFTW3_LIBRARY FFTW3_THREADS_LIBRARY
                                                      FFTW3_INCLUDE_DIR)

if(FFTW3_FOUND AND NOT TARGET FFTW3::fftw3)
  add_library(FFTW3::fftw3 INTERFACE IMPORTED)
  target_include_directories(FFTW3::fftw3 INTERFACE ${FFTW3_INCLUDE_DIR})
  target_link_libraries(FFTW3::fftw3 INTERFACE ${FFTW3_THREADS_LIBRARY} ${FFTW3_LIBRARY})
endif()
