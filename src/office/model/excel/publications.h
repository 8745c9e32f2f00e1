#pragma once

#include <memory>
#include <string>
#include <vector>

namespace office::model::excel {

/// A part of a workbook that goes to a page.
struct Publication {
    enum class Source { Range = 4, Chart = 5 };

    Source source = Source::Range;
    /// Of the page.
    std::string file;
    std::string sheet;
    /// An address or a name, or the name of a chart; empty for a chart sheet.
    std::string place;
    /// What names it within the page.
    std::string divId;
    std::string title;
};

using PublicationPtr = std::shared_ptr<Publication>;

struct Publications {
    std::vector<PublicationPtr> all;
    /// How many there have been, for the names of those to come.
    int made = 0;
};

}  // namespace office::model::excel
