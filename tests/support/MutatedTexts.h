#pragma once

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Support {

/// Changes schema texts a little, so that most of what they say goes on being sound; the same for a seed on every
/// machine.
class MutatedTexts {
public:
    explicit MutatedTexts(std::uint64_t seed) : random_(seed) {}

    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }
    bool chance(std::size_t in) { return below(in) == 0; }

    /// Returns a text with a few of its bytes or values changed.
    std::string mutated(std::string text) {
        for (std::size_t count = 1 + below(3); count > 0; --count) {
            text = chance(6) ? withOtherBytes(std::move(text)) : withOtherValues(text);
        }
        return text;
    }

private:
    using Value = rapidjson::Value;
    using Pool = rapidjson::Document::AllocatorType;

    std::string withOtherBytes(std::string text) {
        static const std::vector<std::string> pieces{"{",  "}",    "[",       "]",      ",",        ":",
                                                     "\"", "\\",   "\\u0041", "0",      "-",        ".5",
                                                     " ",  "\r\n", "true",    "\xFF\"", "\"\": 1,", "e9"};
        const std::size_t place = below(text.size() + 1);
        switch (below(4)) {
        case 0:
            return text.insert(place, pieces[below(pieces.size())]);
        case 1:
            return text.erase(place, 1 + below(3));
        case 2:
            return chance(4) ? text.substr(0, place) : text;
        default:
            return text.replace(place, 1, 1, static_cast<char>(0x20 + below(0x60)));
        }
    }

    std::string withOtherValues(const std::string& text) {
        rapidjson::Document document;
        if (document.Parse(text.data(), text.size()).HasParseError()) {
            return text;
        }
        std::vector<Value*> values;
        collect(document, values);
        Value& value = *values[below(values.size())]; // one by one: compilers take arguments in orders of their own
        const Value& other = *values[below(values.size())];
        change(value, other, document.GetAllocator());
        rapidjson::StringBuffer buffer;
        rapidjson::Writer writer(buffer);
        document.Accept(writer);
        return {buffer.GetString(), buffer.GetSize()};
    }

    static void collect(Value& value, std::vector<Value*>& values) {
        values.push_back(&value);
        if (value.IsObject()) {
            for (rapidjson::SizeType member = 0; member < value.MemberCount(); ++member) {
                collect(value.MemberBegin()[member].value, values);
            }
        } else if (value.IsArray()) {
            for (Value& element : value.GetArray()) {
                collect(element, values);
            }
        }
    }

    void change(Value& value, const Value& other, Pool& pool) {
        if (value.IsObject() && value.MemberCount() > 0 && !chance(8)) {
            changeMember(value, value.MemberBegin() + static_cast<std::ptrdiff_t>(below(value.MemberCount())), pool);
        } else if (value.IsArray() && !value.Empty() && !chance(8)) {
            changeElement(value, static_cast<rapidjson::SizeType>(below(value.Size())), pool);
        } else if (value.IsString() && value.GetStringLength() > 0 && chance(3)) {
            std::string string(value.GetString(), value.GetStringLength());
            string = misspelt(std::move(string));
            value.SetString(string.data(), static_cast<rapidjson::SizeType>(string.size()), pool);
        } else if (chance(3)) {
            value.CopyFrom(Value(other, pool), pool); // of its own, since one may lie in the other
        } else {
            value = scalar(pool);
        }
    }

    void changeMember(Value& object, const Value::MemberIterator& member, Pool& pool) {
        switch (below(4)) {
        case 0:
            object.EraseMember(member);
            return;
        case 1:
            object.AddMember(Value(member->name, pool), chance(2) ? Value(member->value, pool) : scalar(pool), pool);
            return;
        case 2: {
            const std::string name = misspelt({member->name.GetString(), member->name.GetStringLength()});
            member->name.SetString(name.data(), static_cast<rapidjson::SizeType>(name.size()), pool);
            return;
        }
        default:
            Value name(wordFor(below(12)), pool);
            object.AddMember(name, scalar(pool), pool);
        }
    }

    void changeElement(Value& array, rapidjson::SizeType place, Pool& pool) {
        switch (below(3)) {
        case 0:
            array.Erase(array.Begin() + place);
            return;
        case 1:
            array.PushBack(Value(array[place], pool), pool);
            return;
        default:
            array[place].Swap(array[static_cast<rapidjson::SizeType>(below(array.Size()))]);
        }
    }

    std::string misspelt(std::string word) {
        const std::size_t place = below(word.size() + 1);
        switch (below(3)) {
        case 0:
            return word.erase(place < word.size() ? place : 0, 1);
        case 1:
            return word.insert(place, 1, "~/x\"\n\x7F"[below(6)]);
        default:
            return wordFor(below(12));
        }
    }

    static const char* wordFor(std::size_t number) {
        static const char* const words[] = {"typeid", "inherits",   "constants", "properties",     "id", "value",
                                            "name",   "typedValue", "range",     "bottomBoundary", "~/", ""};
        return words[number];
    }

    Value scalar(Pool& pool) {
        switch (below(9)) {
        case 0:
            return Value(rapidjson::kObjectType);
        case 1:
            return Value(rapidjson::kArrayType);
        case 2:
            return Value(chance(2));
        case 3:
            return Value();
        case 4:
            return Value(1.5);
        case 5:
            return Value(static_cast<std::int64_t>(random_()) >> below(64));
        case 6:
            return Value("norvex.parameter:group-1.0.0");
        default:
            return Value(wordFor(below(12)), pool);
        }
    }

    std::mt19937_64 random_;
};

} // namespace Support
