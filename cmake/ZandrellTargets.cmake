# The switches that every target of the project shares, and the three kinds of target that it has.

option(ZANDRELL_SANITIZE "Build with address and undefined-behaviour sanitizers" OFF)
option(ZANDRELL_TIDY "Run clang-tidy while compiling" OFF)
option(ZANDRELL_FUZZ "Build the fuzz targets alone, with clang" OFF)

set(ZANDRELL_STAGED_DATA ${CMAKE_BINARY_DIR}/share/zandrell)

add_library(zandrell_switches INTERFACE)
target_include_directories(zandrell_switches INTERFACE ${CMAKE_SOURCE_DIR}/src)
# Contracted multiply-adds would make figures differ between machines.
target_compile_options(zandrell_switches INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Werror -ffp-contract=off)
# GCC 12 warns of overlaps that cannot be where texts are joined (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(zandrell_switches INTERFACE -Wno-restrict)
endif()
if(ZANDRELL_SANITIZE)
    target_compile_options(zandrell_switches INTERFACE -fsanitize=address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zandrell_switches INTERFACE -fsanitize=address,undefined)
endif()
if(ZANDRELL_FUZZ)
    target_compile_options(zandrell_switches INTERFACE -fsanitize=fuzzer-no-link,address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zandrell_switches INTERFACE -fsanitize=address,undefined)
endif()
if(ZANDRELL_TIDY)
    set(CMAKE_CXX_CLANG_TIDY clang-tidy --quiet)
endif()

# zandrell_room(NAME DEPENDS rooms...): a folder of src/ with all its sources as one library.
function(zandrell_room name)
    cmake_parse_arguments(ROOM "" "" "DEPENDS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.h)
    list(FILTER sources EXCLUDE REGEX ".*_main\\.cpp$")
    add_library(zandrell_${name} STATIC ${sources})
    target_link_libraries(zandrell_${name} PUBLIC zandrell_switches)
    foreach(room ${ROOM_DEPENDS})
        target_link_libraries(zandrell_${name} PUBLIC zandrell_${room})
    endforeach()
endfunction()
