#pragma once

#include "office/libreoffice/excel/book_object.h"
#include "office/libreoffice/excel/name_list.h"

namespace libreoffice::excel {

/// A defined name.
class Name : public BookObject<Name> {
public:
    Name(DeskPtr desk, BookPtr book, NameEntry entry);

    static const office::MemberTable<Name>& members();

    Value name();
    Value refersTo();
    Value refersToR1C1();
    Value refersToRange();
    Value isVisible();
    void setVisible(const Value& visible);
    Value parent();
    Value remove(const CallArguments& arguments);

private:
    NameEntry entry_;
};

}  // namespace libreoffice::excel
