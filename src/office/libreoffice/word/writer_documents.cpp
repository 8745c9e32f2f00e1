#include <com/sun/star/frame/XLoadable.hpp>

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
        if (withWindow) return makeNew("private:factory/swriter", true);
        auto document = desk().record<WriterDocument>(newWithoutTemplate());
        document->markActive();
        document->stayUnseen();
        return document;
    }
    /// The other applications live in the same process.
    void quit() override {}

private:
    /// The factory would begin with what the user has chosen for new texts, a letterhead for one.
    [[nodiscard]] uno::Reference<css::frame::XModel> newWithoutTemplate() const {
        const Connection& connection = desk().connection();
        const auto made =
            as<css::frame::XModel>(connection.create("com.sun.star.text.TextDocument"));
        as<css::frame::XLoadable>(made)->initNew();
        connection.desktop()->loadComponentFromURL(
            "private:object", "_blank", 0,
            propertyValues({{"Hidden", uno::Any(true)}, {"Model", uno::Any(made)}}));
        return made;
    }
};

}  // namespace

office::Object applicationObject(const DeskPtr& desk) {
    return model::applicationObject(desk->guard(), std::make_shared<WriterDocuments>(desk));
}

}  // namespace libreoffice::word
