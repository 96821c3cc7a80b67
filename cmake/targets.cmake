# kurvo_library(NAME SOURCES files... LINKS libraries...): one static library a folder, under the name kurvo_NAME.
# The LINKS lines are the architecture: a folder sees its own headers and those of the libraries it names.
function(kurvo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(kurvo_${name} STATIC ${ARG_SOURCES})
  target_include_directories(kurvo_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(kurvo_${name} PUBLIC ${ARG_LINKS} PRIVATE kurvo_warnings)
  kurvo_precompile(kurvo_${name})
endfunction()

# kurvo_program(NAME SOURCES files... LINKS libraries...)
function(kurvo_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} kurvo_warnings)
  kurvo_precompile(${name})
endfunction()

# kurvo_test(FOLDER SOURCES files... LINKS libraries...): the QtTest program of one folder, named FOLDER_test.
function(kurvo_test folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  kurvo_program(${folder}_test SOURCES ${ARG_SOURCES} LINKS ${ARG_LINKS} Qt6::Test)
  set_target_properties(${folder}_test PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${folder} COMMAND ${folder}_test)
  set_tests_properties(${folder} PROPERTIES TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}")
endfunction()

# kurvo_test_on_server(FOLDER [functions...]): the same once more, or some of it, with the files on a database server.
function(kurvo_test_on_server folder)
  add_test(NAME ${folder}_mariadb COMMAND ${folder}_test ${ARGN})
  set_tests_properties(${folder}_mariadb PROPERTIES TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR};KURVO_TEST_ENGINE=mariadb")
endfunction()

# One lean precompiled header for all: it halves the compile time of a file.
function(kurvo_precompile target)
  if(NOT TARGET kurvo_pch)
    file(WRITE ${CMAKE_BINARY_DIR}/pch/pch.cpp "")
    add_library(kurvo_pch STATIC ${CMAKE_BINARY_DIR}/pch/pch.cpp)
    set_target_properties(kurvo_pch PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    target_link_libraries(kurvo_pch PRIVATE Qt6::Widgets kurvo_warnings)
    target_precompile_headers(kurvo_pch PRIVATE
      <QApplication> <QCheckBox> <QComboBox> <QDate> <QDateEdit> <QFrame> <QHash> <QImage> <QLabel> <QLineEdit>
      <QPushButton> <QRadioButton> <QString> <QStringList> <QTableView> <QTextEdit> <QWidget>
      <cstdint> <functional> <memory> <optional> <stdexcept> <string> <vector>)
  endif()
  target_precompile_headers(${target} REUSE_FROM kurvo_pch)
  target_link_libraries(${target} PRIVATE Qt6::Widgets)
endfunction()
