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

/// What all parameters have in common. Copies share their data.
class PARAMETERS_EXPORT ParameterCore {
public:
    /// The group is the built-in one, "Other".
    ParameterCore(const std::string& typeId, const std::string& name, const std::string& description,
                  const std::string& sampleText, bool readOnly);
    ParameterCore(const std::string& typeId, const std::string& name, const Taxon& group,
                  const std::string& description, const std::string& sampleText, bool readOnly);
    ParameterCore(const ParameterCore&) noexcept = default;
    ParameterCore& operator=(const ParameterCore&) noexcept = default;

    std::string getTypeId() const;
    std::string getName() const;
    /// Returns the description, which may be empty.
    std::string getDescription() const;
    Taxon getGroup() const;
    /// Returns a sample of a value as text, which may be empty.
    std::string getSampleText() const;
    bool isReadOnly() const;

    /// Comparisons are by identity: the bytes of the type identifier alone decide, nothing else takes part.
    bool operator==(const ParameterCore& other) const noexcept;
    bool operator!=(const ParameterCore& other) const noexcept;
    bool operator<(const ParameterCore& other) const noexcept;
    bool operator>(const ParameterCore& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit ParameterCore(std::shared_ptr<const Internal::ParameterCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::ParameterCoreData> data_;
};

} // namespace Parameters
