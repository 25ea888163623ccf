#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/Taxon.h"
#include "model/Texts.h"
#include "schema/Constants.h"
#include "schema/SchemaWriter.h"

#include <parameters/ParameterCore.h>
#include <parameters/Taxon.h>

#include <memory>
#include <optional>
#include <string_view>

namespace Parameters::Internal {

/// The data of a core, from which those of parameters derive: a parameter holds them as its core.
struct ParameterCoreData {
    Texts texts;                               // typeid, name, description, sampleText
    Texts::Place namePlace = texts.placeOf(1); // lists are sorted by name: it is at hand, beside the texts
    Taxon group;
    bool readOnly;

    std::string_view typeId() const { return texts[0]; }
    std::string_view name() const { return texts[namePlace]; }
    std::string_view description() const { return texts[2]; }
    std::string_view sampleText() const { return texts[3]; }
};

/// The constants that all parameter schemas share, as the text has them.
struct ParameterConstants {
    std::string_view name;
    std::string_view description;
    std::string_view sampleText;
    std::string_view group;
    bool readOnly;

    static ParameterConstants read(const Ostra::Constants& constants);
};

/// The part of a parameter's record that all parameters share.
struct ParameterRecord {
    Texts texts;      // typeid, name, description, sampleText
    Texts references; // typeids: group, spec, then what the kind adds
    bool readOnly;

    /// Of a schema text.
    ParameterRecord(std::string_view typeId, const ParameterConstants& constants, std::string_view spec,
                    std::optional<std::string_view> added = {})
        : texts{typeId, constants.name, constants.description, constants.sampleText},
          references(referencesOf(constants.group, spec, added)), readOnly(constants.readOnly) {}
    /// Of an object.
    ParameterRecord(const ParameterCoreData& core, std::string_view spec, std::optional<std::string_view> added = {})
        : texts(core.texts), references(referencesOf(typeIdOf(core.group), spec, added)), readOnly(core.readOnly) {}

    std::string_view typeId() const { return texts[0]; }
    std::string_view group() const { return references[0]; }
    std::string_view spec() const { return references[1]; }

protected:
    /// What the kind names beside group and spec, if it does.
    std::optional<std::string_view> added() const {
        return references.size() > 2 ? std::optional(references[2]) : std::nullopt;
    }

private:
    static Texts referencesOf(std::string_view group, std::string_view spec, std::optional<std::string_view> added) {
        return added ? Texts{group, spec, *added} : Texts{group, spec};
    }
};

/// Returns the core of the record with the group that it names.
ParameterCoreData buildParameterCore(const ParameterRecord& record, const Finder& finder);

/// Writes the constants that all parameters share, those that differ from their defaults.
void writeParameterConstants(Ostra::SchemaWriter& writer, const ParameterCoreData& core);

/// Writes the constant that names a parameter's spec, unless that is the built-in one.
template <class SpecKind>
void writeSpecConstant(Ostra::SchemaWriter& writer, const typename SpecKind::Object& spec) {
    const std::string_view typeId = typeIdOf(spec);
    if constexpr (KindWithStandIn<SpecKind>) {
        if (typeId == SpecKind::base.full()) {
            return;
        }
    }
    writer.typedConstant("spec").typedValue(typeId);
}

} // namespace Parameters::Internal
