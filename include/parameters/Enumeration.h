#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>
#include <parameters/Views.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Parameters {

namespace Internal {
struct Access;
struct EnumerationData;
} // namespace Internal

/// A list of choices, each an identifier with an integer.
/// @ingroup values
class PARAMETERS_EXPORT Enumeration {
public:
    /// Keeps the values in their order, without any check.
    Enumeration(const std::string& typeId, const std::vector<std::pair<std::string, std::int64_t>>& values);
    /// Copies share their data; moving copies.
    /// @{
    Enumeration(const Enumeration&) noexcept = default;
    Enumeration& operator=(const Enumeration&) noexcept = default;
    /// @}

    /// Returns the identifier by which the enumeration is known.
    /// @{
    [[nodiscard]] std::string getTypeId() const;
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// @}
    /// Returns the choices: identifier and integer, in the order in which the enumeration holds them.
    /// @{
    [[nodiscard]] std::vector<std::pair<std::string, std::int64_t>> getValues() const;
    [[nodiscard]] EnumerationValues values() const noexcept;
    /// @}

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const Enumeration& other) const noexcept;
    bool operator!=(const Enumeration& other) const noexcept;
    bool operator<(const Enumeration& other) const noexcept;
    bool operator>(const Enumeration& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(Enumeration& one, Enumeration& other) noexcept { one.data_.swap(other.data_); }

private:
    friend struct Internal::Access;
    Enumeration(Internal::Ref<const Internal::EnumerationData> data, Internal::Key) noexcept : data_(std::move(data)) {}

    Internal::Ref<const Internal::EnumerationData> data_;
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::Enumeration> : Parameters::Internal::TypeIdHash<Parameters::Enumeration> {};
