# Warnings and sanitizers for all code of the project, and the one way to declare a room.

set(KESTRELFEN_WARNINGS
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor)
if(KESTRELFEN_WERROR)
    list(APPEND KESTRELFEN_WARNINGS -Werror)
endif()
# GCC 12 sees overlaps in the standard library's strings, and unset values in its optionals, where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    list(APPEND KESTRELFEN_WARNINGS -Wno-restrict -Wno-maybe-uninitialized)
endif()

add_library(kestrelfen_sanitizers INTERFACE)
if(KESTRELFEN_SANITIZE)
    target_compile_options(kestrelfen_sanitizers INTERFACE
        -fsanitize=${KESTRELFEN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(kestrelfen_sanitizers INTERFACE -fsanitize=${KESTRELFEN_SANITIZE})
endif()

add_library(kestrelfen_options INTERFACE)
target_compile_options(kestrelfen_options INTERFACE ${KESTRELFEN_WARNINGS})
target_link_libraries(kestrelfen_options INTERFACE kestrelfen_sanitizers)

# Most of what the compiler reads are headers of libraries. Where a compiler cache does that work already, what is
# precompiled would only keep it from finding anything.
if(CCACHE OR CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache")
    set(without_cache OFF)
else()
    set(without_cache ON)
endif()
option(KESTRELFEN_PRECOMPILE "Precompile the headers of libraries" ${without_cache})

# kestrelfen_precompile(TARGET header…)
function(kestrelfen_precompile target)
    if(KESTRELFEN_PRECOMPILE)
        list(TRANSFORM ARGN REPLACE "(.+)" "<\\1>")
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# kestrelfen_room(NAME SOURCES file… [USES target…])
# A static library of one room. It may include the headers of the rooms it uses, and of no others: each room's
# headers are reached through its own target only.
function(kestrelfen_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE kestrelfen_options)
    list(LENGTH ROOM_SOURCES count)
    if(count GREATER 5)
        kestrelfen_precompile(${name} algorithm functional map optional string vector)
    endif()
endfunction()
