#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/model/excel/book.h"
#include "office/value.h"
#include "office_double/excel/worksheet.h"

namespace office_double {

class ExcelApplication;

class Workbook : public excel::Book, public std::enable_shared_from_this<Workbook> {
public:
    Workbook(ExcelApplication& application, std::string folder, std::string name)
        : application_(application),
          folder_(std::move(folder)),
          name_(std::move(name)) {}

    // Building. A sheet is made when it is first named; the first one is the active one.
    Worksheet& sheet(const std::string& name);
    Chart& chartSheet(const std::string& name);
    /// A name of the workbook. The formula may be anything: "=Sales!$A$1", "=42",
    /// "=SUM(Sales!A1:A3)", "=#REF!$A$1", "=[Other.xlsx]Sheet1!$A$1".
    Workbook& define(const std::string& name, const std::string& formula);
    Workbook& defineHidden(const std::string& name, const std::string& formula);
    void saveAs(std::string name) { name_ = std::move(name); }
    void undefine(const std::string& name) { names_.remove(name); }
    Workbook& protectStructure(bool on = true);
    Workbook& readOnly();

    [[nodiscard]] office::Object handle();
    [[nodiscard]] ExcelApplication& application() const { return application_; }
    [[nodiscard]] std::shared_ptr<Sheet> findTab(std::string_view name) const;
    [[nodiscard]] std::shared_ptr<Sheet> activeTab() const;
    [[nodiscard]] const std::vector<std::shared_ptr<Sheet>>& tabs() const { return tabs_; }
    void activateSheet(const std::string& name);
    /// As Excel does; others leave on top what is there.
    void bringUpNewSheets() { bringsUpNewSheets_ = true; }
    void sheetRenamed(const std::string& from, const std::string& to);
    void select(excel::Selection selection) { selection_ = std::move(selection); }

    [[nodiscard]] bool isGone() const override { return closed_; }
    std::string name() override { return name_; }
    std::string fullName() override { return folder_ + "/" + name_; }
    std::string identity() override { return fullName(); }
    bool isReadOnly() override { return readOnly_; }
    bool isModified() override { return modified_; }
    void setModified(bool modified) override { modified_ = modified; }
    bool structureIsProtected() override { return structureProtected_; }
    void activate() override;
    void close() override;
    std::vector<excel::SheetPtr> sheets() override { return {tabs_.begin(), tabs_.end()}; }
    std::vector<std::string> sheetNames() override;
    excel::SheetPtr findSheet(std::string_view name) override { return findTab(name); }
    excel::SheetPtr activeSheet() override { return activeTab(); }
    excel::SheetPtr addSheet(const std::string& name, std::int32_t place) override;
    void removeSheet(const excel::SheetPtr& sheet) override;
    excel::Selection selection() override { return selection_; }
    excel::NameScope& names() override { return names_; }

private:
    ExcelApplication& application_;
    std::string folder_;
    std::string name_;
    std::vector<std::shared_ptr<Sheet>> tabs_;
    std::weak_ptr<Sheet> active_;
    excel::Selection selection_;
    NameList names_{*this};
    bool bringsUpNewSheets_ = false;
    bool structureProtected_ = false;
    bool readOnly_ = false;
    bool modified_ = false;
    bool closed_ = false;
};

}  // namespace office_double
