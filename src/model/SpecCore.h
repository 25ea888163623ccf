#pragma once

#include "model/Access.h"
#include "model/Finder.h"
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

struct SpecCoreData {
    Texts texts; // typeid, name
    Taxon discipline;

    std::string_view typeId() const { return texts[0]; }
    std::string_view name() const { return texts[1]; }
};

/// The part of a spec's record that all specs share.
struct SpecRecord {
    Texts texts;                          // typeid, name
    Texts references;                     // typeids: discipline, then what the kind adds
    std::optional<Taxon> givenDiscipline; // of an object made in code

    std::string_view typeId() const { return texts[0]; }
    std::string_view discipline() const { return references[0]; }
};

/// The constants that all spec schemas share, as the text has them.
struct SpecConstants {
    std::string_view name;
    std::string_view discipline;

    static SpecConstants read(const Ostra::Constants& constants);
};

/// Returns the core of the record with the discipline that it names. A discipline given in code is checked and kept.
SpecCoreData buildSpecCore(const SpecRecord& record, const Finder& finder);

/// Writes the constants that all specs share, those that differ from their defaults.
void writeSpecConstants(Ostra::SchemaWriter& writer, const SpecCoreData& core);

/// Returns a core of the default discipline.
SpecCoreData commonSpecCore(std::string_view typeId, std::string_view name);

/// Returns the core that is a part of a spec's data and lives as long as that.
template <class Data>
SpecCore specCoreOf(const std::shared_ptr<const Data>& data) {
    return Access::make<SpecCore>(std::shared_ptr<const SpecCoreData>(data, &data->core));
}

} // namespace Parameters::Internal
