#include "model/Taxon.h"

#include "model/Writing.h"
#include "schema/Constants.h"

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

namespace {

Taxon taxonOf(Internal::Texts texts) {
    return Internal::Access::make<Taxon>(
        std::make_shared<const Internal::TaxonData>(Internal::TaxonData{std::move(texts)}));
}

} // namespace

Taxon::Taxon(const std::string& typeId, const std::string& name) : Taxon(taxonOf({typeId, name})) {}

std::string Taxon::getTypeId() const { return std::string(data_->typeId()); }

std::string Taxon::getName() const { return std::string(data_->name()); }

PARAMETERS_COMPARE_BY_TYPEID(Taxon)

namespace Internal {

Taxon TaxonomyKind::build(const Record& record, const Finder&) { return taxonOf(record.texts); }

std::optional<TaxonomyKind::Record> TaxonomyKind::readAs(const Ostra::BuiltIn::Identifier& base,
                                                         const Ostra::Schema& schema) {
    if (!schema.inherits(base)) {
        return std::nullopt;
    }
    const auto name = Ostra::Constants(schema).required<Ostra::NonEmptyString>("name");
    return Record{{schema.typeId(), name}};
}

std::string TaxonomyKind::writeAs(const Ostra::BuiltIn::Identifier& base, const Taxon& taxon) {
    const TaxonData& data = Access::data(taxon);
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
    writer.constant("name").string(data.name());
    return std::move(writer).finish();
}

Taxon TaxonomyKind::standInFor(const Ostra::BuiltIn::Identifier& builtIn, std::string_view typeId) {
    return taxonOf({typeId, builtIn.displayName()});
}

} // namespace Internal

} // namespace Parameters
