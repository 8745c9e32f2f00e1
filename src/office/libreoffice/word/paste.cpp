#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/embed/EmbedStates.hpp>
#include <com/sun/star/embed/XEmbedPersist.hpp>
#include <com/sun/star/embed/XEmbeddedObject.hpp>
#include <com/sun/star/graphic/XGraphicProvider.hpp>
#include <com/sun/star/style/LineSpacing.hpp>
#include <com/sun/star/style/LineSpacingMode.hpp>
#include <com/sun/star/text/HoriOrientation.hpp>
#include <com/sun/star/text/RelOrientation.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>
#include <com/sun/star/text/WrapTextMode.hpp>

#include "office/failure.h"
#include "office/libreoffice/main_thread.h"
#include "office/libreoffice/objects/copied_object.h"
#include "office/libreoffice/objects/picture_graphic.h"
#include "office/libreoffice/units.h"
#include "office/libreoffice/word/undo_group.h"
#include "office/libreoffice/word/writer_document.h"

namespace libreoffice::word {

namespace {

using office::CopySource;
using office::PasteAs;

constexpr const char* member = "Selection.PasteSpecial";

/// In vectors, so that its text is text in a PDF, unless dots are all there is.
uno::Reference<css::graphic::XGraphic> pictureOf(const office::Copied& copied,
                                                 const Connection& connection) {
    uno::Reference<css::graphic::XGraphic> picture;
    const auto* here = dynamic_cast<const excel::CopiedHere*>(&copied);
    if (here != nullptr) picture = here->graphic();
    if (!picture.is())
        picture = graphicOf(connection, copied.picture(office::Sharpness::Crisp).png.get());
    if (!picture.is()) office::refuse(member, "LibreOffice could not read the picture");
    return picture;
}

css::awt::Size sizeOf(const office::Copied& copied) {
    return {hundredthMmOf(copied.widthPt()), hundredthMmOf(copied.heightPt())};
}

/// A picture or an embedded object that is to stand in a text. It goes with this object unless it
/// is taken over.
class NewContent {
public:
    NewContent(const WriterDocument& document, const char* service, const css::awt::Size& size,
               model::Anchoring anchoring);
    NewContent(const NewContent&) = delete;
    NewContent& operator=(const NewContent&) = delete;
    ~NewContent();

