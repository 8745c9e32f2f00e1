#pragma once

#include <gtest/gtest.h>

#include <string>

#include "office/package/document/template.h"
#include "office/package/package.h"
#include "office/package/presentation/template.h"
#include "office/text.h"

namespace support {

using office::package::Package;

/// A presentation without slides.
inline Package emptyDeck() {
    return Package::fromBytes(office::package::emptyDeck());
}

/// A document of one empty paragraph.
inline Package emptyDocument() {
    return Package::fromBytes(office::package::emptyDocument());
}

/// Puts other text into a part that has the one.
inline void edit(Package& package, const std::string& part, const std::string& from,
                 const std::string& to) {
    const std::string before = package.read(part);
    EXPECT_NE(before.find(from), std::string::npos) << part << " has no " << from;
    package.replace(part, office::replaceAll(before, from, to));
}

}  // namespace support
