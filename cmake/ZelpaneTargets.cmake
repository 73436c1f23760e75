# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of the house shares, and one function for each kind of target.

add_library(zp_flags INTERFACE)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(zp_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor -Woverloaded-virtual
                                              -Werror -fno-math-errno
                                              -ffp-contract=off # a fused product would round otherwise than one of a lesser machine
                                              -Wno-restrict) # GCC 12 reports it falsely on std::string's operator+
else() # the fuzzers' compiler knows some of these and remarks on other things
    target_compile_options(zp_flags INTERFACE -Wall -Wextra -fno-math-errno -ffp-contract=off)
endif()
if(ZP_FUZZING)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
    # Kernels for one processor only: with the sanitizers the compiler needs minutes for each of them.
    add_compile_definitions(HWY_COMPILE_ONLY_STATIC)
    if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
        add_compile_options(-march=x86-64-v3)
    endif()
    add_link_options(-fsanitize=address,undefined)
    add_compile_definitions(ZP_SANITIZED)
endif()
if(ZP_SANITIZE AND CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    # Of the seven targets of a kernel those that differ most: each takes the compiler minutes with the sanitizers, and plain
    # builds test all seven.
    add_compile_definitions("HWY_DISABLED_TARGETS=(HWY_SSSE3|HWY_SSE4|HWY_AVX3)")
endif()
if(ZP_SANITIZE STREQUAL "address")
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=address,undefined)
    add_compile_definitions(ZP_SANITIZED)
elseif(ZP_SANITIZE STREQUAL "thread")
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
    add_compile_definitions(ZP_SANITIZED)
endif()

# zp_room_path(OUT ROOM...): an include path on which those rooms stand and no others, so that the compiler refuses what a
# room was not granted. Headers are named by room: "drawing/Filters.h".
function(zp_room_path out)
    set(path "")
    foreach(room ${ARGN})
        set(place ${CMAKE_BINARY_DIR}/rooms/${room})
        file(MAKE_DIRECTORY ${place})
        file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${room} ${place}/${room} SYMBOLIC)
        list(APPEND path ${place})
    endforeach()
    set(${out} ${path} PARENT_SCOPE)
endfunction()

# zp_add_room(ROOM [WIDGETS] USES rooms [LINK libs] [PRIVATE_LINK libs] [EXCEPT files]): a folder of src as a library of its
# own. Only the rooms it uses are on its include path and its link line. WIDGETS: it holds Qt classes and forms. EXCEPT: files
# that the room builds by itself.
function(zp_add_room room)
    cmake_parse_arguments(A "WIDGETS" "" "USES;LINK;PRIVATE_LINK;EXCEPT" ${ARGN})
    file(GLOB files CONFIGURE_DEPENDS *.cpp)
    list(TRANSFORM A_EXCEPT PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    list(REMOVE_ITEM files ${A_EXCEPT})
    if(A_WIDGETS)
        file(GLOB forms CONFIGURE_DEPENDS *.ui)
        list(APPEND files ${forms})
    endif()
    add_library(zp_${room} STATIC ${files})
    if(A_WIDGETS)
        set_target_properties(zp_${room} PROPERTIES AUTOMOC ON AUTOUIC ON)
        # What the headers' signals need was made for those there were: with another one it is made anew.
        file(GLOB headers CONFIGURE_DEPENDS *.h)
        if(NOT headers STREQUAL ZP_HEADERS_OF_${room})
            file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/zp_${room}_autogen/timestamp)
            set(ZP_HEADERS_OF_${room} "${headers}" CACHE INTERNAL "the headers of ${room} at the last configuration")
        endif()
    endif()
    zp_room_path(path ${room} ${A_USES})
    target_include_directories(zp_${room} PRIVATE ${path})
    list(TRANSFORM A_USES PREPEND zp_)
    target_link_libraries(zp_${room} PUBLIC ${A_USES} ${A_LINK} PRIVATE zp_flags ${A_PRIVATE_LINK})
endfunction()

