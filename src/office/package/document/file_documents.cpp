#include "office/package/document/file_documents.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "office/package/document/template.h"

namespace office::package {

FileDocumentPtr FileDocuments::add(Package package, const std::string& path,
                                   const std::string& name) {
    FileDocumentPtr document = makeDocument(std::move(package), path, name, rules_);
    document->onActivated([self = weak_from_this()](FileDocument& active) {
        if (const auto documents = self.lock()) documents->activate(active);
    });
    document->onClosed([self = weak_from_this()](FileDocument& closed) {
        closed.markGone();
        if (const auto documents = self.lock())
            std::erase_if(documents->documents_,
                          [&](const auto& held) { return held.get() == &closed; });
    });
    documents_.push_back(document);
    return document;
}

word::TextDocumentPtr FileDocuments::load(const std::string& file, bool /*withWindow*/) {
    const auto known =
        std::find_if(documents_.begin(), documents_.end(),
                     [&](const auto& document) { return document->fullName() == file; });
    if (known != documents_.end()) {
        activate(**known);
        return documents_.back();
    }
    const std::filesystem::path path(std::u8string(file.begin(), file.end()));
    const auto name = path.filename().u8string();
    return add(Package::open(path), file, {name.begin(), name.end()});
}

word::TextDocumentPtr FileDocuments::create(bool /*withWindow*/) {
    return add(Package::fromBytes(emptyDocument()), "", fmt::format("Document{}", ++created_));
}

FileDocumentPtr FileDocuments::makeDocument(Package package, const std::string& path,
                                            const std::string& name, const FileRulesPtr& rules) {
    return std::make_shared<FileDocument>(std::move(package), path, name, rules);
}

void FileDocuments::activate(const FileDocument& wanted) {
    const auto found = std::find_if(documents_.begin(), documents_.end(),
                                    [&](const auto& held) { return held.get() == &wanted; });
    if (found != documents_.end()) std::rotate(found, found + 1, documents_.end());
}

}  // namespace office::package
