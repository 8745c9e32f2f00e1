#pragma once

#include <string>

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// The application. What concerns a workbook goes to the active one.
///
/// `ScreenUpdating`, `EnableEvents`, `Calculation`, `DisplayAlerts` and `WindowState` are
/// remembered and change nothing in LibreOffice: what is locked or switched off there stays so if
/// this process dies, and the user would sit in front of a frozen workbook. No call of Murvane
/// needs them for speed.
class Application : public UnoObject<Application> {
public:
    explicit Application(DeskPtr desk);

    static const office::MemberTable<Application>& members();

    Value activeWorkbook();
    Value activeSheet();
    Value activeChart();
    Value selection();
    Value workbooks();
    Value range(const CallArguments& arguments);
    Value cells(const CallArguments& arguments);
    Value rows(const CallArguments& arguments);
    Value columns(const CallArguments& arguments);
    /// The cells that two ranges of one sheet share; empty if they share none.
    Value intersect(const CallArguments& arguments);

    /// `Failure` 1004 with none open.
    [[nodiscard]] BookPtr requiredBook(const std::string& source) const;

private:
    static void addBookMembers(office::MemberTable<Application>& table);
    static void addSettings(office::MemberTable<Application>& table);

    /// `Failure` 1004 if a chart sheet is on top.
    [[nodiscard]] SheetPtr requiredWorksheet(const BookPtr& book, const std::string& source) const;
};

}  // namespace libreoffice::excel
