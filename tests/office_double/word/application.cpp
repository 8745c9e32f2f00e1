#include "office_double/word/application.h"

#include "office/package/document/paragraph.h"
#include "office/package/document/reading_order.h"

namespace office_double {

std::vector<Paragraph> Document::paragraphs() {
    std::vector<Paragraph> all;
    for (const auto& node : package::paragraphsIn(body())) {
        Paragraph paragraph{.text = package::textOf(node), .style = package::styleOf(node)};
        const auto breaks = node.child("w:pPr").child("w:pageBreakBefore");
        paragraph.breaksPageBefore = breaks && breaks.attribute("w:val").as_bool(true);
        package::visitInOrder(node, [&](const auto& element) {
            const bool isObject = package::isTextObject(element);
            if (isObject) ++paragraph.objects;
            return !isObject;
        });
        all.push_back(std::move(paragraph));
    }
    return all;
}

std::vector<std::string> Document::captions() {
    std::vector<std::string> all;
    for (Paragraph& paragraph : paragraphs()) {
        if (paragraph.style == "Caption") all.push_back(std::move(paragraph.text));
    }
    return all;
}

Document& Document::addText(const std::string& text) {
    appendParagraph();
    selectEnd();
    typeText(text);
    return *this;
}

WordApplication::WordApplication(std::shared_ptr<SuiteState> state)
    : FileDocuments(std::make_shared<package::FileRules>(
          package::FileRules{.measure = measureOfDouble,
                             .clipboard = state->clipboard,
                             .pictures = std::make_shared<DrawnAtOnce>()})),
      state_(std::move(state)) {}

Document& WordApplication::addDocument(const std::string& name, const std::string& folder,
                                       package::Package content) {
    return dynamic_cast<Document&>(*add(std::move(content), folder + "/" + name, name));
}

}  // namespace office_double
