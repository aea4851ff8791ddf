# What every target of the house shares: the language, the warnings, the precompiled header.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()
option(ZEVRIN_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)

find_program(CCACHE ccache)
if(CCACHE)
    # The sloppiness lets compilations with a precompiled header be found again, base_dir shares them
    # between check-outs, the inode cache reads the large header once and not for every file.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 CCACHE_INODECACHE=1 ${CCACHE})
endif()

add_library(zevrin_options INTERFACE)
target_compile_options(zevrin_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Werror -fpch-preprocess)
target_compile_definitions(zevrin_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY)
if(ZEVRIN_SANITIZE)
    target_compile_options(zevrin_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
    target_link_options(zevrin_options INTERFACE -fsanitize=address,undefined)
endif()

# A folder of src/ as an include root of its own: who does not link its library cannot include from it.
function(zevrin_root target name)
    set(root ${CMAKE_BINARY_DIR}/roots/${name})
    file(MAKE_DIRECTORY ${root})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${name} ${root}/${name} SYMBOLIC)
    target_include_directories(${target} PUBLIC ${root})
endfunction()

# One floor of the house: every source below this folder, and the floors it stands on.
# The sources are globbed: a file in a floor's folder belongs to the floor, there is nothing to list.
function(zevrin_floor name)
    cmake_parse_arguments(FLOOR "" "" "LINKS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
         ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
    add_library(${name} STATIC ${sources})
    zevrin_root(${name} ${name})
    target_link_libraries(${name} PUBLIC zevrin_options ${FLOOR_LINKS})
    target_precompile_headers(${name} REUSE_FROM zevrin_pch)
    target_link_libraries(${name} PUBLIC zevrin_pch)
endfunction()
