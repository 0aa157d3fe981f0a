# Cross build for 64-bit Arm Linux with Debian's cross compiler
# (crossbuild-essential-arm64) against the arm64 packages of the multiarch
# tree (libcjson-dev:arm64, libgtest-dev:arm64). Programs built here run on
# this machine under qemu-user, so CTest runs the Arm test suite as it is.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)

# Look for libraries and packages of the target only; headers are shared by
# every architecture in /usr/include.
set(CMAKE_FIND_ROOT_PATH /usr/aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(CMAKE_IGNORE_PATH /usr/lib/x86_64-linux-gnu /lib/x86_64-linux-gnu /usr/lib/x86_64-linux-gnu/cmake)

# The C and C++ run time of the cross compiler live under its own prefix; the
# arm64 packages live in the multiarch tree.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64;-L;/usr/aarch64-linux-gnu;-E;LD_LIBRARY_PATH=/usr/lib/aarch64-linux-gnu)
