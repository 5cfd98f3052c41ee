# Google Test for another platform, which no package brings: built from the sources that Debian's libgtest-dev has.
find_path(GTEST_SOURCES src/gtest-all.cc PATHS /usr/src/googletest/googletest
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
mark_as_advanced(GTEST_SOURCES)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(GTest REQUIRED_VARS GTEST_SOURCES)

if(GTest_FOUND AND NOT TARGET GTest::gtest)
    add_library(gtest STATIC EXCLUDE_FROM_ALL ${GTEST_SOURCES}/src/gtest-all.cc)
    target_include_directories(gtest SYSTEM PUBLIC ${GTEST_SOURCES}/include PRIVATE ${GTEST_SOURCES})
    add_library(gtest_main STATIC EXCLUDE_FROM_ALL ${GTEST_SOURCES}/src/gtest_main.cc)
    target_link_libraries(gtest_main PUBLIC gtest)
    foreach(library IN ITEMS gtest gtest_main)
        target_compile_options(${library} PRIVATE -w)
        add_library(GTest::${library} ALIAS ${library})
    endforeach()
endif()
