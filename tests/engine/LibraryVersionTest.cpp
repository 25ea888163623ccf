#include <parameters/ParametersEngine.h>
#include <parameters/Version.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using Parameters::ParametersEngine;

TEST(LibraryVersion, IsThatOfTheProject) { EXPECT_EQ(ParametersEngine::libraryVersion(), OSTRA_PARAMETERS_VERSION); }

TEST(LibraryVersion, IsThatOfTheHeaderThatTheProgramWasCompiledWith) {
    EXPECT_EQ(ParametersEngine::libraryVersion(), PARAMETERS_VERSION);
}

TEST(LibraryVersion, IsThreeNumbersThatTheHeaderHasTooEachByItself) {
    EXPECT_EQ(ParametersEngine::libraryVersion(), std::to_string(PARAMETERS_VERSION_MAJOR) + "." +
                                                      std::to_string(PARAMETERS_VERSION_MINOR) + "." +
                                                      std::to_string(PARAMETERS_VERSION_PATCH));
}

} // namespace
