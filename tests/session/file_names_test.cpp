#include <gtest/gtest.h>

#include <string>

#include "office/failure.h"
#include "session/file_names.h"

namespace {

TEST(FileNames, MayBeAnythingThatStaysInItsFolder) {
    for (const char* name : {"Chart 1.png", "Größe.png", "..png", "a:b", "EmbeddedChart_.png"}) {
        EXPECT_NO_THROW(session::requireFileName(name)) << name;
    }
}

TEST(FileNames, NeverLeadToAnotherFolder) {
    const std::string withNul("a\0b", 3);
    for (const std::string& name : {std::string(), std::string("."), std::string(".."),
                                    std::string("../a"), std::string("a/b"), std::string("a\\b"),
                                    std::string("a\nb"), std::string("a\x7F"), withNul}) {
        try {
            session::requireFileName(name);
            ADD_FAILURE() << name;
        } catch (const office::Failure& failure) {
            EXPECT_TRUE(failure.is(office::FailureNumber::PathFileAccess));
        }
    }
}

}  // namespace
