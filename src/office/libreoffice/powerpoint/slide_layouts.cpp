#include "office/libreoffice/powerpoint/slide_layouts.h"

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/drawing/XMasterPagesSupplier.hpp>
#include <com/sun/star/util/XTheme.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "office/failure.h"

namespace libreoffice::powerpoint {

namespace {

namespace drawing = css::drawing;

/// PowerPoint's number, LibreOffice's own, and the name of the layout in PowerPoint's templates.
struct Layout {
    std::int32_t number;
    std::int16_t ofLibreOffice;
    std::string_view name;
};

constexpr std::int32_t titleSlide = 1;
constexpr std::int32_t text = 2;
constexpr std::int32_t titleOnly = 11;
constexpr std::int32_t blank = 12;
constexpr std::int32_t object = 16;
constexpr std::int32_t twoObjects = 29;
constexpr std::int32_t custom = 32;

constexpr std::array<Layout, 4> layouts = {{
    {titleSlide, 0, "Title Slide"},
    {text, 1, "Title and Content"},
    {titleOnly, 19, "Title Only"},
    {blank, 20, "Blank"},
}};
/// Layouts that are read and not made.
constexpr std::array<Layout, 2> furtherLayouts = {{
    {object, 11, ""},
    {twoObjects, 3, ""},
}};

const Layout& layoutNumbered(std::int32_t number) {
    const auto* found = std::find_if(layouts.begin(), layouts.end(),
                                     [&](const Layout& layout) { return layout.number == number; });
    if (found == layouts.end())
        throw office::Failure(office::FailureNumber::InvalidProcedureCall, "Slide.Layout",
                              fmt::format("There is no slide layout {} here", number));
    return *found;
}

std::int16_t ownLayoutOf(const uno::Reference<drawing::XDrawPage>& page) {
    return property<sal_Int16>(page, "Layout", -1);
}

/// Whether a slide of this layout has the placeholders of another one.
bool isAlike(std::int16_t ownLayout, const Layout& layout) {
    constexpr std::int16_t titleAndObject = 11;
    return ownLayout == layout.ofLibreOffice ||
           (layout.number == text && ownLayout == titleAndObject);
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

std::int32_t SlideLayouts::layoutOf(HeldPage& slide) {
    sal_Int16 own = -1;
    slide.properties()->getPropertyValue("Layout") >>= own;
    const auto isOwn = [&](const Layout& layout) { return layout.ofLibreOffice == own; };
    if (const auto* found = std::find_if(layouts.begin(), layouts.end(), isOwn);
        found != layouts.end())
        return found->number;
    const auto* further = std::find_if(furtherLayouts.begin(), furtherLayouts.end(), isOwn);
    return further != furtherLayouts.end() ? further->number : custom;
}

void SlideLayouts::requireKnown(std::int32_t layout) {
    static_cast<void>(layoutNumbered(layout));
}

void SlideLayouts::apply(HeldPage& slide, std::int32_t number) {
    const Layout& layout = layoutNumbered(number);
    // The number comes last: the placeholders take their places from the master page.
    const auto setNumber = [&] {
        slide.properties()->setPropertyValue("Layout", uno::Any(layout.ofLibreOffice));
    };
    if (!isFromPowerPoint()) return setNumber();
    const auto target = as<drawing::XMasterPageTarget>(slide.page());
    const PageRef inherited = target->getMasterPage();
    const PageRef found = masterFor(number, inherited, slide.page());
    const PageRef& wanted = found.is() ? found : inherited;
    if (wanted.get() != inherited.get()) target->setMasterPage(wanted);
    setNumber();
    if (number != blank) dressTitle(slide, wanted);
}

void SlideLayouts::dressTitle(HeldPage& slide, const PageRef& masterPage) {
    const HeldShapePtr title = slide.title();
    if (!title) return;
    auto& look = titleLooks_[masterPage.get()];
    if (!look) look = std::make_shared<const TitleLook>(TitleLook::difference(masterPage, *title));
    look->applyToFrame(*title);
    title->wearOnceFilled(look);
}

bool SlideLayouts::isFromPowerPoint() {
    // In LibreOffice's own files a master page is a whole design, and taking another one by its
    // looks would change the slide's.
    if (!fromPowerPoint_) {
        const auto arguments = model_->getArgs();
        fromPowerPoint_ = std::any_of(arguments.begin(), arguments.end(), [](const auto& argument) {
            rtl::OUString filter;
            return argument.Name == "FilterName" && (argument.Value >>= filter) &&
                   filter.indexOf("PowerPoint 2007") >= 0;
        });
    }
    return *fromPowerPoint_;
}

SlideLayouts::PageRef SlideLayouts::masterFor(std::int32_t layout, const PageRef& inherited,
                                              const PageRef& slide) {
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
                                               const PageRef& slide) {
    std::vector<Master*> candidates;
    for (Master& master : masters_) {
        if (master.design == design) candidates.push_back(&master);
    }
    const std::string_view name = layoutNumbered(layout).name;
    for (const Master* master : candidates) {
        if (master->name == name) return master->page;
    }
    // The file comes from a PowerPoint in another language, or is not the first design of its file,
    // whose names get lost.
    if (PageRef alike = masterOfAlikeSlide(layout, candidates, slide); alike.is()) return alike;
    for (Master* master : candidates) countPlaceholders(*master);
    return masterByPlaceholders(layout, candidates);
}

SlideLayouts::PageRef SlideLayouts::masterOfAlikeSlide(std::int32_t layout,
                                                       const std::vector<Master*>& candidates,
                                                       const PageRef& except) const {
    const auto slides = as<drawing::XDrawPagesSupplier>(model_)->getDrawPages();
    const sal_Int32 count = slides->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const PageRef slide(slides->getByIndex(i), uno::UNO_QUERY_THROW);
        if (slide.get() == except.get() || !isAlike(ownLayoutOf(slide), layoutNumbered(layout)))
            continue;
        const PageRef master = as<drawing::XMasterPageTarget>(slide)->getMasterPage();
        for (const Master* candidate : candidates) {
            if (candidate->page.get() == master.get()) return master;
        }
    }
    return {};
}

void SlideLayouts::countPlaceholders(Master& master) {
    if (master.titles) return;
    master.titles = 0;
    const sal_Int32 count = master.page->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        HeldShape shape(
            uno::Reference<drawing::XShape>(master.page->getByIndex(i), uno::UNO_QUERY_THROW), {});
        if (shape.isTitle()) {
            master.titles = *master.titles + 1;
            master.titleTop = shape.position().Y;
        }
        if (shape.service() == "com.sun.star.presentation.OutlinerShape") ++master.bodies;
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
        case titleSlide: {
            // Its subtitle leaves no placeholder behind on its master page, so it looks like title
            // only; but its title stands lower.
            const auto fitting = holding(true, 0);
            return fitting.size() > 1 ? fitting.back()->page : PageRef();
        }
        case titleOnly:
            return highestOf(holding(true, 0));
        case text:
            return highestOf(holding(true, 1));
        default:
            return highestOf(holding(false, 0));
    }
}

}  // namespace libreoffice::powerpoint
