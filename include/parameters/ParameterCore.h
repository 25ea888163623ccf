#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Taxon.h>
#include <parameters/Value.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct ParameterCoreData;
} // namespace Internal

/// What all parameters have in common.
/// @ingroup values
class PARAMETERS_EXPORT ParameterCore {
public:
    /// Makes a core with the built-in group, "Other".
    ParameterCore(const std::string& typeId, const std::string& name, const std::string& description,
                  const std::string& sampleText, bool readOnly);
    /// Makes a core with a group, which comes third, before the description.
    ParameterCore(const std::string& typeId, const std::string& name, const Taxon& group,
                  const std::string& description, const std::string& sampleText, bool readOnly);
    /// For the library: the core that is part of other data.
    ParameterCore(Internal::Ref<const Internal::ParameterCoreData> data, Internal::Key) noexcept
        : data_(std::move(data)) {}
    /// Copies share their data; moving copies.
    /// @{
    ParameterCore(const ParameterCore&) noexcept = default;
    ParameterCore& operator=(const ParameterCore&) noexcept = default;
    /// @}

    /// Returns the identifier by which the parameter is known.
    /// @{
    [[nodiscard]] std::string getTypeId() const;
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// @}
    /// Returns the name to show.
    /// @{
    [[nodiscard]] std::string getName() const;
    [[nodiscard]] std::string_view name() const noexcept;
    /// @}
    /// Returns the description, which may be empty.
    /// @{
    [[nodiscard]] std::string getDescription() const;
    [[nodiscard]] std::string_view description() const noexcept;
    /// @}
    /// Returns the group under which the parameter is listed.
    /// @{
    [[nodiscard]] Taxon getGroup() const noexcept;
    [[nodiscard]] const Taxon& group() const noexcept;
    /// @}
    /// Returns a sample of a value as text, which may be empty.
    /// @{
    [[nodiscard]] std::string getSampleText() const;
    [[nodiscard]] std::string_view sampleText() const noexcept;
    /// @}
    /// Returns whether values are shown and not entered.
    [[nodiscard]] bool isReadOnly() const noexcept;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const ParameterCore& other) const noexcept;
    bool operator!=(const ParameterCore& other) const noexcept;
    bool operator<(const ParameterCore& other) const noexcept;
    bool operator>(const ParameterCore& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(ParameterCore& one, ParameterCore& other) noexcept { one.data_.swap(other.data_); }

private:
    friend struct Internal::Access;

    Internal::Ref<const Internal::ParameterCoreData> data_;
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::ParameterCore> : Parameters::Internal::TypeIdHash<Parameters::ParameterCore> {};
