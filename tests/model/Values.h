#pragma once

#include <parameters/BoolParameter.h>
#include <parameters/BoolSpec.h>
#include <parameters/Category.h>
#include <parameters/Enumeration.h>
#include <parameters/EnumerationParameter.h>
#include <parameters/FloatRange.h>
#include <parameters/GeneralSpec.h>
#include <parameters/IntParameter.h>
#include <parameters/IntRange.h>
#include <parameters/IntSpec.h>
#include <parameters/MeasurableParameter.h>
#include <parameters/MeasurableSpec.h>
#include <parameters/ParameterCore.h>
#include <parameters/ReferenceParameter.h>
#include <parameters/ReferenceSpec.h>
#include <parameters/SpecCore.h>
#include <parameters/StringParameter.h>
#include <parameters/StringRange.h>
#include <parameters/StringSpec.h>
#include <parameters/SubCategoryComponent.h>
#include <parameters/Taxon.h>

#include <gtest/gtest.h>

#include <string>

/// How to make a value of each class: of a type identifier, and with a content ("1", "2" ...) that takes no part in its
/// identity; and how to get that content back. A class joins by its line here and its name in AllValues.
namespace Values {

template <class Value>
struct Sample;

/// A taxon or spec core; its name is its content.
template <class Value>
struct NamedSample {
    static Value make(const std::string& typeId, const std::string& content) { return {typeId, content}; }
    static std::string contentOf(const Value& value) { return value.getName(); }
};

/// A value that holds a core; the core's content is its own.
template <class Value, class Core>
struct SampleWithCore {
    static Value make(const std::string& typeId, const std::string& content) {
        return Value(Sample<Core>::make(typeId, content));
    }
    static std::string contentOf(const Value& value) { return Sample<Core>::contentOf(value.getCore()); }
};

template <>
struct Sample<Parameters::ParameterCore> {
    static Parameters::ParameterCore make(const std::string& typeId, const std::string& content) {
        return {typeId, "Name", content, "", false};
    }
    static std::string contentOf(const Parameters::ParameterCore& core) { return core.getDescription(); }
};

template <>
struct Sample<Parameters::Category> {
    static Parameters::Category make(const std::string& typeId, const std::string& content) {
        return {typeId, content, Parameters::SubCategoryComponent("parent")};
    }
    static std::string contentOf(const Parameters::Category& category) { return category.getName(); }
};

template <>
struct Sample<Parameters::MeasurableSpec> {
    static Parameters::MeasurableSpec make(const std::string& typeId, const std::string& content) {
        return {Parameters::SpecCore(typeId, "Name"), {}, Units::Unit("unit", content, "")};
    }
    static std::string contentOf(const Parameters::MeasurableSpec& spec) { return spec.getStorageUnit().getName(); }
};

template <>
struct Sample<Parameters::ReferenceSpec> {
    static Parameters::ReferenceSpec make(const std::string& typeId, const std::string& content) {
        return {Parameters::SpecCore(typeId, "Name"), Sample<Parameters::Category>::make("category", content)};
    }
    static std::string contentOf(const Parameters::ReferenceSpec& spec) { return spec.getCategory()->getName(); }
};

template <>
struct Sample<Parameters::MeasurableParameter> {
    static Parameters::MeasurableParameter make(const std::string& typeId, const std::string& content) {
        return {Parameters::ParameterCore(typeId, "Name", "", "", false),
                Sample<Parameters::MeasurableSpec>::make("spec", content),
                {false, 0, false, 0}};
    }
    static std::string contentOf(const Parameters::MeasurableParameter& parameter) {
        return Sample<Parameters::MeasurableSpec>::contentOf(parameter.getSpec());
    }
};

template <>
struct Sample<Parameters::ReferenceParameter> {
    static Parameters::ReferenceParameter make(const std::string& typeId, const std::string& content) {
        return {Parameters::ParameterCore(typeId, "Name", "", "", false),
                Sample<Parameters::ReferenceSpec>::make("spec", content), false};
    }
    static std::string contentOf(const Parameters::ReferenceParameter& parameter) {
        return Sample<Parameters::ReferenceSpec>::contentOf(parameter.getSpec());
    }
};

/// A range of numbers; its lower bound is its content.
template <class Range>
struct NumericRangeSample {
    static Range make(const std::string& typeId, const std::string& content) {
        return Range(typeId, true, std::stoi(content), false, 0);
    }
    static std::string contentOf(const Range& range) {
        return std::to_string(static_cast<int>(range.getBottomBoundary()));
    }
};

template <>
struct Sample<Parameters::StringRange> {
    static Parameters::StringRange make(const std::string& typeId, const std::string& content) {
        return {typeId, Parameters::RegexStringRangeComponent(content)};
    }
    static std::string contentOf(const Parameters::StringRange& range) {
        return range.getRegexStringRangeComponent()->getRegex();
    }
};

template <>
struct Sample<Parameters::Enumeration> {
    static Parameters::Enumeration make(const std::string& typeId, const std::string& content) {
        return {typeId, {{content, 1}}};
    }
    static std::string contentOf(const Parameters::Enumeration& enumeration) {
        return enumeration.getValues().at(0).first;
    }
};

/// A parameter with a range; the range's content is its own.
template <class Parameter, class Range>
struct RangedParameterSample {
    static Parameter make(const std::string& typeId, const std::string& content) {
        return {Sample<Parameters::ParameterCore>::make(typeId, ""), Sample<Range>::make("range", content)};
    }
    static std::string contentOf(const Parameter& parameter) { return Sample<Range>::contentOf(parameter.getRange()); }
};

template <>
struct Sample<Parameters::EnumerationParameter> {
    static Parameters::EnumerationParameter make(const std::string& typeId, const std::string& content) {
        return {Sample<Parameters::ParameterCore>::make(typeId, ""),
                Parameters::GeneralSpec(Parameters::SpecCore("spec", "Name")),
                Sample<Parameters::Enumeration>::make("enumeration", content)};
    }
    static std::string contentOf(const Parameters::EnumerationParameter& parameter) {
        return Sample<Parameters::Enumeration>::contentOf(parameter.getEnumeration());
    }
};

// clang-format off
template <> struct Sample<Parameters::IntRange> : NumericRangeSample<Parameters::IntRange> {};
template <> struct Sample<Parameters::FloatRange> : NumericRangeSample<Parameters::FloatRange> {};
template <> struct Sample<Parameters::IntSpec> : SampleWithCore<Parameters::IntSpec, Parameters::SpecCore> {};
template <> struct Sample<Parameters::StringSpec> : SampleWithCore<Parameters::StringSpec, Parameters::SpecCore> {};
template <> struct Sample<Parameters::IntParameter> : RangedParameterSample<Parameters::IntParameter, Parameters::IntRange> {};
template <> struct Sample<Parameters::StringParameter> : RangedParameterSample<Parameters::StringParameter, Parameters::StringRange> {};
template <> struct Sample<Parameters::Taxon> : NamedSample<Parameters::Taxon> {};
template <> struct Sample<Parameters::SpecCore> : NamedSample<Parameters::SpecCore> {};
template <> struct Sample<Parameters::BoolSpec> : SampleWithCore<Parameters::BoolSpec, Parameters::SpecCore> {};
template <> struct Sample<Parameters::GeneralSpec> : SampleWithCore<Parameters::GeneralSpec, Parameters::SpecCore> {};
template <> struct Sample<Parameters::BoolParameter> : SampleWithCore<Parameters::BoolParameter, Parameters::ParameterCore> {};
// clang-format on

using AllValues =
    testing::Types<Parameters::Taxon, Parameters::SpecCore, Parameters::ParameterCore, Parameters::BoolSpec,
                   Parameters::GeneralSpec, Parameters::BoolParameter, Parameters::Category, Parameters::MeasurableSpec,
                   Parameters::ReferenceSpec, Parameters::MeasurableParameter, Parameters::ReferenceParameter,
                   Parameters::IntRange, Parameters::FloatRange, Parameters::StringRange, Parameters::Enumeration,
                   Parameters::IntSpec, Parameters::StringSpec, Parameters::IntParameter, Parameters::StringParameter,
                   Parameters::EnumerationParameter>;

template <class Value>
std::string typeIdOf(const Value& value) {
    if constexpr (requires { value.getCore(); }) {
        return value.getCore().getTypeId();
    } else {
        return value.getTypeId();
    }
}

} // namespace Values
