# Warnings and sanitizers for all code of the project, and the one way to declare a room.

add_library(kestrelfen_options INTERFACE)
target_compile_options(kestrelfen_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
    $<$<BOOL:${KESTRELFEN_WERROR}>:-Werror>)
# GCC 12 sees overlaps in the standard library's own string code where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(kestrelfen_options INTERFACE -Wno-restrict)
endif()
if(KESTRELFEN_SANITIZE)
    target_compile_options(kestrelfen_options INTERFACE
        -fsanitize=${KESTRELFEN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(kestrelfen_options INTERFACE -fsanitize=${KESTRELFEN_SANITIZE})
endif()

# kestrelfen_room(NAME SOURCES file… [USES target…])
# A static library of one room. It may include the headers of the rooms it uses, and of no others: each room's
# headers are reached through its own target only.
function(kestrelfen_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE kestrelfen_options)
endfunction()
