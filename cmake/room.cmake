# room(folder uses...) makes a static library of a folder's sources, and a test program of its *_test.cpp files.
# A folder without sources yet is only a name that others may already use.
function(room name)
    file(GLOB tests CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${name}/*_test.cpp)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${name}/*.cpp)
    if(tests)
        list(REMOVE_ITEM sources ${tests})
    endif()
    if(sources)
        add_library(${name} STATIC ${sources})
        target_link_libraries(${name} PUBLIC ${ARGN})
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE ${ARGN})
    endif()
    if(tests)
        room_test(${name}_test "${tests}" ${name})
    endif()
endfunction()

# The headers of the test framework take longer to compile than most tests, and optimising tests takes as long again:
# all test programs read the headers ready made and are left as they are written.
add_library(test_headers OBJECT ${PROJECT_SOURCE_DIR}/cmake/test_headers.cpp)
target_link_libraries(test_headers PUBLIC GTest::gtest)
target_compile_options(test_headers PRIVATE -O0)
target_precompile_headers(test_headers PRIVATE <gtest/gtest.h>)

# room_test(name sources uses...) makes one test program and registers it.
function(room_test name sources)
    add_executable(${name} ${sources})
    target_compile_options(${name} PRIVATE -O0)
    target_precompile_headers(${name} REUSE_FROM test_headers)
    target_link_libraries(${name} PRIVATE ${ARGN} GTest::gtest_main)
    if(MINGW) # runs where the compiler's own libraries are not found
        target_link_options(${name} PRIVATE -static)
    endif()
    add_test(NAME ${name} COMMAND ${name})
endfunction()
