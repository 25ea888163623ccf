#pragma once

#include <parameters/Export.h>
#include <parameters/Taxon.h>

#include <memory>
#include <string>
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
    /// Copies share their data; moving copies.
    /// @{
    ParameterCore(const ParameterCore&) noexcept = default;
    ParameterCore& operator=(const ParameterCore&) noexcept = default;
    /// @}

    /// Returns the identifier by which the parameter is known.
    std::string getTypeId() const;
    /// Returns the name to show.
    std::string getName() const;
    /// Returns the description, which may be empty.
    std::string getDescription() const;
    /// Returns the group under which the parameter is listed.
    Taxon getGroup() const;
    /// Returns a sample of a value as text, which may be empty.
    std::string getSampleText() const;
    /// Returns whether values are shown and not entered.
    bool isReadOnly() const;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const ParameterCore& other) const noexcept;
    bool operator!=(const ParameterCore& other) const noexcept;
    bool operator<(const ParameterCore& other) const noexcept;
    bool operator>(const ParameterCore& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit ParameterCore(std::shared_ptr<const Internal::ParameterCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::ParameterCoreData> data_;
};

} // namespace Parameters
