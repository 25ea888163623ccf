#include "report/PageData.h"

#include "catalogue/Catalogue.h"
#include "faults/Finding.h"
#include "output/Text.h"
#include "report/Columns.h"
#include "report/CutText.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Tool {

namespace {

constexpr int holeOfTypeId = -1;
constexpr int holeOfName = -2;

/// Readers want parameters first, then what they are made of before what orders it, and units last.
std::size_t placeOnPage(const Section& section) {
    const std::size_t index = indexOf(section);
    return section.isParameter ? index : 2 * sections().size() - index;
}

std::vector<const Section*> sectionsOfPage() {
    std::vector<const Section*> all;
    for (const Section& section : sections()) {
        all.push_back(&section);
    }
    std::sort(all.begin(), all.end(),
              [](const Section* one, const Section* other) { return placeOnPage(*one) < placeOnPage(*other); });
    return all;
}

std::vector<const Object*> objectsOfPage(const Catalogue& catalogue) {
    std::vector<const Object*> all;
    for (const Object& object : catalogue.objects()) {
        all.push_back(&object);
    }
    std::stable_sort(all.begin(), all.end(), [](const Object* one, const Object* other) {
        return placeOnPage(*one->section) < placeOnPage(*other->section);
    });
    return all;
}

/// The numbers of objects, and of those that no catalogue holds.
class Numbers {
public:
    explicit Numbers(const std::vector<const Object*>& objects) {
        for (const Object* object : objects) {
            numbers_.emplace(object->typeId, numbers_.size());
        }
    }

    std::size_t of(const Value& value) {
        const auto [found, isNew] = numbers_.emplace(value.typeId, numbers_.size());
        if (isNew) {
            builtIns_.push_back(Json::array({value.typeId, value.text}));
        }
        return found->second;
    }

    const Json& builtIns() const { return builtIns_; }

private:
    std::unordered_map<std::string, std::size_t> numbers_;
    Json builtIns_ = Json::array();
};

/// What a schema text has between its pieces.
class Holes {
public:
    explicit Holes(const Object& object) : object_(object) {
        add(object.typeId, holeOfTypeId);
        add(object.name, holeOfName);
        for (std::size_t i = 0; i < object.properties.size(); ++i) {
            const std::vector<Value>& values = object.properties[i].values;
            for (std::size_t j = 0; j < values.size(); ++j) {
                add(values[j].identity(), Json::array({i, j}));
            }
        }
    }

    /// Returns the text without what the object says anyway; what it does not say is added to the literals.
    Json shapeOf(const CutText& text, std::vector<std::string_view>& literals) const {
        Json shape = Json::array({text.pieces.front()});
        for (std::size_t i = 0; i < text.values.size(); ++i) {
            const auto known = known_.find(std::string(text.values[i]));
            if (known == known_.end()) {
                shape.push_back(literals.size());
                literals.push_back(text.values[i]);
            } else if (const std::size_t length = listAt(text, i); length > 1) {
                shape.push_back(Json::array({known->second[0], text.pieces[i + 1]}));
                i += length - 1;
            } else {
                shape.push_back(known->second);
            }
            shape.push_back(text.pieces[i + 1]);
        }
        return shape;
    }

private:
    void add(const std::string& text, Json hole) {
        known_.emplace(Json(text).dump(-1, ' ', false, Json::error_handler_t::replace), std::move(hole));
    }

    /// Returns how many values of a property, all there are, stand from here on with the same between them; 0 if not
    /// so.
    std::size_t listAt(const CutText& text, std::size_t begin) const {
        const Json& first = known_.at(std::string(text.values[begin]));
        if (!first.is_array() || first[1] != 0) {
            return 0;
        }
        const std::size_t property = first[0];
        const std::size_t length = object_.properties[property].values.size();
        for (std::size_t i = 0; i < length; ++i) {
            const bool isThere = begin + i < text.values.size();
            const auto known = isThere ? known_.find(std::string(text.values[begin + i])) : known_.end();
            if (known == known_.end() || known->second != Json::array({property, i}) ||
                (i > 0 && text.pieces[begin + i] != text.pieces[begin + 1])) {
                return 0;
            }
        }
        return length;
    }

    const Object& object_;
    std::unordered_map<std::string, Json> known_; // by how it is written in a schema
};

/// What some objects consist of, and what each of them has in its place.
struct Shape {
    Json description;
    std::vector<std::vector<std::size_t>> cells;
    std::vector<std::vector<std::size_t>> literals;
};

void append(std::vector<std::vector<std::size_t>>& columns, const std::vector<std::size_t>& row) {
    columns.resize(row.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
        columns[i].push_back(row[i]);
    }
}

/// Writes the objects of a catalogue in columns.
class Table {
public:
    explicit Table(const Catalogue& catalogue)
        : catalogue_(catalogue), objects_(objectsOfPage(catalogue)), numbers_(objects_) {
        for (const Object* object : objects_) {
            addPlace(beginningOf(catalogue.sourceOf(*object)));
            addShape(*object);
            names_.push_back(cells_.add(object->name));
        }
    }

