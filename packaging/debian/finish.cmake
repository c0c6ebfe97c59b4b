# What the policy of Debian asks of the files of a package: compressed documents, and the package's own changes.

if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

function(compress file)
    execute_process(COMMAND gzip --best --no-name --force ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(share ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
compress(${share}/man/man1/kestrelfen.1)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/changelog DESTINATION ${share}/doc/kestrelfen)
compress(${share}/doc/kestrelfen/changelog)
