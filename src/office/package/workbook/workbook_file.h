#pragma once

#include <filesystem>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "office/model/excel/cell_block.h"
#include "office/package/package.h"

namespace office::package {

using office::model::excel::blockOf;
using office::model::excel::CellBlock;

/// What a workbook's file is by its ending, with macros or without.
struct WorkbookFormat {
    const char* ending;
    /// Of the part with the list of the sheets, and of the file where it is a part itself.
    const char* mainType;
    const char* type;
    /// By which the program is found that opens it.
    const char* programId;
};
[[nodiscard]] const WorkbookFormat& workbookFormat(bool hasMacros);

struct WorkbookSheet {
    enum class Kind { Worksheet, ChartSheet, Other };

    std::string name;
    std::string part;
    Kind kind = Kind::Worksheet;
};

/// A chart in a sheet's drawing.
struct WorkbookChart {
    /// Distinct from those of the other charts on the sheet.
    std::string name;
    /// Empty if the drawing names a part that isn't there.
    std::string part;
    /// Of the kinds that came after the standard (waterfall, treemap, ...), in a format of their
    /// own.
    bool isExtended = false;
    /// The cells that it covers; nothing for one that isn't bound to cells.
    std::optional<CellBlock> cells;
};

/// A workbook's package, of which something is pasted elsewhere. It is only read, and no more of it
/// than is asked for. All members throw `PackageError` for what is damaged.
class WorkbookFile {
public:
    /// `PackageError`, NotAPackage too for a package that is no workbook, or a strict or a binary
    /// one.
    explicit WorkbookFile(std::filesystem::path file);

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] Package& package() { return package_; }
    /// The part with the list of the sheets.
    [[nodiscard]] const std::string& mainPart() const { return main_; }
    [[nodiscard]] bool hasMacros() const { return hasMacros_; }
    [[nodiscard]] bool isTemplate() const { return isTemplate_; }
    /// In the order of their tabs.
    [[nodiscard]] const std::vector<WorkbookSheet>& sheets() const { return sheets_; }
    /// By its name in any case; null if there is none.
    [[nodiscard]] const WorkbookSheet* sheet(std::string_view name) const;
    /// Those in groups too, in the order of the drawing.
    [[nodiscard]] const std::vector<WorkbookChart>& chartsOf(const WorkbookSheet& sheet);
    /// By its name in any case; of an empty name the only one that the sheet has. Null if there is
    /// none.
    [[nodiscard]] const WorkbookChart* chart(const WorkbookSheet& sheet, std::string_view name);
    /// The whole file. TooLarge for one that no presentation should carry.
    [[nodiscard]] std::string bytes() const;
    /// What is made of it for a purpose, once for all that ask.
    [[nodiscard]] const std::string& remembered(const std::string& purpose,
                                                const std::function<std::string()>& make);
    /// The same for what is large: it holds until something is made for another purpose.
    [[nodiscard]] const std::string& rememberedLast(const std::string& purpose,
                                                    const std::function<std::string()>& make);

private:
    void readSheets();
    [[nodiscard]] std::vector<WorkbookChart> readCharts(const WorkbookSheet& sheet);

    std::filesystem::path path_;
    Package package_;
    std::string main_;
    bool hasMacros_ = false;
    bool isTemplate_ = false;
    std::vector<WorkbookSheet> sheets_;
    /// By the part of the sheet.
    std::unordered_map<std::string, std::shared_future<std::vector<WorkbookChart>>> charts_;
    std::unordered_map<std::string, std::shared_future<std::string>> remembered_;
    std::string lastPurpose_;
    std::shared_future<std::string> last_;
};

/// Why nothing but pictures can be taken from a workbook, as a clause about an item of it. `file`
/// is its path in UTF-8.
[[nodiscard]] std::string workbookObstacle(const PackageError& error, std::string_view file);

using WorkbookFilePtr = std::shared_ptr<WorkbookFile>;

/// The workbooks that things are pasted of, each opened once as long as its file stays the same.
class WorkbookFiles {
public:
    /// By its path in UTF-8. `PackageError`.
    [[nodiscard]] WorkbookFilePtr at(const std::string& path);

private:
    struct Opened {
        std::filesystem::file_time_type changed;
        std::shared_future<WorkbookFilePtr> file;
    };
    std::map<std::string, Opened> files_;
};

using WorkbookFilesPtr = std::shared_ptr<WorkbookFiles>;

}  // namespace office::package
