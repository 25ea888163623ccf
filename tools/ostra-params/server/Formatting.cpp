#include "catalogue/Input.h"
#include "edit/Layout.h"
#include "server/Features.h"

namespace Tool::Lsp {

namespace {

/// Returns a file as fmt lays it out; what is no JSON stays.
std::string laidOut(const File& file) {
    if (!holdsLines(file.name)) {
        return Layout::ofFile(*file.text).value_or(*file.text);
    }
    std::string text;
    for (const Part& part : partsOf(file.name, *file.text)) {
        text += Layout::ofLine(part.text).value_or(std::string(part.text)) + "\n";
    }
    return text;
}

} // namespace

Json formatting(Session& session, const Json& params) {
    const File file = session.fileIn(params);
    const std::string& before = *file.text;
    const std::string after = laidOut(file);
    if (after == before) {
        return Json::array();
    }
    return Json::array({{{"range", rangeOf(Lines(before, session.encoding), 0, before.size())}, {"newText", after}}});
}

} // namespace Tool::Lsp
