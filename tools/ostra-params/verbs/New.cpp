#include "edit/Layout.h"
#include "language/Values.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <parameters/ParametersEngine.h>

#include <fmt/format.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

namespace {

using Language::Definition;
using Language::Form;

struct Options {
    std::string kind;
    std::string typeId;
    std::string output{standardOutput};
};

constexpr const char* details = R"(It has every constant: what must be given with "<...>", false or 0 in its
place, and all else with its default, which may as well be left out.)";

std::string refuseOtherKinds(const std::string& kind) {
    if (Language::findForm(kind) != nullptr) {
        return {};
    }
    std::vector<std::string_view> ids;
    for (const Form& form : Language::forms()) {
        ids.push_back(form.id);
        ids.push_back(form.section->id);
    }
    return thereIsNo("kind", kind, ids);
}

/// Returns what is wrong with a typeid that no schema could have.
std::string refuseTypeId(const std::string& typeId) {
    if (findInvalid(typeId) != std::string::npos) {
        return fmt::format("{} is no UTF-8", printable(typeId));
    }
    if (Parameters::ParametersEngine().isRegistered(typeId)) {
        return fmt::format("{} contains a built-in identifier", printable(typeId));
    }
    return refuseEmpty(typeId);
}

std::optional<Json> valueOf(const Definition& definition) {
    return definition.isRequired ? placeholderOf(definition) : defaultOf(definition);
}

std::string idsOfForms() {
    std::vector<std::string_view> ids;
    ids.reserve(Language::forms().size());
    for (const Form& form : Language::forms()) {
        ids.push_back(form.id);
    }
    return listed(ids);
}

} // namespace

void addNew(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("new", "Write a schema to be filled in");
    verb.add("KIND", options->kind, "", idsOfForms()).required().check(refuseOtherKinds);
    verb.add("TYPEID", options->typeId, "", "The typeid of the schema").required().check(refuseTypeId);
    verb.add("-o,--output", options->output, "FILE", "A .json file; standard output when none is given")
        .check(refuseEmpty);
    verb.footer(details);
    verb.does([options] {
        writeTo(options->output,
                Layout::ofJson(schemaOf(*Language::findForm(options->kind), options->typeId, &valueOf)));
        return Good;
    });
}

} // namespace Tool
