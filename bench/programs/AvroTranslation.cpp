#include "programs/Translation.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace Bench {

namespace {

using rapidjson::Value;

/// Translates one schema into one record.
class RecordTranslator {
public:
    std::string translate(const std::string& typeId, const Value& schema) {
        openRecord(identifierOf(typeId));
        addString("inherits", schema["inherits"][0].GetString());
        for (const char* section : {"constants", "properties"}) {
            if (schema.HasMember(section)) {
                for (const auto& definition : schema[section].GetArray()) {
                    const char* const value = definition.HasMember("value") ? "value" : "typedValue";
                    addValue(identifierOf(definition["id"].GetString()), definition[value]);
                }
            }
        }
        closeRecord();
        return buffer_.GetString();
    }

private:
    void addValue(const std::string& id, const Value& value) {
        if (value.IsObject()) {
            openField(id);
            openRecord(id + "_type" + std::to_string(++nestedTypes_));
            for (const auto& [name, member] : value.GetObject()) {
                addValue(identifierOf(name.GetString()), member);
            }
            closeRecord();
            writer_.EndObject();
        } else if (value.IsArray()) {
            int number = 0;
            for (const auto& element : value.GetArray()) {
                addValue(id + std::to_string(++number), element);
            }
        } else if (value.IsString()) {
            addString(id, scalarText(value));
        } else {
            openField(id);
            writer_.String(value.IsBool() ? "boolean" : value.IsInt64() ? "long" : "double");
            writer_.Key("default");
            value.Accept(writer_);
            writer_.EndObject();
        }
    }

    void addString(const std::string& id, const std::string& text) {
        openField(id);
        writer_.String("string");
        writer_.Key("default");
        writer_.String(text.c_str());
        writer_.EndObject();
    }

    void openField(const std::string& name) {
        writer_.StartObject();
        writer_.Key("name");
        writer_.String(name.c_str());
        writer_.Key("type");
    }

    void openRecord(const std::string& name) {
        writer_.StartObject();
        writer_.Key("type");
        writer_.String("record");
        writer_.Key("name");
        writer_.String(name.c_str());
        writer_.Key("fields");
        writer_.StartArray();
    }

    void closeRecord() {
        writer_.EndArray();
        writer_.EndObject();
    }

    rapidjson::StringBuffer buffer_;
    rapidjson::Writer<rapidjson::StringBuffer> writer_{buffer_};
    int nestedTypes_ = 0;
};

} // namespace

std::vector<std::string> avroSchemas(const Catalogue& catalogue) {
    std::vector<std::string> schemas;
    for (const Schema& schema : catalogue) {
        rapidjson::Document document;
        document.Parse(schema.text.c_str());
        schemas.push_back(RecordTranslator().translate(schema.typeId, document));
    }
    return schemas;
}

} // namespace Bench
