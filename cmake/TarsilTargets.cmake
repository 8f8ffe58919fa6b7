# SPDX-License-Identifier: Apache-2.0
# Functions for libraries and tests: warnings, header checks, and the refusal of widgets below the
# windows.

add_library(tarsil_compile_options INTERFACE)
target_include_directories(tarsil_compile_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tarsil_compile_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
target_compile_definitions(
  tarsil_compile_options
  INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
            QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(TARSIL_SANITIZE)
  target_compile_options(
    tarsil_compile_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                     -fno-omit-frame-pointer)
  target_link_options(tarsil_compile_options INTERFACE -fsanitize=address,undefined)
endif()
if(TARSIL_FUZZ)
  target_compile_options(
    tarsil_compile_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                     -fno-sanitize-recover=all)
  target_link_options(tarsil_compile_options INTERFACE -fsanitize=address,undefined)
endif()

# tarsil_library(NAME [WINDOWS] [MOC] [LIGHT] HEADERS ... SOURCES ... LINK ...): the static library
# tarsil_NAME (alias tarsil::NAME) of the folder src/NAME. Only a WINDOWS library may link Qt
# Widgets; a MOC library has its own signals. WINDOWS and LIGHT libraries only connect what others
# compute and draw: a release optimises them less, which builds them in two thirds of the time.
function(tarsil_library name)
  cmake_parse_arguments(LIB "WINDOWS;MOC;LIGHT" "" "HEADERS;SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  set(target tarsil_${name})
  add_library(${target} STATIC ${LIB_SOURCES})
  add_library(tarsil::${name} ALIAS ${target})
  set_property(GLOBAL APPEND PROPERTY TARSIL_LIBRARIES ${name})
  list(TRANSFORM LIB_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/src/ OUTPUT_VARIABLE headers)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${headers})
  target_link_libraries(
    ${target}
    PUBLIC tarsil_compile_options ${LIB_LINK}
    PRIVATE ${LIB_PRIVATE_LINK})
  set_target_properties(${target} PROPERTIES TARSIL_WINDOWS "${LIB_WINDOWS}" TARSIL_LINKS
                                                                            "${LIB_LINK};${LIB_PRIVATE_LINK}")
  if(LIB_WINDOWS OR LIB_LIGHT)
    target_compile_options(${target} PRIVATE $<$<AND:$<CONFIG:Release>,$<CXX_COMPILER_ID:GNU,Clang>>:-O1>)
  endif()
  if(LIB_WINDOWS)
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
  else()
    set_target_properties(${target} PROPERTIES AUTOMOC "${LIB_MOC}")
    tarsil_refuse_widgets(${target} ${target})
  endif()

  set(links ${LIB_LINK} ${LIB_PRIVATE_LINK})
  if(LIB_WINDOWS)
    tarsil_precompile(${target} widgets)
  elseif("Qt6::Gui" IN_LIST links)
    tarsil_precompile(${target} gui)
  else()
    tarsil_precompile(${target} plain)
  endif()
endfunction()

# Fails the configuration when TARGET, which must not need a window, reaches Qt Widgets.
function(tarsil_refuse_widgets library target)
  get_target_property(links ${target} TARSIL_LINKS)
  foreach(link IN LISTS links)
    if(link STREQUAL "Qt6::Widgets" OR link STREQUAL "Qt::Widgets")
      message(FATAL_ERROR "${library} is below the windows and must not link Qt Widgets (through ${target}).")
    elseif(link MATCHES "^tarsil::(.+)$")
      tarsil_refuse_widgets(${library} tarsil_${CMAKE_MATCH_1})
    endif()
  endforeach()
endfunction()
