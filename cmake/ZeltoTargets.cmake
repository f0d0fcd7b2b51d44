# SPDX-License-Identifier: GPL-3.0-or-later
# How every target of the project is built, and the three functions that make them. A folder's sources are all
# .cpp files in it: a file belongs to the target of the folder it lies in.
include_guard()
find_package(Threads REQUIRED)

add_library(zelto_build_options INTERFACE)
target_compile_features(zelto_build_options INTERFACE cxx_std_20)
target_compile_options(zelto_build_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wundef
  $<$<BOOL:${CMAKE_UNITY_BUILD}>:-Wno-shadow>  # of a file that happens to be compiled along
  $<$<BOOL:${ZELTO_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(zelto_build_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400 ZELTO_VERSION="${PROJECT_VERSION}")
target_include_directories(zelto_build_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_link_libraries(zelto_build_options INTERFACE Threads::Threads)
if(ZELTO_SANITIZE)
  target_compile_options(zelto_build_options INTERFACE -fsanitize=${ZELTO_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=undefined)  # what is only printed fails no test
  target_link_options(zelto_build_options INTERFACE -fsanitize=${ZELTO_SANITIZE})
endif()

# What nearly every source file includes, compiled once for all libraries. The preset "check" does without precompiled
# headers, so that a folder that relies on another's includes does not go unnoticed. The presets that are built whole
# rather than again and again (all but "dev" and "fuzz") also compile all sources of a room at once (CMAKE_UNITY_BUILD),
# in a quarter of the time: names in the unnamed namespaces of a room must differ.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 0)

# zelto_unite_folders(TARGET SOURCE...): with CMAKE_UNITY_BUILD, what is compiled at once are the sources of one folder,
# in a target of several.
function(zelto_unite_folders target)
  foreach(source IN LISTS ARGN)
    cmake_path(GET source PARENT_PATH folder)
    string(MAKE_C_IDENTIFIER "${folder}" folder)
    set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${folder}")
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
endfunction()

function(zelto_add_headers name)
  file(WRITE "${CMAKE_BINARY_DIR}/headers/${name}.cpp" "")
  add_library(${name} OBJECT "${CMAKE_BINARY_DIR}/headers/${name}.cpp")
  target_precompile_headers(${name} PRIVATE <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QImage> <QPainter>
    <QString> <QStringList> <algorithm> <array> <cmath> <functional> <memory> <optional> <utility> <vector> ${ARGN})
endfunction()

# zelto_add_library(NAME LIBRARY...): the static library zelto_NAME of this folder, linked to LIBRARY...
function(zelto_add_library name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(zelto_${name} STATIC ${sources})
  set_target_properties(zelto_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(zelto_${name} PUBLIC zelto_build_options ${ARGN})
  target_precompile_headers(zelto_${name} REUSE_FROM zelto_common_headers)
endfunction()

# zelto_add_program(NAME LIBRARY...): the program NAME of this folder, linked to LIBRARY...
function(zelto_add_program name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE zelto_build_options ${ARGN})
  target_precompile_headers(${name} REUSE_FROM zelto_common_headers)
endfunction()

# zelto_add_tests(NAME LIBRARY...): the test program zelto_NAME_tests of this folder and those in it, each test known to
# CTest. Built with little optimisation and with one precompiled header for all test programs.
function(zelto_add_tests name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp)
  add_executable(zelto_${name}_tests ${sources})
  zelto_unite_folders(zelto_${name}_tests ${sources})
  target_compile_options(zelto_${name}_tests PRIVATE -Og)
  target_precompile_headers(zelto_${name}_tests REUSE_FROM zelto_test_headers)
  target_link_libraries(zelto_${name}_tests PRIVATE zelto_build_options zelto_test_support ${ARGN})
  gtest_discover_tests(zelto_${name}_tests TEST_PREFIX ${name}. DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300)
endfunction()

# zelto_add_manual(PROGRAM): the manual pages of a program and its completions, made by the program itself at build time,
# in share/ of the build folder as they are installed below a prefix's share/. A language need not be installed to be
# spoken. What libraries leak is no reason for a build with sanitizers to fail.
function(zelto_add_manual program)
  set(share "${CMAKE_BINARY_DIR}/share")
  set(outputs)
  foreach(product man:en:man/man1/${program}.1 man:de:man/de/man1/${program}.1
                  bash:en:bash-completion/completions/${program} zsh:en:zsh/site-functions/_${program}
                  fish:en:fish/vendor_completions.d/${program}.fish)
    string(REGEX MATCH "^([a-z]+):([a-z]+):(.+)$" product ${product})
    set(kind ${CMAKE_MATCH_1})
    set(language ${CMAKE_MATCH_2})
    set(path ${CMAKE_MATCH_3})
    get_filename_component(folder "${share}/${path}" DIRECTORY)
    add_custom_command(OUTPUT "${share}/${path}"
      COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
      COMMAND ${CMAKE_COMMAND} -E env LC_ALL= LC_CTYPE=C.UTF-8 LC_MESSAGES=${language} LANGUAGE=${language}
              ASAN_OPTIONS=detect_leaks=0 $<TARGET_FILE:${program}> --generate ${kind} > "${share}/${path}"
      DEPENDS ${program} VERBATIM)
    list(APPEND outputs "${share}/${path}")
  endforeach()
  add_custom_target(${program}-manual ALL DEPENDS ${outputs})
endfunction()
