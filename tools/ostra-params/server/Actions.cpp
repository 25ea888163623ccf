#include "catalogue/Input.h"
#include "catalogue/Sections.h"
#include "edit/Edit.h"
#include "edit/Layout.h"
#include "edit/Slips.h"
#include "language/Values.h"
#include "output/Text.h"
#include "server/Diagnostics.h"
#include "server/Features.h"
#include "server/SchemaText.h"
#include "server/Uri.h"
#include "server/WorkspaceEdit.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace Tool::Lsp {

namespace {

constexpr std::string_view quickFix = "quickfix";
constexpr std::string_view fixAll = "source.fixAll.ostra-params";

/// Returns the action that an edit is.
Json action(const std::string& title, std::string_view kind, const WorkspaceEdit& edit) {
    return {{"title", title}, {"kind", kind}, {"edit", edit.json()}};
}

Part partOf(const Problem& problem) {
    return partAt(problem.spot.file->name, *problem.spot.file->text, problem.spot.begin);
}

bool isSlip(const Problem& problem) { return problem.finding.code == "json-syntax"; }

/// Spells what is misspelt as it is meant.
void respell(WorkspaceEdit& edit, const std::vector<const Problem*>& problems) {
    for (const Problem* problem : problems) {
        const auto& [finding, spot, other, root] = *problem;
        const Part part = partOf(*problem);
        for (const Edit& each : respellingsIn(part.text, spot.begin - part.begin, finding.misspelt, finding.meant)) {
            edit.replace(*spot.file, part.begin + each.begin, part.begin + each.end, each.text);
        }
    }
}

/// Says what an edit does with a text.
std::string titleOf(const Edit& edit, std::string_view text) {
    const std::string before = printable(text.substr(edit.begin, edit.end - edit.begin));
    if (before.empty()) {
        return fmt::format("Insert {}", edit.text);
    }
    if (edit.text.empty()) { // a sign of ASCII or one that nobody sees
        return isFirstOfCharacter(before.back()) ? fmt::format("Remove {}", before) : "Remove what cannot be seen";
    }
    return edit.text == " " ? "Write a plain blank"
                            : fmt::format("Write {} in place of {}", printable(edit.text), before);
}

/// Returns what stands between the beginning of a line and an offset, as blanks; nothing when it is not blank.
std::string indentationAt(std::string_view text, std::size_t offset) {
    const std::size_t line = text.find_last_of("\r\n", offset) + 1; // npos + 1 is 0
    const std::string_view before = text.substr(line, offset - line);
    const bool isBlank = line > 0 && before.find_first_not_of(" \t") == std::string_view::npos;
    return fmt::format("{}{}", isBlank ? "\n" : " ", isBlank ? before : std::string_view());
}

/// Returns an edit of a schema as fmt would have it: what was laid out before, is so afterwards.
Edit laidOut(Edit edit, const File& file, const SchemaText& schema) {
    const bool isLine = holdsLines(file.name);
    const auto layOut = isLine ? Layout::ofLine : Layout::ofFile;
    const std::string_view before = isLine ? schema.text() : *file.text;
    const std::size_t origin = isLine ? schema.begin() : 0;
    if (layOut(before) != before) {
        return edit;
    }
    const std::optional<std::string> after =
        layOut(edited(before, {{edit.begin - origin, edit.end - origin, std::move(edit.text)}}));
    // What is the same at both ends stays, and with it the place of the cursor.
    const auto [begin, newBegin] = std::mismatch(before.begin(), before.end(), after->begin(), after->end());
    const auto [last, newLast] = std::mismatch(before.rbegin(), std::make_reverse_iterator(begin), after->rbegin(),
                                               std::make_reverse_iterator(newBegin));
    return {origin + static_cast<std::size_t>(begin - before.begin()),
            origin + static_cast<std::size_t>(last.base() - before.begin()), std::string(newBegin, newLast.base())};
}

/// Adds definitions to the constants of a schema.
void addConstants(WorkspaceEdit& edit, const File& file, const SchemaText& schema,
                  const std::vector<const Language::Definition*>& definitions) {
    const Outline& outline = schema.outline();
    const std::size_t table = outline.find(outline.root(), "constants");
    const bool isThere = table != Outline::none && schema[table].type == Outline::Type::array;
    const std::size_t last = isThere && !schema[table].children.empty() ? schema[table].children.back() : Outline::none;
    const std::size_t sibling = isThere ? last : schema[outline.root()].children.back();
    const std::size_t siblingBegin = sibling == Outline::none    ? 0
                                     : schema[sibling].hasName() ? schema[sibling].nameBegin
                                                                 : schema[sibling].begin;
    const std::string between = sibling == Outline::none ? " " : indentationAt(schema.text(), siblingBegin);
    const std::string separator = fmt::format(",{}", between);
    std::string text;
    for (const Language::Definition* each : definitions) {
        const Json definition = Language::withValue(*each, Language::placeholderOf(*each));
        text += fmt::format("{}{}", text.empty() ? "" : isThere ? separator : ", ", definition.dump());
    }
    const std::size_t offset =
        schema.begin() + (sibling == Outline::none ? schema[table].begin + 1 : schema[sibling].end);
    if (!isThere) {
        text = fmt::format("\"constants\": [{}]", text);
    }
    text.insert(0, sibling == Outline::none ? "" : separator);
    const Edit made = laidOut({offset, offset, std::move(text)}, file, schema);
    edit.replace(file, made.begin, made.end, made.text);
}

/// Returns the constants that a schema must have and has not; the library tells but the first of them.
std::vector<const Language::Definition*> missingIn(const SchemaText& schema, const Language::Form& form) {
    const Outline& outline = schema.outline();
    std::set<std::string, std::less<>> there;
    const std::size_t table = outline.find(outline.root(), "constants");
    for (const std::size_t each : table == Outline::none ? std::vector<std::size_t>() : schema[table].children) {
        there.insert(outline.stringOf(outline.find(each, "id")));
    }
    std::vector<const Language::Definition*> missing;
    for (const Language::Definition& each : form.constants) {
        if (each.isRequired && !there.contains(each.id)) {
            missing.push_back(&each);
        }
    }
    return missing;
}

/// Makes a schema of what is named and missing: a line of the file or a file beside it.
void create(WorkspaceEdit& edit, const Session& session, const File& file, const Language::Form& form,
            const std::string& typeId) {
    const Json schema = Language::schemaOf(form, typeId, [](const Language::Definition& definition) {
        return definition.isRequired ? std::optional(Language::placeholderOf(definition)) : std::nullopt;
    });
    const std::string& text = *file.text;
    if (holdsLines(file.name)) {
        edit.replace(file, text.size(), text.size(),
                     fmt::format("{}{}\n", text.ends_with('\n') ? "" : "\n", schema.dump()));
        return;
    }
    const Json::json_pointer operations("/workspace/workspaceEdit/resourceOperations");
    const Json offered = session.capabilities.value(operations, Json::array());
    const std::string folder = Workspace::folderOf(file.name);
    if (!folder.empty() && std::find(offered.begin(), offered.end(), "create") != offered.end()) {
        edit.create(uriOf(folder + "/" + percentEncoded(typeId, "-_.") + ".json"), Layout::ofJson(schema));
    }
}

/// Collects the actions for faults.
class Actions {
public:
    Actions(Session& session, const File& file, const Json& only)
        : session_(session), knowledge_(session.current()), file_(file), only_(only) {}

