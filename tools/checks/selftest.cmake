# cmake -D SOURCE=<repository> -D QT_HEADERS=<folder> -D SCRATCH=<folder> -P selftest.cmake
#
# Shows that the checks find what they are there to find: each case is a small tree with one
# fault, and the check has to fail on it with the right words.

file(REMOVE_RECURSE ${SCRATCH})

# Runs a check over tree NAME; its output has to match EXPECTED, "" meaning that it passes.
function(expect CHECK NAME EXPECTED)
  execute_process(COMMAND ${CMAKE_COMMAND} -D SOURCE=${SCRATCH}/${NAME} -D QT_HEADERS=${QT_HEADERS}
                          -P ${CMAKE_CURRENT_LIST_DIR}/${CHECK}.cmake
                  RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(EXPECTED STREQUAL "")
    if(NOT result EQUAL 0)
      message(SEND_ERROR "${NAME}: passes no more:\n${out}")
    endif()
  elseif(result EQUAL 0 OR NOT out MATCHES "${EXPECTED}")
    message(SEND_ERROR "${NAME}: expected \"${EXPECTED}\", got result ${result}:\n${out}")
  endif()
endfunction()

function(tree NAME FILE TEXT)
  set(src ${SCRATCH}/${NAME}/src)
  file(WRITE ${src}/DataHandler/corethings.h "#include <QPainterPath>\n#include <vector>\n")
  file(WRITE ${src}/CutHandler/cutthings.h "#include \"corethings.h\"\n")
  file(WRITE ${src}/Visualizers/TimeIntensityGraph/Plot/plotthings.h "#include <QPainter>\n")
  file(WRITE ${src}/GUI/uithings.h "#include \"plotthings.h\"\n#include <QWidget>\n")
  file(WRITE ${src}/main.cpp "#include \"uithings.h\"\n")
  file(WRITE ${src}/${FILE} "${TEXT}")
endfunction()

function(layer_case NAME FILE TEXT EXPECTED)
  tree(${NAME} ${FILE} "${TEXT}")
  expect(layers ${NAME} "${EXPECTED}")
endfunction()

set(plot Visualizers/TimeIntensityGraph/Plot)
layer_case(sound DataHandler/a.cpp "#include \"corethings.h\"\n#include \"a.moc\"\n" "")
layer_case(core_plot DataHandler/a.cpp "#include \"plotthings.h\"\n" "core must not include plotthings.h")
layer_case(core_ui DataHandler/a.cpp "  #  include \"uithings.h\"\n" "core must not include uithings.h")
layer_case(plot_ui ${plot}/a.h "#include \"uithings.h\"\n" "plot must not include uithings.h")
layer_case(later_room DataHandler/a.cpp "#include \"cutthings.h\"\n"
           "must not include cutthings.h of core, CutHandler comes later")
layer_case(later_window CutHandler/Ui/a.h "#include \"uithings.h\"\n"
           "must not include uithings.h of ui, GUI comes later")
layer_case(earlier_room CutHandler/a.cpp "#include \"corethings.h\"\n" "")
layer_case(core_painter DataHandler/a.cpp "#include <QPainter>\n" "core must not include <QPainter>")
layer_case(core_dialog DataHandler/a.cpp "#include <QDialog>\n" "core must not include <QDialog>")
layer_case(plot_widget ${plot}/a.cpp "#include <qwidget.h>\n" "plot must not include <qwidget.h>")
layer_case(plot_module ${plot}/a.cpp "#include <QtWidgets>\n" "plot must not include <QtWidgets>")
layer_case(plot_svg ${plot}/a.cpp "#include <QtSvg/QSvgGenerator>\n" "plot must not include <QtSvg")
layer_case(spelled GUI/a.cpp "#include <QtWidgets/QWidget>\n" "write <QName> in place")
layer_case(folder Elsewhere/a.cpp "" "Elsewhere/a.cpp: its folder is not in the table")
layer_case(loose a.cpp "" "a.cpp: its folder is not in the table")
layer_case(capital GUI/Window.cpp "" "file names are lower case")
layer_case(unknown GUI/a.cpp "#include \"nowhere.h\"\n" "no file in src/ is called nowhere.h")
layer_case(twice GUI/corethings.h "" "has the same name")

file(WRITE ${SCRATCH}/tidy/src/a.cpp "int a;\n")
file(WRITE ${SCRATCH}/untidy/src/a.cpp "int   a ;\n")
foreach(name tidy untidy)
  file(COPY ${SOURCE}/.clang-format DESTINATION ${SCRATCH}/${name})
endforeach()
expect(format tidy "")
expect(format untidy "Not formatted")
