# How every target of the project is compiled: C++20, warnings as errors, ccache, a fast linker, precompiled headers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

find_program(LLD_PROGRAM ld.lld)
if(LLD_PROGRAM AND NOT CMAKE_LINKER_TYPE AND CMAKE_VERSION VERSION_GREATER_EQUAL 3.29)
    set(CMAKE_LINKER_TYPE LLD)
endif()

option(ZELMORA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

add_library(zelmora_settings INTERFACE)
target_compile_options(zelmora_settings INTERFACE -Wall -Wextra -Wpedantic -Werror)
target_compile_definitions(zelmora_settings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # ccache needs the directives of a precompiled header in the preprocessed text.
    target_compile_options(zelmora_settings INTERFACE -fpch-preprocess)
endif()
option(ZELMORA_FUZZ "Build the fuzz targets; needs clang with libFuzzer" OFF)
if(ZELMORA_FUZZ)
    target_compile_options(zelmora_settings INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(zelmora_settings INTERFACE QT_FORCE_ASSERTS)
    target_link_options(zelmora_settings INTERFACE -fsanitize=address,undefined)
endif()
if(ZELMORA_SANITIZE)
    target_compile_options(zelmora_settings INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
    target_link_options(zelmora_settings INTERFACE -fsanitize=address,undefined)
endif()
