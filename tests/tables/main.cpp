// Compares the tables of constants in the pages of the schema language with the description of the language, or writes
// them. A table stands between two comments:
//
//     <!-- table: int-parameter without parameters -->
//     <!-- end of table -->
//
// It is that of a form by its id, of what the forms of a family have in common, or of what stands beside the bases of
// ranges ("inline-ranges").
//
// usage: tables [--write] PAGE...

#include "language/Values.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace Tool::Language;

using Definitions = std::vector<Definition>;

bool isIn(const Definitions& definitions, std::string_view id) {
    return std::any_of(definitions.begin(), definitions.end(), [&](const Definition& each) { return each.id == id; });
}

bool isSame(const Definition& one, const Definition& other) {
    return one.id == other.id && one.type == other.type && one.isRequired == other.isRequired &&
           one.meaning == other.meaning && one.named == other.named;
}

/// Returns what all forms of a family have in common; nothing of a word that is no family.
Definitions commonOf(std::string_view word) {
    std::vector<const Form*> family;
    for (const Form& form : forms()) {
        const auto kind = Parameters::findKindOfId(form.section->id);
        if (kind && ((word == "parameters" && kind->isParameter()) || (word == "specs" && kind->isSpec()))) {
            family.push_back(&form);
        }
    }
    Definitions common;
    for (const Definition& definition : family.empty() ? std::span<const Definition>() : family.front()->constants) {
        if (std::all_of(family.begin(), family.end(), [&](const Form* form) {
                return std::any_of(form->constants.begin(), form->constants.end(),
                                   [&](const Definition& each) { return isSame(each, definition); });
            })) {
            common.push_back(definition);
        }
    }
    return common;
}

std::string pageOf(std::string_view sectionId) {
    const auto kind = Parameters::findKindOfId(sectionId);
    if (!kind) {
        return "units.md";
    }
    switch (kind->family()) {
    case Parameters::KindFamily::enumeration:
    case Parameters::KindFamily::range:
        return "schema-ranges.md";
    case Parameters::KindFamily::taxon:
    case Parameters::KindFamily::category:
        return "schema-taxonomy.md";
    case Parameters::KindFamily::spec:
        return "schema-specs.md";
    case Parameters::KindFamily::parameter:
        break;
    }
    return "schema-parameters.md";
}

/// Writes the rows of one page.
class Rows {
public:
    explicit Rows(std::string page) : page_(std::move(page)) {}

    std::string of(const Definition& definition, const char* sort) const {
        if (definition.type == Type::choice) {
            return "| properties | at least one | required | The choices. | `Enumeration schema <typeid> must specify "
                   "at "
                   "least one value.` |\n"
                   "| \"id\" of a property | non-empty text, each once | required | What a choice is called. | `ID of "
                   "value in enumeration schema <typeid> must not be empty.` |\n"
                   "| \"value\" of a property | integer | required | What stands for it; several may have the same "
                   "one. "
                   "| `Value <id> in enumeration schema <typeid> must specify an integer value.` |\n";
        }
        std::string rows = fmt::format("| {}\"{}\" | {} | {} | {} | {} |\n", sort, definition.id, valueOf(definition),
                                       defaultOf(definition), definition.meaning, messagesOf(definition.type));
        if (definition.type == Type::referenceSpec) {
            rows +=
                "| \"spec\" of a family type | the same with a \"typedValue\" that has the category | | References to "
                "family types of a category. | `Inline typedValue override is required when specifying the family "
                "type base schema <typeid> in spec constant typedValue.` `Inline typedValue override in spec "
                "constant typedValue must be an object.` `Inline typedValue override in spec constant typedValue "
                "must specify an object with a typeid string attribute for constant category.` `Expected a string.` "
                "`Expected a non-empty string.` |\n";
        }
        return rows;
    }

