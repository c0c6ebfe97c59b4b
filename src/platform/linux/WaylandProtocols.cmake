# Code for Wayland protocols, generated from their descriptions into the build folder.

enable_language(C)
find_package(PkgConfig REQUIRED)
pkg_check_modules(KESTRELFEN_WAYLAND_PROTOCOLS REQUIRED wayland-protocols>=1.31)
pkg_get_variable(WAYLAND_SCANNER wayland-scanner wayland_scanner)
pkg_get_variable(WAYLAND_PROTOCOLS wayland-protocols pkgdatadir)

# kestrelfen_wayland_protocols(NAME client|server PROTOCOL=DESCRIPTION…)
# A library of the protocols, whose headers are <wayland/PROTOCOL-client-protocol.h> or …-server-protocol.h. The
# code is not ours: it gets none of our warnings.
function(kestrelfen_wayland_protocols name side)
    pkg_check_modules(KESTRELFEN_WAYLAND_${side} REQUIRED IMPORTED_TARGET GLOBAL wayland-${side}>=1.20)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name})
    file(MAKE_DIRECTORY ${folder}/wayland)
    foreach(protocol ${ARGN})
        string(REGEX MATCH "^([^=]+)=(.+)$" ignored ${protocol})
        set(code ${folder}/${CMAKE_MATCH_1}.c)
        set(header ${folder}/wayland/${CMAKE_MATCH_1}-${side}-protocol.h)
        add_custom_command(OUTPUT ${code} ${header}
            COMMAND ${WAYLAND_SCANNER} private-code ${CMAKE_MATCH_2} ${code}
            COMMAND ${WAYLAND_SCANNER} ${side}-header ${CMAKE_MATCH_2} ${header}
            DEPENDS ${CMAKE_MATCH_2} VERBATIM)
        list(APPEND files ${code} ${header})
    endforeach()
    add_library(${name} STATIC ${files})
    target_include_directories(${name} SYSTEM PUBLIC ${folder})
    target_link_libraries(${name} PUBLIC PkgConfig::KESTRELFEN_WAYLAND_${side})
endfunction()
