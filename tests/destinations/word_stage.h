#pragma once

#include <gtest/gtest.h>

#include "catalogue/export_choices.h"
#include "office_double/suite.h"
#include "office_double/word/application.h"
#include "session_doubles/item.h"
#include "session_doubles/test_session.h"

namespace stage {

/// A workbook of two charts, a chart sheet and a range, and an open document of one line.
class WordStage : public testing::Test {
protected:
    WordStage() {
        book.sheet("Sales").chart("Chart 1").chart("Chart 2").value("A1", 1.0);
        book.chartSheet("Overview");
        book.define("Total", "=Sales!$A$1:$C$4");
        document.addText("Figures");
        test.attach();
        session.ActiveBook = book.handle();
    }

    void add(const char* name, const char* sheet, const char* caption,
             session::ItemKind kind = session::ItemKind::Chart) {
        list.rows.push_back(session_doubles::item(kind, name, sheet, caption));
    }
    /// One of each kind; the range and the first chart have the same caption.
    void addOfEachKind() {
        add("Chart 1", "Sales", "Turnover");
        add("{Chart Sheet}", "Overview", "", session::ItemKind::ChartSheet);
        add("Total", "Sales", "Turnover", session::ItemKind::Range);
    }

    session_doubles::TestSession test;
    session::OfficeSession& session = test.session;
    office_double::Workbook& book = test.suite.excel().addWorkbook("Book1.xlsx");
    office_double::Document& document = test.suite.word().addDocument("Report.docx");
    catalogue::ExportList list;
};

}  // namespace stage
