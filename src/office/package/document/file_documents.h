#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office/package/document/file_document.h"

namespace office::package {

/// The documents that are open, as files or to become such.
class FileDocuments : public word::TextDocuments,
                      public std::enable_shared_from_this<FileDocuments> {
public:
    explicit FileDocuments(FileRulesPtr rules) : rules_(std::move(rules)) {}

    /// Opens what is in a package as the active document. `path` is empty for one that has no file
    /// yet.
    FileDocumentPtr add(Package package, const std::string& path, const std::string& name);

    std::string version() override { return "16.0"; }
    std::vector<word::TextDocumentPtr> open() override {
        return {documents_.begin(), documents_.end()};
    }
    /// The one that was used last stands last.
    word::TextDocumentPtr active() override {
        return documents_.empty() ? nullptr : documents_.back();
    }
    word::TextDocumentPtr load(const std::string& file, bool withWindow) override;
    word::TextDocumentPtr create(bool withWindow) override;
    void quit() override {}

private:
    /// The document of a package; another application may have one that can do more.
    virtual FileDocumentPtr makeDocument(Package package, const std::string& path,
                                         const std::string& name, const FileRulesPtr& rules);
    void activate(const FileDocument& wanted);

    FileRulesPtr rules_;
    std::vector<FileDocumentPtr> documents_;
    int created_ = 0;
};

}  // namespace office::package
