# SPDX-License-Identifier: GPL-3.0-or-later
# Holds every source file against .clang-format. Run as: cmake -DROOT=... -DFORMATTER=... -P CheckFormat.cmake
cmake_minimum_required(VERSION 3.25)
file(GLOB_RECURSE sources ${ROOT}/src/*.h ${ROOT}/src/*.cpp ${ROOT}/tests/*.h ${ROOT}/tests/*.cpp ${ROOT}/bench/*.h
     ${ROOT}/bench/*.cpp)
execute_process(COMMAND ${FORMATTER} --dry-run --Werror ${sources} RESULT_VARIABLE result ERROR_VARIABLE said)
if(NOT result EQUAL 0)
    string(REGEX MATCHALL "[^\n]*\\.(h|cpp):[0-9]+:[^\n]*" lines "${said}")
    string(REPLACE ";" "\n" lines "${lines}")
    message(FATAL_ERROR "Not as clang-format has it:\n${lines}")
endif()
