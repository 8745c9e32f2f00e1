#pragma once

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// A sheet of cells.
class Worksheet : public SheetObject<Worksheet> {
public:
    Worksheet(DeskPtr desk, BookPtr book, SheetPtr sheet);

    static const office::MemberTable<Worksheet>& members();

    Value name();
    void setName(const Value& name);
    Value index();
    Value visible();
    void setVisible(const Value& visible);
    Value codeName();
    Value parent();
    Value isProtected();
    Value chartObjects(const CallArguments& arguments);
    Value range(const CallArguments& arguments);
    Value cells(const CallArguments& arguments);
    Value rows(const CallArguments& arguments);
    Value columns(const CallArguments& arguments);
    Value usedRange();
    Value names();
    Value activate(const CallArguments& arguments);
    Value remove(const CallArguments& arguments);
};

}  // namespace libreoffice::excel