    template <class Type>
    void set(const char* name, const Type& value) {
        setProperty(properties_, name, value);
    }
    /// In front of what is selected.
    void insertAt(const TextPlace& place) {
        place.text->insertTextContent(place.start(), content_, false);
        isInserted_ = true;
    }
    [[nodiscard]] const ContentRef& content() const { return content_; }
    [[nodiscard]] WriterObjectPtr object(WriterDocument& document) const {
        return std::make_shared<WriterObject>(content_, properties_, anchoring_, document);
    }
    void keep() { isInserted_ = false; }

private:
    ContentRef content_;
    model::Anchoring anchoring_;
    uno::Reference<css::beans::XPropertySet> properties_;
    bool isInserted_ = false;
};

NewContent::NewContent(const WriterDocument& document, const char* service,
                       const css::awt::Size& size, model::Anchoring anchoring)
    : content_(as<css::text::XTextContent>(document.createInstance(service))),
      anchoring_(anchoring),
      properties_(as<css::beans::XPropertySet>(content_)) {
    set("Size", size);
    if (anchoring == model::Anchoring::Inline) {
        set("AnchorType", css::text::TextContentAnchorType_AS_CHARACTER);
        return;
    }
    set("AnchorType", css::text::TextContentAnchorType_AT_PARAGRAPH);
    set("HoriOrient", css::text::HoriOrientation::NONE);
    set("HoriOrientRelation", css::text::RelOrientation::PAGE_PRINT_AREA);
    // It hides no text.
    set("TextWrap", css::text::WrapTextMode_NONE);
}

NewContent::~NewContent() {
    if (isInserted_) asFarAsPossible([&] { content_->dispose(); });
}

/// LibreOffice puts objects to rest when there are many, and forgets their pictures then: one that
/// rests already keeps the picture that it is given.
///
/// An object that goes to rest keeps its own lock while it waits for that of the suite; a text that
/// lays itself out meanwhile holds that one and waits for the object. On the main thread there is
/// nobody to wait for.
void putToRest(const Connection& connection,
               const uno::Reference<css::embed::XEmbeddedObject>& workbook) {
    onMainThread(connection, [workbook] {
        uno::Reference<css::embed::XEmbedPersist>(workbook, uno::UNO_QUERY_THROW)->storeOwn();
        workbook->changeState(css::embed::EmbedStates::LOADED);
    });
}

/// Word shows no more of an object than is as high as a line, where lines have an exact height.
void letLinesGrow(const RangeRef& place) {
    using css::style::LineSpacing;
    constexpr const char* name = "ParaLineSpacing";
    if (property<LineSpacing>(place, name).Mode == css::style::LineSpacingMode::FIX)
        setProperty(place, name, LineSpacing(css::style::LineSpacingMode::PROP, 100));
}

}  // namespace

/// The new thing goes in front of what is selected, which is taken out only then: if the one can't
/// be had, the other stays.
void WriterDocument::insertObject(const TextPlace& place, const WriterObjectPtr& object) {
    removeSelected(place);
    // What nobody sees was made here, with lines as they come.
    if (object->anchoring() == model::Anchoring::Inline && !isUnseen_) letLinesGrow(place.range);
    if (caret_.isAtEnd())
        objects().addLast(object);
    else
        objects().add(object);
    pasted_ = object->content();
}

model::TextObjectPtr WriterDocument::pasted() {
    return pasted_.is() ? objects().recordOf(pasted_) : nullptr;
}

void WriterDocument::insertGraphic(const TextPlace& place,
                                   const uno::Reference<css::graphic::XGraphic>& graphic,
                                   const css::awt::Size& size, model::Anchoring anchoring) {
    NewContent made(*this, "com.sun.star.text.TextGraphicObject", size, anchoring);
    made.set("Graphic", graphic);
    made.insertAt(place);
    const WriterObjectPtr object = made.object(*this);
    if (isUnseen_) object->noteSize(size);
    insertObject(place, object);
    made.keep();
}

void WriterDocument::addPicture(const std::string& file) {
    const TextPlace place = writablePlace("InlineShapes.AddPicture");
    if (desk_.drawingRoom) desk_.drawingRoom->complete(file);
    const FilePicture picture = pictureOfFile(desk_.connection(), file);
    pasted_.clear();
    const UndoGroup group(steps_, "Picture");
    insertGraphic(place, picture.graphic, picture.size, model::Anchoring::Inline);
}

void WriterDocument::paste(const office::Copied& copied, PasteAs as, model::Anchoring anchoring) {
    const TextPlace place = writablePlace(member);
    if (as == PasteAs::Linked) {
        office::refuse(
            member, desk_.opensHidden()
                        ? "LibreOffice can't link a text document to a workbook."
                        : "LibreOffice can't link a text document to a workbook. Paste a picture "
                          "or an embedded workbook instead, or use murvane-export.");
    }
    pasted_.clear();
    const UndoGroup group(steps_, "Paste");
    const auto kind = copied.source().kind;
    if (as == PasteAs::Default && kind == CopySource::Kind::Picture) {
        insertGraphic(place, pictureOf(copied, desk_.connection()), sizeOf(copied), anchoring);
    } else if (as == PasteAs::Default && kind == CopySource::Kind::Cells) {
        insertTable(place, copied.table());
    } else {
        pasteObject(place, copied, as, anchoring);
    }
}

/// A chart as what it is, or a workbook.
void WriterDocument::pasteObject(const TextPlace& place, const office::Copied& copied, PasteAs as,
                                 model::Anchoring anchoring) {
    const Connection& connection = desk_.connection();
    const excel::CopiedHere& here = objects::copiedHere(copied, member);
    objects::NewObject object(model());
    const auto picture = as == PasteAs::Embedded ? here.graphic() : nullptr;
    if (as == PasteAs::Embedded) {
        objects::storeEmptyWorkbook(object, here);
    } else {
        objects::storeChart(object, dynamic_cast<const excel::CopiedChart&>(here));
    }
    NewContent made(*this, "com.sun.star.text.TextEmbeddedObject", sizeOf(copied), anchoring);
    made.set("StreamName", object.name());
    made.insertAt(place);
    if (as == PasteAs::Embedded) {
        objects::fillWorkbook(
            connection, here,
            property<uno::Reference<css::frame::XModel>>(made.content(), "Model"));
        putToRest(connection, property<uno::Reference<css::embed::XEmbeddedObject>>(
                                  made.content(), "EmbeddedObject"));
        made.set("Graphic", picture);
    }
    insertObject(place, made.object(*this));
    made.keep();
    object.complete();
}

}  // namespace libreoffice::word
