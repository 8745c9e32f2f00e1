#include "office_double/excel/application.h"

#include <algorithm>
#include <filesystem>

#include "office/model/excel/objects.h"
#include "office/text.h"
#include "office_double/excel/picture.h"

namespace office_double {

Workbook& ExcelApplication::addWorkbook(const std::string& name, const std::string& folder) {
    books_.push_back(std::make_shared<Workbook>(*this, folder, name));
    activate(*books_.back());
    return *books_.back();
}

void ExcelApplication::addFile(const std::string& path, std::function<void(Workbook&)> fill) {
    files_[path] = std::move(fill);
}

void ExcelApplication::selectRange(const std::string& address) {
    activeWorkbook()->activeSheet()->select(excel::blocksOf(address).value());
}

office::Object ExcelApplication::handle() {
    return excel::applicationObject(state_, shared_from_this());
}

office::Object ExcelApplication::handleOf(Workbook& book) {
    return excel::workbookObject({state_, shared_from_this(), book.shared_from_this()});
}

Workbook* ExcelApplication::activeWorkbook() const {
    for (const auto& book : books_) {
        if (!recent_.empty() && book.get() == recent_.back()) return book.get();
    }
    return books_.empty() ? nullptr : books_.front().get();
}

Workbook* ExcelApplication::findOpen(std::string_view name) const {
    for (const auto& book : books_) {
        if (office::sameIgnoringCase(book->name(), name)) return book.get();
    }
    return nullptr;
}

void ExcelApplication::activate(const Workbook& book) {
    std::erase(recent_, &book);
    recent_.push_back(&book);
}

void ExcelApplication::closeBook(const Workbook& book) {
    std::erase(recent_, &book);
    std::erase_if(books_, [&](const auto& held) { return held.get() == &book; });
}

excel::BookPtr ExcelApplication::active() {
    Workbook* book = activeWorkbook();
    return book == nullptr ? nullptr : book->shared_from_this();
}

excel::BookPtr ExcelApplication::load(const std::string& file, const std::string&, bool readOnly) {
    const std::filesystem::path path = file;
    const auto known = files_.find(file);
    if (known == files_.end()) office::refuse("Workbooks.Open", "There is no workbook " + file);
    Workbook& book = addWorkbook(path.filename().string(), path.parent_path().string());
    known->second(book);
    if (readOnly) book.readOnly();
    book.setModified(false);
    return book.shared_from_this();
}

void ExcelApplication::writePicture(const office::CopiedPtr& picture, const excel::Box& area,
                                    const std::string& path, office::PictureKind kind) {
    writePictureOf(picture ? excel::Box{0, 0, picture->widthPt(), picture->heightPt()} : area, path,
                   kind);
}

}  // namespace office_double
