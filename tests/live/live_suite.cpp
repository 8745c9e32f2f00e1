#include "live/live_suite.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <fmt/format.h>

#include <chrono>
#include <filesystem>

#include "contract/contract_environment.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/application.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/libreoffice_suite.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/private_instance.h"
#include "office/package/package.h"
#include "support/png_file.h"
#include "support/written_decks.h"

namespace live {

using namespace libreoffice;

namespace {

/// Ends the suite with the last test, while the bridge to it still stands.
class SharedSuite : public testing::Environment {
public:
    void SetUp() override {
        auto instance = PrivateInstance::start(std::chrono::seconds(60));
        connection = instance->connection();
        suite = LibreOfficeSuite::on(std::move(instance));
    }
    void TearDown() override {
        connection.reset();
        suite.reset();
    }

    std::shared_ptr<Connection> connection;
    std::unique_ptr<LibreOfficeSuite> suite;
};

// The framework owns it.
auto* const shared = static_cast<SharedSuite*>(
    testing::AddGlobalTestEnvironment(std::make_unique<SharedSuite>().release()));

/// What the contract needs.
class LiveEnvironment : public contract::Environment {
public:
    LiveEnvironment() = default;
    ~LiveEnvironment() override { support::keepDecks(folder_.path(), MURVANE_CONTRACT_FIXTURE); }
    LiveEnvironment(const LiveEnvironment&) = delete;
    LiveEnvironment& operator=(const LiveEnvironment&) = delete;

    office::Suite& suite() override { return *shared->suite; }

    std::string document(std::string_view fileName) override {
        const std::filesystem::path copy = folder_.file(fileName);
        copy_file(std::filesystem::path(MURVANE_CONTRACT_FIXTURE) / fileName, copy,
                  std::filesystem::copy_options::overwrite_existing);
        return copy.string();
    }

    std::string temporaryFile(std::string_view fileName) override { return folder_.file(fileName); }

private:
    support::TemporaryFolder folder_;
};

}  // namespace

const std::shared_ptr<Connection>& LiveSuite::connection() {
    return shared->connection;
}

std::string LiveSuite::copyOf(const std::string& folder, std::string_view name) const {
    std::filesystem::copy_file(std::filesystem::path(folder) / name, file(name));
    return file(name);
}

ExcelLive::ExcelLive() {
    app = excel::applicationObject(desk);
}

void ExcelLive::TearDown() {
    for (const auto& book : desk->open<excel::CalcDocument>()) book->close();
}

Object ExcelLive::open(std::string_view name) {
    return app.get("Workbooks").call("Open", copyOf(MURVANE_TEST_BOOKS, name)).toObject();
}

Object ExcelLive::sheet(const Object& book, const Value& which) {
    return book.get("Sheets").get("Item", which).toObject();
}

uno::Reference<css::frame::XModel> ExcelLive::model() const {
    return desk->active<excel::CalcDocument>()->model();
}

std::string ExcelLive::savedAs(std::string_view name, const char* filter,
                               const char* password) const {
    const uno::Any filterName(toUno(filter));
    as<css::frame::XStorable>(model())->storeToURL(
        fileUrl(file(name)), *password == '\0'
                                 ? propertyValues({{"FilterName", filterName}})
                                 : propertyValues({{"FilterName", filterName},
                                                   {"Password", uno::Any(toUno(password))}}));
    return file(name);
}

std::vector<std::string> ExcelLive::openDocuments() const {
    std::vector<std::string> urls;
    const auto all = connection()->desktop()->getComponents()->createEnumeration();
    while (all->hasMoreElements()) {
        const uno::Reference<css::frame::XModel> document(all->nextElement(), uno::UNO_QUERY);
        if (document.is()) urls.push_back(fromUno(document->getURL()));
    }
    return urls;
}

PowerPointLive::PowerPointLive() {
    app = powerpoint::applicationObject(desk);
}

void PowerPointLive::TearDown() {
    support::keepDecks(file(""), MURVANE_TEST_DECKS);
    for (const auto& deck : desk->open<powerpoint::ImpressDeck>()) deck->close();
}

Object PowerPointLive::open(std::string_view deck) {
    return openFile(copyOf(MURVANE_TEST_DECKS, deck));
}

Object PowerPointLive::openFile(const std::string& path) {
    return app.get("Presentations").call("Open", path).toObject();
}

Object PowerPointLive::openWithSlides() {
    Object deck = open("english.pptx");
    for (const std::int32_t layout : {titleOnly, titleOnly, blank}) addSlide(deck, layout);
    return deck;
}

Object PowerPointLive::addPicture(const Object& slide, double widthPt, double heightPt) const {
    const std::string picture = file("picture.png");
    support::writeBytes(picture, support::pngPictureOfPoints(widthPt, heightPt));
    return slide.get("Shapes").call("AddPicture", picture, 0, -1, 0, 0, -1, -1).toObject();
}

Object PowerPointLive::addSlide(const Object& deck, std::int32_t layout) {
    return deck.get("Slides").call("Add", slideCount(deck) + 1, layout).toObject();
}

Object PowerPointLive::slide(const Object& deck, std::int32_t place) {
    return deck.get("Slides").get("Item", place).toObject();
}

std::int32_t PowerPointLive::slideCount(const Object& deck) {
    return deck.get("Slides").get("Count").toLong();
}

void PowerPointLive::expectSaved(const Object& deck, int slide, const std::vector<std::string>& all,
                                 const std::vector<std::string>& none) const {
    deck.call("SaveCopyAs", file("saved.pptx"));
    const auto package = office::package::Package::open(file("saved.pptx"));
    const std::string xml = package.read(fmt::format("/ppt/slides/slide{}.xml", slide));
    for (const std::string& each : all)
        EXPECT_NE(xml.find(each), std::string::npos) << each << "\n" << xml;
    for (const std::string& each : none)
        EXPECT_EQ(xml.find(each), std::string::npos) << each << "\n" << xml;
}

}  // namespace live

std::unique_ptr<contract::Environment> contract::makeEnvironment() {
    return std::make_unique<live::LiveEnvironment>();
}
