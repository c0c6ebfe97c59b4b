# Removes what the last `cmake --install` of this build folder has put in place, and the folders that are empty then.

cmake_minimum_required(VERSION 3.25)

set(manifest ${BUILD_FOLDER}/install_manifest.txt)
if(NOT EXISTS ${manifest})
    message(FATAL_ERROR "Nothing was installed from ${BUILD_FOLDER}: there is no ${manifest}")
endif()

file(STRINGS ${manifest} files)
set(program ${files})
list(FILTER program INCLUDE REGEX "/kestrelfen$")
cmake_path(GET program PARENT_PATH program_folder)
cmake_path(GET program_folder PARENT_PATH prefix)

# These are there without us as well.
set(common ${prefix} ${program_folder} ${prefix}/share ${prefix}/share/man)

function(remove_empty_folders folder)
    while(NOT folder IN_LIST common AND NOT folder STREQUAL "/")
        file(GLOB content LIST_DIRECTORIES true "$ENV{DESTDIR}${folder}/*" "$ENV{DESTDIR}${folder}/.*")
        list(FILTER content EXCLUDE REGEX "/\\.\\.?$")
        if(content OR NOT IS_DIRECTORY "$ENV{DESTDIR}${folder}")
            return()
        endif()
        file(REMOVE_RECURSE "$ENV{DESTDIR}${folder}")
        cmake_path(GET folder PARENT_PATH folder)
    endwhile()
endfunction()

foreach(file ${files})
    message(STATUS "Removing: $ENV{DESTDIR}${file}")
    file(REMOVE "$ENV{DESTDIR}${file}")
    if(EXISTS "$ENV{DESTDIR}${file}")
        message(FATAL_ERROR "Could not remove $ENV{DESTDIR}${file}")
    endif()
    cmake_path(GET file PARENT_PATH folder)
    remove_empty_folders(${folder})
endforeach()
file(REMOVE ${manifest})
message(STATUS "What each person has chosen and the history stay in their homes; kestrelfen(1) tells where.")
