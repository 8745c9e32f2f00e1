#pragma once

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// An open workbook.
class Workbook : public BookObject<Workbook> {
public:
    Workbook(DeskPtr desk, BookPtr book);

    static const office::MemberTable<Workbook>& members();

    Value name();
    Value fullName();
    Value path();
    Value isSaved();
    void setSaved(const Value& saved);
    Value isReadOnly();
    Value structureIsProtected();
    Value activeSheet();
    Value activate(const CallArguments& arguments);
    /// Keeps the file's own format.
    Value save(const CallArguments& arguments);
    /// Writes a copy as an .xlsx file; the workbook's own file and state stay.
    Value saveCopyAs(const CallArguments& arguments);
    /// `Failure` 1004 for a changed workbook if it isn't said whether to save: nobody is there to
    /// be asked.
    Value close(const CallArguments& arguments);
};

}  // namespace libreoffice::excel
