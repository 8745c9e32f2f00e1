#include "office/libreoffice/powerpoint/slide_layouts.h"

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/drawing/XMasterPagesSupplier.hpp>
#include <com/sun/star/util/XTheme.hpp>

#include <algorithm>
#include <array>
#include <string_view>

#include "office/libreoffice/powerpoint/impress_deck.h"

namespace libreoffice::powerpoint {

namespace {

namespace drawing = css::drawing;

/// PowerPoint's number and LibreOffice's own.
struct Layout {
    std::int32_t number;
    std::int16_t ofLibreOffice;
};

constexpr std::array<Layout, 6> layouts = {{
    {model::layout::title, 0},
    {model::layout::titleOnly, 19},
    {model::layout::blank, 20},
    {model::layout::text, 1},
    {model::layout::object, 11},
    {model::layout::twoObjects, 3},
}};

const Layout& layoutNumbered(std::int32_t number) {
    return *std::find_if(layouts.begin(), layouts.end(),
                         [&](const Layout& layout) { return layout.number == number; });
}

/// LibreOffice 7.4 knows no themes: there all layouts count as one design.
std::string designOf(const uno::Reference<drawing::XDrawPage>& master) {
    const auto properties = as<css::beans::XPropertySet>(master);
    if (!properties->getPropertySetInfo()->hasPropertyByName("Theme")) return {};
    const auto theme = property<uno::Reference<css::util::XTheme>>(master, "Theme");
    return theme.is() ? fromUno(theme->getName()) : std::string();
}

}  // namespace

SlideLayouts::SlideLayouts(uno::Reference<css::frame::XModel> model) : model_(std::move(model)) {}

std::int32_t SlideLayouts::layoutOf(ImpressSlide& slide) {
    sal_Int16 own = -1;
    slide.properties()->getPropertyValue("Layout") >>= own;
    const auto* found = std::find_if(layouts.begin(), layouts.end(), [&](const Layout& layout) {
        return layout.ofLibreOffice == own;
    });
    return found != layouts.end() ? found->number : model::layout::other;
}

void SlideLayouts::apply(ImpressSlide& slide, std::int32_t number) {
    const Layout& layout = layoutNumbered(number);
    // The number comes last: the placeholders take their places from the master page.
    const auto setNumber = [&] {
        slide.properties()->setPropertyValue("Layout", uno::Any(layout.ofLibreOffice));
    };
    // In LibreOffice's own files a master page is a whole design, and taking another one by its
    // looks would change the slide's.
    if (!fromPowerPoint_) fromPowerPoint_ = slide.deck().cameThrough("PowerPoint 2007");
    if (!*fromPowerPoint_) return setNumber();
    const auto target = as<drawing::XMasterPageTarget>(slide.page());
    const PageRef inherited = target->getMasterPage();
    const PageRef found = masterFor(number, inherited, slide);
    const PageRef& wanted = found.is() ? found : inherited;
    if (wanted.get() != inherited.get()) target->setMasterPage(wanted);
    setNumber();
    if (number != model::layout::blank) dressTitle(slide, wanted);
}

void SlideLayouts::dressTitle(ImpressSlide& slide, const PageRef& masterPage) {
    const ImpressShapePtr title = slide.title();
    if (!title) return;
    auto& look = titleLooks_[masterPage.get()];
    if (!look)
        look = std::make_shared<const TitleLook>(slide.deck(), masterPage, title->reference());
    title->wear(look);
}

SlideLayouts::PageRef SlideLayouts::masterFor(std::int32_t layout, const PageRef& inherited,
                                              const ImpressSlide& slide) {
    const auto key = std::pair(layout, inherited.get());
    if (const auto known = found_.find(key); known != found_.end()) return known->second;
    if (masters_.empty()) loadMasters();
    const auto own = std::find_if(masters_.begin(), masters_.end(), [&](const Master& master) {
        return master.page.get() == inherited.get();
    });
    return found_[key] = findMaster(layout, own != masters_.end() ? own->design : "", slide);
}

void SlideLayouts::loadMasters() {
    const auto pages = as<drawing::XMasterPagesSupplier>(model_)->getMasterPages();
    const sal_Int32 count = pages->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        Master master;
        master.page = PageRef(pages->getByIndex(i), uno::UNO_QUERY_THROW);
        master.name = fromUno(as<css::container::XNamed>(master.page)->getName());
        master.design = designOf(master.page);
        masters_.push_back(std::move(master));
    }
}

