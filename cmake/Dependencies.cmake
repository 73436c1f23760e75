# SPDX-License-Identifier: GPL-3.0-or-later
# Every library the program stands on, found once. The packages that bring them are in packaging/packages.txt.
set(CMAKE_AUTOMOC OFF) # only the targets that hold widgets ask for it
find_package(Threads REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Network PrintSupport Svg Test)
find_package(PkgConfig REQUIRED)
pkg_check_modules(HIGHWAY REQUIRED IMPORTED_TARGET libhwy)
# Highway keeps its plain-C++ target from compilers before GCC 12.3 for a fault that shows on other processors; without it a
# machine older than SSSE3 had no kernels at all. The tests run every kernel on that target too.
target_compile_definitions(PkgConfig::HIGHWAY INTERFACE HWY_BROKEN_EMU128=0)
pkg_check_modules(AGG REQUIRED IMPORTED_TARGET libagg)
pkg_check_modules(JPEG REQUIRED IMPORTED_TARGET libjpeg)
pkg_check_modules(TIFF REQUIRED IMPORTED_TARGET libtiff-4)
find_package(ZLIB REQUIRED)
pkg_check_modules(DEFLATE REQUIRED IMPORTED_TARGET libdeflate)
pkg_check_modules(MAGICK REQUIRED IMPORTED_TARGET Magick++)
pkg_check_modules(CLIPPER REQUIRED IMPORTED_TARGET polyclipping)
pkg_check_modules(SOUND REQUIRED IMPORTED_TARGET libcanberra)
