#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office_double/double_object.h"
#include "office_double/excel/chart.h"
#include "office_double/excel/chart_object.h"
#include "office_double/excel/workbook.h"
#include "office_double/excel/worksheet.h"

namespace office_double {

/// A running Excel.
class ExcelApplication : public Doubled<ExcelApplication> {
public:
    using Doubled::Doubled;

    static const office::MemberTable<ExcelApplication>& members();

    // Building.
    /// An open workbook without sheets, which becomes the active one.
    Workbook& addWorkbook(const std::string& name, const std::string& folder = "/documents");
    /// A file that `Workbooks.Open` finds; `fill` makes its content.
    void addFile(const std::string& path, std::function<void(Workbook&)> fill);
    /// What the file prompt answers; "False" until told otherwise.
    void answerOpenPrompt(Value answer) { openPromptAnswer_ = std::move(answer); }
    void setVersion(std::string version) { version_ = std::move(version); }
    /// The user selects a range by its address or name on the active sheet.
    void selectRange(const std::string& address);
    void selectChart(Chart& chart);
    void select(Object selection);

    [[nodiscard]] Workbook* activeWorkbook() const;
    [[nodiscard]] Workbook* findOpen(std::string_view name) const;
    void activate(Workbook& book) { active_ = book.weak_from_this(); }
    void closeBook(Workbook& book);

private:
    using Reader = office::MemberTable<ExcelApplication>::Reader;

    [[nodiscard]] Workbook& requiredBook(const std::string& source) const;
    [[nodiscard]] Worksheet& requiredSheet(const std::string& source) const;
    /// A member of the active workbook, or of its active worksheet.
    static Reader ofBook(std::string member);
    static Reader ofSheet(Value (Worksheet::*read)(const CallArguments&));
    static void addWorksheetFunctions(office::MemberTable<ExcelApplication>& table);
    static void addSettings(office::MemberTable<ExcelApplication>& table);

    Value readActiveWorkbook();
    Value readActiveSheet();
    Value readWorkbooks();
    Value openBook(const CallArguments& arguments);
    Value range(const CallArguments& arguments);
    Value intersect(const CallArguments& arguments);

    std::string version_ = "16.0";
    std::vector<std::shared_ptr<Workbook>> books_;
    std::weak_ptr<DoubleObject> active_;
    std::map<std::string, std::function<void(Workbook&)>> files_;
    Object selection_;
    std::weak_ptr<DoubleObject> activeChart_;
    Value openPromptAnswer_ = false;
    std::map<std::string, Value> settings_ = {{"ScreenUpdating", true},
                                              {"EnableEvents", true},
                                              {"DisplayAlerts", true},
                                              {"Calculation", -4105},
                                              {"WindowState", -4143}};
};

}  // namespace office_double
