#pragma once

#include <memory>
#include <string>

#include "office_double/double_object.h"

namespace office_double {

class Range;
class Workbook;
class Worksheet;

/// A defined name, of the workbook or of one sheet.
class Name : public Doubled<Name> {
public:
    /// `scope` is null for a name of the whole workbook. `refersTo` is a formula in A1 notation
    /// with its "=".
    Name(Owner book, std::string name, std::string refersTo, Worksheet* scope);

    static const office::MemberTable<Name>& members();

    /// "Sales!Total" for a name of a sheet.
    [[nodiscard]] std::string name() const override;
    [[nodiscard]] const std::string& bareName() const { return name_; }
    [[nodiscard]] bool belongsTo(const Worksheet* sheet) const;
    Name& hide();
    /// What it refers to if that is a range of an open workbook, else null.
    [[nodiscard]] std::shared_ptr<Range> range() const;
    void sheetRenamed(const std::string& from, const std::string& to);
    void sheetDeleted(const std::string& sheet);

private:
    [[nodiscard]] Workbook& book() const;
    Value readRange();
    Value readFormulaR1C1();
    Value readParent();
    Value deleteName(const CallArguments& arguments);

    std::string name_;
    std::string refersTo_;
    std::weak_ptr<DoubleObject> scope_;
    bool ofSheet_;
    bool visible_ = true;
};

}  // namespace office_double
