#include "apps/murvane_export/options.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "apps/murvane_export/errors.h"
#include "apps/version.h"
#include "office/text.h"
#include "powerpoint/picture_styles.h"

namespace unattended {

namespace {

constexpr const char* description =
    "Exports the charts, chart sheets and named ranges of a workbook to slides, without a window.\n"
    "What the workbook itself remembers (items, order, slide numbers, captions) holds unless an\n"
    "option says otherwise.";

constexpr const char* examples =
    R"(NAME[@SHEET] names an item as --list shows it; @SHEET tells items of the same name apart, and a
name that holds a comma stands in double quotes.

Examples:
  murvane-export sales.xlsx --list
  murvane-export sales.xlsx --output sales.pptx
  murvane-export sales.xlsx --into template.pptx --output sales.pptx --titles --source
  murvane-export sales.xlsx --output top.pptx --items "Chart 1@North,Chart 1@South"
  murvane-export sales.xlsx --into deck.pptx --output new.pptx --slides predefined \
                 --captions captions.csv

Exit codes: 0 done, 1 failed or incomplete, 2 wrong usage, 3 blocked by the review.)";

const std::map<std::string, std::int16_t>& stylesByName() {
    namespace style = powerpoint::style;
    static const std::map<std::string, std::int16_t> styles = {
        {"none", style::none},
        {"shadow-around", style::shadowAllAround},
        {"shadow", style::shadow},
        {"rounded", style::roundedCorners},
        {"reflection", style::reflection},
        {"reflection-rounded", style::reflectionRounded},
    };
    return styles;
}

const std::map<std::string, catalogue::ExportFormat>& formatsByName() {
    using catalogue::ExportFormat;
    static const std::map<std::string, ExportFormat> formats = {
        {"pictures", ExportFormat::Pictures},
        {"editable", ExportFormat::Editable},
        {"embedded", ExportFormat::Embedded},
        {"linked", ExportFormat::Linked},
    };
    return formats;
}

template <class Number>
std::vector<std::string> namesOf(const std::map<std::string, Number>& known) {
    std::vector<std::string> names;
    for (const auto& [name, number] : known) names.push_back(name);
    return names;
}

/// Says nothing in the help, where the words stand already.
CLI::Validator oneOf(std::vector<std::string> words) {
    return CLI::Validator(CLI::IsMember(std::move(words))).description("");
}

/// The texts of options that become something else than a text.
struct RawTexts {
    std::string destination = "slides";
    std::string slides = "new";
    std::string format = "pictures";
    std::string links;
    std::string style = "none";
    std::string top;
    std::string width;
    std::string left;
    bool list = false;
    bool check = false;
};

std::optional<PlacementValue> placementOf(const std::string& option, const std::string& text) {
    if (text.empty()) return std::nullopt;
    if (office::sameIgnoringCase(text, "default")) return PlacementValue{};
    const auto share = office::numberOf(text);
    if (!share || *share < 0 || *share > 1) {
        throw UsageError(option +
                         " takes a share of the slide from 0 to 1, or \"default\", not \"" + text +
                         "\".");
    }
    return PlacementValue{share};
}

void declareFiles(CLI::App& app, Options& options) {
    app.add_option("BOOK", options.book, "The workbook");
    app.add_option("--into", options.deck, "Presentation that the slides are added to")
        ->type_name("DECK");
    app.add_option("--output", options.output, "File to write, .pptx or .pptm")
        ->type_name("OUT.pptx");
    app.add_flag("--overwrite", options.overwrite, "Replace the output file if it exists");
    app.add_flag("--attach", options.attach,
                 "Use the workbook and the presentation that are active in the running suite.\n"
                 "Nothing is closed; as with the main window, the workbook gets Murvane's hidden\n"
                 "sheet, and the slides are added to the open presentation");
}

void declareItems(CLI::App& app, Options& options, RawTexts& raw) {
    app.add_flag("--list", raw.list, "Show the items of the workbook and end");
    app.add_flag("--json", options.json, "With --list: as JSON");
    app.add_flag("--check", raw.check, "Run the review alone and end; 3 when it blocks the export");
    app.add_flag("--all", options.allItems, "Every item that can be exported");
    app.add_option("--items", options.items, "These items alone")
        ->allow_extra_args(false)
        ->type_name("NAME[@SHEET],...");
    app.add_option("--order", options.order, "These items first, in this order")
        ->allow_extra_args(false)
        ->type_name("NAME[@SHEET],...");
    app.add_option("--captions", options.captionsFile,
                   "Captions and slide numbers: UTF-8, columns item,sheet,caption,slide")
        ->type_name("FILE.csv");
}

void declareSlides(CLI::App& app, Options& options, RawTexts& raw) {
    app.add_option("--to", raw.destination, "Destination")
        ->check(oneOf({"slides"}))
        ->type_name("slides");
    app.add_option("--format", raw.format,
                   "What items become: pictures; charts and tables that can be edited in the\n"
                   "presentation; embedded workbooks; objects linked to the workbook's file")
        ->check(oneOf(namesOf(formatsByName())))
        ->type_name("pictures|editable|embedded|linked");
    app.add_flag("--embed-only-sheet", options.embedsSheetAlone,
                 "With --format embedded: hand on the item's sheet alone, with values in place of\n"
                 "references to the rest of the workbook");
    app.add_option("--links", raw.links,
                   "With --format linked: name the workbook by its full path, or by its way from\n"
                   "the presentation")
        ->check(oneOf({"absolute", "relative"}))
        ->type_name("absolute|relative");
    app.add_option("--slides", raw.slides, "New slides at the end, or those that the items name")
        ->check(oneOf({"new", "predefined"}))
        ->type_name("new|predefined");
    app.add_flag("--titles", options.titles, "Captions become slide titles");
    app.add_flag("--source", options.source, "A line with the workbook's path on each slide");
    app.add_option("--style", raw.style,
                   "Look of the pictures: none, shadow-around, shadow, rounded, reflection or\n"
                   "reflection-rounded")
        ->check(oneOf(namesOf(stylesByName())))
        ->type_name("NAME");
    app.add_flag("--shadow", options.shadow, "A shadow for the last shape of each slide");
    app.add_option("--top", raw.top, "Top edge, as a share of the slide's height")
        ->type_name("F|default");
    app.add_option("--width", raw.width, "Width, as a share of the slide's width")
        ->type_name("F|default");
    app.add_option("--left", raw.left, "Left edge, as a share of the slide's width")
        ->type_name("F|default");
}

/// What no single option can know.
void finish(Options& options, const RawTexts& raw) {
    if (raw.list && raw.check) throw UsageError("--list and --check don't go together.");
    options.task = raw.list ? Task::List : raw.check ? Task::Check : Task::Export;
    options.format = formatsByName().at(raw.format);
    options.linksAreRelative = raw.links == "relative";
    options.predefinedSlides = raw.slides == "predefined";
    options.pictureStyle = stylesByName().at(raw.style);
    options.top = placementOf("--top", raw.top);
    options.width = placementOf("--width", raw.width);
    options.left = placementOf("--left", raw.left);

    if (options.book.empty() && !options.attach) {
        throw UsageError("Name the workbook to export from, or use --attach.");
    }
    if (options.task == Task::Export && options.output.empty()) {
        throw UsageError("Name the file to write with --output OUT.pptx.");
    }
    const auto requireFormat = [&](bool isGiven, const char* option, const char* format) {
        if (isGiven && raw.format != format)
            throw UsageError(fmt::format("{} goes with --format {}.", option, format));
    };
    requireFormat(options.embedsSheetAlone, "--embed-only-sheet", "embedded");
    requireFormat(!raw.links.empty(), "--links", "linked");
    if (options.json && options.task != Task::List) throw UsageError("--json goes with --list.");
    if (options.allItems && !options.items.empty()) {
        throw UsageError("--all and --items don't go together.");
    }
    if (options.attach && !options.deck.empty()) {
        throw UsageError(
            "--into and --attach don't go together: --attach uses the presentation "
            "that is active in the running suite.");
    }
    if (options.predefinedSlides && options.deck.empty() && !options.attach &&
        options.task != Task::List) {
        throw UsageError(
            "--slides predefined needs a presentation that has slides: name it with "
            "--into DECK.");
    }
}

}  // namespace

std::variant<Options, ParseEnd> parseOptions(const std::vector<std::string>& arguments) {
    Options options;
    RawTexts raw;
    CLI::App app(description, "murvane-export");
    app.footer(examples);
    app.set_version_flag("--version", std::string("murvane-export ") + apps::version);
    declareFiles(app, options);
    declareItems(app, options, raw);
    declareSlides(app, options, raw);
    app.add_flag(
        "--keep-going", options.keepGoing,
        "Leave out items that fail, list them at the end and save the others; 1 if there are any");
    app.add_flag("--yes", options.yes, "Go on over the warnings of the review");
    app.add_flag("--quiet", options.quiet, "No progress and no closing line");

    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        finish(options, raw);
    } catch (const CLI::ParseError& end) {
        std::ostringstream out;
        std::ostringstream error;
        const int code = app.exit(end, out, error);
        return ParseEnd{code == 0 ? exit_code::done : exit_code::wrongUsage, out.str(),
                        error.str()};
    } catch (const UsageError& error) {
        return ParseEnd{
            exit_code::wrongUsage,
            {},
            std::string(error.what()) + "\nRun murvane-export --help for the options.\n"};
    }
    return options;
}

}  // namespace unattended
