# SPDX-License-Identifier: GPL-3.0-or-later
# For machines with 64-bit ARM processors, built on any other: the libraries are Debian's own for arm64, in a folder that
# packaging/arm64-root.sh makes, and the tests run under an emulator.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)

set(ZP_ROOT ${CMAKE_CURRENT_LIST_DIR}/../build-arm64/root)
file(REAL_PATH ${ZP_ROOT} ZP_ROOT)
set(CMAKE_SYSROOT ${ZP_ROOT})
set(CMAKE_FIND_ROOT_PATH ${ZP_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(ENV{PKG_CONFIG_LIBDIR} ${ZP_ROOT}/usr/lib/aarch64-linux-gnu/pkgconfig:${ZP_ROOT}/usr/share/pkgconfig)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${ZP_ROOT})
# Debian keeps some libraries in folders of their own, among which its linker looks by itself only on the machine they are for.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-rpath-link,${ZP_ROOT}/usr/lib/aarch64-linux-gnu")

# Qt's own tools run here.
execute_process(COMMAND dpkg-architecture -qDEB_HOST_MULTIARCH OUTPUT_VARIABLE ZP_HERE OUTPUT_STRIP_TRAILING_WHITESPACE)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${ZP_HERE}/cmake)
# ImageMagick looks for its readers and its lists at places that only an installed system has.
file(GLOB ZP_READERS ${ZP_ROOT}/usr/lib/aarch64-linux-gnu/ImageMagick-*/modules-*/coders)
file(GLOB ZP_LISTS ${ZP_ROOT}/etc/ImageMagick-* ${ZP_ROOT}/usr/share/ImageMagick-*)
list(JOIN ZP_LISTS ":" ZP_LISTS)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static -L ${ZP_ROOT} -E MAGICK_CODER_MODULE_PATH=${ZP_READERS}
                                  -E MAGICK_CONFIGURE_PATH=${ZP_LISTS})
