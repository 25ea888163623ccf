#pragma once

#include <parameters/Export.h>
#include <parameters/RegexStringRangeComponent.h>
#include <parameters/SetStringRangeComponent.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct StringRangeData;
} // namespace Internal

/// Which texts a string parameter may have as values: any, those of a set, or those that a regular expression matches.
/// Copies share their data.
class PARAMETERS_EXPORT StringRange {
public:
    /// Any text; the type identifier is the built-in one of the default range.
    StringRange();
    /// The type identifier is the built-in one of set ranges: such a range belongs to the parameter that has it.
    explicit StringRange(const SetStringRangeComponent& set);
    /// The type identifier is the built-in one of regex ranges: such a range belongs to the parameter that has it.
    explicit StringRange(const RegexStringRangeComponent& regex);
    StringRange(const std::string& typeId, const SetStringRangeComponent& set);
    StringRange(const std::string& typeId, const RegexStringRangeComponent& regex);
    StringRange(const StringRange&) noexcept = default;
    StringRange& operator=(const StringRange&) noexcept = default;

    std::string getTypeId() const;
    /// Returns the set of allowed values, where the range has one.
    std::optional<SetStringRangeComponent> getSetStringRangeComponent() const;
    /// Returns the regular expression, where the range has one.
    std::optional<RegexStringRangeComponent> getRegexStringRangeComponent() const;

    /// Comparisons are by identity: the bytes of the type identifier alone decide, nothing else takes part.
    bool operator==(const StringRange& other) const noexcept;
    bool operator!=(const StringRange& other) const noexcept;
    bool operator<(const StringRange& other) const noexcept;
    bool operator>(const StringRange& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit StringRange(std::shared_ptr<const Internal::StringRangeData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::StringRangeData> data_;
};

} // namespace Parameters
