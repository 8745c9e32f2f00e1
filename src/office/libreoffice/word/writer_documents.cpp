#include "office/libreoffice/suite_documents.h"
#include "office/libreoffice/word/writer_document.h"
#include "office/model/word/objects.h"

namespace libreoffice::word {

namespace {

class WriterDocuments
    : public SuiteDocuments<model::TextDocuments, model::TextDocument, WriterDocument> {
public:
    using SuiteDocuments::SuiteDocuments;

    model::TextDocumentPtr create(bool withWindow) override {
        auto document = makeNew("private:factory/swriter", withWindow);
        if (!withWindow) document->stayUnseen();
        return document;
    }
    /// The other applications live in the same process.
    void quit() override {}
};

}  // namespace

office::Object applicationObject(const DeskPtr& desk) {
    return model::applicationObject(desk->guard(), std::make_shared<WriterDocuments>(desk));
}

}  // namespace libreoffice::word
