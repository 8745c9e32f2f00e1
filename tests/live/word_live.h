#pragma once

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/text/XTextEmbeddedObjectsSupplier.hpp>
#include <com/sun/star/text/XTextTable.hpp>
#include <com/sun/star/text/XTextTablesSupplier.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>
#include <fmt/format.h>

#include "live/live_suite.h"
#include "office/libreoffice/excel/application.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/word/writer_document.h"

namespace live {

namespace excel = libreoffice::excel;
namespace word = libreoffice::word;
namespace uno = libreoffice::uno;
using libreoffice::as;
using libreoffice::fromUno;
using libreoffice::property;
using libreoffice::toUno;
using TextRef = uno::Reference<css::text::XText>;

/// A text beside a workbook with charts and cells.
class WordLive : public LiveSuite {
protected:
    WordLive() {
        app = word::applicationObject(desk);
        const Object excelApp = excel::applicationObject(desk);
        book = excelApp.get("Workbooks")
                   .call("Open", copyOf(MURVANE_TEST_BOOKS, "sheets.xlsx"))
                   .toObject();
        document = app.get("Documents").call("Add").toObject();
    }
    void TearDown() override {
        for (const auto& each : desk->open<word::WriterDocument>()) each->close();
        for (const auto& each : desk->open<excel::CalcDocument>()) each->close();
    }

    [[nodiscard]] Object selection() const {
        return document.get("ActiveWindow").get("Selection").toObject();
    }
    void copyChart() const { sheet("Alike").get("ChartObjects").get("Item", 1).call("Copy"); }
    void copyPicture() const {
        sheet("Alike").get("ChartObjects").get("Item", 1).call("CopyPicture");
    }
    void copyCells() const { sheet("Data").get("Range", "A1:C3").call("Copy"); }
    [[nodiscard]] Value sheet(const char* name) const {
        return book.get("Sheets").get("Item", name);
    }
    [[nodiscard]] std::int32_t count(const char* shapes) const {
        return document.get(shapes).get("Count").toLong();
    }
    void caption(const std::string& label, const std::string& title = "") const {
        // There may be one of that name from another test.
        support::failureOf([&] { app.get("CaptionLabels").call("Add", label); });
        selection().call("InsertCaption", label, title);
    }

    [[nodiscard]] uno::Reference<css::frame::XModel> model() const {
        return desk->active<word::WriterDocument>()->model();
    }
    [[nodiscard]] TextRef body() const { return desk->active<word::WriterDocument>()->body(); }
    [[nodiscard]] std::string text() const { return fromUno(body()->getString()); }
    void select(const uno::Any& what) const {
        as<css::view::XSelectionSupplier>(model()->getCurrentController())->select(what);
    }
    /// A thing of a service at the end of the text.
    [[nodiscard]] uno::Reference<css::text::XTextContent> put(const char* service,
                                                              bool overAll = false) const {
        const auto made = as<css::text::XTextContent>(
            desk->active<word::WriterDocument>()->createInstance(service));
        const auto cursor = body()->createTextCursorByRange(body()->getEnd());
        if (overAll) cursor->gotoStart(true);
        body()->insertTextContent(uno::Reference<css::text::XTextRange>(cursor.get()), made,
                                  overAll);
        return made;
    }
    [[nodiscard]] uno::Reference<css::text::XTextTable> table(sal_Int32 at = 0) const {
        return {as<css::container::XIndexAccess>(
                    as<css::text::XTextTablesSupplier>(model())->getTextTables())
                    ->getByIndex(at),
                uno::UNO_QUERY_THROW};
    }
    [[nodiscard]] TextRef cell(const char* name) const {
        return as<css::text::XText>(table()->getCellByName(toUno(name)));
    }
    /// The models of the embedded objects.
    [[nodiscard]] std::vector<uno::Reference<css::frame::XModel>> embedded() const {
        const auto all = as<css::container::XIndexAccess>(
            as<css::text::XTextEmbeddedObjectsSupplier>(model())->getEmbeddedObjects());
        std::vector<uno::Reference<css::frame::XModel>> models;
        for (sal_Int32 i = 0; i < all->getCount(); ++i)
            models.push_back(property<uno::Reference<css::frame::XModel>>(
                uno::Reference<uno::XInterface>(all->getByIndex(i), uno::UNO_QUERY_THROW),
                "Model"));
        return models;
    }
    void openSaved(const char* ending) {
        const std::string path = file(std::string("saved") + ending);
        document.call("SaveCopyAs", path);
        document = app.get("Documents").call("Open", path).toObject();
    }

    Object book;
    Object document;
};

}  // namespace live
