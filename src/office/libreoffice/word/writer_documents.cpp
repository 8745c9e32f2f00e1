#include <utility>

#include "office/libreoffice/word/writer_document.h"
#include "office/model/word/objects.h"

namespace libreoffice::word {

namespace {

class WriterDocuments : public model::TextDocuments {
public:
    explicit WriterDocuments(DeskPtr desk) : desk_(std::move(desk)) {}

    std::string version() override { return "16.0"; }
    std::vector<model::TextDocumentPtr> open() override {
        const auto documents = desk_->textDocuments();
        return {documents.begin(), documents.end()};
    }
    model::TextDocumentPtr active() override { return desk_->activeTextDocument(); }
    model::TextDocumentPtr load(const std::string& file, bool withWindow) override {
        const rtl::OUString url = fileUrl(file);
        auto document = desk_->alreadyOpen<WriterDocument>(url);
        if (!document) document = desk_->loaded<WriterDocument>(url, withWindow);
        document->markActive();
        return document;
    }
    model::TextDocumentPtr create(bool withWindow) override {
        auto document = desk_->loaded<WriterDocument>("private:factory/swriter", withWindow);
        if (!withWindow) document->forgoUndo();
        document->markActive();
        return document;
    }
    /// The other applications live in the same process.
    void quit() override {}

private:
    DeskPtr desk_;
};

}  // namespace

office::Object applicationObject(const DeskPtr& desk) {
    return model::applicationObject(desk->guard(), std::make_shared<WriterDocuments>(desk));
}

}  // namespace libreoffice::word
