#pragma once

#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XMasterPageTarget.hpp>
#include <com/sun/star/frame/XModel.hpp>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "office/libreoffice/powerpoint/impress_slide.h"
#include "office/libreoffice/powerpoint/title_look.h"

namespace libreoffice::powerpoint {

/// The layouts of slides by PowerPoint's numbers: 1 title, 2 text, 11 title only, 12 blank.
///
/// LibreOffice loads each layout of a PowerPoint file as a master page of its own, with the
/// layout's name where it can. So a slide gets a layout by the master page that stands for it and
/// by LibreOffice's own number for the placeholders.
class SlideLayouts {
public:
    explicit SlideLayouts(uno::Reference<css::frame::XModel> model);

    /// The layout of a slide: one of the four numbers, 16 (object), 29 (two objects) or 32
    /// (custom).
    [[nodiscard]] std::int32_t layoutOf(ImpressSlide& slide);
    /// Gives a slide one of the three layouts that slides are given. In a presentation without such
    /// a layout the slide keeps its master page and gets the placeholders alone.
    void apply(ImpressSlide& slide, std::int32_t number);

private:
    using PageRef = uno::Reference<css::drawing::XDrawPage>;
    struct Master {
        PageRef page;
        std::string name;
        /// The theme's name: the layouts of one design share it.
        std::string design;
        /// What it has room for; asked when names don't tell.
        std::optional<std::int32_t> titles;
        std::int32_t bodies = 0;
        std::int32_t titleTop = 0;
    };

    void dressTitle(ImpressSlide& slide, const PageRef& masterPage);
    void loadMasters();
    [[nodiscard]] PageRef masterFor(std::int32_t layout, const PageRef& inherited,
                                    const ImpressSlide& slide);
    [[nodiscard]] PageRef findMaster(std::int32_t layout, const std::string& design,
                                     const ImpressSlide& slide);
    [[nodiscard]] PageRef masterOfAlikeSlide(std::int32_t layout,
                                             const std::vector<Master*>& candidates,
                                             const PageRef& except) const;
    [[nodiscard]] static PageRef masterByPlaceholders(std::int32_t layout,
                                                      const std::vector<Master*>& candidates);
    static void countPlaceholders(ImpressDeck& deck, Master& master);

    uno::Reference<css::frame::XModel> model_;
    std::optional<bool> fromPowerPoint_;
    std::vector<Master> masters_;
    std::map<css::drawing::XDrawPage*, std::shared_ptr<const TitleLook>> titleLooks_;
    /// What was found for a layout in the design of a master page.
    std::map<std::pair<std::int32_t, css::drawing::XDrawPage*>, PageRef> found_;
};

}  // namespace libreoffice::powerpoint