    void writeTo(Json& data) {
        std::vector<std::string_view> typeIds;
        typeIds.reserve(objects_.size());
        for (const Object* object : objects_) {
            typeIds.emplace_back(object->typeId);
        }
        data["typeIds"] = withSharedBeginnings(typeIds);
        data["values"] = cells_.table();
        data["names"] = cells_.column(names_);
        data["builtIns"] = numbers_.builtIns();
        data["files"] = withSharedBeginnings({files_.begin(), files_.end()});
        data["file"] = columnOf(std::move(fileOf_));
        data["line"] = columnOf(std::move(lines_));
        data["column"] = columnOf(std::move(columns_));
        data["shape"] = columnOf(std::move(shapeOf_));
        data["shapes"] = Json::array();
        for (Shape& shape : shapes_) {
            shape.description["cells"] = columnsOf(shape.cells);
            shape.description["literals"] = columnsOf(shape.literals);
            data["shapes"].push_back(std::move(shape.description));
        }
    }

private:
    void addPlace(const Place& place) {
        const auto [found, isNew] = fileNumbers_.emplace(place.file, files_.size());
        if (isNew) {
            files_.push_back(printable(nameOf(*place.file)));
        }
        fileOf_.emplace_back(found->second);
        lines_.emplace_back(place.line);
        columns_.emplace_back(place.column);
    }

    void addShape(const Object& object) {
        Json properties = Json::array();
        std::vector<std::size_t> cells;
        for (const Property& property : object.properties) {
            properties.push_back(Json::array({property.name, property.isOwn}));
            cells.push_back(cells_.add(cellOf(property.values)));
        }
        const std::string text = catalogue_.schemaOf(object);
        std::vector<std::string_view> literals;
        Json schema = Holes(object).shapeOf(cut(text), literals);

        Json description{
            {"kind", placeOf(*object.section)}, {"properties", std::move(properties)}, {"schema", std::move(schema)}};
        const auto [found, isNew] =
            shapeNumbers_.emplace(description.dump(-1, ' ', false, Json::error_handler_t::replace), shapes_.size());
        if (isNew) {
            shapes_.push_back({std::move(description), {}, {}});
        }
        Shape& shape = shapes_[found->second];
        shapeOf_.emplace_back(found->second);
        append(shape.cells, cells);
        std::vector<std::size_t> numbers;
        numbers.reserve(literals.size());
        for (const std::string_view literal : literals) {
            numbers.push_back(cells_.add(literal));
        }
        append(shape.literals, numbers);
    }

    std::size_t placeOf(const Section& section) const {
        return static_cast<std::size_t>(std::find(kinds_.begin(), kinds_.end(), &section) - kinds_.begin());
    }

    Json cellOf(const std::vector<Value>& values) {
        Json cell = Json::array();
        for (const Value& value : values) {
            cell.push_back(value.typeId.empty() ? Json(value.text) : Json(numbers_.of(value)));
        }
        return cell.size() == 1 ? cell.front() : cell;
    }

    Json columnsOf(const std::vector<std::vector<std::size_t>>& columns) const {
        Json written = Json::array();
        for (const std::vector<std::size_t>& column : columns) {
            written.push_back(cells_.column(column));
        }
        return written;
    }

    const Catalogue& catalogue_;
    std::vector<const Section*> kinds_ = sectionsOfPage();
    std::vector<const Object*> objects_;
    Numbers numbers_;
    Cells cells_;
    std::vector<std::size_t> names_;
    std::map<const std::string*, std::size_t> fileNumbers_;
    std::vector<std::string> files_;
    std::vector<Json> fileOf_, lines_, columns_, shapeOf_;
    std::unordered_map<std::string, std::size_t> shapeNumbers_;
    std::vector<Shape> shapes_;
};

Json dataOf(const Finding& finding, const std::string& rest) {
    return {{"place", toString(finding.place)}, {"message", finding.message}, {"hint", finding.hint}, {"rest", rest},
            {"isError", finding.isError},       {"typeId", finding.typeId},   {"code", finding.code}};
}

} // namespace

Json pageDataOf(const Catalogue& catalogue) {
    Json data{{"kinds", Json::array()}};
    for (const Section* section : sectionsOfPage()) {
        data["kinds"].push_back({{"id", section->id},
                                 {"label", section->label},
                                 {"plural", section->plural},
                                 {"isParameter", section->isParameter}});
    }
    Table(catalogue).writeTo(data);
    data["faults"] = Json::array();
    for (const Fold& fold : fold(catalogue.findings())) {
        data["faults"].push_back(dataOf(*fold.shown, summaryOf(fold)));
    }
    data["leftOut"] = catalogue.leftOut();
    return data;
}

} // namespace Tool
