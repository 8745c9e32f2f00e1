// A LibreOffice with windows on a screen, as a user has it.

#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/installation.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/process.h"
#include "support/temporary_folder.h"

namespace live {

namespace {

using namespace libreoffice;
using namespace std::chrono_literals;

template <class Condition>
bool becomesTrue(const Condition& condition, std::chrono::seconds patience = 10s) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(20ms);
    }
    return true;
}

/// The suite of all tests here.
class Screen : public testing::Environment {
public:
    void SetUp() override {
        // On a new profile the suite would try out its drawing for a second.
        const auto profile = folder.path() / "profile" / "user";
        std::filesystem::create_directories(profile);
        std::filesystem::copy_file(MURVANE_QUIET_SUITE, profile / "registrymodifications.xcu");
        const std::string pipe = "murvane-windows-" + std::to_string(getpid());
        process = std::make_unique<Process>(
            Process::start({programFolder() + "/soffice",
                            "-env:UserInstallation=file://" + folder.path().string() + "/profile",
                            "--accept=pipe,name=" + pipe + ";urp", "--norestore", "--nologo",
                            "--nodefault", "--nolockcheck"},
                           true));
        ASSERT_TRUE(
            becomesTrue([&] { return (connection = Connection::open(pipe)) != nullptr; }, 60s));
    }
    void TearDown() override {
        if (connection) static_cast<void>(connection->desktop()->terminate());
        connection.reset();
        process->waitFor(20s);
    }

    support::TemporaryFolder folder;
    std::unique_ptr<Process> process;
    std::shared_ptr<Connection> connection;
};

// The framework owns it.
auto* const screen =
    static_cast<Screen*>(testing::AddGlobalTestEnvironment(std::make_unique<Screen>().release()));

class Windows : public testing::Test {
protected:
    void TearDown() override {
        const auto desk = freshDesk();
        for (const auto& book : desk->open<excel::CalcDocument>()) book->close();
        for (const auto& deck : desk->open<powerpoint::ImpressDeck>()) deck->close();
    }

    /// What automation that was just started knows.
    [[nodiscard]] static DeskPtr freshDesk() {
        return std::make_shared<Desk>(screen->connection, false,
                                      std::make_shared<office::Clipboard>(),
                                      std::make_shared<office::drawing::DrawingRoom>());
    }
};

using Model = uno::Reference<css::frame::XModel>;

/// As a click on the document's window does, and another one where the window manager was busy.
void goTo(const Model& document) {
    const auto frame = document->getCurrentController()->getFrame();
    const auto window = frame->getContainerWindow();
    const auto click = [&] {
        as<css::awt::XTopWindow>(window)->toFront();
        frame->activate();
        window->setFocus();
        return becomesTrue(
            [&] {
                return tryAs<css::frame::XModel>(
                           screen->connection->desktop()->getCurrentComponent()) == document;
            },
            2s);
    };
    ASSERT_TRUE(click() || click() || click());
}

TEST_F(Windows, TheActiveDocumentOfAKindIsTheOneThatTheUserWasInLast) {
    const auto desk = freshDesk();
    std::vector<Model> documents;
    for (const char* kind : {"scalc", "scalc", "simpress", "simpress"})
        documents.push_back(desk->load("private:factory/" + toUno(kind), false));
    std::vector<std::size_t> order = {0, 1, 2, 3};
    do {
        for (const std::size_t each : order) goTo(documents[each]);
        const auto place = [&](std::size_t each) {
            return std::find(order.begin(), order.end(), each) - order.begin();
        };
        const auto last = [&](std::size_t one, std::size_t other) {
            return documents[place(one) > place(other) ? one : other];
        };
        std::string told;
        for (const std::size_t each : order) told += std::to_string(each);
        // The window system raises a window a moment after it is asked to.
        for (const bool anew : {true, false}) {
            EXPECT_TRUE(becomesTrue([&] {
                const DeskPtr asked = anew ? freshDesk() : desk;
                return asked->active<excel::CalcDocument>()->model() == last(0, 1) &&
                       asked->active<powerpoint::ImpressDeck>()->model() == last(2, 3);
            })) << told;
            if (HasFailure()) return;
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

}  // namespace

}  // namespace live
