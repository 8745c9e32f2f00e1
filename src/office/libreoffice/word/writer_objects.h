#pragma once

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>

#include <cstdint>
#include <vector>

#include "office/libreoffice/word/writer_caret.h"
#include "office/libreoffice/word/writer_object.h"

namespace libreoffice::word {

/// The pictures and objects in a document's own text and in its tables, in the order of reading.
///
/// LibreOffice lists them in an order of its own, and where each stands takes a call. So the order
/// is kept, and made anew only when there are more of them or fewer than it knows of.
class WriterObjects {
public:
    /// `areAllKnown`: nobody but `add` puts any in or takes any out.
    WriterObjects(WriterDocument& document, bool areAllKnown);

    /// What `WriterObject::finishResizing` says, for each of them.
    void finishResizing();
    /// Whether there is one of these, or a frame or a shape, at a place of the text or behind it;
    /// of the whole text, those tied to a page count too.
    [[nodiscard]] bool isAnyDrawnBehind(const RangeRef& place) const;
    [[nodiscard]] std::int32_t count(model::Anchoring anchoring);
    /// Null if there is none at this place, counted from 1.
    [[nodiscard]] WriterObjectPtr at(model::Anchoring anchoring, std::int32_t place);
    /// The record of one of them; null for what is none.
    [[nodiscard]] WriterObjectPtr recordOf(const ContentRef& content);
    /// Takes in one that was just put into the text.
    void add(const WriterObjectPtr& made);
    /// The same for one behind all others of a document of which all are known.
    void addLast(const WriterObjectPtr& made) { inOrder_.push_back(made); }

private:
    /// Whether there are that many in the document.
    [[nodiscard]] bool areThere(std::size_t count);
    void refresh();
    enum class Standing { InText, OnPage, Elsewhere, Lost };
    [[nodiscard]] Standing standingOf(const ContentRef& content) const;
    /// In a header, a footer or a frame.
    [[nodiscard]] bool isElsewhere(const uno::Reference<css::text::XTextRange>& place) const;
    void insert(const WriterObjectPtr& object);
    void insertInOrder(const WriterObjectPtr& object);
    [[nodiscard]] WriterObjectPtr known(const rtl::OUString& name) const;

    WriterDocument& document_;
    bool areAllKnown_;
    uno::Reference<css::text::XText> text_;
    uno::Reference<css::text::XTextRangeCompare> places_;
    uno::Reference<css::container::XIndexAccess> drawn_;
    uno::Reference<css::container::XIndexAccess> pictures_;
    uno::Reference<css::container::XIndexAccess> embedded_;
    std::vector<WriterObjectPtr> inOrder_;
    /// Those in headers, footers and frames, and those that have lost their place.
    std::vector<WriterObjectPtr> elsewhere_;
};

}  // namespace libreoffice::word
