#include "programs/Translation.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace Bench {

std::string identifierOf(std::string_view text) {
    std::string identifier = "_";
    for (const char letter : text) {
        const bool isAllowed =
            (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9');
        identifier += isAllowed ? letter : '_';
    }
    return identifier;
}

std::string scalarText(const rapidjson::Value& value) {
    if (value.IsString()) {
        return {value.GetString(), value.GetStringLength()};
    }
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    value.Accept(writer);
    return buffer.GetString();
}

} // namespace Bench
