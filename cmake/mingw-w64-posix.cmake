# Cross build for 64-bit Windows with MinGW-w64, posix thread model (std::mutex for GoogleTest).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Packages are searched under the MinGW root first, then as given: a package
# installed elsewhere (-DCMAKE_PREFIX_PATH=<prefix>) is found where it lies, not
# only below the root. Libraries and headers stay confined to the root.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
