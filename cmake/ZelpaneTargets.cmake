# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of the house shares, and one function for each kind of target.

add_library(zp_flags INTERFACE)
target_compile_options(zp_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor -Woverloaded-virtual
                                          -Werror -fno-math-errno
                                          -Wno-restrict) # GCC 12 reports it falsely on std::string's operator+
if(ZP_SANITIZE STREQUAL "address")
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=address,undefined)
    add_compile_definitions(ZP_SANITIZED)
elseif(ZP_SANITIZE STREQUAL "thread")
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
    add_compile_definitions(ZP_SANITIZED)
endif()

# zp_add_algorithms(ROOM FILES... [LINK libs]): plain functions over plain values. No Qt is in reach, so that a widget
# or the canvas cannot be included here even by mistake.
function(zp_add_algorithms room)
    cmake_parse_arguments(A "" "" "FILES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(zp_${room}_algorithms STATIC ${A_FILES})
    target_include_directories(zp_${room}_algorithms PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(zp_${room}_algorithms PUBLIC zp_platform_values ${A_LINK} PRIVATE zp_flags ${A_PRIVATE_LINK})
endfunction()

# zp_add_window(ROOM FILES...): a window controller with its .ui forms; stands above the canvas.
function(zp_add_window room)
    cmake_parse_arguments(A "" "" "FILES;LINK" ${ARGN})
    add_library(zp_${room}_window STATIC ${A_FILES})
    set_target_properties(zp_${room}_window PROPERTIES AUTOMOC ON AUTOUIC ON)
    target_link_libraries(zp_${room}_window PUBLIC zp_canvas ${A_LINK} PRIVATE zp_flags)
    target_precompile_headers(zp_${room}_window REUSE_FROM zp_canvas)
endfunction()

# zp_add_room(ROOM [WINDOW FILES...] [LINK libs] [PRIVATE_LINK libs]): what every room has. Its ZPCanvas*.cpp become part
# of the canvas; the window's files become a window; all other *.cpp are algorithms.
function(zp_add_room room)
    cmake_parse_arguments(A "" "" "WINDOW;LINK;PRIVATE_LINK" ${ARGN})
    file(GLOB algorithms CONFIGURE_DEPENDS *.cpp)
    file(GLOB operations CONFIGURE_DEPENDS ZPCanvas*.cpp)
    list(REMOVE_ITEM algorithms ${operations} ${A_WINDOW})
    zp_add_algorithms(${room} FILES ${algorithms} LINK ${A_LINK} PRIVATE_LINK ${A_PRIVATE_LINK})
    target_link_libraries(zp_canvas PUBLIC zp_${room}_algorithms)
    target_sources(zp_canvas PRIVATE ${operations})
    if(A_WINDOW)
        zp_add_window(${room} FILES ${A_WINDOW})
    endif()
endfunction()

# zp_add_tests(NAME FILES... LINK libs): one GoogleTest program; each test runs alone, in a home folder of its own.
function(zp_add_tests name)
    cmake_parse_arguments(A "QT" "" "FILES;LINK" ${ARGN})
    if(NOT A_FILES)
        return()
    endif()
    add_executable(test_${name} ${A_FILES})
    target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    if(A_QT)
        target_link_libraries(test_${name} PRIVATE zp_test_main_qt)
        set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
    else()
        target_link_libraries(test_${name} PRIVATE zp_test_main)
    endif()
    target_link_libraries(test_${name} PRIVATE ${A_LINK} zp_flags GTest::gmock)
    target_compile_definitions(test_${name} PRIVATE ZP_TESTDATA="${CMAKE_SOURCE_DIR}/tests/data"
                                                    ZP_RESOURCES="${CMAKE_SOURCE_DIR}/resources"
                                                    ZP_SOURCE="${CMAKE_SOURCE_DIR}")
    gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# zp_add_room_tests(ROOM [LINK libs]): the room's tests of algorithms, and in its folder "gui" those that need the canvas or
# the room's window.
function(zp_add_room_tests room)
    cmake_parse_arguments(A "" "" "LINK" ${ARGN})
    file(GLOB tests CONFIGURE_DEPENDS *Test.cpp)
    zp_add_tests(${room} FILES ${tests} LINK zp_${room}_algorithms ${A_LINK})
    file(GLOB gui CONFIGURE_DEPENDS gui/*Test.cpp)
    if(TARGET zp_${room}_window)
        zp_add_tests(${room}_gui QT FILES ${gui} LINK zp_${room}_window)
    else()
        zp_add_tests(${room}_gui QT FILES ${gui} LINK zp_canvas)
    endif()
endfunction()

# zp_add_bench(NAME FILES... LINK libs): one Google Benchmark program with its peers in the same run.
function(zp_add_bench name)
    cmake_parse_arguments(A "" "" "FILES;LINK" ${ARGN})
    if(NOT A_FILES)
        return()
    endif()
    add_executable(bench_${name} ${A_FILES})
    target_include_directories(bench_${name} PRIVATE ${CMAKE_SOURCE_DIR}/bench ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(bench_${name} PRIVATE ${A_LINK} benchmark::benchmark_main zp_flags)
    target_compile_definitions(bench_${name} PRIVATE ZP_TESTDATA="${CMAKE_SOURCE_DIR}/tests/data"
                                                     ZP_RESOURCES="${CMAKE_SOURCE_DIR}/resources")
endfunction()
