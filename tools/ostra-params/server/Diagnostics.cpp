#include "server/Diagnostics.h"

#include "output/Text.h"

#include <algorithm>
#include <utility>

namespace Tool::Lsp {

namespace {

enum Severity { ErrorSeverity = 1, WarningSeverity = 2 };

Json relatedOf(Locations& locations, const Problem& problem) {
    Json related = Json::array();
    for (const auto& [spot, message] :
         {std::pair(problem.other, "The other side"), std::pair(problem.root, "What this follows from")}) {
        if (spot) {
            related.push_back({{"location", locations.of(*spot->file, spot->begin, spot->end)}, {"message", message}});
        }
    }
    return related;
}

/// What is no JSON is so up to its end; one line of it is enough to be marked.
std::size_t endOf(const Problem& problem) {
    const std::string& text = *problem.spot.file->text;
    return problem.finding.code == "json-syntax"
               ? std::min(problem.spot.end, text.find_first_of("\r\n", problem.spot.begin))
               : problem.spot.end;
}

} // namespace

Json diagnosticsOf(const Session& session, const File& file, const std::vector<Problem>& problems) {
    const Lines lines(*file.text, session.encoding);
    const bool isRelatedShown = session.can("/textDocument/publishDiagnostics/relatedInformation");
    Locations locations(session.encoding);
    Json diagnostics = Json::array();
    for (const Problem& problem : problems) {
        const Finding& finding = problem.finding;
        std::string message = printable(finding.message);
        message += finding.hint.empty() ? std::string() : "\nhint: " + printable(finding.hint);
        Json diagnostic{{"range", rangeOf(lines, problem.spot.begin, endOf(problem))},
                        {"severity", finding.isError ? ErrorSeverity : WarningSeverity},
                        {"code", finding.code},
                        {"source", "ostra-params"},
                        {"message", std::move(message)}};
        if (isRelatedShown) {
            if (Json related = relatedOf(locations, problem); !related.empty()) {
                diagnostic["relatedInformation"] = std::move(related);
            }
        }
        diagnostics.push_back(std::move(diagnostic));
    }
    return diagnostics;
}

void Diagnostics::publish(Session& session) {
    const Knowledge& knowledge = session.latest();
    std::map<std::string, Told> told;
    for (const auto& [name, problems] : knowledge.problems()) {
        const File& file = *knowledge.find(name);
        const std::optional<File> now = session.workspace.find(file.uri);
        const auto before = told_.find(name);
        if (now && now->text != file.text) {
            if (before != told_.end()) {
                told.insert(*before);
            }
            continue;
        }
        Told& mine = told[name] = {file.uri, diagnosticsOf(session, file, problems)};
        if (before == told_.end() || before->second.uri != mine.uri || before->second.diagnostics != mine.diagnostics) {
            tell(session, mine.uri, &file, mine.diagnostics);
        }
    }
    for (const auto& [name, before] : told_) {
        const auto after = told.find(name);
        if (after == told.end() || after->second.uri != before.uri) {
            tell(session, before.uri, nullptr, Json::array());
        }
    }
    told_ = std::move(told);
}

void Diagnostics::tell(const Session& session, const std::string& uri, const File* file, const Json& diagnostics) {
    Json params{{"uri", uri}, {"diagnostics", diagnostics}};
    if (file != nullptr && file->version && session.can("/textDocument/publishDiagnostics/versionSupport")) {
        params["version"] = *file->version;
    }
    send_(notification("textDocument/publishDiagnostics", std::move(params)));
}

} // namespace Tool::Lsp
