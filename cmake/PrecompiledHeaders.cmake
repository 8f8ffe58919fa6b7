# SPDX-License-Identifier: Apache-2.0
# Precompiled headers: those of the standard library, of Qt and of GoogleTest, which cost more time
# than the files that include them. Every file still includes what it uses; a build without them
# (CMAKE_DISABLE_PRECOMPILE_HEADERS) shows missing includes.

set(standard_headers
    <algorithm>
    <array>
    <charconv>
    <cmath>
    <cstdint>
    <filesystem>
    <functional>
    <map>
    <memory>
    <optional>
    <span>
    <string>
    <string_view>
    <utility>
    <vector>)
set(gui_headers
    <QByteArray>
    <QColor>
    <QFont>
    <QGuiApplication>
    <QImage>
    <QObject>
    <QPainter>
    <QString>)
set(widget_headers
    <QAbstractTableModel>
    <QApplication>
    <QComboBox>
    <QDialog>
    <QLineEdit>
    <QMainWindow>
    <QMenu>
    <QPushButton>
    <QTableView>
    <QTreeWidget>
    <QWidget>)
set(test_headers <gmock/gmock.h> <gtest/gtest.h>)
if(TARSIL_TESTS)
  find_package(GTest REQUIRED)
endif()

# tarsil_precompiled_set(NAME HEADERS ... LINK ...): precompiled headers for targets with the same
# flags.
function(tarsil_precompiled_set name)
  cmake_parse_arguments(SET "" "" "HEADERS;LINK" ${ARGN})
  set(target tarsil_precompiled_${name})
  add_library(${target} OBJECT EXCLUDE_FROM_ALL ${PROJECT_SOURCE_DIR}/cmake/Empty.cpp)
  target_link_libraries(${target} PRIVATE tarsil_compile_options ${SET_LINK})
  target_precompile_headers(${target} PRIVATE ${SET_HEADERS})
endfunction()

# Compiles the files of TARGET with the set NAME.
function(tarsil_precompile target name)
  target_precompile_headers(${target} REUSE_FROM tarsil_precompiled_${name})
endfunction()

tarsil_precompiled_set(plain HEADERS ${standard_headers})
if(TARSIL_CORE_ONLY)
  if(TARSIL_TESTS)
    tarsil_precompiled_set(tests HEADERS ${standard_headers} ${test_headers} LINK GTest::gtest GTest::gmock)
  endif()
  return()
endif()
tarsil_precompiled_set(gui HEADERS ${standard_headers} ${gui_headers} LINK Qt6::Gui)
tarsil_precompiled_set(widgets HEADERS ${standard_headers} ${gui_headers} ${widget_headers} LINK Qt6::Widgets)
if(TARSIL_TESTS)
  tarsil_precompiled_set(
    tests HEADERS ${standard_headers} ${gui_headers} ${test_headers} LINK Qt6::Gui GTest::gtest GTest::gmock)
  tarsil_precompiled_set(
    widget_tests
    HEADERS ${standard_headers} ${gui_headers} ${widget_headers} ${test_headers}
    LINK Qt6::Widgets GTest::gtest GTest::gmock)
endif()
