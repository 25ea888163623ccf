# Writes the source FILE with the page of the report, whose parts are in FOLDER. Compilers need not take long literals,
# even of short ones side by side: the pieces are put together when they are asked for.
include(${CMAKE_CURRENT_LIST_DIR}/parts.cmake)
set(page "")
foreach(part IN ITEMS html css js)
    set(text "")
    foreach(file IN LISTS report_${part})
        file(READ ${FOLDER}/${file} read)
        string(APPEND text "${read}")
    endforeach()
    set(literals "")
    string(LENGTH "${text}" length)
    set(begin 0)
    while(begin LESS length)
        string(SUBSTRING "${text}" ${begin} 4000 piece)
        string(APPEND literals "R\"ostra(${piece})ostra\",\n")
        math(EXPR begin "${begin} + 4000")
    endwhile()
    string(APPEND page "std::string ${part}() { return joined({\n${literals}}); }\n")
endforeach()
string(CONFIGURE [[
#include "report/Page.h"

#include <initializer_list>

namespace Tool::Page {

namespace {

std::string joined(std::initializer_list<const char*> pieces) {
    std::string text;
    for (const char* piece : pieces) {
        text += piece;
    }
    return text;
}

} // namespace

@page@
} // namespace Tool::Page
]] source @ONLY)
file(WRITE ${FILE} "${source}")
