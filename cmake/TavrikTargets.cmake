# One way to make a target, so that warnings, sanitizers and include folders are the same everywhere.

# Warnings are errors for our own code; headers of libraries are system headers and stay silent.
function(tavrik_compile_options target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow -Werror)
    # Qt's inline helpers trip gcc's flow warnings once they are inlined into our code.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
    endif()
    target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
    # Newer versions of Qt warn of calls whose successors the oldest that we build with does not have.
    if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5)
        target_compile_definitions(${target} PRIVATE QT_WARN_DEPRECATED_UP_TO=0x060400)
    endif()
    if(TAVRIK_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${TAVRIK_SANITIZE} -fno-omit-frame-pointer)
        # What the sanitizers add to the code, gcc's flow analysis takes for ways around an initialization.
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
        target_link_options(${target} PRIVATE -fsanitize=${TAVRIK_SANITIZE})
    endif()
    if(TAVRIK_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()

# tavrik_library(<name> SOURCES <files> LINKS <lower libraries>)
# The library of one folder. It may include headers of its own folder and of the libraries that it links, no others:
# tools/check holds every include against these lines.
function(tavrik_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    tavrik_compile_options(${name})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()

# tavrik_program(<name> SOURCES <files> LINKS <libraries>)
function(tavrik_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    tavrik_compile_options(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS})
endfunction()

# tavrik_tests(<name> SOURCES <files> LINKS <libraries>)
function(tavrik_tests name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    tavrik_compile_options(${name})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gmock GTest::gtest_main)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 120
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
