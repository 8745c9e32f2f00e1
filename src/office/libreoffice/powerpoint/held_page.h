#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/drawing/XDrawPage.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/powerpoint/held_shape.h"

namespace libreoffice::powerpoint {

/// A slide with the shapes of it that have been met, all held for as long as the document's record
/// lives.
class HeldPage : public std::enable_shared_from_this<HeldPage> {
public:
    HeldPage(uno::Reference<css::drawing::XDrawPage> page, std::int32_t slideId);

    [[nodiscard]] const uno::Reference<css::drawing::XDrawPage>& page() const { return page_; }
    [[nodiscard]] const uno::Reference<css::beans::XPropertySet>& properties();
    /// The slide's place in the presentation, from 1. `office::Failure` Disconnected if it was
    /// deleted.
    [[nodiscard]] std::int32_t number();
    /// A number of the slide's own that stays while slides move. LibreOffice has none, so it holds
    /// for the life of the document's record.
    [[nodiscard]] std::int32_t slideId() const { return slideId_; }

    [[nodiscard]] std::int32_t shapeCount() const { return page_->getCount(); }
    /// The shape at a place from 1. UNO's IndexOutOfBoundsException outside.
    HeldShapePtr shapeAt(std::int32_t place);
    /// The record of a shape that was fetched from this slide some other way.
    HeldShapePtr held(const uno::Reference<css::drawing::XShape>& shape);
    /// The title placeholder; null if the slide has none.
    HeldShapePtr title();

    /// Puts a new shape on the slide, on top of the others.
    HeldShapePtr add(const uno::Reference<css::drawing::XShape>& shape);
    void remove(const HeldShapePtr& shape);

    /// A name that no shape of the slide has: the kind and a number ("Picture 2").
    [[nodiscard]] std::string freshName(std::string_view kind);

private:
    [[nodiscard]] std::int32_t highestNumber();

    uno::Reference<css::drawing::XDrawPage> page_;
    uno::Reference<css::beans::XPropertySet> properties_;
    std::int32_t slideId_;
    std::vector<HeldShapePtr> shapes_;
    HeldShapePtr title_;
    std::int32_t titlePlace_ = 0;
    /// How many shapes there were when no title was found among them.
    std::optional<std::int32_t> countWithoutTitle_;
    std::optional<std::int32_t> highestNumber_;
};

using HeldPagePtr = std::shared_ptr<HeldPage>;

}  // namespace libreoffice::powerpoint
