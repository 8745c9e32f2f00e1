# Makes the presentation that new decks start from a part of the layer.
include(${CMAKE_SOURCE_DIR}/cmake/Embed.cmake)
find_program(SYSTEM_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)
set(TEMPLATE ${CMAKE_CURRENT_BINARY_DIR}/template.pptx)
add_custom_command(
    OUTPUT ${TEMPLATE}
    COMMAND ${SYSTEM_PYTHON} -B ${CMAKE_CURRENT_LIST_DIR}/make-template ${TEMPLATE}
    DEPENDS ${CMAKE_CURRENT_LIST_DIR}/make-template
            ${CMAKE_SOURCE_DIR}/sample/kit/deck.py ${CMAKE_SOURCE_DIR}/sample/kit/package.py
    VERBATIM)
murvane_embed(office_package FILE ${TEMPLATE} PATTERN ${CMAKE_CURRENT_LIST_DIR}/template.cpp.in)
