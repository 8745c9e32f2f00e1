#pragma once

#include <pugixml.hpp>

#include <memory>
#include <string>

#include "office/model/word/text_document.h"

namespace office::package {

namespace word = office::model::word;

class FileDocument;

/// A picture, a chart, an object or a shape in the text of a package.
class FileObject : public word::TextObject, public std::enable_shared_from_this<FileObject> {
public:
    /// `element` is as in `isTextObject`.
    FileObject(FileDocument& document, pugi::xml_node element);

    [[nodiscard]] pugi::xml_node element() const { return element_; }
    [[nodiscard]] word::Anchoring anchoring() const override { return anchoring_; }
    void markGone() { isGone_ = true; }

    [[nodiscard]] bool isGone() const override { return isGone_; }
    Size size() override;
    void resize(const Size& size) override;
    std::string alternativeText() override;
    void setAlternativeText(const std::string& text) override;
    word::ObjectShadow shadow() override;
    void setShadow(const word::ObjectShadow& shadow) override;
    void setLeft(double left) override;
    void select() override;

private:
    /// The part of the chart that it shows; empty for anything else.
    [[nodiscard]] std::string chartPart();

    FileDocument& document_;
    pugi::xml_node element_;
    /// Read once, since each count of objects asks all of them. Nothing here changes it.
    word::Anchoring anchoring_;
    bool isGone_ = false;
};

using FileObjectPtr = std::shared_ptr<FileObject>;

}  // namespace office::package
