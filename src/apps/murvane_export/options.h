#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "catalogue/export_choices.h"
#include "office/picture_kind.h"
#include "session/host.h"
#include "session/picture_look.h"

namespace unattended {

enum class Task { Export, List, Check };

/// One of the three values of a placement: a share of the slide's height or width, the program's
/// own choice, or what the workbook has.
struct PlacementValue {
    std::optional<double> share;  ///< none: "default", or "workbook"
    bool isWorkbooks = false;

    bool operator==(const PlacementValue&) const = default;
};

/// One thing that a run makes.
struct Target {
    catalogue::Destination destination = catalogue::Destination::PowerPoint;
    /// A file; of HTML and images a folder.
    std::string output;

    bool operator==(const Target&) const = default;
};

/// The command line, as the caller wrote it.
struct Options {
    Task task = Task::Export;
    bool json = false;
    /// Works on what is open in the suite that is running.
    bool attach = false;
    std::string book;
    std::string deck;      ///< empty: a new presentation
    std::string document;  ///< empty: a new document
    /// Each destination once, in the order of the command line; at least one.
    std::vector<Target> targets;
    bool overwrite = false;

    bool allItems = false;
    std::vector<std::string> items;  ///< empty: those checked in the workbook
    std::vector<std::string> order;
    std::string captionsFile;

    catalogue::ExportFormat format = catalogue::ExportFormat::Pictures;
    office::PictureKind pictures = office::PictureKind::Png;
    /// Embedded workbooks hold the item's sheet and nothing else.
    bool embedsSheetAlone = false;
    /// Links name the workbook by its way from the output's folder.
    bool linksAreRelative = false;
    bool predefinedSlides = false;
    /// Captions as titles; what the destination does by itself where nothing was said.
    std::optional<bool> titles;
    bool source = false;
    bool shadow = false;
    bool sameWidth = false;
    bool captionsBelow = false;
    /// Empty: no cover page.
    std::string coverText;
    double sizePercent = 70;
    std::int32_t blankLines = 10;
    session::ImageFormat imageFormat = session::ImageFormat::Png;
    bool numbersFiles = false;
    session::PictureLook look = session::PictureLook::None;
    std::optional<PlacementValue> top;
    std::optional<PlacementValue> width;
    std::optional<PlacementValue> left;

    /// An item that fails is left out and the others are saved.
    bool keepGoing = false;
    bool yes = false;
    bool quiet = false;

    [[nodiscard]] bool placesShapes() const { return top || width || left; }
    /// Null if the run makes nothing for this destination.
    [[nodiscard]] const Target* targetOf(catalogue::Destination destination) const {
        for (const Target& target : targets) {
            if (target.destination == destination) return &target;
        }
        return nullptr;
    }
};

/// What is left to do when the command line was no order to work: a help text, or a complaint.
struct ParseEnd {
    int exitCode = 0;
    std::string out;
    std::string error;
};

/// Reads a command line, `arguments` without the program's name.
[[nodiscard]] std::variant<Options, ParseEnd> parseOptions(
    const std::vector<std::string>& arguments);

}  // namespace unattended
