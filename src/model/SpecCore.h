#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/Taxon.h"
#include "model/Texts.h"
#include "schema/Constants.h"
#include "schema/SchemaWriter.h"

#include <parameters/SpecCore.h>
#include <parameters/Taxon.h>

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The data of a core, from which those of specs derive: a spec holds them as its core.
struct SpecCoreData {
    Texts texts; // typeid, name
    Taxon discipline;

    std::string_view typeId() const { return texts[0]; }
    std::string_view name() const { return texts[1]; }
};

/// The constants that all spec schemas share, as the text has them.
struct SpecConstants {
    std::string_view name;
    std::string_view discipline;

    static SpecConstants read(const Ostra::Constants& constants);
};

/// The part of a spec's record that all specs share. It is made by constructors alone, as that of a parameter is.
struct SpecRecord {
    Texts texts;      // typeid, name
    Texts references; // typeids: discipline, then what the kind adds

    /// Of a schema text.
    SpecRecord(std::string_view typeId, const SpecConstants& constants, std::optional<std::string_view> added = {})
        : texts{typeId, constants.name}, references(referencesOf(constants.discipline, added)) {}
    /// Of an object.
    explicit SpecRecord(const SpecCoreData& core, std::optional<std::string_view> added = {})
        : texts(core.texts), references(referencesOf(typeIdOf(core.discipline), added)) {}

    std::string_view typeId() const { return texts[0]; }
    std::string_view discipline() const { return references[0]; }

protected:
    /// What the kind names beside the discipline, if it does.
    std::optional<std::string_view> added() const {
        return references.size() > 1 ? std::optional(references[1]) : std::nullopt;
    }

private:
    static Texts referencesOf(std::string_view discipline, std::optional<std::string_view> added) {
        return added ? Texts{discipline, *added} : Texts{discipline};
    }
};

/// Returns the core of the record with the discipline that it names. Of a core given in code the discipline is checked
/// and kept.
SpecCoreData buildSpecCore(const SpecRecord& record, const Finder& finder, const SpecCoreData* given);

/// Writes the constants that all specs share, those that differ from their defaults.
void writeSpecConstants(Ostra::SchemaWriter& writer, const SpecCoreData& core);

/// Returns a core of the default discipline.
SpecCoreData commonSpecCore(std::string_view typeId, std::string_view name);

} // namespace Parameters::Internal
