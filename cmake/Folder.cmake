# One library per folder: every source of the folder, and the folders that it may use.
# Every folder sees the headers of all others, so code that uses a folder not declared here still
# compiles and may even link; script/lint checks the #include lines against these declarations.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(korvale_flags INTERFACE)
target_include_directories(korvale_flags INTERFACE ${PROJECT_SOURCE_DIR})
if(MSVC)
  # Warnings stop only the builds that script/test makes.
  target_compile_options(korvale_flags INTERFACE /W4 /permissive- /utf-8)
else()
  target_compile_options(
    korvale_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 takes an inlined std::string assignment for an overlapping copy (GCC bug 105651).
    target_compile_options(korvale_flags INTERFACE -Wno-restrict)
  endif()
endif()
if(WIN32)
  target_compile_definitions(korvale_flags INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN
                                                     _WIN32_WINNT=0x0A00 WINVER=0x0A00)
  # A program that a user unpacks anywhere must not look for the compiler's DLLs. To a program made
  # for a system before Windows Vista, Windows tells other frame sizes than it draws.
  if(MSVC)
    set(CMAKE_MSVC_RUNTIME_LIBRARY MultiThreaded$<$<CONFIG:Debug>:Debug>)
  else()
    target_link_options(
      korvale_flags INTERFACE -static LINKER:--major-os-version=6,--minor-os-version=2
      LINKER:--major-subsystem-version=6,--minor-subsystem-version=2)
  endif()
endif()
if(KORVALE_SANITIZE)
  target_compile_options(korvale_flags INTERFACE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(korvale_flags INTERFACE -fsanitize=address,undefined)
endif()
if(KORVALE_COVERAGE)
  target_compile_options(korvale_flags INTERFACE --coverage -O0)
  target_link_options(korvale_flags INTERFACE --coverage)
endif()

# korvale_folder(NAME [other folders' targets...]): library korvale_NAME of this folder's *.cpp.
function(korvale_folder name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(korvale_${name} STATIC ${sources})
  set_target_properties(korvale_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(korvale_${name} PUBLIC korvale_flags ${ARGN})
endfunction()
