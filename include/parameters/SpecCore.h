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

/// What all specs have in common. Copies share their data.
class PARAMETERS_EXPORT SpecCore {
public:
    /// The discipline is the built-in one, "Common".
    SpecCore(const std::string& typeId, const std::string& name);
    SpecCore(const std::string& typeId, const std::string& name, const Taxon& discipline);
    SpecCore(const SpecCore&) noexcept = default;
    SpecCore& operator=(const SpecCore&) noexcept = default;

    std::string getTypeId() const;
    std::string getName() const;
    Taxon getDiscipline() const;

    /// Comparisons are by identity: the bytes of the type identifier alone decide, nothing else takes part.
    bool operator==(const SpecCore& other) const noexcept;
    bool operator!=(const SpecCore& other) const noexcept;
    bool operator<(const SpecCore& other) const noexcept;
    bool operator>(const SpecCore& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit SpecCore(std::shared_ptr<const Internal::SpecCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SpecCoreData> data_;
};

} // namespace Parameters
