#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/Texts.h"
#include "schema/Schema.h"

#include <parameters/Taxon.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct TaxonData {
    Texts texts; // typeid, name

    std::string_view typeId() const { return texts[0]; }
    std::string_view name() const { return texts[1]; }
};

Taxon makeTaxon(Texts texts);
/// Returns the texts of a schema with that base, or none.
std::optional<Texts> readTaxon(const Ostra::Schema& schema, const Ostra::Identifier& base);
std::string writeTaxon(const TaxonData& taxon, const Ostra::Identifier& base);

/// The kind of a taxon. Those that have no built-in object are named only where one is registered.
template <class P>
struct TaxonKind : DescribedKind<P> {
    using Names = KindList<>;
    using Record = TaxonData;
    using DescribedKind<P>::base;

    static std::optional<Record> read(const Ostra::Schema& schema) {
        auto texts = readTaxon(schema, base);
        return texts ? std::optional(Record{*std::move(texts)}) : std::nullopt;
    }
    static Record recordOf(const Taxon& taxon) { return Access::data(taxon); }
    static Taxon build(const Record& record, const Finder&, const Taxon*) { return makeTaxon(record.texts); }
    static std::string write(const Taxon& taxon) { return writeTaxon(Access::data(taxon), base); }

    static Taxon standIn(std::string_view typeId) requires DescribedKind<P>::hasBuiltIn {
        return makeTaxon({typeId, P::info.builtInName()});
    }
};

using DisciplineKind = TaxonKind<Kinds::Discipline>;
using GroupKind = TaxonKind<Kinds::Group>;
using DomainKind = TaxonKind<Kinds::Domain>;

} // namespace Parameters::Internal
