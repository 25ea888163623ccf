#include "model/Finder.h"

#include "model/Messages.h"

#include <parameters/ValidationException.h>

namespace Parameters::Internal {

std::optional<Units::Unit> Finder::requireUnit(std::string_view typeId, std::string_view inConstant,
                                               std::string_view schemaTypeId) const {
    if (auto unit = findUnit(std::string(typeId))) {
        return unit;
    }
    if (binds()) {
        failMissing(unitWord, typeId, schemaTypeId);
    } else {
        fail(messages("unit-missing"), {typeId, inConstant, schemaTypeId}, typeId, unitWord);
    }
    return std::nullopt;
}

void Finder::failMissing(std::string_view word, const Name& name, std::string_view schemaTypeId) const {
    if (binds()) {
        fail(messages("object-unknown"), {word, name.typeId}, name, word);
    } else {
        fail(messages("dependency-missing"), {name.typeId, schemaTypeId}, name, word);
    }
}

void Finder::fail(const Ostra::Message& message, std::initializer_list<std::string_view> inserted, const Name& named,
                  std::string_view expected) const {
    if (binds()) {
        throw ValidationException(message.with(inserted));
    }
    if (!named.typeId.empty()) {
        unresolved_.push_back({&message, message.with(inserted), named, expected});
    }
}

} // namespace Parameters::Internal
