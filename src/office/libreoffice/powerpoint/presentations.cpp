#include "office/libreoffice/powerpoint/presentations.h"

#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "office/libreoffice/powerpoint/presentation.h"
#include "office/text.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Failure;
using office::FailureNumber;
using office::Value;

namespace {

/// The slides of a new presentation: 13 1/3 by 7 1/2 inches, in hundredths of a millimetre.
constexpr sal_Int32 wideSlideWidth = 33867;
constexpr sal_Int32 slideHeight = 19050;

void requirePresentation(const uno::Reference<css::frame::XModel>& model, const std::string& path) {
    if (as<css::lang::XServiceInfo>(model)->supportsService(
            "com.sun.star.presentation.PresentationDocument"))
        return;
    as<css::util::XCloseable>(model)->close(true);
    throw Failure(FailureNumber::ApplicationDefined, "Presentations.Open",
                  fmt::format("\"{}\" is not a presentation", path));
}

}  // namespace

Presentations::Presentations(DeskPtr desk) : UnoObject(std::move(desk)) {}

const office::MemberTable<Presentations>& Presentations::members() {
    static const auto table =
        office::MemberTable<Presentations>("Presentations")
            .property("Count", &Presentations::count)
            .property("Item", {"Index"}, &Presentations::item)
            .method("Open", {"FileName", "ReadOnly", "Untitled", "WithWindow"},
                    &Presentations::open)
            .method("Add", {"WithWindow"}, &Presentations::add);
    return table;
}

Value Presentations::count() {
    return static_cast<std::int32_t>(desk().presentations().size());
}

Value Presentations::item(const CallArguments& arguments) {
    const Value& index = arguments.at(0);
    const auto open = desk().presentations();
    if (index.isText()) {
        const auto named = std::find_if(open.begin(), open.end(), [&](const auto& document) {
            return office::sameIgnoringCase(document->name(), index.toText());
        });
        if (named != open.end()) return object(*named);
    } else if (const std::int32_t place = index.toLong();
               place >= 1 && static_cast<std::size_t>(place) <= open.size()) {
        return object(open[static_cast<std::size_t>(place - 1)]);
    }
    throw Failure(FailureNumber::SubscriptOutOfRange, arguments.source(),
                  fmt::format("There is no open presentation \"{}\"", index.toText()));
}

Value Presentations::open(const CallArguments& arguments) {
    if (arguments.at(2, false).toBool())
        throw Failure(FailureNumber::InvalidProcedureCall, arguments.source(),
                      "A presentation can't be opened without its title here");
    const std::string path = arguments.at(0).toText();
    auto document = openedFrom(fileUrl(path));
    if (!document) {
        const auto model = desk().load(fileUrl(path), isHidden(arguments.at(3, true)), {},
                                       arguments.at(1, false).toBool());
        requirePresentation(model, path);
        document = desk().presentation(model);
    }
    desk().setActive(document);
    return object(document);
}

ImpressDocumentPtr Presentations::openedFrom(const rtl::OUString& url) const {
    // LibreOffice would open a file twice, and the two would go separate ways.
    for (const auto& document : desk().presentations()) {
        if (document->model()->getURL() == url) return document;
    }
    return nullptr;
}

Value Presentations::add(const CallArguments& arguments) {
    const auto model = desk().load("private:factory/simpress", isHidden(arguments.at(0, true)));
    const auto document = desk().presentation(model);
    document->setSlideSize({wideSlideWidth, slideHeight});
    document->beginWithoutSlides();
    as<css::util::XModifiable>(model)->setModified(false);
    desk().setActive(document);
    return object(document);
}

Value Presentations::object(const ImpressDocumentPtr& document) const {
    return makeObject<Presentation>(deskPtr(), document);
}

bool Presentations::isHidden(const Value& withWindow) const {
    return desk().opensHidden() || !withWindow.toBool();
}

}  // namespace libreoffice::powerpoint
