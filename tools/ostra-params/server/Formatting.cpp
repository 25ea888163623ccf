#include "catalogue/Input.h"
#include "edit/Layout.h"
#include "server/Features.h"

namespace Tool::Lsp {

namespace {

/// Returns a file as fmt lays it out; lines that are no JSON stay.
/// @throws Refusal if all of it is none
std::string laidOut(const File& file) {
    if (!holdsLines(file.name)) {
        std::optional<std::string> text = Layout::ofFile(*file.text);
        if (!text) {
            throw Refusal(ErrorCode::requestFailed, "What is no JSON cannot be laid out.");
        }
        return *std::move(text);
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
