#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/MakeRef.h"
#include "model/Messages.h"
#include "model/RangeConstant.h"
#include "model/Texts.h"
#include "model/Writing.h"
#include "schema/Constants.h"
#include "schema/Immortal.h"
#include "schema/JSON.h"
#include "schema/Schema.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

template <class Number>
struct NumericRangeData {
    Texts texts; // typeid
    Number bottomBoundary;
    Number topBoundary;
    bool fromBottom;
    bool fromTop;

    std::string_view typeId() const { return texts[0]; }
};

/// The kind of a range between two numbers; integer and floating-point ranges differ in the numbers alone.
///
/// Traits has the kind's entry in the public list, its Number, the Reader of a number from JSON, what JSON is one, and
/// how one is written.
template <class Traits>
class NumericRangeKind : public DescribedKind<typename Traits::Public> {
public:
    using Object = typename Traits::Public::Value;
    using Names = KindList<>;
    using Number = typename Traits::Number;
    using Record = NumericRangeData<Number>;
    using DescribedKind<typename Traits::Public>::base;

    static constexpr auto messages = Ostra::Messages({
        {"inline-range-flag-missing", "Inline value override in range constant typedValue must specify a Boolean value "
                                      "for constant <fromBottom or fromTop>."},
    });

    static std::optional<Record> read(const Ostra::Schema& schema) {
        if (!schema.inherits(base)) {
            return std::nullopt;
        }
        const Ostra::Constants constants(schema);
        const bool fromBottom = constants.required<Ostra::Boolean>("fromBottom");
        const bool fromTop = constants.required<Ostra::Boolean>("fromTop");
        const Number bottom = constants.optional<typename Traits::Reader>("bottomBoundary", 0);
        const Number top = constants.optional<typename Traits::Reader>("topBoundary", 0);
        if (schema.view().isInspected()) [[unlikely]] {
            inspect([&constants](std::string_view id) { return constants.find(id); });
        }
        return Record{{schema.typeId()}, bottom, top, fromBottom, fromTop};
    }

    static Record recordOf(const Object& range) { return Access::data(range); }

    static Object build(const Record& record, const Finder&, const Object*) { return of(record); }

    static std::string write(const Object& range) {
        const Record& data = Access::data(range);
        Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
        writeSide(writer, "fromBottom", data.fromBottom, "bottomBoundary", data.bottomBoundary);
        writeSide(writer, "fromTop", data.fromTop, "topBoundary", data.topBoundary);
        return std::move(writer).finish();
    }

    /// Reads the value of a range that is written inside a parameter's schema.
    static Object readInline(Ostra::JSONView value) {
        const bool fromBottom = readInlineFlag(value, "fromBottom");
        const Number bottom = readInlineBoundary(value, "bottomBoundary");
        const bool fromTop = readInlineFlag(value, "fromTop");
        const Number top = readInlineBoundary(value, "topBoundary");
        if (value.isInspected()) [[unlikely]] {
            inspect([&value](std::string_view name) { return value.member(name); });
        }
        return Object(fromBottom, bottom, fromTop, top);
    }

    /// Reads the range constant of a parameter; without it the range has no bounds.
    static RangeReference<Object> readConstant(const Ostra::Schema& schema, const Ostra::Constants& constants) {
        if (const auto typedValue = constants.find("range")) {
            return readRangeConstant<Object>(schema, *typedValue, {{base, &readInline}});
        }
        static const auto& unbounded = Ostra::immortal(Object(false, Number{}, false, Number{}));
        return {std::nullopt, unbounded};
    }

    /// Returns what a parameter made in code says of its range.
    static RangeReference<Object> referenceTo(const Object& range) {
        if (base.isIn(typeIdOf(range))) {
            return {std::nullopt, range};
        }
        return {typeIdOf(range), Access::none<Object>()};
    }

    /// Writes the range constant of a parameter. A range without bounds is what stands there when nothing is written.
    static void writeConstant(Ostra::SchemaWriter& writer, const Object& range) {
        const Record& data = Access::data(range);
        if (!data.fromBottom && !data.fromTop) {
            return;
        }
        writer.typedConstant("range").beginTypedValue(data.typeId());
        if (data.typeId() == base.full()) {
            writer.name("value");
            writeInline(writer, data);
        }
        writer.endObject();
    }

    static Object of(Record record) { return Access::make<Object>(makeRef<Record>(std::move(record))); }

    /// Returns the texts of a range that belongs to a parameter; all of them share one block.
    static Texts baseTexts() {
        static const auto& texts = Ostra::immortal(Texts{base.full()});
        return texts;
    }

private:
    static void writeSide(Ostra::SchemaWriter& writer, std::string_view flagId, bool flag, std::string_view boundaryId,
                          Number boundary) {
        writer.constant(flagId).boolean(flag);
        if (flag && boundary != Number{}) {
            Traits::write(writer.constant(boundaryId), boundary);
        }
    }

    static void writeInline(Ostra::SchemaWriter& writer, const Record& data) {
        writer.beginObject();
        writer.name("fromBottom");
        writer.boolean(data.fromBottom);
        writer.name("bottomBoundary");
        Traits::write(writer, data.bottomBoundary);
        writer.name("fromTop");
        writer.boolean(data.fromTop);
        writer.name("topBoundary");
        Traits::write(writer, data.topBoundary);
        writer.endObject();
    }

    static bool readInlineFlag(Ostra::JSONView value, std::string_view name) {
        const auto flag = value.member(name);
        if (!flag) {
            return value.failLacking({name}, messages("inline-range-flag-missing"), {name});
        }
        if (!flag->isBoolean()) {
            return flag->fail(messages("inline-range-flag-missing"), {name});
        }
        return flag->boolean();
    }

    static Number readInlineBoundary(Ostra::JSONView value, std::string_view name) {
        const auto boundary = value.member(name);
        return boundary ? Number{Traits::Reader::read(*boundary)} : Number{};
    }

    /// Warns of what the sides of a range say in vain; find returns the value of a flag or boundary.
    template <class Find>
    static void inspect(Find find) {
        const auto bottom = inspectSide(find, "fromBottom", "bottomBoundary");
        const auto top = inspectSide(find, "fromTop", "topBoundary");
        if (bottom && top && Traits::Reader::read(*bottom) > Traits::Reader::read(*top)) {
            top->reportBeside(*bottom, Internal::messages("range-empty"));
        }
    }

    /// Returns the boundary of a side, if it has one that counts. One of 0 is as good as none where none counts.
    template <class Find>
    static Ostra::MaybeView inspectSide(Find find, std::string_view flagId, std::string_view boundaryId) {
        const auto flag = find(flagId);
        const auto boundary = find(boundaryId);
        if (!flag || !flag->isBoolean() || (boundary && !Traits::isNumber(*boundary))) {
            return std::nullopt;
        }
        if (flag->boolean() && !boundary) {
            flag->report(Internal::messages("boundary-missing"), {flagId, boundaryId});
        }
        if (!flag->boolean() && boundary && Traits::Reader::read(*boundary) != 0) {
            boundary->report(Internal::messages("boundary-ignored"), {boundaryId, flagId});
        }
        return flag->boolean() ? boundary : std::nullopt;
    }
};

} // namespace Parameters::Internal
