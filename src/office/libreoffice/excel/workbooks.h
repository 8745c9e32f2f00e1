#pragma once

#include <string>

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// The open workbooks.
class Workbooks : public UnoObject<Workbooks> {
public:
    explicit Workbooks(DeskPtr desk);

    static const office::MemberTable<Workbooks>& members();

    Value count();
    Value item(const CallArguments& arguments);
    /// Opens a file, or gives the workbook that is open from it already. `Failure` 1004 with the
    /// reason if it can't.
    Value open(const CallArguments& arguments);

private:
    /// The document open from a file, of whatever kind.
    [[nodiscard]] uno::Reference<css::frame::XModel> openFrom(const rtl::OUString& url) const;
};

}  // namespace libreoffice::excel
