#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace support {

/// Keeps the presentations and documents that a test wrote, for the validator, which looks at them
/// after all tests; those that go by the name of a file in `inputs` are copies of it. They go into
/// $MURVANE_WRITTEN_DECKS, a folder of this program's own, without which none is kept.
inline void keepDecks(const std::filesystem::path& written, const std::filesystem::path& inputs) {
    namespace fs = std::filesystem;
    const char* const set = std::getenv("MURVANE_WRITTEN_DECKS");
    if (set == nullptr) return;
    const fs::path kept = set;
    [[maybe_unused]] static const bool cleared = fs::remove_all(kept) > 0;
    fs::create_directories(kept);
    const auto& run = *testing::UnitTest::GetInstance();
    const auto* const test = run.current_test_info();
    const std::string label = test != nullptr ? test->name() : run.current_test_suite()->name();
    for (const auto& entry : fs::directory_iterator(written)) {
        const fs::path& deck = entry.path();
        const bool isKept = deck.extension() == ".pptx" || deck.extension() == ".docx";
        if (isKept && !fs::exists(inputs / deck.filename())) {
            fs::copy_file(deck, kept / (label + " " + deck.filename().string()));
        }
    }
}

}  // namespace support
