#pragma once

#include "schema/FaultHandler.h"
#include "schema/JSONParser.h"
#include "schema/JSONValue.h"
#include "schema/Message.h"
#include "schema/Places.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Ostra {

/// A fault of a document, as far as the document tells.
struct DocumentFault {
    const Message* message;
    std::string sentence;
    std::string name;    ///< What the fault is about; empty where it has no name.
    std::string nearest; ///< A name near to that, which is known where it is unknown, or there where it is missing.
    Spot place;
    std::optional<Spot> other;
};

/// Reads along with the readers of one document after another: keeps every fault, and marks what they look at, so that
/// it can tell what none of them looks at.
///
/// What has no fault is to cost next to nothing: readers only set bits. The names that they looked for, of which one
/// may be meant by something that nobody reads, are noted when a document is read once more.
class Inspection final : public FaultHandler {
public:
    Inspection() : FaultHandler(this) {}

    /// @name Told by readers
    /// @{
    /// Begins with a document.
    void begin(std::string_view text, const ParsedText& parsed, const JSONValue& root);
    void handle(const Finding& finding) override;
    /// Somebody looked for a member, and found that with this name.
    void looked(const JSONValue& object, std::string_view name, const JSONValue* found) {
        if (found != nullptr) {
            mark(*found);
        }
        if (notesLooks_) {
            looks_.push_back({&object, name, found != nullptr ? found->next() : nullptr});
        }
    }
    /// Somebody looked for a definition in an array.
    void lookedForDefinition(const JSONValue& array, std::string_view id) {
        if (notesLooks_) {
            looks_.push_back({&array, id, nullptr});
        }
    }
    /// A definition is read; this is its id.
    void read(const JSONValue& id) { mark(id); }
    /// A string was read as the typeid of an object that the document names.
    void named(const JSONValue& typeId) { references_.push_back(&typeId); }
    /// Nobody is going to read what is in this value.
    void passOver(const JSONValue& value) { passedOver_.insert(&value); }
    /// All was read that will be, of so many definitions in all: the rest is passed over.
    void readAll(std::size_t definitions) {
        isReadWhole_ = true;
        isAllMarked_ = markCount_ == parsed_.members + definitions;
    }
    bool isAllMarked() const { return isAllMarked_; }
    bool isRead(const JSONValue& id) const { return isMarked(id); }
    /// A definition was not read.
    void unread(const JSONValue& array, const JSONValue& definition, const JSONValue& id, const Message& message);
    /// @}

    bool hasErrors() const { return hasErrors_; }
    /// Whether the document has something that nobody looked at, and is to be read once more after noteLooks, so that
    /// more can be said of it.
    bool wantsLooks() const { return isReadWhole_ && !isAllMarked_; }
    /// Notes names until faults are asked for.
    void noteLooks() { notesLooks_ = true; }
    /// Returns what is wrong with the document and, once all is read, what nobody looked at: in the order in which
    /// readers came upon it, then in the order of the text.
    std::vector<DocumentFault> faults();

    /// An object that the document names: the typeid, and how often it stood before, in the order of reading.
    struct Reference {
        std::string_view typeId;
        std::size_t occurrence;
    };
    /// Returns where the document names each of these objects.
    std::vector<Spot> placesOf(const std::vector<Reference>& references) const;
    /// Returns where the document says its typeid; that of the whole where it does not.
    Spot placeOfTypeId() const;

private:
    struct Kept {
        const Message* message;
        std::string sentence;
        std::string name;
        const JSONValue* value;
        std::vector<std::string_view> lacking;
        const JSONValue* other;
        std::optional<std::size_t> offset;
        std::string nearest{};
    };
    struct Look {
        const JSONValue* holder; // an object or an array of definitions
        std::string_view name;
        const JSONValue* found;
    };
    struct Unread {
        const JSONValue* holder;
        std::string_view name;
        const JSONValue* place;
        const Message* message;
        bool isTold = false; // by another fault, or with what it stands in
    };
    using LooksByHolder = std::unordered_map<const JSONValue*, std::vector<const Look*>>;
    using UnreadByHolder = std::unordered_map<const JSONValue*, std::vector<Unread*>>;

    std::size_t placeIn(const JSONValue& string) const {
        return static_cast<std::size_t>(string.string().data() - parsed_.origin);
    }
    void mark(const JSONValue& string) {
        std::uint64_t& marks = marks_[placeIn(string) / 64];
        const std::uint64_t mark = std::uint64_t{1} << (placeIn(string) % 64);
        markCount_ += (marks & mark) == 0 ? 1 : 0;
        marks |= mark;
    }
    bool isMarked(const JSONValue& string) const {
        return ((marks_[placeIn(string) / 64] >> (placeIn(string) % 64)) & 1) != 0;
    }

    void findUnread();
    void findUnreadIn(const JSONValue& value);
    void dropRepeated();
    void explainLacking();
    Unread* misspelt(const Kept& kept, const UnreadByHolder& unread);
    void tellUnread();
    Kept faultOf(const Unread& unread, const std::vector<const Look*>& looks) const;
    DocumentFault located(Kept&& kept, const Places& places) const;

    std::string_view text_;
    ParsedText parsed_{};
    const JSONValue* root_ = nullptr;
    std::vector<std::uint64_t> marks_; // a bit for each byte of the text: a name that was looked for begins there
    std::size_t markCount_ = 0;
    std::vector<Look> looks_;
    std::vector<const JSONValue*> references_;
    std::vector<Kept> kept_;
    std::vector<Unread> unread_;
    std::unordered_set<const JSONValue*> passedOver_;
    std::vector<const JSONValue*> toWalk_;
    bool hasErrors_ = false;
    bool isReadWhole_ = false;
    bool isAllMarked_ = false;
    bool notesLooks_ = false;
};

} // namespace Ostra
