#pragma once

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/text/XTextContent.hpp>

#include <memory>
#include <optional>
#include <string>

#include "office/libreoffice/uno_values.h"
#include "office/model/word/text_document.h"

namespace libreoffice::word {

namespace model = office::model::word;

class WriterDocument;

using ContentRef = uno::Reference<css::text::XTextContent>;

/// A picture or an embedded object in a text.
class WriterObject : public model::TextObject {
public:
    WriterObject(ContentRef content, WriterDocument& document);
    /// One that has just been made; nothing of it is asked for.
    WriterObject(ContentRef content, uno::Reference<css::beans::XPropertySet> properties,
                 model::Anchoring anchoring, WriterDocument& document);

    [[nodiscard]] const ContentRef& content() const { return content_; }
    /// What tells it from the others: the same object comes as another reference now and then.
    [[nodiscard]] const rtl::OUString& name();
    [[nodiscard]] model::Anchoring anchoring() const override { return anchoring_; }
    /// The size that it was made with.
    void noteSize(const css::awt::Size& size);
    /// In a document that nobody sees, a size is set when the text is laid out: mostly both sides
    /// change, one after the other.
    void finishResizing();

    [[nodiscard]] bool isGone() const override;
    office::Size size() override;
    void resize(const office::Size& size) override;
    std::string alternativeText() override;
    void setAlternativeText(const std::string& text) override;
    /// Its size and its blur are kept here: LibreOffice has neither of them.
    model::ObjectShadow shadow() override;
    void setShadow(const model::ObjectShadow& shadow) override;
    void setLeft(double left) override;
    void select() override;

private:
    void setSize(const office::Size& size);

    ContentRef content_;
    rtl::OUString name_;
    uno::Reference<css::beans::XPropertySet> properties_;
    WriterDocument& document_;
    model::Anchoring anchoring_;
    model::ObjectShadow shadow_;
    /// As it was made, asked for or set last, in a document that nobody sees and nobody else
    /// changes.
    std::optional<office::Size> size_;
    /// Whether that is still to be set there.
    bool isResized_ = false;
};

using WriterObjectPtr = std::shared_ptr<WriterObject>;

}  // namespace libreoffice::word