    /// Returns the row of what stands beside the base of a range.
    std::string ofInline(const Form& range) const {
        std::string members;
        for (const Definition& constant : range.constants) {
            members += fmt::format("{}\"{}\" ({}{}, {})", members.empty() ? "" : ", ", constant.id, valueOf(constant),
                                   constant.type == Type::texts ? ", at least one" : "",
                                   constant.isRequired ? "required" : defaultOf(constant) + " by default");
        }
        return fmt::format("| `{}` | {} | required | {} |\n", prefixOf(range.base), range.label,
                           members.empty() ? "none: `{}`" : members);
    }

private:
    std::string valueOf(const Definition& definition) const {
        switch (definition.type) {
        case Type::text:
            return "text";
        case Type::nonEmptyText:
            return "non-empty text";
        case Type::boolean:
            return "Boolean";
        case Type::integer:
        case Type::choice:
            return "integer";
        case Type::number:
            return "number, integer or not";
        case Type::texts:
            return "texts, each once";
        case Type::references:
            return "typedValues that name " + linked(definition.named, sectionOf(definition).plural);
        case Type::range:
            return "the range, see below";
        case Type::referenceSpec:
            return naming(definition) + ", and nothing beside the typeid";
        case Type::generalSpec:
            return naming(definition) + ", with an empty object as \"value\" at most";
        case Type::reference:
        case Type::enumeration:
            break;
        }
        return naming(definition);
    }

    static std::string defaultOf(const Definition& definition) {
        if (definition.isRequired) {
            return "required";
        }
        const auto value = Tool::Language::defaultOf(definition);
        if (definition.type == Type::range) {
            return definition.named == "string-range" ? "any text" : "no bounds";
        }
        if (!value || (value->is_array() && value->empty())) {
            return "none";
        }
        if (value->is_object()) {
            return fmt::format("`{}`, \"{}\"", value->at("typeid").get<std::string>(),
                               Parameters::findKindOfId(definition.named)->builtInName());
        }
        return value->dump();
    }

    static const char* messagesOf(Type type) {
        switch (type) {
        case Type::text:
            return "`Expected a string.`";
        case Type::nonEmptyText:
            return "`Expected a non-empty string.`";
        case Type::boolean:
            return "`Expected a Boolean value.`";
        case Type::integer:
        case Type::choice:
            return "`Expected an integer.`";
        case Type::number:
            return "`Expected a number.`";
        case Type::texts:
            return "`Expected an array.` `Expected an array of strings.` `Expected an array of unique strings.`";
        case Type::reference:
            return "those of a typedValue";
        case Type::references:
            return "`Expected an array of typedValue objects.`, and those of a typedValue";
        case Type::range:
            return "those of a range";
        case Type::referenceSpec:
            return "`Parameter schema <typeid> must specify a typeid string attribute in its spec constant "
                   "typedValue.` "
                   "`Expected a string.` `Expected a non-empty string.` `Inline value override for spec <typeid> is "
                   "not "
                   "permitted.`";
        case Type::generalSpec:
            return "`Enumeration parameter schema <typeid> has an undefined spec constant.` `A spec definition must "
                   "contain either a value or a typedValue.` `Spec constant in enumeration parameter schema <typeid> "
                   "must "
                   "specify a nonempty typeid string.` `Value of spec constant in enumeration parameter schema "
                   "<typeid> "
                   "must be an empty object.`";
        case Type::enumeration:
            break;
        }
        return "`Enumeration parameter schema <typeid> has an undefined value property.` `Value property in "
               "enumeration "
               "parameter schema <typeid> must specify a nonempty typeid string.` `Expected a string.` `Expected a "
               "non-empty string.`";
    }

    static const Tool::Section& sectionOf(const Definition& definition) { return *findForm(definition.named)->section; }

    std::string naming(const Definition& definition) const {
        const std::string_view label = sectionOf(definition).label;
        const bool isVowel = std::string_view("aeio").find(label.front()) != std::string_view::npos; // "a unit"
        return fmt::format("typedValue that names {} {}", isVowel ? "an" : "a", linked(definition.named, label));
    }

    std::string linked(std::string_view sectionId, std::string_view words) const {
        const std::string page = pageOf(sectionId);
        return page == page_ ? std::string(words) : fmt::format("[{}]({})", words, page);
    }

    std::string page_;
};

