#include "office/libreoffice/word/writer_captions.h"

#include <com/sun/star/style/NumberingType.hpp>
#include <com/sun/star/text/ControlCharacter.hpp>
#include <com/sun/star/text/SetVariableType.hpp>
#include <com/sun/star/text/XDependentTextField.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <com/sun/star/text/XTextFieldsSupplier.hpp>

#include "office/libreoffice/word/paragraph_change.h"
#include "office/model/word/sequence_name.h"
#include "office/text.h"

namespace libreoffice::word {

namespace {

namespace model = office::model::word;
using FieldRef = uno::Reference<css::text::XDependentTextField>;
using Fields = uno::Sequence<FieldRef>;

/// What stands in a field's paragraph ahead of it.
std::string labelAhead(const FieldRef& field) {
    const auto place = field->getAnchor()->getStart();
    const auto ahead =
        as<css::text::XParagraphCursor>(place->getText()->createTextCursorByRange(place));
    ahead->gotoStartOfParagraph(true);
    return fromUno(ahead->getString());
}

}  // namespace

WriterCaptions::WriterCaptions(const uno::Reference<css::frame::XModel>& document)
    : factory_(as<css::lang::XMultiServiceFactory>(document)),
      counters_(as<css::text::XTextFieldsSupplier>(document)->getTextFieldMasters()) {}

WriterCaptions::Counter& WriterCaptions::counterOf(const std::string& label) {
    Counter& counter = known_[office::lowerCase(label)];
    if (!counter.master.is()) counter = findCounter(label);
    return counter;
}

/// Of a document that was opened: the one that counts such a label already.
WriterCaptions::Counter WriterCaptions::findCounter(const std::string& label) {
    const rtl::OUString family("com.sun.star.text.fieldmaster.SetExpression");
    for (int number = 1;; ++number) {
        const auto name = toUno(model::sequenceName(label, number));
        if (!counters_->hasByName(family + "." + name)) {
            Counter counter;
            counter.master.set(factory_->createInstance(family), uno::UNO_QUERY_THROW);
            setProperty(counter.master, "Name", name);
            // Otherwise a .docx would hold the number as a variable, not as that of a caption.
            setProperty(counter.master, "SubType", css::text::SetVariableType::SEQUENCE);
            return counter;
        }
        Counter counter;
        counter.master.set(counters_->getByName(family + "." + name), uno::UNO_QUERY_THROW);
        const auto fields = property<Fields>(counter.master, "DependentTextFields");
        counter.captions = fields.getLength();
        const bool isFree = !fields.hasElements();
        if (isFree || office::sameIgnoringCase(office::trim(labelAhead(fields[0])), label))
            return counter;
    }
}

WriterCaptions::Written WriterCaptions::insertBelow(
    const uno::Reference<css::text::XTextRange>& place, const model::Caption& caption) {
    Counter& counter = counterOf(std::string(office::trim(caption.label)));
    const FieldRef number(factory_->createInstance("com.sun.star.text.textfield.SetExpression"),
                          uno::UNO_QUERY_THROW);
    setProperty(number, "NumberingType", css::style::NumberingType::ARABIC);
    setProperty(number, "Content", property<rtl::OUString>(counter.master, "Name") + "+1");
    number->attachTextFieldMaster(counter.master);
    // What is shown until LibreOffice counts by itself: in a text that came as a .docx it waits.
    setProperty(number, "CurrentPresentation", rtl::OUString::number(++counter.captions));

    const auto text = place->getText();
    const auto cursor = text->createTextCursorByRange(place->getEnd());
    uno::Reference<css::text::XTextRange> end(cursor.get());
    text->insertControlCharacter(end, css::text::ControlCharacter::APPEND_PARAGRAPH, false);
    as<css::text::XParagraphCursor>(cursor)->gotoNextParagraph(false);
    model::ParagraphChange change;
    change.style = model::style::caption;
    changeParagraph(cursor, change);
    cursor->collapseToEnd();
    text->insertString(end, toUno(caption.label + " "), false);
    text->insertTextContent(end, as<css::text::XTextContent>(number), false);
    text->insertString(end, toUno(caption.title), false);
    const auto behind = text->createTextCursorByRange(end);
    return {end, !as<css::text::XParagraphCursor>(behind)->gotoNextParagraph(false)};
}

}  // namespace libreoffice::word
