#include "model/SpecCore.h"

#include "model/MakeRef.h"
#include "model/Taxon.h"

#include <string>

namespace Parameters {

SpecCore::SpecCore(const std::string& typeId, const std::string& name)
    : data_(Internal::makeRef<Internal::SpecCoreData>(Internal::commonSpecCore(typeId, name))) {}

SpecCore::SpecCore(const std::string& typeId, const std::string& name, const Taxon& discipline)
    : data_(Internal::makeRef<Internal::SpecCoreData>(Internal::SpecCoreData{{typeId, name}, discipline})) {}

std::string SpecCore::getTypeId() const { return std::string(typeId()); }

std::string_view SpecCore::typeId() const noexcept { return data_->typeId(); }

std::string SpecCore::getName() const { return std::string(name()); }

std::string_view SpecCore::name() const noexcept { return data_->name(); }

Taxon SpecCore::getDiscipline() const noexcept { return discipline(); }

const Taxon& SpecCore::discipline() const noexcept { return data_->discipline; }

PARAMETERS_COMPARE_BY_TYPEID(SpecCore)

namespace Internal {

SpecConstants SpecConstants::read(const Ostra::Constants& constants) {
    const auto name = constants.required<Ostra::NonEmptyString>("name");
    const auto discipline = constants.optional<Ostra::TypedValue>("discipline", DisciplineKind::base.full());
    return {name, discipline};
}

SpecCoreData buildSpecCore(const SpecRecord& record, const Finder& finder, const SpecCoreData* given) {
    const Taxon discipline = finder.requireOrStandIn<DisciplineKind>(record.discipline(), record.typeId());
    return {record.texts, given != nullptr ? given->discipline : discipline};
}

void writeSpecConstants(Ostra::SchemaWriter& writer, const SpecCoreData& core) {
    writer.constant("name").string(core.name());
    const std::string_view discipline = typeIdOf(core.discipline);
    if (discipline != DisciplineKind::base.full()) {
        writer.typedConstant("discipline").typedValue(discipline);
    }
}

SpecCoreData commonSpecCore(std::string_view typeId, std::string_view name) {
    return {{typeId, name}, standInOf<DisciplineKind>()};
}

} // namespace Internal

} // namespace Parameters
