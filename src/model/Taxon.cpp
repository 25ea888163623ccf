#include "model/Taxon.h"

#include "model/MakeRef.h"
#include "model/Writing.h"
#include "schema/Constants.h"

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

Taxon::Taxon(const std::string& typeId, const std::string& name) : Taxon(Internal::makeTaxon({typeId, name})) {}

std::string Taxon::getTypeId() const { return std::string(typeId()); }

std::string_view Taxon::typeId() const noexcept { return data_->typeId(); }

std::string Taxon::getName() const { return std::string(name()); }

std::string_view Taxon::name() const noexcept { return data_->name(); }

PARAMETERS_COMPARE_BY_TYPEID(Taxon)

namespace Internal {

Taxon makeTaxon(Texts texts) { return Access::make<Taxon>(makeRef<TaxonData>(TaxonData{std::move(texts)})); }

std::optional<Texts> readTaxon(const Ostra::Schema& schema, const Ostra::Identifier& base) {
    if (!schema.inherits(base)) {
        return std::nullopt;
    }
    const auto name = Ostra::Constants(schema).required<Ostra::NonEmptyString>("name");
    return Texts{schema.typeId(), name};
}

std::string writeTaxon(const TaxonData& taxon, const Ostra::Identifier& base) {
    Ostra::SchemaWriter writer = schemaWriter(taxon.typeId(), base);
    writer.constant("name").string(taxon.name());
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