# What is looked at is the program: the compiler need not spend half of a run on the tests. Those without windows have loops over
# pixels of their own.
set(ZP_TEST_OPTIMIZATION $<IF:$<BOOL:${ZP_SANITIZE}>,-O0,-Og>)

# zp_add_tests(NAME FILES... LINK libs): one GoogleTest program; each test runs alone, in a home folder of its own. A suite whose
# name ends in "Long" is a long form: it has the label "long", and only ./test --long runs it. SECONDS: how long one may take that
# tries more in the long run without being a form of its own.
function(zp_add_tests name)
    cmake_parse_arguments(A "QT" "SECONDS" "FILES;LINK" ${ARGN})
    if(NOT A_SECONDS)
        set(A_SECONDS 300)
    endif()
    if(NOT A_FILES)
        return()
    endif()
    add_executable(test_${name} ${A_FILES})
    target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
    if(A_QT)
        target_link_libraries(test_${name} PRIVATE zp_test_main_qt)
        set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
        target_compile_options(test_${name} PRIVATE ${ZP_TEST_OPTIMIZATION})
        target_precompile_headers(test_${name} REUSE_FROM zp_test_main_qt)
    else()
        target_link_libraries(test_${name} PRIVATE zp_test_main)
    endif()
    target_link_libraries(test_${name} PRIVATE ${A_LINK} zp_flags GTest::gmock)
    target_compile_definitions(test_${name} PRIVATE ZP_TESTDATA="${CMAKE_SOURCE_DIR}/tests/data"
                                                    ZP_RESOURCES="${CMAKE_SOURCE_DIR}/resources"
                                                    ZP_SOURCE="${CMAKE_SOURCE_DIR}")
    gtest_discover_tests(test_${name} TEST_FILTER "-*Long.*" DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                         PROPERTIES TIMEOUT ${A_SECONDS})
    gtest_discover_tests(test_${name} TEST_FILTER "*Long.*" DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                         PROPERTIES TIMEOUT 3600 LABELS long)
endfunction()

# zp_add_room_tests(ROOM [QT] [LINK libs]): the tests of a folder of src, in the folder of the same name.
function(zp_add_room_tests room)
    cmake_parse_arguments(A "QT" "" "LINK" ${ARGN})
    file(GLOB tests CONFIGURE_DEPENDS *Test.cpp)
    if(A_QT)
        zp_add_tests(${room} QT FILES ${tests} LINK zp_${room} ${A_LINK})
    else()
        zp_add_tests(${room} FILES ${tests} LINK zp_${room} ${A_LINK})
    endif()
endfunction()

# zp_add_script_test(NAME SCRIPT [LONG]): a test that is a shell script; see tests/support/script.sh. LONG: only for ./test --long.
function(zp_add_script_test name script)
    cmake_parse_arguments(A "LONG" "" "" ${ARGN})
    add_test(NAME ${name} COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/${script})
    set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300
        ENVIRONMENT "ROOT=${CMAKE_SOURCE_DIR};BUILD=${CMAKE_BINARY_DIR};ZELPANE=$<TARGET_FILE:zelpane>")
    if(A_LONG)
        set_tests_properties(${name} PROPERTIES LABELS long TIMEOUT 3600)
    endif()
endfunction()

# zp_add_bench(NAME FILES... LINK libs): one Google Benchmark program with its peers in the same run.
function(zp_add_bench name)
    cmake_parse_arguments(A "" "" "FILES;LINK" ${ARGN})
    if(NOT A_FILES)
        return()
    endif()
    add_executable(bench_${name} ${A_FILES})
    target_include_directories(bench_${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/bench
                                                     ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(bench_${name} PRIVATE ${A_LINK} zp_bench_main zp_flags)
    target_compile_definitions(bench_${name} PRIVATE ZP_TESTDATA="${CMAKE_SOURCE_DIR}/tests/data"
                                                     ZP_RESOURCES="${CMAKE_SOURCE_DIR}/resources")
endfunction()