SlideLayouts::PageRef SlideLayouts::findMaster(std::int32_t layout, const std::string& design,
                                               const ImpressSlide& slide) {
    std::vector<Master*> candidates;
    for (Master& master : masters_) {
        if (master.design == design) candidates.push_back(&master);
    }
    const std::string_view name = model::layout::nameOf(layout);
    for (const Master* master : candidates) {
        if (master->name == name) return master->page;
    }
    // The file comes from a PowerPoint in another language, or is not the first design of its file,
    // whose names get lost.
    if (PageRef alike = masterOfAlikeSlide(layout, candidates, slide.page()); alike.is())
        return alike;
    for (Master* master : candidates) countPlaceholders(slide.deck(), *master);
    return masterByPlaceholders(layout, candidates);
}

SlideLayouts::PageRef SlideLayouts::masterOfAlikeSlide(std::int32_t layout,
                                                       const std::vector<Master*>& candidates,
                                                       const PageRef& except) const {
    const auto slides = as<drawing::XDrawPagesSupplier>(model_)->getDrawPages();
    const sal_Int32 count = slides->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const PageRef slide(slides->getByIndex(i), uno::UNO_QUERY_THROW);
        if (slide.get() == except.get() ||
            property<sal_Int16>(slide, "Layout", -1) != layoutNumbered(layout).ofLibreOffice)
            continue;
        const PageRef master = as<drawing::XMasterPageTarget>(slide)->getMasterPage();
        for (const Master* candidate : candidates) {
            if (candidate->page.get() == master.get()) return master;
        }
    }
    return {};
}

void SlideLayouts::countPlaceholders(ImpressDeck& deck, Master& master) {
    if (master.titles) return;
    master.titles = 0;
    const sal_Int32 count = master.page->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<drawing::XShape> shape(master.page->getByIndex(i),
                                                    uno::UNO_QUERY_THROW);
        deck.hold(shape);
        const std::string service = serviceOf(shape);
        if (service == "com.sun.star.presentation.TitleTextShape") {
            master.titles = *master.titles + 1;
            master.titleTop = shape->getPosition().Y;
        }
        if (service == "com.sun.star.presentation.OutlinerShape") ++master.bodies;
    }
}

SlideLayouts::PageRef SlideLayouts::masterByPlaceholders(std::int32_t layout,
                                                         const std::vector<Master*>& candidates) {
    const auto holding = [&](bool title, std::int32_t bodies) {
        std::vector<Master*> fitting;
        std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(fitting),
                     [&](const Master* master) {
                         return (master->titles > 0) == title && master->bodies == bodies;
                     });
        std::sort(fitting.begin(), fitting.end(), [](const Master* left, const Master* right) {
            return left->titleTop < right->titleTop;
        });
        return fitting;
    };
    const auto highestOf = [](const std::vector<Master*>& fitting) {
        return fitting.empty() ? PageRef() : fitting.front()->page;
    };
    switch (layout) {
        case model::layout::title: {
            // Its subtitle leaves no placeholder behind on its master page, so it looks like title
            // only; but its title stands lower.
            const auto fitting = holding(true, 0);
            return fitting.size() > 1 ? fitting.back()->page : PageRef();
        }
        case model::layout::titleOnly:
            return highestOf(holding(true, 0));
        default:
            return highestOf(holding(false, 0));
    }
}

}  // namespace libreoffice::powerpoint
