#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/RegexStringRangeComponent.h>
#include <parameters/SetStringRangeComponent.h>
#include <parameters/Value.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct StringRangeData;
} // namespace Internal

/// Which texts a string parameter may have as values: any, those of a set, or those that a regular expression matches.
///
/// An application tests values itself:
/// @snippet parameter_dialog.cpp text
/// @ingroup values
class PARAMETERS_EXPORT StringRange {
public:
    /// Makes the range of any text, with the built-in type identifier of the default range.
    StringRange();
    /// Makes a set range with the built-in type identifier: such a range belongs to the parameter that has it.
    explicit StringRange(const SetStringRangeComponent& set);
    /// Makes a regex range with the built-in type identifier: such a range belongs to the parameter that has it.
    explicit StringRange(const RegexStringRangeComponent& regex);
    /// Makes a set range to be registered under its own type identifier.
    StringRange(const std::string& typeId, const SetStringRangeComponent& set);
    /// Makes a regex range to be registered under its own type identifier.
    StringRange(const std::string& typeId, const RegexStringRangeComponent& regex);
    /// Copies share their data; moving copies.
    /// @{
    StringRange(const StringRange&) noexcept = default;
    StringRange& operator=(const StringRange&) noexcept = default;
    /// @}

    /// Returns the identifier by which the range is known.
    /// @{
    [[nodiscard]] std::string getTypeId() const;
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// @}
    /// Returns the set of allowed values, where the range has one.
    /// @{
    [[nodiscard]] std::optional<SetStringRangeComponent> getSetStringRangeComponent() const noexcept;
    [[nodiscard]] const SetStringRangeComponent* setStringRangeComponent() const noexcept;
    /// @}
    /// Returns the regular expression, where the range has one.
    /// @{
    [[nodiscard]] std::optional<RegexStringRangeComponent> getRegexStringRangeComponent() const noexcept;
    [[nodiscard]] const RegexStringRangeComponent* regexStringRangeComponent() const noexcept;
    /// @}

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const StringRange& other) const noexcept;
    bool operator!=(const StringRange& other) const noexcept;
    bool operator<(const StringRange& other) const noexcept;
    bool operator>(const StringRange& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(StringRange& one, StringRange& other) noexcept { one.data_.swap(other.data_); }

private:
    friend struct Internal::Access;
    StringRange(Internal::Ref<const Internal::StringRangeData> data, Internal::Key) noexcept : data_(std::move(data)) {}

    Internal::Ref<const Internal::StringRangeData> data_;
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::StringRange> : Parameters::Internal::TypeIdHash<Parameters::StringRange> {};
