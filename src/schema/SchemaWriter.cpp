#include "schema/SchemaWriter.h"

#include "schema/Messages.h"

#include <cmath>
#include <stdexcept>

namespace Ostra {

SchemaWriter::SchemaWriter(std::string_view typeId, std::string_view base, const ExceptionFactory& factory)
    : typeId_(typeId), factory_(factory) {
    beginObject();
    name("typeid");
    string(typeId);
    name("inherits");
    beginArray();
    string(base);
    endArray();
}

void SchemaWriter::number(double value) {
    if (!std::isfinite(value)) {
        factory_.raise(messages("number-not-finite"), {typeId_});
    }
    JSONWriter::number(value);
}

void SchemaWriter::typedValue(std::string_view typeId) {
    beginTypedValue(typeId);
    endObject();
}

void SchemaWriter::beginTypedValue(std::string_view typeId) {
    beginObject();
    name("typeid");
    string(typeId);
}

SchemaWriter& SchemaWriter::define(std::string_view table, std::string_view id, std::string_view member) {
    if (table == table_) {
        endObject(); // of the definition before
    } else {
        if (table < table_) {
            throw std::logic_error(messages("constants-after-properties").with({}));
        }
        endTable();
        name(table);
        beginArray();
        table_ = table;
    }
    beginObject();
    name("id");
    string(id);
    name(member);
    return *this;
}

void SchemaWriter::endTable() {
    if (!table_.empty()) {
        endObject(); // of the last definition
        endArray();
    }
}

std::string SchemaWriter::finish() && {
    endTable();
    endObject();
    return text();
}

} // namespace Ostra
