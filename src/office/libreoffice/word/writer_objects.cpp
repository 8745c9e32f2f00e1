#include "office/libreoffice/word/writer_objects.h"

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XDrawPageSupplier.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/text/XTextEmbeddedObjectsSupplier.hpp>
#include <com/sun/star/text/XTextGraphicObjectsSupplier.hpp>

#include <algorithm>
#include <utility>

#include "office/libreoffice/word/writer_document.h"

namespace libreoffice::word {

namespace {

// Marked as deprecated, yet the only way from a document to its frames and shapes at once.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
uno::Reference<css::container::XIndexAccess> drawnOn(
    const uno::Reference<css::frame::XModel>& document) {
    return as<css::container::XIndexAccess>(
        as<css::drawing::XDrawPageSupplier>(document)->getDrawPage());
}
#pragma GCC diagnostic pop

}  // namespace

WriterObjects::WriterObjects(WriterDocument& document, bool areAllKnown)
    : document_(document),
      areAllKnown_(areAllKnown),
      text_(document.body()),
      places_(as<css::text::XTextRangeCompare>(text_)),
      drawn_(drawnOn(document.model())),
      pictures_(as<css::container::XIndexAccess>(
          as<css::text::XTextGraphicObjectsSupplier>(document.model())->getGraphicObjects())),
      embedded_(as<css::container::XIndexAccess>(
          as<css::text::XTextEmbeddedObjectsSupplier>(document.model())->getEmbeddedObjects())) {}

bool WriterObjects::areThere(std::size_t count) {
    return areAllKnown_ || static_cast<std::size_t>(pictures_->getCount()) +
                                   static_cast<std::size_t>(embedded_->getCount()) ==
                               count;
}

WriterObjectPtr WriterObjects::known(const rtl::OUString& name) const {
    for (const auto* list : {&inOrder_, &elsewhere_}) {
        for (const auto& object : *list) {
            if (object->name() == name) return object;
        }
    }
    return nullptr;
}

void WriterObjects::refresh() {
    if (areThere(inOrder_.size() + elsewhere_.size())) return;
    std::vector<WriterObjectPtr> all;
    for (const auto& list : {pictures_, embedded_}) {
        const sal_Int32 count = list->getCount();
        for (sal_Int32 i = 0; i < count; ++i) {
            const ContentRef content(list->getByIndex(i), uno::UNO_QUERY_THROW);
            auto object = known(as<css::container::XNamed>(content)->getName());
            all.push_back(object ? object : std::make_shared<WriterObject>(content, document_));
        }
    }
    inOrder_.clear();
    elsewhere_.clear();
    for (const auto& object : all) insert(object);
}

/// What stands outside of the text lies before its beginning.
bool WriterObjects::isElsewhere(const uno::Reference<css::text::XTextRange>& place) const {
    return places_->compareRegionStarts(place, text_->getStart()) > 0;
}

/// A macro that replaces all text and the table at its end leaves objects behind whose place
/// LibreOffice can't compare with any other.
WriterObjects::Standing WriterObjects::standingOf(const ContentRef& content) const {
    try {
        const auto place = content->getAnchor();
        if (!place.is()) return Standing::OnPage;
        return isElsewhere(place) ? Standing::Elsewhere : Standing::InText;
    } catch (const css::lang::DisposedException&) {
        throw;
    } catch (const uno::RuntimeException&) {
        return Standing::Lost;
    }
}

void WriterObjects::insert(const WriterObjectPtr& object) {
    try {
        insertInOrder(object);
    } catch (const css::lang::DisposedException&) {
        throw;
    } catch (const uno::RuntimeException&) {
        const auto lost = std::stable_partition(
            inOrder_.begin(), inOrder_.end(),
            [this](const auto& other) { return standingOf(other->content()) != Standing::Lost; });
        elsewhere_.insert(elsewhere_.end(), lost, inOrder_.end());
        inOrder_.erase(lost, inOrder_.end());
        if (standingOf(object->content()) == Standing::Lost)
            elsewhere_.push_back(object);
        else
            insertInOrder(object);
    }
}

void WriterObjects::insertInOrder(const WriterObjectPtr& object) {
    const auto place = object->content()->getAnchor();
    const auto comesBefore = [&](const WriterObjectPtr& other) {
        return places_->compareRegionStarts(other->content()->getAnchor(), place) >= 0;
    };
    // Most come last.
    if (place.is() && !inOrder_.empty() && comesBefore(inOrder_.back())) {
        inOrder_.push_back(object);
        return;
    }
    // What is tied to a page has no place in the text.
    if (!place.is() || isElsewhere(place)) {
        elsewhere_.push_back(object);
        return;
    }
    inOrder_.insert(std::partition_point(inOrder_.begin(), inOrder_.end(), comesBefore), object);
}

void WriterObjects::add(const WriterObjectPtr& made) {
    if (areThere(inOrder_.size() + elsewhere_.size() + 1)) insert(made);
}

void WriterObjects::finishResizing() {
    for (const auto* list : {&inOrder_, &elsewhere_}) {
        for (const auto& object : *list) object->finishResizing();
    }
}

bool WriterObjects::isAnyDrawnBehind(const RangeRef& place) const {
    const bool isWholeText = places_->compareRegionStarts(place, text_->getStart()) == 0;
    const sal_Int32 count = drawn_->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const ContentRef content(drawn_->getByIndex(i), uno::UNO_QUERY);
        if (!content.is()) continue;
        const Standing standing = standingOf(content);
        if (standing == Standing::OnPage && isWholeText) return true;
        if (standing == Standing::InText &&
            places_->compareRegionStarts(place, content->getAnchor()) >= 0)
            return true;
    }
    return false;
}

std::int32_t WriterObjects::count(model::Anchoring anchoring) {
    refresh();
    return static_cast<std::int32_t>(
        std::count_if(inOrder_.begin(), inOrder_.end(),
                      [&](const auto& object) { return object->anchoring() == anchoring; }));
}

WriterObjectPtr WriterObjects::at(model::Anchoring anchoring, std::int32_t place) {
    refresh();
    for (const auto& object : inOrder_) {
        if (object->anchoring() == anchoring && --place == 0) return object;
    }
    return nullptr;
}

WriterObjectPtr WriterObjects::recordOf(const ContentRef& content) {
    const auto named = tryAs<css::container::XNamed>(content);
    if (!named.is()) return nullptr;
    refresh();
    return known(named->getName());
}

}  // namespace libreoffice::word
