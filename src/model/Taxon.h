#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Texts.h"
#include "schema/BuiltIn.h"
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

/// What the taxonomy kinds share; they differ in the base of their schemas.
class TaxonomyKind {
public:
    using Object = Taxon;
    struct Record {
        Texts texts; // typeid, name
    };

    static Record recordOf(const Taxon& taxon) { return {Access::data(taxon).texts}; }
    static Taxon build(const Record& record, const Finder& finder);

protected:
    static std::optional<Record> readAs(const Ostra::BuiltIn::Identifier& base, const Ostra::Schema& schema);
    static std::string writeAs(const Ostra::BuiltIn::Identifier& base, const Taxon& taxon);
    static Taxon standInFor(const Ostra::BuiltIn::Identifier& builtIn, std::string_view typeId);
};

class DisciplineKind : public TaxonomyKind {
public:
    static constexpr std::string_view word = "discipline";
    static constexpr const auto& builtIn = Ostra::BuiltIn::discipline;

    static std::optional<Record> read(const Ostra::Schema& schema) { return readAs(builtIn, schema); }
    static std::string write(const Taxon& taxon) { return writeAs(builtIn, taxon); }
    static Taxon standIn(std::string_view typeId) { return standInFor(builtIn, typeId); }
};

class GroupKind : public TaxonomyKind {
public:
    static constexpr std::string_view word = "group";
    static constexpr const auto& builtIn = Ostra::BuiltIn::group;

    static std::optional<Record> read(const Ostra::Schema& schema) { return readAs(builtIn, schema); }
    static std::string write(const Taxon& taxon) { return writeAs(builtIn, taxon); }
    static Taxon standIn(std::string_view typeId) { return standInFor(builtIn, typeId); }
};

/// No domain stands in for the built-in identifier: what names a domain names a registered one.
class DomainKind : public TaxonomyKind {
public:
    static constexpr std::string_view word = "domain";

    static std::optional<Record> read(const Ostra::Schema& schema) { return readAs(Ostra::BuiltIn::domain, schema); }
    static std::string write(const Taxon& taxon) { return writeAs(Ostra::BuiltIn::domain, taxon); }
};

} // namespace Parameters::Internal
