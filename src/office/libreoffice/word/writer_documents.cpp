#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>

#include <utility>

#include "office/failure.h"
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
    model::TextDocumentPtr load(const std::string& file, bool withWindow) override;
    model::TextDocumentPtr create(bool withWindow) override;
    /// The other applications live in the same process.
    void quit() override {}

private:
    [[nodiscard]] bool isHidden(bool withWindow) const {
        return desk_->opensHidden() || !withWindow;
    }
    [[nodiscard]] std::shared_ptr<WriterDocument> openedFrom(const rtl::OUString& url) const;

    DeskPtr desk_;
};

model::TextDocumentPtr WriterDocuments::load(const std::string& file, bool withWindow) {
    auto document = openedFrom(fileUrl(file));
    if (!document) {
        const auto model = desk_->load(fileUrl(file), isHidden(withWindow));
        if (!as<css::lang::XServiceInfo>(model)->supportsService(
                "com.sun.star.text.TextDocument")) {
            as<css::util::XCloseable>(model)->close(true);
            throw office::Failure(office::FailureNumber::ApplicationDefined, "Documents.Open",
                                  fmt::format("\"{}\" is not a text document", file));
        }
        document = desk_->textDocument(model);
    }
    document->markActive();
    return document;
}

std::shared_ptr<WriterDocument> WriterDocuments::openedFrom(const rtl::OUString& url) const {
    // LibreOffice would open a file twice, and the two would go separate ways.
    for (const auto& document : desk_->textDocuments()) {
        if (document->url() == url) return document;
    }
    return nullptr;
}

model::TextDocumentPtr WriterDocuments::create(bool withWindow) {
    auto document =
        desk_->textDocument(desk_->load("private:factory/swriter", isHidden(withWindow)));
    if (!withWindow) document->forgoUndo();
    document->markActive();
    return document;
}

}  // namespace

office::Object applicationObject(const DeskPtr& desk) {
    return model::applicationObject(desk->guard(), std::make_shared<WriterDocuments>(desk));
}

}  // namespace libreoffice::word
