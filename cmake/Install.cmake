# Included only when this project is the top one.
# The program looks for icons/ and resources/ in ../share/skerrymoor, seen from its own folder.

cmake_path(SET data NORMALIZE ${CMAKE_INSTALL_BINDIR}/../share/skerrymoor)
set(share ${CMAKE_INSTALL_DATAROOTDIR})
set(id org.hollincollege.skerrymoor)
set(pictures FILES_MATCHING PATTERN *.png PATTERN *.jpg)

install(TARGETS skerrymoor RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY icons DESTINATION ${data} ${pictures})
if(EXISTS ${PROJECT_SOURCE_DIR}/resources)
  install(DIRECTORY resources DESTINATION ${data} ${pictures})
endif()
install(DIRECTORY examples DESTINATION ${data})

install(FILES packaging/${id}.desktop DESTINATION ${share}/applications)
install(FILES packaging/${id}.metainfo.xml DESTINATION ${share}/metainfo)
install(FILES icons/skerrymoor.svg DESTINATION ${share}/icons/hicolor/scalable/apps)
install(FILES icons/skerrymoor.png DESTINATION ${share}/icons/hicolor/256x256/apps)
foreach(size 48 128)
  install(FILES icons/skerrymoor-${size}.png RENAME skerrymoor.png
          DESTINATION ${share}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES README.md LICENSE DESTINATION ${share}/doc/skerrymoor)
install(DIRECTORY docs DESTINATION ${share}/doc/skerrymoor)
