#pragma once

#include "catalogue/Object.h"

#include <parameters/ParametersEngine.h>

namespace Tool {

/// Says in texts what an object says by its accessors.
/// @{
Object describe(const Units::Unit& unit);
Object describe(const Parameters::Taxon& taxon);
Object describe(const Parameters::Enumeration& enumeration);
Object describe(const Parameters::FloatRange& range);
Object describe(const Parameters::IntRange& range);
Object describe(const Parameters::StringRange& range);
Object describe(const Parameters::BoolSpec& spec);
Object describe(const Parameters::GeneralSpec& spec);
Object describe(const Parameters::IntSpec& spec);
Object describe(const Parameters::MeasurableSpec& spec);
Object describe(const Parameters::ReferenceSpec& spec);
Object describe(const Parameters::StringSpec& spec);
Object describe(const Parameters::EnumerationParameter& parameter);
Object describe(const Parameters::BoolParameter& parameter);
Object describe(const Parameters::IntParameter& parameter);
Object describe(const Parameters::MeasurableParameter& parameter);
Object describe(const Parameters::ReferenceParameter& parameter);
Object describe(const Parameters::StringParameter& parameter);
Object describe(const Parameters::Category& category);
/// @}

} // namespace Tool
