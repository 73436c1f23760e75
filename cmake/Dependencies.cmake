# SPDX-License-Identifier: GPL-3.0-or-later
# Every library the program stands on, found once. The packages that bring them are in packaging/packages.txt.
set(CMAKE_AUTOMOC OFF) # only the targets that hold widgets ask for it
find_package(Threads REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Widgets Network PrintSupport Svg Test)
find_package(PkgConfig REQUIRED)
# zp_library(PREFIX NAME MODULE): a library with a pkg-config file, as target PkgConfig::PREFIX. NAME and its version stand
# in what --version prints.
set(ZP_LIBRARIES "")
macro(zp_library prefix name module)
    pkg_check_modules(${prefix} REQUIRED IMPORTED_TARGET ${module})
    # In brackets: "deflate" followed by a number is what Debian's checks know a copy of zlib by.
    list(APPEND ZP_LIBRARIES "${name} (${${prefix}_VERSION})")
endmacro()
zp_library(HIGHWAY Highway libhwy)
# Highway keeps its plain-C++ target from compilers before GCC 12.3 for a fault that shows on other processors; without it a
# machine older than SSSE3 had no kernels at all. The tests run every kernel on that target too.
target_compile_definitions(PkgConfig::HIGHWAY INTERFACE HWY_BROKEN_EMU128=0)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "aarch64")
    # Vectors whose length only the processor knows cannot stand in records and arrays, where kernels keep theirs: NEON serves all.
    target_compile_definitions(PkgConfig::HIGHWAY INTERFACE
                               "HWY_DISABLED_TARGETS=(HWY_SVE|HWY_SVE2|HWY_SVE_256|HWY_SVE2_128)")
endif()
zp_library(AGG AGG libagg)
zp_library(JPEG libjpeg libjpeg)
zp_library(TIFF libtiff libtiff-4)
find_package(ZLIB REQUIRED)
list(APPEND ZP_LIBRARIES "zlib (${ZLIB_VERSION_STRING})")
zp_library(DEFLATE libdeflate libdeflate)
zp_library(MAGICK ImageMagick Magick++)
zp_library(LCMS LittleCMS lcms2)
zp_library(LZ4 LZ4 liblz4)
zp_library(WEBP libwebp libwebpmux)
zp_library(XCB XCB xcb)
zp_library(SOUND libcanberra libcanberra)
list(JOIN ZP_LIBRARIES ", " ZP_LIBRARIES)
