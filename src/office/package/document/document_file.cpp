#include "office/package/document/document_file.h"

#include <memory>
#include <utility>

#include "office/model/word/objects.h"
#include "office/package/document/file_documents.h"
#include "office/package/document/template.h"
#include "office/package/office_file.h"
#include "office/package/xml.h"

namespace office::package {

constexpr std::string_view strictText = "http://purl.oclc.org/ooxml/wordprocessingml/main";

namespace {

bool isOn(std::string_view flag) {
    return flag == "1" || flag == "true" || flag == "on";
}

void addSettings(FileFacts& facts, Package& package, const std::string& main) {
    const std::string part = package.partOfType(main, "settings");
    if (part.empty()) return;
    const Xml settings(package.read(part), part);
    const auto setting = [&](std::string_view name) {
        return childNamed(settings.root(), ns::word, name);
    };
    facts.isProtected = isOn(wordValue(setting("documentProtection"), "enforcement"));
    const auto records = setting("trackRevisions");
    facts.recordsChanges = records && (wordValue(records).empty() || isOn(wordValue(records)));
}

}  // namespace

FileFacts documentFactsOf(const std::filesystem::path& file) {
    Package package = Package::open(file);
    const std::string main = documentPartOf(package);
    FileFacts facts = factsOf(package, main, strictText, "document");
    if (facts.isStrict) return facts;
    addSettings(facts, package, main);
    // What is wrong with it shows in a document that is then dropped.
    const auto document =
        std::make_shared<FileDocument>(std::move(package), "", "", std::make_shared<FileRules>());
    document->appendParagraph();
    document->selectEnd();
    document->insertCaption({"Figure", ""});
    return facts;
}

word::TextDocumentPtr FileDocuments::create(bool /*withWindow*/) {
    return addNew(emptyDocument(), "Document");
}

Object wordOfFiles(FileRules rules) {
    return word::applicationObject(
        std::make_shared<PackageGuard>(),
        std::make_shared<FileDocuments>(std::make_shared<const FileRules>(std::move(rules))));
}

}  // namespace office::package
