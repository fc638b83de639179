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
    korvale_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                            $<$<NOT:$<BOOL:${CMAKE_HOST_WIN32}>>:-Werror>)
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
# The release is small: nearly all of its time passes inside Windows, and what is not in the file
# need not be read at every start. Release tells the compiler to be fast instead.
set(smallest "$<CONFIG:MinSizeRel>")
if(MSVC)
  target_compile_options(korvale_flags INTERFACE $<${smallest}:/Gy$<SEMICOLON>/Gw>)
  target_link_options(korvale_flags INTERFACE $<${smallest}:/OPT:REF,ICF>)
else()
  target_compile_options(
    korvale_flags INTERFACE $<${smallest}:-ffunction-sections$<SEMICOLON>-fdata-sections>)
  target_link_options(korvale_flags INTERFACE $<${smallest}:LINKER:--gc-sections>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Cut into parts, programs for Windows crash GCC 12.
  target_link_options(korvale_flags INTERFACE $<${smallest}:-flto-partition=one>)
endif()
if(KORVALE_SANITIZE)
  target_compile_options(korvale_flags INTERFACE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(korvale_flags INTERFACE -fsanitize=address,undefined)
endif()
if(KORVALE_FUZZ)
  target_compile_options(korvale_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(KORVALE_COVERAGE)
  target_compile_options(korvale_flags INTERFACE --coverage -O0)
  target_link_options(korvale_flags INTERFACE --coverage)
endif()

# korvale_whole(TARGET): optimizes a release as a whole. MinGW's linker takes what a class with two
# bases overrides inline for duplicates; such classes define it in their *.cpp, destructors, too.
# What Clang makes for this its linker cannot read.
function(korvale_whole target)
  if(MSVC OR CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set_target_properties(${target} PROPERTIES INTERPROCEDURAL_OPTIMIZATION_MINSIZEREL ON)
  endif()
endfunction()

# korvale_folder(NAME [other folders' targets...]): library korvale_NAME of this folder's *.cpp.
function(korvale_folder name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(korvale_${name} STATIC ${sources})
  set_target_properties(korvale_${name} PROPERTIES LINKER_LANGUAGE CXX)
  if(KORVALE_MUTANTS)
    set_target_properties(korvale_${name} PROPERTIES UNITY_BUILD OFF)
  endif()
  target_link_libraries(korvale_${name} PUBLIC korvale_flags ${ARGN})
  korvale_whole(korvale_${name})
endfunction()
