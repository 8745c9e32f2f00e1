#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office/model/word/objects.h"
#include "office/package/document/file_documents.h"
#include "office_double/suite_state.h"
#include "support/package_edit.h"

namespace office_double {

namespace package = office::package;
namespace word = office::model::word;

/// A paragraph as a test sees it.
struct Paragraph {
    std::string text;
    /// Its name in the file: "Caption", "Heading1"; empty for the plain one.
    std::string style;
    bool breaksPageBefore = false;
    /// Pictures, charts and objects in it.
    int objects = 0;
};

/// A PDF that was to be made of a document.
struct WrittenPdf {
    std::string path;
    word::PdfOptions options;
};

/// A document that can be exported as PDF, though nothing is written.
struct Document : package::FileDocument {
    template <class... Args>
    explicit Document(office::model::GuardPtr guardOfAll, Args&&... args)
        : FileDocument(std::forward<Args>(args)...),
          guard(std::move(guardOfAll)) {}

    /// In the order of reading, those of tables too.
    [[nodiscard]] std::vector<Paragraph> paragraphs();
    /// The texts of its captions.
    [[nodiscard]] std::vector<std::string> captions();
    /// Types text as a paragraph of its own at the end.
    Document& addText(const std::string& text);
    [[nodiscard]] word::TextObjectPtr object(word::Anchoring anchoring, std::int32_t place) {
        return objectAt(anchoring, place);
    }
    [[nodiscard]] office::Object handle() {
        return word::documentObject(
            {guard, shared_from_this(), std::make_shared<word::CaptionLabelNames>()});
    }

    bool isReadOnly() override { return readOnly; }
    void exportPdf(const std::string& path, const word::PdfOptions& options) override {
        pdfs.push_back({path, options});
    }

    office::model::GuardPtr guard;
    bool readOnly = false;
    std::vector<WrittenPdf> pdfs;
};

/// A running Word: the one for files, with calls recorded and failures planned.
class WordApplication : public package::FileDocuments {
public:
    explicit WordApplication(std::shared_ptr<SuiteState> state);

    /// An open document, which becomes the active one; of one empty paragraph if it is a new one.
    Document& addDocument(const std::string& name, const std::string& folder = "/documents",
                          package::Package content = support::emptyDocument());
    [[nodiscard]] office::Object handle() {
        return word::applicationObject(state_, shared_from_this());
    }

private:
    package::FileDocumentPtr make(package::Package content, const std::string& path,
                                  const std::string& name,
                                  const package::FileRulesPtr& rules) override {
        return std::make_shared<Document>(state_, std::move(content), path, name, rules);
    }

    std::shared_ptr<SuiteState> state_;
};

}  // namespace office_double
