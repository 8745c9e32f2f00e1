#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include <cstdint>
#include <map>
#include <string>

#include "office/libreoffice/uno_values.h"
#include "office/model/word/text_document.h"

namespace libreoffice::word {

/// The captions of a document. A label's numbers are counted under a name made of the label; labels
/// that make the same name get a number behind it and still count apart.
class WriterCaptions {
public:
    explicit WriterCaptions(const uno::Reference<css::frame::XModel>& document);

    /// A caption that was written, and whether others may stand behind it, which have to be
    /// numbered anew.
    struct Written {
        uno::Reference<css::text::XTextRange> end;
        bool isLast = false;
    };
    /// Writes a caption into a new paragraph below that of a place in the text.
    [[nodiscard]] Written insertBelow(const uno::Reference<css::text::XTextRange>& place,
                                      const office::model::word::Caption& caption);

private:
    struct Counter {
        uno::Reference<css::beans::XPropertySet> master;
        std::int32_t captions = 0;
    };

    [[nodiscard]] Counter& counterOf(const std::string& label);
    [[nodiscard]] Counter findCounter(const std::string& label);

    uno::Reference<css::lang::XMultiServiceFactory> factory_;
    uno::Reference<css::container::XNameAccess> counters_;
    std::map<std::string, Counter> known_;
};

}  // namespace libreoffice::word