    void addFor(const Problem& problem) {
        const Finding& finding = problem.finding;
        WorkspaceEdit edit(session_);
        if (!finding.meant.empty()) {
            respell(edit, session_.trials().harmlessOf({&problem}));
        }
        if (!edit.isEmpty()) {
            add(fmt::format("Write {} in place of {}", printable(finding.meant), printable(finding.misspelt)), quickFix,
                edit, &problem);
        } else if (isSlip(problem)) {
            addMending(problem);
        } else if (finding.code == "constant-undefined") {
            addMissing(problem);
        } else if (!finding.other && (finding.code == "dependency-missing" || finding.code == "unit-missing")) {
            addCreation(problem);
        }
        addForAll(finding.code);
    }

    /// Adds one action for all in the file that one thing alone can be meant by.
    void addForFile(const std::vector<Problem>& problems) {
        std::vector<const Problem*> all;
        all.reserve(problems.size());
        for (const Problem& problem : problems) {
            all.push_back(&problem);
        }
        WorkspaceEdit edit(session_);
        mend(edit, all);
        add("Mend all that is plainly misspelt in this file", fixAll, edit);
    }

    Json take() { return std::move(actions_); }

private:
    bool isWanted(std::string_view kind) const {
        return !only_.is_array() || std::any_of(only_.begin(), only_.end(), [&](const Json& wanted) {
            const std::string name = wanted.is_string() ? wanted.get<std::string>() : std::string();
            return kind == name || name.empty() || kind.starts_with(name + ".");
        });
    }

    void add(const std::string& title, std::string_view kind, const WorkspaceEdit& edit,
             const Problem* problem = nullptr) {
        if (edit.isEmpty() || !isWanted(kind)) {
            return;
        }
        Json made = action(title, kind, edit);
        if (problem != nullptr) {
            made["diagnostics"] = diagnosticsOf(session_, file_, {*problem});
            made["isPreferred"] = true;
        }
        actions_.push_back(std::move(made));
    }

    /// Mends those of some problems by which one thing alone can be meant, and which make nothing worse. Returns how
    /// many they are.
    std::size_t mend(WorkspaceEdit& edit, const std::vector<const Problem*>& problems) {
        std::vector<const Problem*> misspelt;
        std::size_t count = 0;
        for (const Problem* problem : problems) {
            if (!problem->finding.meant.empty()) {
                misspelt.push_back(problem);
            } else if (isSlip(*problem)) {
                const Part part = partOf(*problem);
                if (const std::optional<Edit> slips = mendingOfSlips(part.text)) {
                    edit.replace(*problem->spot.file, part.begin + slips->begin, part.begin + slips->end, slips->text);
                    ++count;
                }
            }
        }
        if (!misspelt.empty()) {
            const std::vector<const Problem*>& harmless = session_.trials().harmlessOf(misspelt);
            respell(edit, harmless);
            count += harmless.size();
        }
        return count;
    }

