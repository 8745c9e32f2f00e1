#pragma once

#include <string>

#include "office_double/double_object.h"

namespace office_double {

class Workbook;

/// What worksheets and chart sheets have in common: a tab of a workbook.
class Sheet : public DoubleObject {
public:
    static constexpr std::int32_t shown = -1;
    static constexpr std::int32_t hidden = 0;
    static constexpr std::int32_t veryHidden = 2;

    Sheet(Owner parent, std::string name) : DoubleObject(parent), name_(std::move(name)) {}

    [[nodiscard]] std::string name() const override { return name_; }
    [[nodiscard]] std::int32_t visibility() const { return visible_; }
    [[nodiscard]] virtual Workbook& book() const;

    void hide() { visible_ = hidden; }
    void veryHide() { visible_ = veryHidden; }

protected:
    Value readName() { return name_; }
    void rename(const Value& name);
    Value readVisible() { return visible_; }
    void writeVisible(const Value& value);
    Value readIndex();
    Value readBook();
    Value activate(const CallArguments& arguments);
    Value deleteSheet(const CallArguments& arguments);

    /// The members that are the same for every tab.
    template <class Self>
    static office::MemberTable<Self>& addTo(office::MemberTable<Self>& table) {
        table.property("Name", &Self::readName, &Self::rename)
            .property("Visible", &Self::readVisible, &Self::writeVisible)
            .property("Index", &Self::readIndex)
            .method("Select", {"Replace"}, &Self::activate)
            .method("Activate", {}, &Self::activate)
            .method("Delete", {}, &Self::deleteSheet);
        return table;
    }

private:
    std::string name_;
    std::int32_t visible_ = shown;
};

}  // namespace office_double
