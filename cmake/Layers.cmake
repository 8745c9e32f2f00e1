# Makes a target one layer of the house.
#
# All folders of src/ share the include root, so that an include names its folder ("office/value.h"). What keeps a layer
# from reaching upwards is the mirror made here: a target sees only a folder of links to its own sources and to those of
# the layers it needs, never src/ itself. A forbidden include finds no file.
function(murvane_layer target)
    cmake_parse_arguments(ARG "" "FOLDER" "NEEDS;PUBLIC_NEEDS" ${ARGN})
    if(NOT ARG_FOLDER)
        set(ARG_FOLDER ${target})
    endif()
    string(REPLACE "/" "_" mirror_name ${ARG_FOLDER})
    set(mirror ${CMAKE_BINARY_DIR}/layers/${mirror_name})
    get_filename_component(mirror_parent ${mirror}/${ARG_FOLDER} DIRECTORY)
    file(MAKE_DIRECTORY ${mirror_parent})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${ARG_FOLDER} ${mirror}/${ARG_FOLDER} SYMBOLIC)
    target_include_directories(${target} PUBLIC ${mirror})
    target_link_libraries(${target} PRIVATE ${ARG_NEEDS} PUBLIC ${ARG_PUBLIC_NEEDS})
    murvane_warnings(${target})
endfunction()

function(murvane_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                                             -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Werror)
    if(MURVANE_SANITIZE)
        target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=address,undefined)
    endif()
endfunction()
