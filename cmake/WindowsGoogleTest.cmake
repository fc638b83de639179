# GoogleTest for the Windows target, from the sources that Debian's googletest package installs.
# Elsewhere point KORVALE_GOOGLETEST_SOURCE at a checkout of GoogleTest.
set(KORVALE_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest's source folder")

if(NOT EXISTS ${KORVALE_GOOGLETEST_SOURCE}/googletest/src/gtest-all.cc)
  message(FATAL_ERROR "GoogleTest's sources are not in ${KORVALE_GOOGLETEST_SOURCE}")
endif()

add_library(windows_gtest STATIC ${KORVALE_GOOGLETEST_SOURCE}/googletest/src/gtest-all.cc)
target_include_directories(windows_gtest SYSTEM
                           PUBLIC ${KORVALE_GOOGLETEST_SOURCE}/googletest/include)
target_include_directories(windows_gtest PRIVATE ${KORVALE_GOOGLETEST_SOURCE}/googletest)
target_compile_features(windows_gtest PUBLIC cxx_std_20)

add_library(windows_gtest_main STATIC EXCLUDE_FROM_ALL
            ${KORVALE_GOOGLETEST_SOURCE}/googletest/src/gtest_main.cc)
target_link_libraries(windows_gtest_main PUBLIC windows_gtest)
