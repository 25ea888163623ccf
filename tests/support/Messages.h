#pragma once

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <typeinfo>
#include <utility>

namespace Support {

/// Returns the message of the exception that the call throws. When it throws nothing, or an exception that is not of
/// exactly that class, the test fails.
template <class Exception, class Call>
std::string messageOf(Call&& call) {
    try {
        std::forward<Call>(call)();
    } catch (const std::exception& exception) {
        EXPECT_STREQ(typeid(exception).name(), typeid(Exception).name()) << exception.what();
        return exception.what();
    } catch (...) {
        ADD_FAILURE() << "Something was thrown that is no exception.";
        return {};
    }
    ADD_FAILURE() << "Nothing was thrown.";
    return {};
}

} // namespace Support
