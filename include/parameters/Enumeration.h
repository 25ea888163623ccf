#pragma once

#include <parameters/Export.h>

#include <cstdint>
#include <memory>
#include <string>
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
    std::string getTypeId() const;
    /// Returns the choices: identifier and integer, in the order in which the enumeration holds them.
    std::vector<std::pair<std::string, std::int64_t>> getValues() const;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const Enumeration& other) const noexcept;
    bool operator!=(const Enumeration& other) const noexcept;
    bool operator<(const Enumeration& other) const noexcept;
    bool operator>(const Enumeration& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit Enumeration(std::shared_ptr<const Internal::EnumerationData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::EnumerationData> data_;
};

} // namespace Parameters
