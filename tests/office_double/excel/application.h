#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/model/excel/books.h"
#include "office_double/excel/workbook.h"
#include "office_double/suite_state.h"

namespace office_double {

/// A running Excel.
class ExcelApplication : public excel::Books,
                         public std::enable_shared_from_this<ExcelApplication> {
public:
    explicit ExcelApplication(std::shared_ptr<SuiteState> state) : state_(std::move(state)) {}

    // Building.
    /// An open workbook without sheets, which becomes the active one.
    Workbook& addWorkbook(const std::string& name, const std::string& folder = "/documents");
    /// A file that `Workbooks.Open` finds; `fill` makes its content.
    void addFile(const std::string& path, std::function<void(Workbook&)> fill);
    /// What the file prompt answers; "False" until told otherwise.
    void answerOpenPrompt(office::Value answer) { openPromptAnswer_ = std::move(answer); }
    /// The user selects cells on the active sheet.
    void selectRange(const std::string& address);

    [[nodiscard]] office::Object handle();
    [[nodiscard]] office::Object handleOf(Workbook& book);
    [[nodiscard]] Workbook* activeWorkbook() const;
    [[nodiscard]] Workbook* findOpen(std::string_view name) const;
    void activate(const Workbook& book);
    void closeBook(const Workbook& book);

    excel::Settings& settings() override { return settings_; }
    std::vector<excel::BookPtr> open() override { return {books_.begin(), books_.end()}; }
    excel::BookPtr active() override;
    excel::BookPtr load(const std::string& file, const std::string& password,
                        bool readOnly) override;
    office::Value askForFile(const std::string&, const std::string&) override {
        return openPromptAnswer_;
    }
    office::Clipboard& clipboard() override { return *state_->clipboard; }
    void writePicture(const office::CopiedPtr& picture, const excel::Box& area,
                      const std::string& path, office::PictureKind kind) override;

private:
    std::shared_ptr<SuiteState> state_;
    excel::Settings settings_;
    /// The one that was active last stands at the end of `recent_`.
    std::vector<std::shared_ptr<Workbook>> books_;
    std::vector<const Workbook*> recent_;
    std::map<std::string, std::function<void(Workbook&)>> files_;
    office::Value openPromptAnswer_ = false;
};

}  // namespace office_double
