#include "catalogue/Catalogue.h"

#include "catalogue/Compact.h"
#include "catalogue/Describe.h"
#include "catalogue/Input.h"
#include "catalogue/Loss.h"
#include "output/Progress.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

namespace Tool {

Catalogue::Catalogue(const std::vector<std::string>& paths) {
    const std::vector<std::filesystem::path> files = findFiles(paths);
    files_ = files.size();
    Progress progress(files);
    for (const std::filesystem::path& file : files) {
        readTexts(file, [&](const Source& source) {
            loader_.add(source);
            progress.advance(source.text.size());
        });
    }
    loader_.resolve();
    faults_ = loader_.faults();
    collect();
}

void Catalogue::collect() {
    objects_ = describeAll(loader_.engine());
    if (loader_.isResolved()) {
        mustHaveAll(objects_, loader_.entries());
    }
    for (std::size_t place = 0; place < objects_.size(); ++place) {
        index_.emplace(objects_[place].typeId, place);
    }
    for (Object& object : objects_) {
        for (Property& property : object.properties) {
            for (Value& value : property.values) {
                if (!value.typeId.empty() && value.text.empty()) {
                    value.text = nameOf(value.typeId);
                }
            }
        }
        for (const Link& link : dependencies(object)) {
            dependents_[link.typeId].push_back({link.property, object.typeId});
        }
    }
}

const Object* Catalogue::find(const std::string& typeId) const {
    const auto found = index_.find(typeId);
    return found == index_.end() ? nullptr : &objects_[found->second];
}

std::string Catalogue::nameOf(const std::string& typeId) const {
    const Object* object = find(typeId);
    return object == nullptr ? std::string() : object->name;
}

std::vector<Link> Catalogue::dependencies(const Object& object) const {
    std::vector<Link> links;
    for (const Property& property : object.properties) {
        for (const Value& value : property.values) {
            if (property.isOwn && !value.typeId.empty()) {
                links.push_back({property.name, value.typeId});
            }
        }
    }
    return links;
}

const std::vector<Link>& Catalogue::dependents(const std::string& typeId) const {
    static const std::vector<Link> none;
    const auto found = dependents_.find(typeId);
    return found == dependents_.end() ? none : found->second;
}

std::string Catalogue::schemaOf(const Object& object) const {
    // Units are the units library's, which hands out no texts.
    return object.section == &sectionOfUnits() ? compact(sourceOf(object).text)
                                               : loader_.engine().getSchema(object.typeId);
}

std::size_t Catalogue::count(const Section& section) const {
    return static_cast<std::size_t>(std::count_if(objects_.begin(), objects_.end(),
                                                  [&](const Object& object) { return object.section == &section; }));
}

} // namespace Tool
