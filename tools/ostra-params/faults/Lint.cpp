#include "faults/Lint.h"

#include "catalogue/Sections.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <regex>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Tool {

namespace {

constexpr std::array all{
    Lint{"content-shared", true},      Lint{"description-missing", false}, Lint{"name-shared", false},
    Lint{"object-unused", false},      Lint{"regex-refused", true},        Lint{"typeid-unversioned", true},
};

std::string nameIn(const auto& object) {
    if constexpr (requires { object.getName(); }) {
        return object.getName();
    } else if constexpr (requires { object.getCore(); }) {
        return object.getCore().getName();
    } else {
        return {};
    }
}

/// Returns the regular expression that an object says itself, or whose range does; of a range that is named, the range
/// tells it.
template <class Value>
std::optional<std::string> regexIn(const Value& object) {
    if constexpr (requires { object.getRegexStringRangeComponent(); }) {
        const auto regex = object.getRegexStringRangeComponent();
        return regex ? std::optional(regex->getRegex()) : std::nullopt;
    } else if constexpr (requires { object.getRange().getRegexStringRangeComponent(); }) {
        const auto range = object.getRange();
        return sectionOfBase(range.getTypeId()) == nullptr ? std::nullopt : regexIn(range);
    } else {
        return std::nullopt;
    }
}

/// Tells whether the standard library takes a regular expression; it takes stack for each character of one.
bool isRegex(const std::string& text) {
    constexpr std::size_t longest = 2000;
    try {
        return text.size() > longest || std::regex(text).mark_count() < longest;
    } catch (const std::regex_error&) {
        return false;
    }
}

bool hasVersion(std::string_view typeId) {
    std::size_t points = 0;
    while (!typeId.empty() && (typeId.back() == '.' || (typeId.back() >= '0' && typeId.back() <= '9'))) {
        points += typeId.back() == '.' ? 1 : 0;
        typeId.remove_suffix(1);
    }
    return points == 2 && typeId.ends_with('-');
}

/// Looks at the objects of an engine.
class Linter {
public:
    Linter(Loader& catalogue, const std::set<std::string, std::less<>>& codes) : catalogue_(catalogue), codes_(codes) {}

    std::vector<Finding> findings() {
        Parameters::ParametersEngine& engine = catalogue_.engine();
        begin(sectionOfUnits());
        for (const auto& [typeId, unit] : engine.getUnitsEngine().getAllUnits()) {
            mayBeUnused_.emplace(typeId, section_);
            const std::string name = unit.getName();
            look(typeId, name, [&, &made = unit] { return name + '\0' + made.getSymbol(); });
        }
        Parameters::forEachKind([&](auto kind) {
            begin(sectionOf(kind.info));
            for (const auto& [typeId, object] : kind.getAll(engine)) {
                lookAt(kind, typeId, object);
            }
        });
        for (const auto& [typeId, section] : mayBeUnused_) {
            if (isAskedFor("object-unused") && !used_.contains(typeId)) {
                add("object-unused", typeId, fmt::format("Nothing names {} {}.", section->label, typeId));
            }
        }
        std::stable_sort(findings_.begin(), findings_.end(),
                         [](const Finding& one, const Finding& other) { return one.source < other.source; });
        return std::move(findings_);
    }

private:
    bool isAskedFor(std::string_view code) const { return codes_.contains(code); }

    void begin(const Section& section) {
        section_ = &section;
        names_.clear();
        contents_.clear();
    }

    template <class Kind>
    void lookAt(Kind kind, const std::string& typeId, const typename Kind::Value& object) {
        const Parameters::ParametersEngine& engine = catalogue_.engine();
        look(typeId, nameIn(object), [&] {
            const std::string schema = kind.getSchema(engine, object);
            return schema.substr(schema.find(",\"inherits\":")); // behind the typeid
        });
        if (isAskedFor("object-unused")) {
            used_.merge(kind.getDependencies(engine, object));
        }
        if constexpr (!Kind::info.isParameter()) { // which are for the application
            mayBeUnused_.emplace(typeId, section_);
        } else if (object.getCore().getDescription().empty()) {
            add("description-missing", typeId, fmt::format("{} {} has no description.", section_->label, typeId));
        }
        if (const auto regex = isAskedFor("regex-refused") ? regexIn(object) : std::nullopt) {
            const auto [known, isNew] = regexes_.try_emplace(*regex);
            known->second = isNew ? isRegex(*regex) : known->second;
            if (!known->second) {
                add("regex-refused", typeId, fmt::format("{} is no regular expression of ECMAScript.", *regex));
            }
        }
    }

    /// Looks for what all objects may have.
    void look(const std::string& typeId, const std::string& name, const std::function<std::string()>& content) {
        if (!hasVersion(typeId)) {
            add("typeid-unversioned", typeId, fmt::format("Typeid {} has no version.", typeId),
                {}, fmt::format("such as {}-1.0.0.", typeId));
        }
        if (isAskedFor("content-shared")) {
            const auto [first, isNew] = contents_.try_emplace(std::hash<std::string>()(content()), typeId);
            if (!isNew) {
                add("content-shared", typeId,
                    fmt::format("{} {} says the same as {}.", section_->label, typeId, first->second), first->second);
                return;
            }
        }
        if (isAskedFor("name-shared") && !name.empty()) {
            const auto [first, isNew] = names_.try_emplace(name, typeId);
            if (!isNew) {
                add("name-shared", typeId,
                    fmt::format("{} {} has the name of {}, {}.", section_->label, typeId, first->second, name), first->second);
            }
        }
    }

    void add(const char* code, const std::string& typeId, std::string message, const std::string& other = {},
             std::string hint = {}) {
        if (!isAskedFor(code)) {
            return;
        }
        message.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(message.front())));
        Finding finding{.code = code, .isError = false, .message = std::move(message)};
        finding.source = *catalogue_.headings().find(typeId);
        finding.place = placeOf(finding.source);
        finding.typeId = typeId;
        if (!other.empty()) {
            finding.other = placeOf(*catalogue_.headings().find(other));
        }
        finding.hint = std::move(hint);
        findings_.push_back(std::move(finding));
    }

    Place placeOf(std::size_t number) {
        const Source& source = catalogue_.source(number);
        const std::string& text = *source.text;
        return Positions().placeOf(source, text.find_first_not_of(" \t\r\n"), text.find_last_not_of(" \t\r\n") + 1);
    }

    Loader& catalogue_;
    const std::set<std::string, std::less<>>& codes_;
    const Section* section_ = nullptr;
    std::unordered_map<std::string, std::string> names_;    // the first typeid of each name in the section
    std::unordered_map<std::size_t, std::string> contents_; // and of each content, by its hash
    std::unordered_map<std::string, bool> regexes_;
    std::map<std::string, const Section*> mayBeUnused_;
    std::set<std::string> used_;
    std::vector<Finding> findings_;
};

} // namespace

std::span<const Lint> lints() { return all; }

std::vector<Finding> lint(Loader& catalogue, const std::set<std::string, std::less<>>& codes) {
    return Linter(catalogue, codes).findings();
}

} // namespace Tool
