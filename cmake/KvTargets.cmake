# SPDX-License-Identifier: MIT
# One way to declare a target: warnings, visibility, Qt strictness and the direction of dependencies
# are the same for all.

option(KV_WERROR "Treat warnings as errors" ON)
set(KV_TEST_OPTIONS "" CACHE STRING "Compiler options of the tests alone, behind those of the build type")

# The folders from the ground up. A target links only what stands before it, and nothing of the module
# links the stand-in host.
set(KV_MODULE_LAYERS
    host_drawing host_kernel host_widgets contract plugins_frame plugins_valuetext plugins_layer
    plugins_linestyle plugins_textstyle plugins_dimstyle manager_gathering dialogs manager commands
    KvStandards)
set(KV_STANDALONE_LAYERS
    standalone_dxf standalone_drawing standalone_picture standalone_kernel standalone_widgets
    standalone_batch standalone_desktop)

function(kv_require_direction NAME)
  list(FIND KV_MODULE_LAYERS ${NAME} MODULE_AT)
  list(FIND KV_STANDALONE_LAYERS ${NAME} STANDALONE_AT)
  if(MODULE_AT EQUAL -1 AND STANDALONE_AT EQUAL -1)
    message(FATAL_ERROR "${NAME} has no place in the order of layers (cmake/KvTargets.cmake)")
  endif()
  foreach(DEPENDENCY IN LISTS ARGN)
    list(FIND KV_MODULE_LAYERS ${DEPENDENCY} BELOW_IN_MODULE)
    list(FIND KV_STANDALONE_LAYERS ${DEPENDENCY} BELOW_IN_STANDALONE)
    if(NOT BELOW_IN_STANDALONE EQUAL -1 AND NOT BELOW_IN_STANDALONE LESS STANDALONE_AT)
      message(FATAL_ERROR "${NAME} must not depend on ${DEPENDENCY}: wrong direction")
    endif()
    if(NOT MODULE_AT EQUAL -1 AND NOT BELOW_IN_MODULE EQUAL -1
       AND NOT BELOW_IN_MODULE LESS MODULE_AT)
      message(FATAL_ERROR "${NAME} must not depend on ${DEPENDENCY}: wrong direction")
    endif()
  endforeach()
endfunction()

function(kv_set_compile_rules NAME)
  target_compile_options(
    ${NAME}
    PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang>:
            -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wold-style-cast
            -Woverloaded-virtual
            -Wnon-virtual-dtor
            -Wcast-qual
            -Wundef
            -Wmissing-declarations>
            $<$<CXX_COMPILER_ID:Clang>:-Wno-missing-declarations>
            $<$<AND:$<BOOL:${KV_WERROR}>,$<CXX_COMPILER_ID:GNU,Clang>>:-Werror>)
  target_compile_definitions(
    ${NAME} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                    QT_NO_JAVA_STYLE_ITERATORS QT_USE_QSTRINGBUILDER)
  set_target_properties(
    ${NAME}
    PROPERTIES CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON
               POSITION_INDEPENDENT_CODE ON)
endfunction()

# kv_add_library(NAME <target> HEADERS <...> [SOURCES <...>] [DEPENDS <...>])
# Exports its own folder only. Without sources it is a set of declarations.
function(kv_add_library)
  cmake_parse_arguments(ARG "" "NAME" "HEADERS;SOURCES;DEPENDS" ${ARGN})
  kv_require_direction(${ARG_NAME} ${ARG_DEPENDS})
  if(ARG_SOURCES)
    add_library(${ARG_NAME} STATIC ${ARG_SOURCES})
    kv_set_compile_rules(${ARG_NAME})
    set(REACH PUBLIC)
  else()
    add_library(${ARG_NAME} INTERFACE)
    set(REACH INTERFACE)
  endif()
  target_sources(
    ${ARG_NAME}
    ${REACH}
    FILE_SET
    HEADERS
    BASE_DIRS
    ${CMAKE_CURRENT_SOURCE_DIR}
    FILES
    ${ARG_HEADERS})
  target_link_libraries(${ARG_NAME} ${REACH} ${ARG_DEPENDS})
endfunction()

# kv_add_module(NAME <target> SOURCES <...> EXPORTS <map> [HEADERS <...>] [DEPENDS <...>])
# What a host loads at run time. It exports what the map lists; what it needs of the host it finds in
# the program that loads it.
function(kv_add_module)
  cmake_parse_arguments(ARG "" "NAME;EXPORTS" "HEADERS;SOURCES;DEPENDS" ${ARGN})
  kv_require_direction(${ARG_NAME} ${ARG_DEPENDS})
  add_library(${ARG_NAME} MODULE ${ARG_SOURCES} ${ARG_HEADERS})
  kv_set_compile_rules(${ARG_NAME})
  set(MAP ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_EXPORTS})
  # Beside the programs, where those that load it look.
  set_target_properties(${ARG_NAME} PROPERTIES PREFIX "" LINK_DEPENDS ${MAP}
                                               LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  target_link_options(${ARG_NAME} PRIVATE -Wl,--version-script=${MAP})
  target_link_libraries(${ARG_NAME} PRIVATE ${ARG_DEPENDS})
endfunction()

# kv_add_program(NAME <target> SOURCES <...> [HEADERS <...>] [DEPENDS <...>])
function(kv_add_program)
  cmake_parse_arguments(ARG "" "NAME" "HEADERS;SOURCES;DEPENDS" ${ARGN})
  add_executable(${ARG_NAME} ${ARG_SOURCES} ${ARG_HEADERS})
  kv_set_compile_rules(${ARG_NAME})
  target_link_libraries(${ARG_NAME} PRIVATE ${ARG_DEPENDS})
endfunction()

# kv_serve_modules(<program>)
# The program loads modules: all of the host is linked, and modules can reach what is declared for
# them.
function(kv_serve_modules NAME)
  set(HOST standalone_dxf standalone_drawing standalone_kernel standalone_widgets)
  set(ARCHIVES ${HOST})
  list(TRANSFORM ARCHIVES REPLACE "(.+)" "$<TARGET_FILE:\\1>")
  # Ahead of all else, so that where the same archives come again nothing of them is missing.
  target_link_options(${NAME} BEFORE PRIVATE LINKER:--whole-archive ${ARCHIVES} LINKER:--no-whole-archive)
  set_target_properties(${NAME} PROPERTIES ENABLE_EXPORTS ON)
  target_link_libraries(${NAME} PRIVATE ${HOST})
endfunction()

# kv_add_tests(NAME <target> SOURCES <...> DEPENDS <...> [WIDGETS])
# One program a folder; every test in it is known to ctest by its own name. WIDGETS: the tests get a
# window system that needs no display.
function(kv_add_tests)
  cmake_parse_arguments(ARG "WIDGETS" "NAME" "SOURCES;DEPENDS" ${ARGN})
  if(ARG_WIDGETS)
    set(MAIN test_widgets)
    set(ENVIRONMENT ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  else()
    set(MAIN GTest::gtest_main)
    set(ENVIRONMENT)
  endif()
  kv_add_program(NAME ${ARG_NAME} SOURCES ${ARG_SOURCES} DEPENDS ${ARG_DEPENDS} GTest::gmock ${MAIN})
  target_compile_options(${ARG_NAME} PRIVATE ${KV_TEST_OPTIONS})
  gtest_discover_tests(${ARG_NAME} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300 ${ENVIRONMENT})
endfunction()
