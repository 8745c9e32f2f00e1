#pragma once

#include <string>
#include <utility>
#include <vector>

#include "office/libreoffice/powerpoint/shape_part.h"
#include "office/member_table.h"

namespace libreoffice::powerpoint {

/// What a shape and a range of shapes have in common: every member reads the first shape and writes
/// all of them. A part of a shape (its shadow, its text) is had of one shape only.
class ShapeMembers {
public:
    ShapeMembers(DeskPtr desk, ImpressDocumentPtr document, std::vector<HeldShapePtr> shapes)
        : desk_(std::move(desk)),
          document_(std::move(document)),
          shapes_(std::move(shapes)) {}

    [[nodiscard]] const std::vector<HeldShapePtr>& shapes() const { return shapes_; }
    [[nodiscard]] const ImpressDocumentPtr& document() const { return document_; }

    office::Value name();
    void setName(const office::Value& name);
    office::Value alternativeText();
    void setAlternativeText(const office::Value& text);
    office::Value title();
    void setTitle(const office::Value& text);
    office::Value type();

    office::Value left();
    void setLeft(const office::Value& points);
    office::Value top();
    void setTop(const office::Value& points);
    office::Value width();
    void setWidth(const office::Value& points);
    office::Value height();
    void setHeight(const office::Value& points);
    office::Value lockAspectRatio();
    void setLockAspectRatio(const office::Value& on);

    office::Value autoShapeType();
    void setAutoShapeType(const office::Value& outline);
    office::Value hasTextFrame();

    office::Value textFrame();
    office::Value shadow();
    office::Value reflection();
    office::Value adjustments();

    office::Value select(const office::CallArguments& arguments);
    office::Value remove(const office::CallArguments& arguments);

private:
    [[nodiscard]] HeldShape& first() const { return *shapes_.front(); }
    [[nodiscard]] ShapeOfDocument only(const char* member) const;

    DeskPtr desk_;
    ImpressDocumentPtr document_;
    std::vector<HeldShapePtr> shapes_;
};

/// The table of those members, for a class that has them as a base.
template <class Self>
[[nodiscard]] office::MemberTable<Self> shapeMemberTable(std::string className) {
    return office::MemberTable<Self>(std::move(className))
        .property("Name", &Self::name, &Self::setName)
        .property("AlternativeText", &Self::alternativeText, &Self::setAlternativeText)
        .property("Title", &Self::title, &Self::setTitle)
        .property("Type", &Self::type)
        .property("Left", &Self::left, &Self::setLeft)
        .property("Top", &Self::top, &Self::setTop)
        .property("Width", &Self::width, &Self::setWidth)
        .property("Height", &Self::height, &Self::setHeight)
        .property("LockAspectRatio", &Self::lockAspectRatio, &Self::setLockAspectRatio)
        .property("AutoShapeType", &Self::autoShapeType, &Self::setAutoShapeType)
        .property("HasTextFrame", &Self::hasTextFrame)
        .property("TextFrame", &Self::textFrame)
        .property("Shadow", &Self::shadow)
        .property("Reflection", &Self::reflection)
        .property("Adjustments", &Self::adjustments)
        .method("Select", {"Replace"}, &Self::select)
        .method("Delete", {}, &Self::remove);
}

}  // namespace libreoffice::powerpoint
