#pragma once

#include <parameters/BoolParameter.h>
#include <parameters/BoolSpec.h>
#include <parameters/GeneralSpec.h>
#include <parameters/ParameterCore.h>
#include <parameters/SpecCore.h>
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

// clang-format off
template <> struct Sample<Parameters::Taxon> : NamedSample<Parameters::Taxon> {};
template <> struct Sample<Parameters::SpecCore> : NamedSample<Parameters::SpecCore> {};
template <> struct Sample<Parameters::BoolSpec> : SampleWithCore<Parameters::BoolSpec, Parameters::SpecCore> {};
template <> struct Sample<Parameters::GeneralSpec> : SampleWithCore<Parameters::GeneralSpec, Parameters::SpecCore> {};
template <> struct Sample<Parameters::BoolParameter> : SampleWithCore<Parameters::BoolParameter, Parameters::ParameterCore> {};
// clang-format on

using AllValues = testing::Types<Parameters::Taxon, Parameters::SpecCore, Parameters::ParameterCore,
                                 Parameters::BoolSpec, Parameters::GeneralSpec, Parameters::BoolParameter>;

template <class Value>
std::string typeIdOf(const Value& value) {
    if constexpr (requires { value.getCore(); }) {
        return value.getCore().getTypeId();
    } else {
        return value.getTypeId();
    }
}

} // namespace Values
