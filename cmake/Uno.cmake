# The UNO C++ binding of the installed LibreOffice. The interface headers are generated into the build folder, since
# Debian's SDK ships the generator and not the headers.
set(LO_PROGRAM /usr/lib/libreoffice/program CACHE PATH "Program folder of LibreOffice")
set(LO_SDK /usr/lib/libreoffice/sdk CACHE PATH "Folder of the LibreOffice SDK")
if(NOT EXISTS ${LO_SDK}/bin/cppumaker OR NOT EXISTS ${LO_PROGRAM}/types.rdb)
    message(FATAL_ERROR "The LibreOffice SDK is missing (package libreoffice-dev): scripts/setup installs it.")
endif()

set(UNO_GENERATED ${CMAKE_BINARY_DIR}/uno-headers)
add_custom_command(
    OUTPUT ${UNO_GENERATED}/stamp
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${UNO_GENERATED}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${UNO_GENERATED}
    COMMAND ${LO_SDK}/bin/cppumaker -Gc -O${UNO_GENERATED} ${LO_PROGRAM}/types.rdb ${LO_PROGRAM}/types/offapi.rdb
    COMMAND ${CMAKE_COMMAND} -E touch ${UNO_GENERATED}/stamp
    DEPENDS ${LO_PROGRAM}/types.rdb ${LO_PROGRAM}/types/offapi.rdb
    COMMENT "Generating the UNO interface headers"
    VERBATIM)
add_custom_target(uno-headers DEPENDS ${UNO_GENERATED}/stamp)

add_library(uno INTERFACE)
add_dependencies(uno uno-headers)
target_include_directories(uno SYSTEM INTERFACE ${UNO_GENERATED} /usr/include/libreoffice)
target_compile_definitions(uno INTERFACE LINUX UNX CPPU_ENV=gcc3)
target_link_directories(uno INTERFACE ${LO_SDK}/lib)
target_link_libraries(uno INTERFACE uno_sal uno_cppu uno_cppuhelpergcc3 uno_salhelpergcc3 Threads::Threads)
target_link_options(uno INTERFACE -Wl,-rpath,${LO_PROGRAM})
