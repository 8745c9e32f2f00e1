#include "office/libreoffice/powerpoint/text_frame.h"

#include "office/libreoffice/powerpoint/shape_text.h"
#include "office/libreoffice/powerpoint/text_range.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

const office::MemberTable<TextFrame>& TextFrame::members() {
    static const auto table =
        office::MemberTable<TextFrame>("TextFrame")
            .property("WordWrap", &TextFrame::wordWrap, &TextFrame::setWordWrap)
            .property("HasText",
                      [](TextFrame& self, const CallArguments&) {
                          return triState(!textOf(self.shape()).empty());
                      })
            .property("TextRange", [](TextFrame& self, const CallArguments&) -> Value {
                return makeObject<TextRange>(self.whole());
            });
    return table;
}

Value TextFrame::wordWrap() {
    return triState(shape().get<bool>("TextWordWrap"));
}

void TextFrame::setWordWrap(const Value& on) {
    const bool wrap = on.toBool();
    // A frame that fits its text in height fits it in width too once the text does not wrap.
    const bool fits = shape().get<bool>("TextAutoGrowHeight");
    keepingCorner(shape(), [&] {
        shape().set(
            {{"TextWordWrap", uno::Any(wrap)}, {"TextAutoGrowWidth", uno::Any(fits && !wrap)}});
    });
}

}  // namespace libreoffice::powerpoint
