#include "office/package/workbook/workbook_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <future>
#include <optional>
#include <system_error>
#include <utility>

#include "office/files.h"
#include "office/package/part_name.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr std::string_view strictSpreadsheet = "http://purl.oclc.org/ooxml/spreadsheetml/main";
constexpr std::string_view extendedChart =
    "http://schemas.microsoft.com/office/drawing/2014/chartex";
constexpr std::uintmax_t mostBytes = 512ULL << 20;

constexpr WorkbookFormat plainFormat = {
    ".xlsx", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml",
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet", "Excel.Sheet.12"};
constexpr WorkbookFormat macroFormat = {
    ".xlsm", "application/vnd.ms-excel.sheet.macroEnabled.main+xml",
    "application/vnd.ms-excel.sheet.macroEnabled.12", "Excel.SheetMacroEnabled.12"};

/// What a package about a workbook says that it is.
struct MainType {
    std::string_view type;
    bool hasMacros;
    bool isTemplate;
};
constexpr std::array<MainType, 4> mainTypes = {{
    {plainFormat.mainType, false, false},
    {macroFormat.mainType, true, false},
    {"application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml", false, true},
    {"application/vnd.ms-excel.template.macroEnabled.main+xml", true, true},
}};
constexpr std::string_view binaryType = "application/vnd.ms-excel.sheet.binary.macroEnabled.main";

[[noreturn]] void refuseKind(const char* text) {
    throw PackageError(Fault::NotAPackage, text);
}

WorkbookSheet::Kind kindOf(const Relationship& relationship) {
    if (relationship.type.ends_with("/worksheet")) return WorkbookSheet::Kind::Worksheet;
    if (relationship.type.ends_with("/chartsheet")) return WorkbookSheet::Kind::ChartSheet;
    return WorkbookSheet::Kind::Other;
}

std::int32_t numberIn(pugi::xml_node corner, std::string_view name, std::int32_t last) {
    const unsigned number = childNamed(corner, ns::spreadsheetDrawing, name).text().as_uint();
    return static_cast<std::int32_t>(std::min(number, static_cast<unsigned>(last)));
}

/// The cells under what stands in a drawing. Where only one corner is bound to a cell, all cells
/// are taken to have their usual size.
std::optional<CellBlock> cellsUnder(pugi::xml_node frame) {
    constexpr double columnEmu = 609600;
    constexpr double rowEmu = 190500;
    const auto corner = [&](const char* name) {
        return childNamed(frame, ns::spreadsheetDrawing, name);
    };
    while (frame && !corner("from")) frame = frame.parent();
    if (!frame) return {};
    const auto ends = [&](const char* line, const char* side, double emu, std::int32_t last) {
        const std::int32_t first = numberIn(corner("from"), line, last);
        if (const auto to = corner("to")) return std::pair(first, numberIn(to, line, last));
        const double length = std::max(0.0, corner("ext").attribute(side).as_double());
        const double more = std::min(length / emu, static_cast<double>(last - first));
        return std::pair(first, first + static_cast<std::int32_t>(more));
    };
    const auto [left, right] = ends("col", "cx", columnEmu, CellBlock::lastColumnOfSheet);
    const auto [top, bottom] = ends("row", "cy", rowEmu, CellBlock::lastRowOfSheet);
    return CellBlock{left, top, std::max(left, right), std::max(top, bottom)};
}

std::optional<WorkbookChart> chartIn(Package& package, const std::string& drawing,
                                     pugi::xml_node frame) {
    const auto graphic =
        childNamed(childNamed(frame, ns::drawing, "graphic"), ns::drawing, "graphicData");
    const auto standard = childNamed(graphic, ns::chart, "chart");
    const auto extended = childNamed(graphic, extendedChart, "chart");
    if (!standard && !extended) return {};
    const auto about = childNamed(frame, ns::spreadsheetDrawing, "nvGraphicFramePr");
    const auto id = attributeNamed(standard ? standard : extended, ns::relationships, "id");
    return WorkbookChart{
        .name = childNamed(about, ns::spreadsheetDrawing, "cNvPr").attribute("name").value(),
        .part = package.partOfId(drawing, id.value()),
        .isExtended = !standard,
        .cells = cellsUnder(frame)};
}

/// What is made now, or why it can't be made: what is damaged takes its time as well.
template <class Result>
std::shared_future<Result> madeOnce(const std::function<Result()>& make) {
    auto made = std::async(std::launch::deferred, make).share();
    made.wait();
    return made;
}

}  // namespace

const WorkbookFormat& workbookFormat(bool hasMacros) {
    return hasMacros ? macroFormat : plainFormat;
}

WorkbookFile::WorkbookFile(std::filesystem::path file)
    : path_(std::move(file)),
      package_(Package::open(path_)) {
    const Relationships& relationships = package_.relationshipsOf("/");
    const Relationship* const found = relationships.ofType("officeDocument");
    if (found == nullptr) refuseKind("it is no Open XML workbook");
    main_ = relationships.partOf(*found);
    const std::string type = package_.contentTypeOf(main_);
    if (type == binaryType) refuseKind("it is a binary workbook");
    const auto* const known = std::find_if(mainTypes.begin(), mainTypes.end(),
                                           [&](const MainType& one) { return one.type == type; });
    if (known == mainTypes.end()) refuseKind("it is no Open XML workbook");
    hasMacros_ = known->hasMacros;
    isTemplate_ = known->isTemplate;
    readSheets();
}

