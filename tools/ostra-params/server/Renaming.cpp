#include "edit/Syntax.h"
#include "output/Text.h"
#include "server/Features.h"
#include "server/Mentions.h"
#include "server/WorkspaceEdit.h"

namespace Tool::Lsp {

namespace {

/// Returns the typeid at the place of a request, which is that of a schema.
/// @throws Refusal
Mention mentionIn(Session& session, const Json& params) {
    const auto [file, offset] = session.placeIn(params);
    std::optional<Mention> mention = mentionAt(file, offset);
    if (!mention) {
        throw Refusal(ErrorCode::requestFailed, "This is no typeid.");
    }
    if (!mention->isOwn && !session.current().catalogue().headings().find(mention->typeId)) {
        throw Refusal(ErrorCode::requestFailed, "No schema in these folders has this typeid.");
    }
    return *std::move(mention);
}

void mustBeFree(const Knowledge& knowledge, const std::string& typeId) {
    if (typeId.empty()) {
        throw Refusal(ErrorCode::invalidParams, "A typeid may not be empty.");
    }
    if (knowledge.catalogue().headings().find(typeId)) {
        throw Refusal(ErrorCode::requestFailed, printable(typeId) + " is taken.");
    }
    if (knowledge.catalogue().engine().isTaken(typeId)) {
        throw Refusal(ErrorCode::requestFailed, printable(typeId) + " is reserved: it contains a built-in identifier.");
    }
}

} // namespace

Json prepareRename(Session& session, const Json& params) {
    const Mention mention = mentionIn(session, params);
    const Lines lines(*mention.file.text, session.encoding);
    return {{"range", rangeOf(lines, mention.begin + 1, mention.end - 1)}, {"placeholder", mention.typeId}};
}

Json rename(Session& session, const Json& params) {
    const Mention mention = mentionIn(session, params);
    const std::string newTypeId = params.at("newName");
    const Knowledge& knowledge = session.current();
    WorkspaceEdit edit(session);
    if (newTypeId == mention.typeId) {
        return edit.json();
    }
    mustBeFree(knowledge, newTypeId);
    for (const Mention& each : mentionsOf(knowledge, mention.typeId)) {
        edit.replace(each.file, each.begin, each.end, Tool::quoted(newTypeId));
    }
    return edit.json();
}

} // namespace Tool::Lsp
