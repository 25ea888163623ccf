#pragma once

#include "schema/Memory.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace Ostra {

/// Writes one JSON value as text without blanks, part by part in the order of the text.
class JSONWriter {
public:
    JSONWriter() = default;

    void null() { writer_.Null(); }
    void boolean(bool value) { writer_.Bool(value); }
    void integer(std::int64_t value) { writer_.Int64(value); }
    void unsignedInteger(std::uint64_t value) { writer_.Uint64(value); }
    /// Writes a short text that reads back as the same double.
    /// @throws std::domain_error if the number is not finite.
    void number(double value);
    /// @throws std::length_error if the string is too long to be written.
    void string(std::string_view value) { writer_.string(value); }

    void beginArray() { writer_.StartArray(); }
    void endArray() { writer_.EndArray(); }
    void beginObject() { writer_.StartObject(); }
    void endObject() { writer_.EndObject(); }
    /// Writes the name of the member whose value comes next.
    void name(std::string_view name) { writer_.string(name); }

    /// Returns the text of the whole value.
    std::string text() const { return {buffer_.GetString(), buffer_.GetSize()}; }

private:
    using Buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, JSONPool>;

    /// RapidJSON's writer, with strings copied in one go where nothing in them needs an escape.
    class Writer : public rapidjson::Writer<Buffer, rapidjson::UTF8<>, rapidjson::UTF8<>, JSONPool> {
    public:
        using rapidjson::Writer<Buffer, rapidjson::UTF8<>, rapidjson::UTF8<>, JSONPool>::Writer;
        void string(std::string_view value);
    };

    static constexpr std::size_t usualSize = 4096;

    JSONMemory memory_;
    mutable Buffer buffer_{&memory_.pool(), usualSize}; // GetString() puts a byte 0 behind the text
    Writer writer_{buffer_, &memory_.pool()};
};

} // namespace Ostra
