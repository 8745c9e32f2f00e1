#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "office_double/loose_object.h"

namespace office_double {

class Chart;
class ExcelApplication;
class Name;
class Sheet;
class Worksheet;

class Workbook : public Doubled<Workbook> {
public:
    Workbook(Owner application, std::string folder, std::string name)
        : Doubled(application),
          folder_(std::move(folder)),
          name_(std::move(name)) {}

    static const office::MemberTable<Workbook>& members();

    // Building. A sheet is made when it is first named; the first one is the active one.
    Worksheet& sheet(const std::string& name);
    Chart& chartSheet(const std::string& name);
    /// A name of the workbook. The formula may be anything: "=Sales!$A$1", "=42",
    /// "=SUM(Sales!A1:A3)", "=#REF!$A$1",
    /// "=[Other.xlsx]Sheet1!$A$1".
    Workbook& define(const std::string& name, const std::string& formula);
    Workbook& defineHidden(const std::string& name, const std::string& formula);
    Workbook& protectStructure(bool on = true);
    Workbook& readOnly();

    [[nodiscard]] std::string name() const override { return name_; }
    [[nodiscard]] std::string fullName() const;
    [[nodiscard]] ExcelApplication& application() const;
    [[nodiscard]] const std::vector<std::shared_ptr<Sheet>>& tabs() const { return tabs_; }
    [[nodiscard]] std::shared_ptr<Sheet> findTab(const std::string& name) const;
    [[nodiscard]] std::shared_ptr<Sheet> activeTab() const;
    [[nodiscard]] std::size_t visibleTabs() const;
    void activateSheet(const std::string& name);
    void removeTab(Sheet& sheet);
    void sheetRenamed(const std::string& from, const std::string& to);
    /// `Failure` 1004 while the structure is protected.
    void requireOpenStructure(const std::string& source) const;
    void touch() { saved_ = false; }

    Name& addName(const std::string& name, const std::string& formula, Worksheet* scope);
    void removeName(Name& name);
    /// A name as written on a sheet (null: none): of that sheet first, then of the workbook, or
    /// "Sheet!Name".
    [[nodiscard]] std::shared_ptr<Name> findName(const std::string& name,
                                                 const Worksheet* sheet) const;
    /// The collection of the names of one sheet, or of all names.
    [[nodiscard]] Value namesOf(const Worksheet* sheet);

private:
    Value readSheets();
    /// A collection of sheets that takes new ones.
    Value growing(std::function<Items()> list);
    Value readWorksheets();
    Value readCharts();
    Value addSheet(const CallArguments& arguments);
    Value addNameByCall(const CallArguments& arguments);
    Value activate(const CallArguments& arguments);
    Value save(const CallArguments& arguments);
    Value saveCopyAs(const CallArguments& arguments);
    Value close(const CallArguments& arguments);
    void insertTab(std::shared_ptr<Sheet> sheet, std::size_t at);
    [[nodiscard]] std::string freshName() const;

    std::string folder_;
    std::string name_;
    std::vector<std::shared_ptr<Sheet>> tabs_;
    std::vector<std::shared_ptr<Name>> names_;
    std::weak_ptr<Sheet> active_;
    bool structureProtected_ = false;
    bool readOnly_ = false;
    bool saved_ = true;
};

}  // namespace office_double
