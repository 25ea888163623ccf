#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Ostra {

/// Writes one JSON value as text without blanks, part by part in the order of the text.
class JSONWriter {
public:
    JSONWriter() = default;
    JSONWriter(const JSONWriter&) = delete;
    JSONWriter& operator=(const JSONWriter&) = delete;

    void null() { word("null"); }
    void boolean(bool value) { word(value ? std::string_view("true") : "false"); }
    void integer(std::int64_t value);
    void unsignedInteger(std::uint64_t value);
    /// Writes a short text that reads back as the same double.
    /// @throws std::domain_error if the number is not finite.
    void number(double value);
    /// @throws std::length_error if the string is too long to be written.
    void string(std::string_view value);

    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    /// Writes the name of the member whose value comes next.
    void name(std::string_view name) {
        string(name);
        *free_++ = ':';
        needsComma_ = false;
    }

    /// Returns the text of the whole value.
    std::string text() const { return {begin_, size()}; }

private:
    static constexpr std::size_t slack = 2; // what may always be written: the mark before or behind a value

    std::size_t size() const { return static_cast<std::size_t>(free_ - begin_); }
    /// Makes room for so many characters and the slack behind them.
    void reserve(std::size_t count) {
        // No sum of a pointer: a buffer near the end of memory must not be taken for one with room.
        if (static_cast<std::size_t>(end_ - free_) < count + slack) [[unlikely]] {
            enlarge(count + slack);
        }
    }
    void enlarge(std::size_t count);

    /// Begins a value of so many characters, and those that follow it.
    void beginValue(std::size_t count) {
        reserve(count + 1);
        if (needsComma_) {
            *free_++ = ',';
        }
        needsComma_ = true;
    }
    void begin(char bracket) {
        beginValue(1);
        *free_++ = bracket;
        needsComma_ = false;
    }
    void end(char bracket) {
        reserve(1);
        *free_++ = bracket;
        needsComma_ = true;
    }
    void word(std::string_view word) {
        beginValue(word.size());
        free_ += word.copy(free_, word.size());
    }
    template <class Integer>
    void decimal(Integer value);
    void escaped(std::string_view value);

    std::array<char, 4096> first_; // of nearly all schemas the only memory
    std::unique_ptr<char[]> more_; // NOLINT(*-avoid-c-arrays): what lies behind is not made, it is written
    char* begin_ = first_.data();
    char* free_ = first_.data();
    char* end_ = first_.data() + first_.size();
    bool needsComma_ = false;
};

} // namespace Ostra
