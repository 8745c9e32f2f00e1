// The contract of every adapter, held against a live LibreOffice. The suite is started once; each
// test opens the documents anew from copies of its own.

#include <filesystem>
#include <memory>
#include <string>

#include "contract/contract_environment.h"
#include "office/libreoffice/libreoffice_suite.h"
#include "support/temporary_folder.h"
#include "support/written_decks.h"

namespace contract {

namespace {

namespace fs = std::filesystem;

libreoffice::LibreOfficeSuite& sharedSuite() {
    static const auto suite = libreoffice::LibreOfficeSuite::startPrivate();
    return *suite;
}

void closeAll(const office::Object& documents) {
    for (std::int32_t i = documents.get("Count").toLong(); i >= 1; --i) {
        documents.get("Item", i).call("Close");
    }
}

class LiveEnvironment : public Environment {
public:
    LiveEnvironment() { closeDocuments(); }
    ~LiveEnvironment() override { support::keepDecks(folder_.path(), MURVANE_CONTRACT_FIXTURE); }
    LiveEnvironment(const LiveEnvironment&) = delete;
    LiveEnvironment& operator=(const LiveEnvironment&) = delete;

    office::Suite& suite() override { return sharedSuite(); }

    std::string document(std::string_view fileName) override {
        const fs::path copy = folder_.file(fileName);
        fs::copy_file(fs::path(MURVANE_CONTRACT_FIXTURE) / fileName, copy,
                      fs::copy_options::overwrite_existing);
        return copy.string();
    }

    std::string temporaryFile(std::string_view fileName) override { return folder_.file(fileName); }

private:
    static void closeDocuments() {
        closeAll(sharedSuite().attach("Excel.Application").get("Workbooks").toObject());
        closeAll(sharedSuite().attach("PowerPoint.Application").get("Presentations").toObject());
    }

    support::TemporaryFolder folder_;
};

}  // namespace

std::unique_ptr<Environment> makeEnvironment() {
    return std::make_unique<LiveEnvironment>();
}

}  // namespace contract
