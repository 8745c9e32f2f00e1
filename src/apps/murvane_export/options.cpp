#include "apps/murvane_export/options.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <initializer_list>
#include <map>
#include <set>
#include <sstream>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/option_rules.h"
#include "apps/murvane_export/option_words.h"
#include "apps/version.h"
#include "destinations/html_page.h"
#include "office/text.h"

namespace unattended {

namespace {

constexpr const char* description =
    "Exports the charts, chart sheets and named ranges of a workbook to slides, documents, pages\n"
    "and pictures, without a window.\n"
    "What the workbook itself remembers (items, order, slide numbers, captions) holds unless an\n"
    "option says otherwise.";

constexpr const char* examples =
    R"(NAME[@SHEET] names an item as --list shows it; @SHEET tells items of the same name apart, and a
name that holds a comma stands in double quotes. F is a number from 0 to 1.

Examples:
  murvane-export sales.xlsx --list
  murvane-export sales.xlsx --output sales.pptx
  murvane-export sales.xlsx --into template.pptx --output sales.pptx --titles --source
  murvane-export sales.xlsx --output top.pptx --items "Chart 1@North,Chart 1@South"
  murvane-export sales.xlsx --to slides --output sales.pptx --to pdf --output sales.pdf
  murvane-export sales.xlsx --into deck.pptx --output new.pptx --slides predefined \
                 --captions captions.csv

Exit codes: 0 done, 1 failed or incomplete, 2 wrong usage, 3 blocked by the review.)";

template <class Meaning>
std::vector<std::string> namesOf(const std::map<std::string, Meaning>& known) {
    std::vector<std::string> names;
    names.reserve(known.size());
    for (const auto& [name, meaning] : known) names.push_back(name);
    return names;
}

[[noreturn]] void refuseValue(std::string_view option, std::string_view takes,
                              std::string_view text) {
    throw UsageError(fmt::format("{} takes {}, not \"{}\".", option, takes, text));
}

/// In upper case or lower. Says nothing in the help, where the words stand already.
CLI::Validator oneOf(const char* option, std::vector<std::string> words) {
    const auto check = [option, words = std::move(words)](std::string& text) {
        std::string takes;
        for (const std::string& word : words) {
            if (office::sameIgnoringCase(word, text)) {
                text = word;
                return std::string();
            }
            takes += takes.empty() ? "" : word == words.back() ? " or " : ", ";
            takes += word;
        }
        refuseValue(option, takes, text);
    };
    return {check, ""};
}

/// Digits alone are asked for where the number is a whole one.
CLI::Validator numberFrom(const char* option, int least, int most, bool isWhole = false) {
    const auto check = [=](const std::string& text) {
        const auto number = office::numberOf(text);
        const bool isOfKind = !isWhole || text.find_first_not_of("0123456789") == std::string::npos;
        if (number && *number >= least && *number <= most && isOfKind) return std::string();
        refuseValue(option,
                    fmt::format("a {}number from {} to {}", isWhole ? "whole " : "", least, most),
                    text);
    };
    return {check, ""};
}

/// A description that says what holds where the option is left out.
template <class Value>
std::string withDefault(std::string_view text, const Value& value) {
    return fmt::format("{} (default: {})", text, value);
}

/// The texts of options that become something else than a text.
struct RawTexts {
    std::vector<std::string> destinations;
    std::vector<std::string> outputs;
    std::vector<std::string> into;
    bool titles = false;
    bool noTitles = false;
    std::string imageFormat = "png";
    std::string fileNames = "name";
    std::string slides = "new";
    std::string format = "pictures";
    std::string pictures;
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
    if (office::sameIgnoringCase(text, "workbook")) return PlacementValue{{}, true};
    const auto share = office::numberOf(text);
    if (!share || *share < 0 || *share > 1) {
        refuseValue(option, "a share of the slide from 0 to 1, \"default\" or \"workbook\"", text);
    }
    return PlacementValue{share};
}

void declareFiles(CLI::App& app, Options& options, RawTexts& raw) {
    app.add_option("BOOK", options.book, "The workbook");
    app.add_option("--to", raw.destinations,
                   "What to make, with an --output each; may be left out where the name of the\n"
                   "output tells")
        ->allow_extra_args(false)
        ->transform(oneOf("--to", namesOf(destinationsByName())))
        ->type_name("slides|word|pdf|html|images");
    app.add_option(
           "--output", raw.outputs,
           "File to write: .pptx, .pptm, .docx, .docm or .pdf, .odt or .doc where --into is\n"
           "one; a folder for html and images")
        ->allow_extra_args(false)
        ->type_name("OUT");
    app.add_option("--into", raw.into,
                   "Presentation that the slides are added to, or document that the items are\n"
                   "appended to")
        ->allow_extra_args(false)
        ->type_name("FILE");
    app.add_flag("--overwrite", options.overwrite, "Replace what the outputs name if it exists");
    app.add_flag("--attach", options.attach,
                 "Use the workbook, and the presentation or document, that are active in the\n"
                 "running suite. Nothing is closed; as with the main window, the workbook gets\n"
                 "Murvane's hidden sheet, and the items are added to what is open");
}

void declareItems(CLI::App& app, Options& options, RawTexts& raw) {
    app.add_flag("--list", raw.list, "Show the items of the workbook and end");
    app.add_flag("--json", options.json, "With --list: as JSON");
    app.add_flag("--check", raw.check,
                 "Run the review alone and end; 3 when it blocks the export, as a warning does\n"
                 "without --yes where nobody can be asked");
    app.add_flag("--all", options.allItems, "Every item that can be exported");
    app.add_option("--items", options.items, "These items alone")
        ->allow_extra_args(false)
        ->type_name("NAME[@SHEET],...");
    app.add_option("--order", options.order, "These items first, in this order")
        ->allow_extra_args(false)
        ->type_name("NAME[@SHEET],...");
    app.add_option(
           "--captions", options.captionsFile,
           "Captions and slide numbers: UTF-8, columns item,sheet,caption,slide; what is empty\n"
           "there stays as it is")
        ->type_name("FILE.csv");
}

void declareFormats(CLI::App& app, Options& options, RawTexts& raw) {
    app.add_option("--format", raw.format,
                   withDefault("What items become on slides and in Word: pictures; charts and\n"
                               "tables that can be edited there; embedded workbooks; objects\n"
                               "linked to the workbook's file",
                               raw.format))
        ->transform(oneOf("--format", namesOf(formatsByName())))
        ->type_name("pictures|editable|embedded|linked");
    app.add_option(
           "--pictures", raw.pictures,
           "Slides and Word: what pictures are made of. png (default): dots, three times as\n"
           "dense as a screen; svg: vectors, crisp at any size and with text that is text, and a "
           "PNG\n"
           "for programs that read none; emf: the vectors of Windows")
        ->transform(oneOf("--pictures", {"png", "svg", "emf"}))
        ->type_name("png|svg|emf");
    app.add_flag("--embed-only-sheet", options.embedsSheetAlone,
                 "With --format embedded: hand on the item's sheet alone, with values in place of\n"
                 "references to the rest of the workbook");
    app.add_option("--links", raw.links,
                   "With --format linked: name the workbook by its full path (default), or by its\n"
                   "way from what is written")
        ->transform(oneOf("--links", {"absolute", "relative"}))
        ->type_name("absolute|relative");
}

/// What single destinations have of their own.
void declareDestinations(CLI::App& app, Options& options, RawTexts& raw) {
    app.add_option("--slides", raw.slides,
                   withDefault("New slides at the end, or those that the items name", raw.slides))
        ->transform(oneOf("--slides", {"new", "predefined"}))
        ->type_name("new|predefined");
    app.add_flag("--titles", raw.titles,
                 "Captions become titles of slides, as they do of pages in PDF and HTML");
    app.add_flag("--no-titles", raw.noTitles, "They don't, not there either");
    app.add_flag("--source", options.source,
                 "A line with the workbook's path on each slide, or each page of a PDF");
    app.add_flag("--same-width", options.sameWidth,
                 "Word: pictures as wide as the text; HTML: pictures of one width");
    app.add_flag("--captions-below", options.captionsBelow,
                 "Word: a numbered caption below each item");
    app.add_option("--cover", options.coverText,
                   "PDF: a cover page with this text; \\n begins a new line")
        ->type_name("TEXT");
    app.add_option("--size", options.sizePercent,
                   withDefault("PDF: size in per cent of the room on the page; HTML with\n"
                               "--same-width: width in per cent of 1,000 pixels",
                               options.sizePercent))
        ->check(numberFrom("--size", 1, 100))
        ->type_name("1-100");
    app.add_option("--blank-lines", options.blankLines,
                   withDefault("HTML: lines between items", options.blankLines))
        ->check(numberFrom("--blank-lines", 0, destinations::mostBlankLines, true))
        ->type_name("0-100");
    app.add_option("--image-format", raw.imageFormat,
                   withDefault("Images: the kind of files", raw.imageFormat))
        ->transform(oneOf("--image-format", namesOf(imageFormatsByName())))
        ->type_name("png|gif|jpeg|bmp|tiff");
    app.add_option("--file-names", raw.fileNames,
                   withDefault("Images: files named by item and sheet, or numbered", raw.fileNames))
        ->transform(oneOf("--file-names", {"name", "number"}))
        ->type_name("name|number");
}

void declareLooks(CLI::App& app, Options& options, RawTexts& raw) {
    app.add_option(
           "--style", raw.style,
           withDefault("Look of the pictures on slides: none, shadow-around, shadow, rounded,\n"
                       "reflection or reflection-rounded",
                       raw.style))
        ->transform(oneOf("--style", namesOf(looksByName())))
        ->type_name("NAME");
    app.add_flag("--shadow", options.shadow,
                 "A shadow for what was added last to each slide, and for pictures in Word");
    app.add_option(
           "--top", raw.top,
           "Top edge on the slide: F of its height; default: below the title; workbook: what\n"
           "it has by murvane /006. With one of --top, --width and --left the others are\n"
           "what the workbook has, or default")
        ->type_name("F|default|workbook");
    app.add_option("--width", raw.width, "Width: F of the slide's; default: 0.9")
        ->type_name("F|default|workbook");
    app.add_option("--left", raw.left, "Left edge: F of the slide's width; default: in the middle")
        ->type_name("F|default|workbook");
}

bool endsInOneOf(const std::string& name, std::initializer_list<const char*> endings) {
    const std::string lower = office::lowerCase(name);
    return std::any_of(endings.begin(), endings.end(),
                       [&](const char* ending) { return lower.ends_with(ending); });
}

bool isDocument(const std::string& file) {
    return endsInOneOf(file, {".docx", ".docm", ".dotx", ".dotm", ".doc", ".odt", ".rtf"});
}

/// Also by those endings that can't be written: what can is said then.
bool isPresentation(const std::string& file) {
    return endsInOneOf(file,
                       {".pptx", ".pptm", ".ppt", ".potx", ".potm", ".ppsx", ".ppsm", ".odp"});
}

/// A page or a picture is a file to those who name one.
void requireFolder(const std::string& output) {
    if (endsInOneOf(output,
                    {".html", ".htm", ".png", ".gif", ".jpg", ".jpeg", ".tiff", ".tif", ".bmp"}))
        throw UsageError(fmt::format(
            "Pages and pictures are written into a folder, which {} is no name for: name the "
            "folder, with --to html or --to images.",
            output));
}

catalogue::Destination destinationByName(const std::string& output) {
    if (endsInOneOf(output, {".pdf"})) return catalogue::Destination::Pdf;
    if (isDocument(output)) return catalogue::Destination::Word;
    if (output.empty() || isPresentation(output)) return catalogue::Destination::PowerPoint;
    throw UsageError(fmt::format(
        "Say with --to what {} is to become, or end its name in .pptx, .docx or .pdf.", output));
}

/// Brings destinations and outputs together, in their order.
void pairTargets(Options& options, const RawTexts& raw) {
    const std::size_t count = std::max(raw.destinations.size(), raw.outputs.size());
    const bool needsOutputs = options.task == Task::Export;
    if (needsOutputs && raw.outputs.empty())
        throw UsageError("Name what to write with --output OUT.");
    if (needsOutputs && !raw.destinations.empty() && raw.destinations.size() != raw.outputs.size())
        throw UsageError(
            "Give each --output a --to of its own, in the same order, or no --to where the names "
            "tell.");
    for (std::size_t i = 0; i < std::max<std::size_t>(count, 1); ++i) {
        Target target;
        if (i < raw.outputs.size()) target.output = raw.outputs[i];
        requireFolder(target.output);
        target.destination = i < raw.destinations.size()
                                 ? destinationsByName().at(raw.destinations[i])
                                 : destinationByName(target.output);
        if (options.targetOf(target.destination) != nullptr)
            throw UsageError("A run makes one output of each kind.");
        options.targets.push_back(target);
    }
    for (const std::string& file : raw.into) {
        std::string& input = isDocument(file) ? options.document : options.deck;
        if (!input.empty())
            throw UsageError("--into takes one presentation and one document at most.");
        input = file;
    }
    const auto requireTarget = [&](const std::string& input, catalogue::Destination destination,
                                   const char* name) {
        if (!input.empty() && options.targetOf(destination) == nullptr)
            throw UsageError(fmt::format("--into {} goes with --to {}.", input, name));
    };
    requireTarget(options.deck, catalogue::Destination::PowerPoint, "slides");
    requireTarget(options.document, catalogue::Destination::Word, "word");
}

std::optional<bool> titlesOf(const RawTexts& raw) {
    if (!raw.titles && !raw.noTitles) return std::nullopt;
    return raw.titles;
}

/// An empty value is a variable of the caller's script that was never set. Left out in silence, a
/// deck would be begun anew where one was meant to grow.
void requireValues(const CLI::App& app, const std::vector<std::string>& arguments) {
    const auto refuse = [](const std::string& option) {
        throw UsageError(fmt::format("{} has an empty value.", option));
    };
    // The parser would take the next option for the value.
    for (const std::string& argument : arguments) {
        const std::string name = argument.substr(0, argument.find('='));
        const bool isEmpty = name.size() + 1 == argument.size();
        if (isEmpty && app.get_option_no_throw(name) != nullptr) refuse(name);
    }
    for (const CLI::Option* option : app.get_options()) {
        const auto& values = option->results();
        if (std::find(values.begin(), values.end(), "") != values.end()) refuse(option->get_name());
    }
}

/// What no single option can know.
void finish(Options& options, const RawTexts& raw) {
    options.task = raw.list ? Task::List : raw.check ? Task::Check : Task::Export;
    options.titles = titlesOf(raw);
    options.coverText = office::replaceAll(options.coverText, "\\n", "\n");
    options.imageFormat = imageFormatsByName().at(raw.imageFormat);
    options.numbersFiles = raw.fileNames == "number";
    options.format = formatsByName().at(raw.format);
    options.pictures = office::pictureKindCalled(raw.pictures).value_or(office::PictureKind::Png);
    options.linksAreRelative = raw.links == "relative";
    options.predefinedSlides = raw.slides == "predefined";
    options.look = looksByName().at(raw.style);
    options.top = placementOf("--top", raw.top);
    options.width = placementOf("--width", raw.width);
    options.left = placementOf("--left", raw.left);

    if (options.book.empty() && !options.attach)
        throw UsageError("Name the workbook to export from, or use --attach.");
    pairTargets(options, raw);
}

/// The names of the options that the caller has given.
std::set<std::string> givenOptions(const CLI::App& app) {
    std::set<std::string> given;
    for (const CLI::Option* option :
         app.get_options([](const CLI::Option* one) { return one->count() > 0; }))
        given.insert(option->get_name());
    return given;
}

}  // namespace

std::variant<Options, ParseEnd> parseOptions(const std::vector<std::string>& arguments) {
    Options options;
    RawTexts raw;
    CLI::App app(description, "murvane-export");
    app.footer(examples);
    app.set_version_flag("--version", std::string("murvane-export ") + apps::version);
    declareFiles(app, options, raw);
    declareItems(app, options, raw);
    declareFormats(app, options, raw);
    declareDestinations(app, options, raw);
    declareLooks(app, options, raw);
    app.add_flag(
        "--keep-going", options.keepGoing,
        "Leave out items that fail, list them at the end and save the others; 1 if there are any");
    app.add_flag("--yes", options.yes, "Go on over the warnings of the review");
    app.add_flag("--quiet", options.quiet, "No progress and no closing line");

    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        requireValues(app, arguments);
        finish(options, raw);
        requireFitting(options, givenOptions(app));
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
