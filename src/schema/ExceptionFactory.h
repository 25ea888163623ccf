#pragma once

#include "schema/FaultHandler.h"
#include "schema/Message.h"

#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Ostra {

/// Turns a message into the exception of the library that asked for a document to be read.
///
/// The readers of this folder serve two libraries, each with an exception class of its own; the factory goes with the
/// document, so that the first fault found in it surfaces as the exception its reader's caller expects.
class ExceptionFactory : public FaultHandler {
public:
    /// Returns a pointer to an exception that carries the message; throws nothing but what allocation may throw.
    virtual std::exception_ptr makeException(const std::string& message) const = 0;

    /// Throws the exception made from the message, with what is inserted into it.
    [[noreturn]] void raise(const Message& message, std::initializer_list<std::string_view> inserted = {}) const {
        std::rethrow_exception(makeException(message.with(inserted)));
    }

    void handle(const Finding& finding) final {
        if (finding.message.severity == Severity::error) {
            raise(finding.message, finding.inserted);
        }
    }
};

/// The factory of one exception class that is constructed from its message.
template <class Exception>
class ExceptionFactoryOf final : public ExceptionFactory {
public:
    std::exception_ptr makeException(const std::string& message) const override {
        return std::make_exception_ptr(Exception(message));
    }

    /// The one factory of this class: it has no state, so every document can share it. It is never destroyed, since
    /// documents may still be read while a process ends.
    static ExceptionFactoryOf& shared() {
        static auto& factory = *new ExceptionFactoryOf();
        return factory;
    }
};

} // namespace Ostra