void WorkbookFile::readSheets() {
    const Xml workbook(package_.read(main_), main_);
    if (isNamed(workbook.root(), strictSpreadsheet, "workbook"))
        refuseKind("it is a strict Open XML workbook");
    const Relationships& relationships = package_.relationshipsOf(main_);
    const auto list = childNamed(workbook.root(), ns::spreadsheet, "sheets");
    for (const auto& entry : childrenNamed(list, ns::spreadsheet, "sheet")) {
        const std::string id = attributeNamed(entry, ns::relationships, "id").value();
        const std::string part = package_.partOfId(main_, id);
        if (part.empty()) continue;
        sheets_.push_back({.name = entry.attribute("name").value(),
                           .part = part,
                           .kind = kindOf(*relationships.withId(id))});
    }
}

const WorkbookSheet* WorkbookFile::sheet(std::string_view name) const {
    const auto found = std::find_if(sheets_.begin(), sheets_.end(), [&](const auto& one) {
        return sameIgnoringCase(one.name, name);
    });
    return found == sheets_.end() ? nullptr : &*found;
}

const std::vector<WorkbookChart>& WorkbookFile::chartsOf(const WorkbookSheet& sheet) {
    auto& known = charts_[sheet.part];
    if (!known.valid())
        known = madeOnce<std::vector<WorkbookChart>>([&] { return readCharts(sheet); });
    return known.get();
}

std::vector<WorkbookChart> WorkbookFile::readCharts(const WorkbookSheet& sheet) {
    const std::string drawing = package_.partOfType(sheet.part, "drawing");
    if (drawing.empty()) return {};
    const Xml xml(package_.read(drawing), drawing);
    const auto isFrame = [](pugi::xml_node node) {
        return isNamed(node, ns::spreadsheetDrawing, "graphicFrame");
    };
    std::vector<WorkbookChart> charts;
    for (const pugi::xml_node frame : elementsBelow(xml.root(), isFrame)) {
        if (auto chart = chartIn(package_, drawing, frame)) charts.push_back(*std::move(chart));
    }
    std::vector<std::string> names;
    names.reserve(charts.size());
    for (const WorkbookChart& chart : charts) names.push_back(chart.name);
    names = distinctNames(std::move(names));
    for (std::size_t i = 0; i < charts.size(); ++i) charts[i].name = std::move(names[i]);
    return charts;
}

const WorkbookChart* WorkbookFile::chart(const WorkbookSheet& sheet, std::string_view name) {
    const std::vector<WorkbookChart>& charts = chartsOf(sheet);
    if (name.empty()) return charts.size() == 1 ? charts.data() : nullptr;
    const auto found = std::find_if(charts.begin(), charts.end(), [&](const auto& one) {
        return sameIgnoringCase(one.name, name);
    });
    return found == charts.end() ? nullptr : &*found;
}

std::string WorkbookFile::bytes() const {
    std::ifstream file(path_, std::ios::binary | std::ios::ate);
    const std::streamoff size = file.tellg();
    if (size < 0) throw PackageError(Fault::Unreadable, "it can't be read any more");
    if (static_cast<std::uintmax_t>(size) > mostBytes)
        throw PackageError(Fault::TooLarge, fmt::format("it takes {} bytes", size));
    std::string bytes(static_cast<std::size_t>(size), '\0');
    file.seekg(0);
    if (!file.read(bytes.data(), size))
        throw PackageError(Fault::Unreadable, "it can't be read any more");
    return bytes;
}

const std::string& WorkbookFile::remembered(const std::string& purpose,
                                            const std::function<std::string()>& make) {
    auto& known = remembered_[purpose];
    if (!known.valid()) known = madeOnce<std::string>(make);
    return known.get();
}

const std::string& WorkbookFile::rememberedLast(const std::string& purpose,
                                                const std::function<std::string()>& make) {
    if (!last_.valid() || lastPurpose_ != purpose) {
        // Ahead of the next one, so that there are never two.
        last_ = {};
        lastPurpose_ = purpose;
        last_ = madeOnce<std::string>(make);
    }
    return last_.get();
}

std::string workbookObstacle(const PackageError& error, std::string_view file) {
    const std::string name = lowerCase(file);
    const bool isOther = !name.ends_with(plainFormat.ending) && !name.ends_with(macroFormat.ending);
    // What its bytes are instead says nothing to a user who knows that it is another format.
    if (error.fault() == Fault::NotAPackage && isOther)
        return "its workbook is no .xlsx or .xlsm file";
    return fmt::format("its workbook's file can't be used ({})", std::string(error.what()));
}

WorkbookFilePtr WorkbookFiles::at(const std::string& path) {
    const std::filesystem::path file = pathOf(path);
    std::error_code problem;
    const auto changed = std::filesystem::last_write_time(file, problem);
    if (problem)
        throw PackageError(Fault::Unreadable,
                           fmt::format("it can't be read ({})", problem.message()));
    Opened& known = files_[path];
    if (!known.file.valid() || known.changed != changed)
        known = {changed,
                 madeOnce<WorkbookFilePtr>([&] { return std::make_shared<WorkbookFile>(file); })};
    return known.file.get();
}

}  // namespace office::package
