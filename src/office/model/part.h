#pragma once

#include <string>

#include "office/failure.h"

namespace office::model {

/// Anything of a document, or the document itself, that can go while objects stand for it.
class Part {
public:
    Part() = default;
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    virtual ~Part() = default;

    /// Whether it is known to have been closed or deleted, alone or with what it was on. Makes no
    /// remote call.
    [[nodiscard]] virtual bool isGone() const = 0;
};

[[noreturn]] inline void failGone(const std::string& source) {
    throw Failure(FailureNumber::Disconnected, source,
                  "The object has been closed or deleted in the meantime");
}

}  // namespace office::model
