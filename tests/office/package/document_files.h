#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "office/package/document/file_documents.h"
#include "office/package/document/reading_order.h"
#include "support/copied_double.h"
#include "support/package_edit.h"
#include "support/temporary_folder.h"
#include "support/written_decks.h"

/// Documents as files, and what is pasted into them.
namespace document_files {

using namespace office::package;
using office::CopySource;
using office::PasteAs;
using support::CopiedDouble;
using word::Anchoring;

inline constexpr const char* textPart = "/word/document.xml";

class DocumentFile : public testing::Test {
protected:
    void TearDown() override { support::keepDecks(folder.path(), {}); }

    /// A document with this content in its body, or a new one.
    FileDocumentPtr open(const std::string& body = "<w:p/>") {
        Package package = support::emptyDocument();
        support::edit(package, textPart, "<w:p/>", body);
        return documents->add(std::move(package), "", "Document");
    }
    /// What an export does for one picture.
    static void addPicture(FileDocument& document, const std::string& label, double width = 240,
                           double height = 150) {
        for (const bool breaks : {true, false}) {
            word::ParagraphChange change;
            change.breaksPageBefore = breaks;
            document.appendParagraph();
            document.changeLastParagraph(change);
        }
        document.selectEnd();
        document.typeParagraph();
        document.paste(CopiedDouble({CopySource::Kind::Picture, {}, {}, {}, {}}, width, height),
                       PasteAs::Default, Anchoring::Inline);
        if (!label.empty()) document.insertCaption({label, ""});
    }
    /// As it is read again. A new version goes over its file: the validator sees the last one.
    FileDocumentPtr saved(FileDocument& document) {
        std::string file = document.fullName();
        if (!std::filesystem::exists(file)) file = folder.file(std::to_string(++files_) + ".docx");
        document.saveCopy(file);
        return documents->add(Package::open(file), file, file);
    }
    /// Its paragraphs, each as its style and its text; a bar for a page break, a star for an
    /// object.
    static std::vector<std::string> read(FileDocument& document) {
        std::vector<std::string> all;
        for (const auto& paragraph : paragraphsIn(document.body())) {
            const auto properties = paragraph.child("w:pPr");
            const auto breaks = properties.child("w:pageBreakBefore");
            std::string text = breaks && breaks.attribute("w:val").as_bool(true) ? "|" : "";
            if (const auto style = properties.child("w:pStyle"))
                text += std::string(style.attribute("w:val").value()) + ":";
            visitInOrder(paragraph, [&](const auto& element) {
                const bool isObject = isTextObject(element);
                if (isObject) text += "*";
                return !isObject;
            });
            all.push_back(text + textOf(paragraph));
        }
        return all;
    }

    support::TemporaryFolder folder;
    std::shared_ptr<FileDocuments> documents =
        std::make_shared<FileDocuments>(std::make_shared<FileRules>(FileRules{
            .measure = [](const std::string& words, const auto& font, auto) -> office::Size {
                return {static_cast<double>(words.size()) * font.sizePt / 2, font.sizePt * 1.25};
            },
            .clipboard = nullptr}));

private:
    int files_ = 0;
};

}  // namespace document_files
