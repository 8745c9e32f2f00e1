#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "apps/murvane_export/run.h"
#include "office_double/suite.h"
#include "scripted_console.h"
#include "session_doubles/scripted_host.h"
#include "support/temporary_folder.h"

/// murvane-export on a suite in memory: a workbook and a deck on disk, of which the suite knows
/// what is inside.
class RunStage : public testing::Test {
protected:
    RunStage() {
        host.temporaryFolder = temporary.path().string();
        bookFile = folder.write("Book.xlsx", "a workbook");
        deckFile = folder.write("Deck.pptx", "a deck");
        suite->excel().addFile(bookFile, [](office_double::Workbook& book) { fill(book); });
        suite->powerPoint().addFile(deckFile, [this](office_double::Presentation& opened) {
            opened.addSlides(2);
            keep(opened);
        });
    }

    /// To be looked into also after it was closed.
    void keep(office_double::Presentation& opened) {
        deck = std::dynamic_pointer_cast<office_double::Presentation>(opened.shared_from_this());
    }

    static void fill(office_double::Workbook& book) {
        book.sheet("North").chart("Chart 1").chart("Chart 2");
        book.sheet("South").chart("Chart 1");
        book.chartSheet("Overview");
        book.define("Total", "=North!$A$1:$C$4");
    }

    /// Runs a command line, without the program's name.
    int run(const std::vector<std::string>& words) {
        const auto parsed = unattended::parseOptions(words);
        if (const auto* end = std::get_if<unattended::ParseEnd>(&parsed)) {
            ADD_FAILURE() << end->error;
            return -1;
        }
        console.out.clear();
        console.error.clear();
        const apps::SuiteSource suites{[this]() -> std::shared_ptr<office::Suite> {
                                           ++suitesStarted;
                                           return suite;
                                       },
                                       [this] { return suite; }};
        return unattended::run(std::get<unattended::Options>(parsed),
                               {suites, host, console, [this] { return isInterrupted(); }});
    }

    /// Exports into the deck, with more options.
    int exportWith(std::vector<std::string> more = {}) {
        std::vector<std::string> words = {bookFile, "--into", deckFile, "--output",
                                          folder.file("Out.pptx")};
        words.insert(words.end(), more.begin(), more.end());
        return run(words);
    }

    /// Alternative texts of the pictures that the deck has got, in the order of its slides.
    [[nodiscard]] std::vector<std::string> pictures() const {
        std::vector<std::string> texts;
        for (std::int32_t place = 1; place <= deck->slideCount(); ++place) {
            for (const auto& shape : deck->slide(place).shapes())
                if (shape.isPicture()) texts.push_back(shape.alternativeText());
        }
        return texts;
    }

    /// What a file has of slides.
    [[nodiscard]] std::int32_t slidesIn(const std::string& name) const {
        return std::make_shared<office::package::FileDecks>(
                   std::make_shared<office::package::FileRules>())
            ->load(folder.file(name), false)
            ->slideCount();
    }
    [[nodiscard]] bool hasOutput() const { return folder.names().contains("Out.pptx"); }
    [[nodiscard]] bool hasOnlyInputs() const {
        return folder.names() == std::set<std::string>{"Book.xlsx", "Deck.pptx"};
    }

    support::TemporaryFolder folder;
    support::TemporaryFolder temporary;
    std::shared_ptr<office_double::DoubleSuite> suite =
        std::make_shared<office_double::DoubleSuite>();
    std::string bookFile;
    std::string deckFile;
    session_doubles::ScriptedHost host;
    ScriptedConsole console;
    int suitesStarted = 0;
    std::function<bool()> isInterrupted = [] { return false; };
    std::shared_ptr<office_double::Presentation> deck;
};
