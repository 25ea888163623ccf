#include "model/Category.h"

#include "model/MakeRef.h"
#include "model/Taxon.h"
#include "model/Writing.h"
#include "schema/Constants.h"

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

namespace {

using Internal::Access;
using Internal::CategoryData;

Category categoryOf(CategoryData data) {
    return Access::make<Category>(Internal::makeRef<CategoryData>(std::move(data)));
}

MajorCategoryComponent majorOf(Internal::MajorCategoryComponentData data) {
    return Access::make<MajorCategoryComponent>(
        Internal::makeRef<Internal::MajorCategoryComponentData>(std::move(data)));
}

SubCategoryComponent subOf(std::string_view parentCategory) {
    using Data = Internal::SubCategoryComponentData;
    return Access::make<SubCategoryComponent>(Internal::makeRef<Data>(Data{{parentCategory}}));
}

std::string_view parentOf(const SubCategoryComponent& component) { return Access::data(component).parentCategory[0]; }

} // namespace

MajorCategoryComponent::MajorCategoryComponent(const Taxon& domain, const std::vector<Taxon>& disciplines)
    : MajorCategoryComponent(majorOf({domain, disciplines})) {}

Taxon MajorCategoryComponent::getDomain() const noexcept { return domain(); }

const Taxon& MajorCategoryComponent::domain() const noexcept { return data_->domain; }

std::vector<Taxon> MajorCategoryComponent::getDisciplines() const { return data_->disciplines; }

ArrayView<Taxon> MajorCategoryComponent::disciplines() const noexcept {
    return {data_->disciplines.data(), data_->disciplines.size()};
}

SubCategoryComponent::SubCategoryComponent(const std::string& parentCategory)
    : SubCategoryComponent(subOf(parentCategory)) {}

std::string SubCategoryComponent::getParentCategory() const { return std::string(parentCategory()); }

std::string_view SubCategoryComponent::parentCategory() const noexcept { return parentOf(*this); }

Category::Category(const std::string& typeId, const std::string& name, const MajorCategoryComponent& component)
    : Category(categoryOf({{typeId, name}, component})) {}

Category::Category(const std::string& typeId, const std::string& name, const SubCategoryComponent& component)
    : Category(categoryOf({{typeId, name}, component})) {}

std::string Category::getTypeId() const { return std::string(typeId()); }

std::string_view Category::typeId() const noexcept { return data_->typeId(); }

std::string Category::getName() const { return std::string(name()); }

std::string_view Category::name() const noexcept { return data_->name(); }

std::optional<MajorCategoryComponent> Category::getMajorCategoryComponent() const noexcept {
    return Internal::copyOf(majorCategoryComponent());
}

const MajorCategoryComponent* Category::majorCategoryComponent() const noexcept { return data_->major(); }

std::optional<SubCategoryComponent> Category::getSubCategoryComponent() const noexcept {
    return Internal::copyOf(subCategoryComponent());
}

const SubCategoryComponent* Category::subCategoryComponent() const noexcept { return data_->sub(); }

PARAMETERS_COMPARE_BY_TYPEID(Category)

namespace Internal {

namespace {

MajorCategoryComponent buildMajor(const CategoryKind::Record& record, const Finder& finder) {
    const Taxon domain = finder.require<DomainKind>(record.domain(), record.typeId());
    std::vector<Taxon> disciplines;
    disciplines.reserve(record.disciplines());
    for (std::size_t place = 0; place < record.disciplines(); ++place) {
        disciplines.push_back(finder.requireOrStandIn<DisciplineKind>(record.discipline(place), record.typeId()));
    }
    return majorOf({domain, std::move(disciplines)});
}

SubCategoryComponent buildSub(const CategoryKind::Record& record, const Finder& finder) {
    const auto parent = finder.require<CategoryKind>(record.parent(), record.typeId());
    if (!Access::isNone(parent) && Access::data(parent).major() == nullptr) {
        const auto& message = finder.binds() ? CategoryKind::messages("given-parent-not-major")
                                             : CategoryKind::messages("parent-not-major");
        finder.fail(message, {record.parent(), record.typeId()}, record.parent(), CategoryKind::word);
    }
    return subOf(record.parent());
}

} // namespace

std::optional<CategoryKind::Record> CategoryKind::read(const Ostra::Schema& schema) {
    const bool major = schema.inherits(majorBase);
    if (!major && !schema.inherits(subBase)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto name = constants.required<Ostra::NonEmptyString>("name");
    std::vector<std::string_view> references;
    if (major) {
        references = constants.optional<Ostra::TypedValues>("disciplines", {});
        references.push_back(constants.required<Ostra::TypedValue>("domain"));
    } else {
        references = {constants.required<Ostra::TypedValue>("parent")};
    }
    return Record{{schema.typeId(), name}, Texts(references), major};
}

CategoryKind::Record CategoryKind::recordOf(const Category& category) {
    const CategoryData& data = Access::data(category);
    if (data.sub() != nullptr) {
        return {data.texts, {parentOf(*data.sub())}, false};
    }
    const auto& [domain, disciplines] = Access::data(*data.major());
    std::vector<std::string_view> references;
    references.reserve(disciplines.size() + 1);
    for (const Taxon& discipline : disciplines) {
        references.push_back(typeIdOf(discipline));
    }
    references.push_back(typeIdOf(domain));
    return {data.texts, Texts(references), true};
}

Category CategoryKind::build(const Record& record, const Finder& finder, const Category*) {
    if (record.major) {
        return categoryOf({record.texts, buildMajor(record, finder)});
    }
    return categoryOf({record.texts, buildSub(record, finder)});
}

std::string CategoryKind::write(const Category& category) {
    const CategoryData& data = Access::data(category);
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), data.major() != nullptr ? majorBase : subBase);
    writer.constant("name").string(data.name());
    if (data.sub() != nullptr) {
        writer.typedConstant("parent").typedValue(parentOf(*data.sub()));
        return std::move(writer).finish();
    }
    const auto& [domain, disciplines] = Access::data(*data.major());
    writer.typedConstant("domain").typedValue(typeIdOf(domain));
    if (!disciplines.empty()) {
        writer.typedConstant("disciplines").beginArray();
        for (const Taxon& discipline : disciplines) {
            writer.typedValue(typeIdOf(discipline));
        }
        writer.endArray();
    }
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
