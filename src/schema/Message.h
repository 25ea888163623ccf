#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Ostra {

/// What a message does where the first fault of a document is thrown: a warning is passed over.
enum class Severity { error, warning };

/// A sentence of the library, and the stable short name of the rule that it speaks of. What stands in <...> in the
/// sentence is inserted.
struct Message {
    std::string_view code;
    std::string_view sentence;
    Severity severity = Severity::error;

    /// Returns the sentence with the texts, byte for byte, in its <...> in order; there must be as many as those.
    std::string with(std::initializer_list<std::string_view> inserted) const;

    /// Returns what the message is about: the first of the inserted texts, apart from those in <schema>, which is the
    /// typeid of the schema itself, and in <offset> and <reason>. Empty where there is no other.
    std::string_view subjectOf(std::initializer_list<std::string_view> inserted) const;
};

/// The messages of one room, looked up by code while the room is compiled: a message that is in no table, or whose code
/// is not its own, cannot be thrown.
template <std::size_t count>
class Messages {
public:
    /// Refuses codes that are not lower-case words with hyphens, codes that stand twice, and sentences whose <...> are
    /// not closed.
    // NOLINTNEXTLINE(modernize-avoid-c-arrays): what the size of a braced list can be deduced from
    explicit consteval Messages(const Message (&messages)[count]) : messages_(std::to_array(messages)) { check(); }

    /// Returns the message of that code; does not compile where there is none.
    // A call and no operator[]: clang 14 refuses one that is consteval in every template.
    consteval const Message& operator()(std::string_view code) const {
        const auto found = find(code);
        if (found == end()) {
            noMessageHasThisCode();
        }
        return *found;
    }

    constexpr auto begin() const { return messages_.begin(); }
    constexpr auto end() const { return messages_.end(); }
    constexpr std::size_t size() const { return count; }

private:
    // Not defined: compilers name them where they refuse a constant expression that calls them.
    static void noMessageHasThisCode();
    static void aCodeIsNotLowerCaseWordsWithHyphens();
    static void aCodeStandsTwice();
    static void aSentenceIsEmptyOrItsPlaceholdersAreNotClosed();

    constexpr auto find(std::string_view code) const {
        return std::find_if(begin(), end(), [code](const Message& message) { return message.code == code; });
    }

    constexpr void check() const {
        for (auto message = begin(); message != end(); ++message) {
            if (!isCode(message->code)) {
                aCodeIsNotLowerCaseWordsWithHyphens();
            }
            if (find(message->code) != message) {
                aCodeStandsTwice();
            }
            if (!isSentence(message->sentence)) {
                aSentenceIsEmptyOrItsPlaceholdersAreNotClosed();
            }
        }
    }

    static constexpr bool isCode(std::string_view code) {
        const bool isOfItsCharacters =
            std::all_of(code.begin(), code.end(), [](char c) { return c == '-' || (c >= 'a' && c <= 'z'); });
        return isOfItsCharacters && !code.empty() && code.front() != '-' && code.back() != '-' &&
               code.find("--") == std::string_view::npos;
    }

    static constexpr bool isSentence(std::string_view sentence) {
        bool isOpen = false;
        for (const char c : sentence) {
            if (c == (isOpen ? '<' : '>')) {
                return false;
            }
            isOpen = c == '<' || (isOpen && c != '>');
        }
        return !isOpen && !sentence.empty();
    }

    std::array<Message, count> messages_;
};

} // namespace Ostra
