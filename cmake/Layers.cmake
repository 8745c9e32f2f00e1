# Makes a target one layer of the house.
#
# All folders of src/ share the include root, so that an include names its folder ("office/value.h"). What keeps a layer
# from reaching upwards is the mirror made here: a target sees only a folder of links to its own sources and to those of
# the layers it needs, never src/ itself. A forbidden include finds no file.
#
# HEADERS are precompiled for the layer alone, or they are the target whose precompiled headers it takes; without them it
# takes the standard ones.
function(murvane_layer target)
    cmake_parse_arguments(ARG "" "FOLDER" "NEEDS;PUBLIC_NEEDS;HEADERS" ${ARGN})
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
    murvane_compiled_together(${target} COLD)
    if(TARGET "${ARG_HEADERS}")
        murvane_precompiled(${target} ${ARG_HEADERS})
    elseif(ARG_HEADERS)
        target_precompile_headers(${target} PRIVATE ${ARG_HEADERS})
        murvane_cached_precompiled(${target})
    else()
        murvane_precompiled(${target} standard_headers)
    endif()
endfunction()

# Lets a target take the precompiled headers of another, which have been compiled with the same options.
function(murvane_precompiled target headers)
    target_precompile_headers(${target} REUSE_FROM ${headers})
    murvane_cached_precompiled(${target})
endfunction()

# Nothing that includes a precompiled header is kept by the compiler's cache otherwise.
function(murvane_cached_precompiled target)
    if(CCACHE)
        set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND};-E;env;CCACHE_BASEDIR=${CMAKE_SOURCE_DIR};CCACHE_NOHASHDIR=1;CCACHE_SLOPPINESS=pch_defines,time_macros;${CCACHE}")
        target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
endfunction()

# Makes a target that holds nothing but precompiled headers: murvane_headers(name OPTIONS ... HEADERS ... NEEDS ...).
function(murvane_headers name)
    cmake_parse_arguments(ARG "" "" "OPTIONS;HEADERS;NEEDS" ${ARGN})
    set(empty ${CMAKE_BINARY_DIR}/headers/${name}.cpp)
    if(NOT EXISTS ${empty})
        file(WRITE ${empty} "")
    endif()
    add_library(${name} OBJECT ${empty})
    target_link_libraries(${name} PRIVATE ${ARG_NEEDS})
    target_compile_options(${name} PRIVATE ${ARG_OPTIONS})
    murvane_warnings(${name})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    murvane_cached_precompiled(${name})
endfunction()

# Compiles several files of a target as one, where their headers cost more than they do. Names in their unnamed namespaces
# must then differ. Who reads file by file, as clang-tidy does, turns it off.
#
# COLD holds for the full preset alone, and for each layer that does not turn it off: a cold build takes half the processor
# time, but a changed file takes its neighbours along.
function(murvane_compiled_together target)
    cmake_parse_arguments(ARG "COLD" "" "" ${ARGN})
    if(NOT DEFINED CMAKE_UNITY_BUILD AND (MURVANE_LAYERS_TOGETHER OR NOT ARG_COLD))
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
    endif()
endfunction()

function(murvane_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                                             -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Werror)
    if(MURVANE_SANITIZE)
        # GCC takes what the sanitizers put around variables for uses of them.
        target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
        target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=address,undefined)
    endif()
endfunction()
