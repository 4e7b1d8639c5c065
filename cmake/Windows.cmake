# Builds for Windows on Debian: the body, the command line and the tests that need no window.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# The programs need no library of the compiler's beside them. The constants behind "..."_w come out of
# this compiler in a writable section here and a read-only one there, which its linker takes for two
# things; their bytes are the same.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--allow-multiple-definition")
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