    void addMending(const Problem& slip) {
        const Part part = partOf(slip);
        if (const std::optional<Edit> mending = mendingOfSlip(part.text)) {
            WorkspaceEdit edit(session_);
            edit.replace(file_, part.begin + mending->begin, part.begin + mending->end, mending->text);
            add(titleOf(*mending, part.text), quickFix, edit, &slip);
        }
    }

    void addForAll(const std::string& code) {
        if (!told_.insert(code).second || !isWanted(quickFix)) {
            return;
        }
        std::vector<const Problem*> all;
        for (const auto& [name, problems] : knowledge_.problems()) {
            for (const Problem& problem : problems) {
                if (problem.finding.code == code && (isSlip(problem) || !problem.finding.meant.empty())) {
                    all.push_back(&problem);
                }
            }
        }
        WorkspaceEdit edit(session_);
        if (const std::size_t count = mend(edit, all); count > 1) {
            add(fmt::format("Mend all {} of these ({})", count, code), quickFix, edit);
        }
    }

    void addMissing(const Problem& problem) {
        const std::optional<SchemaText> schema = schemaAt(file_, problem.spot.begin);
        const Language::Form* const form = schema ? schema->form() : nullptr;
        if (form == nullptr) {
            return;
        }
        const std::vector<const Language::Definition*> all = missingIn(*schema, *form);
        const auto own = std::find_if(
            all.begin(), all.end(), [&](const Language::Definition* each) { return each->id == problem.finding.name; });
        if (own == all.end()) {
            return;
        }
        WorkspaceEdit edit(session_);
        addConstants(edit, file_, *schema, {*own});
        add(fmt::format("Add the constant {}", (*own)->id), quickFix, edit, &problem);
        if (all.size() > 1 && own == all.begin()) {
            WorkspaceEdit every(session_);
            addConstants(every, file_, *schema, all);
            add(fmt::format("Add all {} constants that are missing", all.size()), quickFix, every);
        }
    }

    void addCreation(const Problem& problem) {
        const Finding& finding = problem.finding;
        const Section* const section = findSection(&Section::label, finding.expected);
        const Language::Form* const form = section == nullptr ? nullptr : Language::findForm(section->id);
        if (form != nullptr && !knowledge_.catalogue().engine().isTaken(finding.name)) {
            WorkspaceEdit edit(session_);
            create(edit, session_, file_, *form, finding.name);
            add(fmt::format("Create the {} {}", form->label, printable(finding.name)), quickFix, edit, &problem);
        }
    }

    Session& session_;
    const Knowledge& knowledge_;
    const File& file_;
    const Json& only_;
    std::set<std::string> told_; // codes of which all are offered to be mended
    Json actions_ = Json::array();
};

/// What a request for actions is about: a stretch of a file, and what the client shows there.
class Subject {
public:
    Subject(const Session& session, const File& file, const Json& params)
        : lines_(*file.text, session.encoding), begin_(offsetOf(params.at("range").at("start"))),
          end_(offsetOf(params.at("range").at("end"))) {
        const Json context = params.value("context", Json::object());
        for (const Json& diagnostic : context.value("diagnostics", Json::array())) {
            shown_.emplace(offsetOf(diagnostic.at("range").at("start")), diagnostic.value("code", Json()));
        }
    }

    /// Returns whether a problem lies in the stretch, or the client shows it beside that, as some do with all of a
    /// line.
    bool includes(const Problem& problem) const {
        const std::size_t begin = std::min(problem.spot.begin, beginOfMending(problem));
        return (begin <= end_ && problem.spot.end >= begin_) ||
               shown_.contains({problem.spot.begin, Json(problem.finding.code)});
    }

private:
    std::size_t offsetOf(const Json& position) const {
        return lines_.offsetOf({countOf(position.at("line")), countOf(position.at("character"))});
    }

    /// What mends a slip may stand before the place where the text ceases to be JSON.
    static std::size_t beginOfMending(const Problem& problem) {
        const Part part = partOf(problem);
        const std::optional<Edit> mending = isSlip(problem) ? mendingOfSlip(part.text) : std::nullopt;
        return mending ? part.begin + mending->begin : problem.spot.begin;
    }

    Lines lines_;
    std::size_t begin_;
    std::size_t end_;
    std::set<std::pair<std::size_t, Json>> shown_;
};

} // namespace

Json codeAction(Session& session, const Json& params) {
    const File file = session.fileIn(params);
    const Subject subject(session, file, params);
    const Json only = params.contains("context") ? params.at("context").value("only", Json()) : Json();
    Actions actions(session, file, only);
    const auto& problems = session.current().problems();
    if (const auto mine = problems.find(file.name); mine != problems.end()) {
        for (const Problem& problem : mine->second) {
            if (subject.includes(problem)) {
                actions.addFor(problem);
            }
        }
        actions.addForFile(mine->second);
    }
    return actions.take();
}

} // namespace Tool::Lsp
