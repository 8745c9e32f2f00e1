#pragma once

#include "office/package/document/file_document.h"
#include "office/package/open_files.h"

namespace office::package {

class FileDocuments : public OpenFiles<word::TextDocuments, word::TextDocument, FileDocument> {
public:
    using OpenFiles::OpenFiles;
    word::TextDocumentPtr create(bool withWindow) override;
    void quit() override {}
};

}  // namespace office::package
