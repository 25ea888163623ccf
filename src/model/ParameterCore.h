#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Taxon.h"
#include "model/Texts.h"
#include "schema/Constants.h"
#include "schema/SchemaWriter.h"

#include <parameters/ParameterCore.h>
#include <parameters/Taxon.h>

#include <memory>
#include <string_view>

namespace Parameters::Internal {

struct ParameterCoreData {
    Texts texts; // typeid, name, description, sampleText
    Taxon group;
    bool readOnly;

    std::string_view typeId() const { return texts[0]; }
    std::string_view name() const { return texts[1]; }
    std::string_view description() const { return texts[2]; }
    std::string_view sampleText() const { return texts[3]; }
};

/// The part of a parameter's record that all parameters share.
struct ParameterRecord {
    Texts texts;      // typeid, name, description, sampleText
    Texts references; // typeids: group, spec, then what the kind adds
    bool readOnly;

    std::string_view typeId() const { return texts[0]; }
    std::string_view group() const { return references[0]; }
    std::string_view spec() const { return references[1]; }
};

/// The constants that all parameter schemas share, as the text has them.
struct ParameterConstants {
    std::string_view name;
    std::string_view description;
    std::string_view sampleText;
    std::string_view group;
    bool readOnly;

    static ParameterConstants read(const Ostra::Constants& constants);

    Texts texts(std::string_view typeId) const { return {typeId, name, description, sampleText}; }
};

/// Returns the core of the record with the group that it names.
ParameterCoreData buildParameterCore(const ParameterRecord& record, const Finder& finder);

/// Writes the constants that all parameters share, those that differ from their defaults.
void writeParameterConstants(Ostra::SchemaWriter& writer, const ParameterCoreData& core);

/// Writes the constant that names a parameter's spec, unless that is the default.
void writeSpecConstant(Ostra::SchemaWriter& writer, std::string_view spec, std::string_view defaultSpec = {});

/// Returns the core that is a part of a parameter's data and lives as long as that.
template <class Data>
ParameterCore parameterCoreOf(const std::shared_ptr<const Data>& data) {
    return Access::make<ParameterCore>(std::shared_ptr<const ParameterCoreData>(data, &data->core));
}

} // namespace Parameters::Internal
