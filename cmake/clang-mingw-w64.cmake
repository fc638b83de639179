include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
# Clang does not find the folder where Debian keeps MinGW's libraries; GCC knows it.
execute_process(COMMAND x86_64-w64-mingw32-g++-posix -print-libgcc-file-name
                OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(gcc ${libgcc} DIRECTORY)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(headers -nostdlibinc)
foreach(folder ${gcc}/include/c++ ${gcc}/include/c++/x86_64-w64-mingw32
               ${gcc}/include/c++/backward /usr/x86_64-w64-mingw32/include)
  string(APPEND headers " -isystem ${folder}")
endforeach()
# GCC's libraries implement thread-local variables this way.
set(CMAKE_CXX_FLAGS_INIT "${headers} -femulated-tls")
# GCC's libraries need its threads; the linker ignores the compiler's own flags.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-B${gcc} -L${gcc} -pthread -Wno-unused-command-line-argument")
