# Cross build for the device: 64-bit ARM Linux, using Debian's multiarch
# arm64 libraries (Qt 5, FFmpeg) from /usr/lib/aarch64-linux-gnu and the
# build machine's own Qt tools (moc, rcc, qmlcachegen, lrelease), which
# produce the same output for every architecture.
#   cmake -S . -B build-arm64 -DCMAKE_TOOLCHAIN_FILE=cmake/aarch64-linux-gnu.cmake
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

# Programs (the Qt tools, pkg-config) come from the build machine; headers,
# libraries and CMake packages from the arm64 multiarch directories, which
# CMAKE_LIBRARY_ARCHITECTURE selects under /usr.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)

# pkg-config must describe the arm64 FFmpeg, not the build machine's.
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")

# lrelease is a build-machine tool: its CMake package is taken from the
# build machine's Qt, so the arm64 Qt tools package is not needed.
if(NOT Qt5LinguistTools_DIR)
  set(_cs_host_multiarch "${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu")
  if(EXISTS /usr/lib/${_cs_host_multiarch}/cmake/Qt5LinguistTools/Qt5LinguistToolsConfig.cmake)
    set(Qt5LinguistTools_DIR /usr/lib/${_cs_host_multiarch}/cmake/Qt5LinguistTools CACHE PATH "")
  endif()
endif()

# Tests run under user-mode emulation. The arm64 loader and libraries are
# installed natively (libc6:arm64), so no separate root is needed.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64)
