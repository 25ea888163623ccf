#pragma once

#include <parameters/Export.h>
#include <parameters/Taxon.h>

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct SpecCoreData;
} // namespace Internal

/// What all specs have in common.
/// @ingroup values
class PARAMETERS_EXPORT SpecCore {
public:
    /// Makes a core with the built-in discipline, "Common".
    SpecCore(const std::string& typeId, const std::string& name);
    /// Makes a core with a discipline.
    SpecCore(const std::string& typeId, const std::string& name, const Taxon& discipline);
    /// Copies share their data; moving copies.
    /// @{
    SpecCore(const SpecCore&) noexcept = default;
    SpecCore& operator=(const SpecCore&) noexcept = default;
    /// @}

    /// Returns the identifier by which the spec is known.
    std::string getTypeId() const;
    /// Returns the name to show.
    std::string getName() const;
    /// Returns the discipline that is responsible for what the spec describes.
    Taxon getDiscipline() const;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const SpecCore& other) const noexcept;
    bool operator!=(const SpecCore& other) const noexcept;
    bool operator<(const SpecCore& other) const noexcept;
    bool operator>(const SpecCore& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit SpecCore(std::shared_ptr<const Internal::SpecCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SpecCoreData> data_;
};

} // namespace Parameters
