# The product uses no threads of the C++ library. MinGW's POSIX thread model would add functions to its import table
# that debuggers use and virus scanners dislike.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-win32)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
set(CMAKE_STRIP i686-w64-mingw32-strip)
