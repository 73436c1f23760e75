# SPDX-License-Identifier: GPL-3.0-or-later
# Plays the first example as ./run does on a machine without a display, and looks for the pictures it promises.
string(RANDOM LENGTH 8 suffix)
set(work /tmp/zelpane-example-${suffix})
file(MAKE_DIRECTORY ${work}/home ${work}/runtime)
execute_process(COMMAND ${CMAKE_COMMAND} -E env HOME=${work}/home ZELPANE_TMP=${work} XDG_RUNTIME_DIR=${work}/runtime
                        ZELPANE_RESOURCES=${ROOT}/resources ${PROGRAM} --script ${ROOT}/examples/first-edit.zps --offscreen
                WORKING_DIRECTORY ${work} RESULT_VARIABLE status OUTPUT_VARIABLE answers ERROR_VARIABLE errors)
set(missing "")
foreach(picture first-edit.tiff first-edit.jpg first-edit.png first-edit-window.png)
    if(NOT EXISTS ${work}/${picture})
        string(APPEND missing " ${picture}")
    endif()
endforeach()
file(REMOVE_RECURSE ${work})
if(NOT status EQUAL 0 OR missing)
    message(FATAL_ERROR "status ${status}, missing:${missing}\n${answers}\n${errors}")
endif()
