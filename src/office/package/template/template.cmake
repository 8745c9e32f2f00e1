# Makes what new presentations and new documents start from parts of the layer.
include(${CMAKE_SOURCE_DIR}/cmake/Embed.cmake)
find_program(SYSTEM_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)

# embedded_template(script file pattern): embeds the file that the script beside this one makes.
function(embedded_template script file pattern)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/${file})
    set(folder ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
    add_custom_command(
        OUTPUT ${made}
        COMMAND ${SYSTEM_PYTHON} -B ${folder}/${script} ${made}
        DEPENDS ${folder}/${script} ${folder}/design.py
                ${CMAKE_SOURCE_DIR}/sample/kit/deck.py ${CMAKE_SOURCE_DIR}/sample/kit/package.py
        VERBATIM)
    murvane_embed(office_package FILE ${made} PATTERN ${folder}/${pattern})
endfunction()

embedded_template(make-template template.pptx template.cpp.in)
embedded_template(make-document-template template.docx document_template.cpp.in)
