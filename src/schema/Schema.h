#pragma once

#include "schema/Definitions.h"
#include "schema/Identifier.h"
#include "schema/JSON.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace Ostra {

/// The generic record of a schema text: its typeid, its one base, and its constants and properties by id.
/// Everything that it hands out refers into the text's document and lives as long as the record.
class Schema {
public:
    /// Reads a text; every fault in its structure goes to the handler. Both must live as long.
    Schema(const std::string& text, FaultHandler& handler);
    Schema(std::string&& text, FaultHandler& handler) = delete; // it would be gone
    Schema(const Schema&) = delete;
    Schema& operator=(const Schema&) = delete;

    /// False where faults are kept and one of them makes the rest meaningless: the text is no JSON or has no base.
    bool isReadable() const { return isReadable_; }
    std::string_view typeId() const { return typeId_; }
    /// True when the base is of that built-in identifier's major version.
    bool inherits(const Identifier& base) const { return beginsOnly_ ? base.begins(base_) : base.isIn(base_); }
    std::string_view base() const { return base_; }
    /// True when the base can be of no built-in identifier but one with which it begins.
    bool beginsOnly() const { return beginsOnly_; }
    const Definitions& constants() const { return constants_; }
    const Definitions& properties() const { return properties_; }

    /// Returns the value of a definition: its "value", else its "typedValue"; fails when it has neither, and returns
    /// nothing where faults are kept.
    static MaybeView valueOf(JSONView definition);

    /// Returns the whole of the document.
    JSONView view() const { return document_.view(); }

    /// Fails because a constant or property is not defined.
    /// @{
    [[nodiscard]] Nothing failUndefinedConstant(std::string_view id, const Message& message,
                                                std::initializer_list<std::string_view> inserted) const;
    [[nodiscard]] Nothing failUndefinedProperty(std::string_view id, const Message& message,
                                                std::initializer_list<std::string_view> inserted) const;
    /// @}

    /// Says that a kind has read all of the schema that it reads: where faults are kept, the rest is told.
    void tellUnread() const;

private:
    bool readHead();
    Nothing failUndefined(const Definitions& definitions, std::string_view name, std::string_view id,
                          const Message& message, std::initializer_list<std::string_view> inserted) const;
    void readDefinitions(const char* name, Definitions& definitions) const;

    JSON document_;
    bool isReadable_ = false;
    std::string_view typeId_;
    std::string_view base_;
    bool beginsOnly_ =
        false; // an identifier can be in the base at its beginning alone, which is sooner seen than searched
    Definitions constants_{document_.arena()};
    Definitions properties_{document_.arena()};
};

} // namespace Ostra
