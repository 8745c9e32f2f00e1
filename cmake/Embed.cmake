# Makes a file that the build writes part of a program, so that nothing has to be installed and found beside it.
#
# murvane_embed(target FILE file PATTERN source.cpp.in): adds the source to the target, with the file's bytes in the place of
# @BYTES@, inside a string literal.
if(CMAKE_SCRIPT_MODE_FILE)
    file(READ ${FILE} bytes HEX)
    string(REGEX REPLACE "(..)" "\\\\x\\1" BYTES "${bytes}")
    configure_file(${PATTERN} ${SOURCE} @ONLY)
    return()
endif()

set(MURVANE_EMBED ${CMAKE_CURRENT_LIST_FILE})

function(murvane_embed target)
    cmake_parse_arguments(ARG "" "FILE;PATTERN" "" ${ARGN})
    get_filename_component(name ${ARG_PATTERN} NAME_WLE)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${name})
    add_custom_command(
        OUTPUT ${source}
        COMMAND ${CMAKE_COMMAND} -DFILE=${ARG_FILE} -DPATTERN=${ARG_PATTERN} -DSOURCE=${source} -P ${MURVANE_EMBED}
        DEPENDS ${ARG_FILE} ${ARG_PATTERN} ${MURVANE_EMBED}
        VERBATIM)
    target_sources(${target} PRIVATE ${source})
endfunction()
