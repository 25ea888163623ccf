#include "faults/Rules.h"

#include "catalogue/Loader.h"
#include "catalogue/Sections.h"
#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <regex>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Tool {

namespace {

constexpr std::array all{
    Lint{"content-shared", false}, Lint{"description-missing", false}, Lint{"name-shared", false},
    Lint{"object-unused", false},  Lint{"regex-refused", true},        Lint{"typeid-unversioned", false},
};

/// Tells whether the standard library takes a regular expression; it takes stack for each character of one.
bool isRegex(const std::string& text) {
    constexpr std::size_t longest = 2000;
    try {
        if (text.size() <= longest) {
            const std::regex tried(text);
        }
        return true;
    } catch (const std::regex_error&) {
        return false;
    }
}

bool hasVersion(std::string_view typeId) {
    const std::size_t hyphen = typeId.find_last_not_of("0123456789.");
    return hyphen != std::string_view::npos && typeId[hyphen] == '-' &&
           std::count(typeId.begin() + static_cast<std::ptrdiff_t>(hyphen), typeId.end(), '.') == 2;
}

/// Looks at one object after the other.
class Linter {
public:
    Linter(Loader& catalogue, const std::set<std::string, std::less<>>& codes) : catalogue_(catalogue), codes_(codes) {}

    std::vector<Finding> findings() {
        const bool isRegexAlone = codes_.size() == codes_.count("regex-refused"); // which costs little, as few have one
        describeEach(
            catalogue_.engine(),
            [&](const Section& section) {
                return !isRegexAlone || section.id == "string-range" || section.id == "string-parameter";
            },
            [&](const Object& object) { look(object); });
        for (const auto& [typeId, label] : mayBeUnused_) {
            if (!used_.contains(typeId)) {
                add("object-unused", typeId, fmt::format("Nothing names {} {}.", label, typeId));
            }
        }
        std::stable_sort(findings_.begin(), findings_.end(), isReadBefore);
        return std::move(findings_);
    }

private:
    void look(const Object& object) {
        const std::string& typeId = object.typeId;
        const std::string_view label = object.section->label;
        const bool isParameter = object.section->isParameter;
        bool isDescribed = !isParameter;
        std::string content = fmt::format("{}\n{}", label, object.name);
        for (const Property& property : object.properties) {
            isDescribed = isDescribed || property.name == "description";
            content += '\n';
            content += property.name;
            for (const Value& value : property.values) {
                content += '\n' + value.identity();
                if (property.isOwn && codes_.contains("object-unused")) {
                    used_.insert(value.typeId);
                }
                if (property.isOwn && property.name == "regular expression" && !isRegex(value.text)) {
                    add("regex-refused", typeId, value.text + " is no regular expression of ECMAScript.");
                }
            }
        }
        if (!isParameter && codes_.contains("object-unused")) { // parameters are for the application
            mayBeUnused_.emplace(typeId, label);
        }
        if (!isDescribed) {
            add("description-missing", typeId, fmt::format("{} {} has no description.", label, typeId));
        }
        if (!hasVersion(typeId)) {
            add("typeid-unversioned", typeId, fmt::format("Typeid {} has no version.", typeId));
        }
        if (codes_.contains("content-shared")) {
            compare("content-shared", object, content, " says the same as ");
        }
        if (codes_.contains("name-shared") && !object.name.empty()) {
            compare("name-shared", object, fmt::format("{}\n{}", label, object.name), " has the name of ");
        }
    }

    void compare(const char* code, const Object& object, const std::string& content, const char* verb) {
        const auto [first, isNew] = firsts_[code].try_emplace(std::hash<std::string>()(content), object.typeId);
        if (!isNew) {
            add(code, object.typeId,
                fmt::format("{} {}{}{}.", object.section->label, object.typeId, verb, first->second));
            findings_.back().other = placeOf(*catalogue_.headings().find(first->second));
        }
    }

    void add(const char* code, const std::string& typeId, std::string message) {
        if (codes_.contains(code)) {
            Finding finding{.code = code, .isError = false, .message = capitalized(std::move(message))};
            finding.source = *catalogue_.headings().find(typeId);
            finding.place = placeOf(finding.source);
            finding.typeId = typeId;
            findings_.push_back(std::move(finding));
        }
    }

    Place placeOf(std::size_t number) {
        const Source& source = catalogue_.source(number);
        const std::string& text = *source.text;
        return Positions().placeOf(source, text.find_first_not_of(blanks), text.find_last_not_of(blanks) + 1);
    }

    Loader& catalogue_;
    const std::set<std::string, std::less<>>& codes_;
    // The first typeid of each content, for each code. Of contents the hashes are kept, as they are long and many.
    std::map<std::string_view, std::unordered_map<std::size_t, std::string>> firsts_;
    std::map<std::string, std::string_view> mayBeUnused_;
    std::unordered_set<std::string> used_;
    std::vector<Finding> findings_;
};

} // namespace

std::span<const Lint> lints() { return all; }

std::vector<Finding> lint(Loader& catalogue, const std::set<std::string, std::less<>>& codes) {
    return Linter(catalogue, codes).findings();
}

} // namespace Tool
