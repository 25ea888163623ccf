#include "model/ParameterCore.h"

#include "model/MakeRef.h"
#include "model/Taxon.h"

#include <string>

namespace Parameters {

ParameterCore::ParameterCore(const std::string& typeId, const std::string& name, const std::string& description,
                             const std::string& sampleText, bool readOnly)
    : ParameterCore(typeId, name, Internal::standInOf<Internal::GroupKind>(), description, sampleText, readOnly) {}

ParameterCore::ParameterCore(const std::string& typeId, const std::string& name, const Taxon& group,
                             const std::string& description, const std::string& sampleText, bool readOnly)
    : data_(Internal::makeRefWith<Internal::ParameterCoreData>({typeId, name, description, sampleText}, group,
                                                               Internal::TrailingStrings<4>(), readOnly)) {}

std::string ParameterCore::getTypeId() const { return std::string(typeId()); }

std::string_view ParameterCore::typeId() const noexcept { return data_->typeId(); }

std::string ParameterCore::getName() const { return std::string(name()); }

std::string_view ParameterCore::name() const noexcept { return data_->name(); }

std::string ParameterCore::getDescription() const { return std::string(description()); }

std::string_view ParameterCore::description() const noexcept { return data_->description(); }

Taxon ParameterCore::getGroup() const noexcept { return group(); }

const Taxon& ParameterCore::group() const noexcept { return data_->group; }

std::string ParameterCore::getSampleText() const { return std::string(sampleText()); }

std::string_view ParameterCore::sampleText() const noexcept { return data_->sampleText(); }

bool ParameterCore::isReadOnly() const noexcept { return data_->readOnly; }

PARAMETERS_COMPARE_BY_TYPEID(ParameterCore)

namespace Internal {

ParameterConstants ParameterConstants::read(const Ostra::Constants& constants) {
    ParameterConstants result;
    result.name = constants.required<Ostra::NonEmptyString>("name");
    result.description = constants.optional<Ostra::String>("description", "");
    result.sampleText = constants.optional<Ostra::String>("sampleText", "");
    result.group = constants.optional<Ostra::TypedValue>("group", GroupKind::base.full());
    result.readOnly = constants.optional<Ostra::Boolean>("readOnly", false);
    return result;
}

void writeParameterConstants(Ostra::SchemaWriter& writer, const ParameterCoreData& core) {
    writer.constant("name").string(core.name());
    if (!core.description().empty()) {
        writer.constant("description").string(core.description());
    }
    if (!core.sampleText().empty()) {
        writer.constant("sampleText").string(core.sampleText());
    }
    const std::string_view group = typeIdOf(core.group);
    if (group != GroupKind::base.full()) {
        writer.typedConstant("group").typedValue(group);
    }
    if (core.readOnly) {
        writer.constant("readOnly").boolean(true);
    }
}

} // namespace Internal

} // namespace Parameters
