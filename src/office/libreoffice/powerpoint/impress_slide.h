#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/drawing/XDrawPage.hpp>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/powerpoint/impress_shape.h"
#include "office/model/powerpoint/deck_slide.h"
#include "office/model/powerpoint/paste.h"

namespace libreoffice::powerpoint {

class ImpressDeck;

/// A slide with the shapes of it that have been met, all held for as long as the presentation's
/// record lives.
class ImpressSlide : public model::DeckSlide, public std::enable_shared_from_this<ImpressSlide> {
public:
    ImpressSlide(uno::Reference<css::drawing::XDrawPage> page, ImpressDeck& deck)
        : page_(std::move(page)),
          deck_(deck) {}

    [[nodiscard]] const uno::Reference<css::drawing::XDrawPage>& page() const { return page_; }
    [[nodiscard]] const uno::Reference<css::beans::XPropertySet>& properties();
    [[nodiscard]] ImpressDeck& deck() const { return deck_; }
    [[nodiscard]] ImpressShapePtr title();
    /// The record of a shape that was fetched from this slide.
    ImpressShapePtr held(const uno::Reference<css::drawing::XShape>& shape);
    /// How many of its shapes show a workbook that is one of these objects of the presentation.
    [[nodiscard]] std::int32_t workbooksAmong(const std::set<rtl::OUString>& stored);
    /// With its shapes.
    void markGone();

    [[nodiscard]] bool isGone() const override;
    /// `office::Failure` Disconnected if the user has deleted the slide.
    std::int32_t place() override;
    std::int32_t layout() override;
    void setLayout(std::int32_t layout) override;
    std::int32_t shapeCount() override { return page_->getCount(); }
    model::DeckShapePtr shapeAt(std::int32_t place) override { return at(place); }
    model::DeckShapePtr titleShape() override { return title(); }
    model::DeckShapePtr addPicture(const std::string& file, const model::Point& corner) override;
    model::DeckShapePtr addLabel(const model::Point& corner, const office::Size& size) override;
    model::DeckShapePtr paste(const office::Copied& copied, office::PasteAs as) override;
    void remove() override;

private:
    [[nodiscard]] ImpressShapePtr at(std::int32_t place);
    [[nodiscard]] ImpressShapePtr add(const char* service);
    [[nodiscard]] ImpressShapePtr addPicture(const office::Picture& picture,
                                             const office::Size& size, const model::Point& corner);
    /// Names and places what was put on the slide.
    [[nodiscard]] ImpressShapePtr pasted(const uno::Reference<css::drawing::XShape>& reference,
                                         std::string_view kind, const model::Point& corner);
    /// A name that no shape of the slide has: the kind and a number ("Picture 2").
    [[nodiscard]] std::string freshName(std::string_view kind);
    [[nodiscard]] std::int32_t highestNumber();

    uno::Reference<css::drawing::XDrawPage> page_;
    uno::Reference<css::beans::XPropertySet> properties_;
    ImpressDeck& deck_;
    std::vector<ImpressShapePtr> shapes_;
    ImpressShapePtr title_;
    std::int32_t titlePlace_ = 0;
    /// How many shapes there were when no title was found among them.
    std::optional<std::int32_t> countWithoutTitle_;
    std::optional<std::int32_t> highestNumber_;
    bool isGone_ = false;
};

using ImpressSlidePtr = std::shared_ptr<ImpressSlide>;

}  // namespace libreoffice::powerpoint