std::string tableOfInlineRanges(const std::string& page) {
    const Rows rows(page);
    std::string table = "| \"typeid\" contains | What it is | \"value\" | Its members |\n|---|---|---|---|\n";
    for (const Form& form : forms()) {
        const auto kind = Parameters::findKindOfId(form.section->id);
        if (kind && kind->family() == Parameters::KindFamily::range) {
            table += rows.ofInline(form);
        }
    }
    return table + "| none of these | a range of the catalogue | `{}` or none | none |\n";
}

/// Returns the table of a form or family, without what a family has in common, and notes what it shows.
std::string tableOf(const std::string& page, std::string_view id, std::string_view without, Definitions& shown) {
    const Form* const form = findForm(id);
    const Definitions common = commonOf(without);
    Definitions constants = commonOf(id);
    if (form != nullptr) {
        constants.assign(form->constants.begin(), form->constants.end());
    }
    std::erase_if(constants, [&](const Definition& constant) { return isIn(common, constant.id); });
    const bool hasProperties = form != nullptr && !form->properties.empty();
    const bool hasBoth = hasProperties && !constants.empty();
    const Rows rows(page);
    shown.insert(shown.end(), constants.begin(), constants.end());
    std::string table = fmt::format("| {} | Value | Default | What it says | Messages |\n|---|---|---|---|---|\n",
                                    hasBoth         ? "Constant or property"
                                    : hasProperties ? "Part"
                                                    : "Constant");
    for (const Definition& constant : constants) {
        table += rows.of(constant, hasBoth ? "constant " : "");
    }
    for (const Definition& property : hasProperties ? form->properties : std::span<const Definition>()) {
        table += rows.of(property, "property ");
        shown.push_back(property);
    }
    if (constants.empty() && !hasProperties) {
        throw std::runtime_error(fmt::format("{}: there is nothing in table {}.", page, id));
    }
    return table;
}

/// Returns a page with the tables as they should be, and notes what they show.
std::string withTables(const std::string& page, const std::string& text, Definitions& shown) {
    static const std::regex mark("<!-- table: ([a-z-]+)( without ([a-z-]+))? -->\n");
    constexpr std::string_view endMark = "<!-- end of table -->\n";
    std::string result;
    auto rest = text.cbegin();
    for (std::smatch match; std::regex_search(rest, text.cend(), match, mark);) {
        const auto after = static_cast<std::size_t>(match[0].second - text.cbegin());
        const std::size_t end = text.find(endMark, after);
        if (end == std::string::npos) {
            throw std::runtime_error(fmt::format("{}: a table has no end.", page));
        }
        result.append(rest, match[0].second).append("\n");
        result += match.str(1) == "inline-ranges" ? tableOfInlineRanges(page)
                                                  : tableOf(page, match.str(1), match.str(3), shown);
        result.append("\n").append(endMark);
        rest = text.cbegin() + static_cast<std::ptrdiff_t>(end + endMark.size());
    }
    return result.append(rest, text.cend());
}

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (!stream) {
        throw std::runtime_error("Cannot read " + file.string());
    }
    return text;
}

int run(std::vector<std::string> arguments) {
    const bool writes = !arguments.empty() && arguments.front() == "--write";
    arguments.erase(arguments.begin(), arguments.begin() + (writes ? 1 : 0));
    Definitions shown;
    int differing = 0;
    for (const std::filesystem::path file : arguments) {
        const std::string text = contentOf(file);
        const std::string made = withTables(file.filename().string(), text, shown);
        if (made != text && writes) {
            std::ofstream(file, std::ios::binary) << made;
        } else if (made != text) {
            fmt::print(stderr, "{}: the tables are not those of the language; ./scripts/tables writes them.\n",
                       file.string());
            ++differing;
        }
    }
    for (const Form& form : forms()) {
        for (const auto& definitions : {form.constants, form.properties}) {
            for (const Definition& each : definitions) {
                if (std::none_of(shown.begin(), shown.end(),
                                 [&](const Definition& row) { return isSame(row, each); })) {
                    fmt::print(stderr, "No table shows {} of {}.\n", each.id, form.id);
                    ++differing;
                }
            }
        }
    }
    return differing == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& exception) {
        fmt::print(stderr, "{}\n", exception.what());
        return 2;
    }
}
