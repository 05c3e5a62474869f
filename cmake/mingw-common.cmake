# Shared by the mingw-w64 toolchain files; TARVEX_TRIPLE names the target.
set(CMAKE_SYSTEM_NAME Windows)

# The -posix compilers: the win32-thread ones lack std::mutex, which GoogleTest needs.
set(CMAKE_C_COMPILER ${TARVEX_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TARVEX_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${TARVEX_TRIPLE}-windres)

# GoogleTest, zlib and minizip built for this target by tools/bootstrap.sh.
set(TARVEX_DEPS_PREFIX /opt/tarvex2-deps/${TARVEX_TRIPLE} CACHE PATH "Prefix of the cross-built dependencies")

set(CMAKE_FIND_ROOT_PATH /usr/${TARVEX_TRIPLE} ${TARVEX_DEPS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
