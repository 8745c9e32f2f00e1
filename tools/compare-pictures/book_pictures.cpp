#include "book_pictures.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "office/failure_patterns.h"
#include "office/libreoffice/excel/application.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/private_folder.h"
#include "office/libreoffice/units.h"

namespace compare {

namespace {

using libreoffice::pointsOf;

std::string contentOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Empty if the room knows no way to draw it.
std::string drawnByRoom(const libreoffice::uno::Sequence<sal_Int8>& metafile,
                        const libreoffice::css::awt::Size& size, bool isTranslucent) {
    const auto pixels = libreoffice::excel::pixelsOf(size, office::Sharpness::Crisp);
    office::ContinueOnFailure scope;
    std::string png;
    scope.attempt([&] {
        png = office::drawing::pngOf({std::string(libreoffice::bytesOf(metafile)), pixels.Width,
                                      pixels.Height, pointsOf(size.Width), pointsOf(size.Height),
                                      isTranslucent});
    });
    return png;
}

}  // namespace

BookPictures::BookPictures()
    : instance_(libreoffice::PrivateInstance::start(std::chrono::seconds(60))),
      desk_(std::make_shared<libreoffice::Desk>(instance_->connection(), true,
                                                std::make_shared<office::Clipboard>(),
                                                std::make_shared<office::drawing::DrawingRoom>())) {
}

void BookPictures::forEach(const std::string& book, const std::function<void(const Pair&)>& use) {
    namespace excel = libreoffice::excel;
    const office::Object application = excel::applicationObject(desk_);
    const office::Object opened = application.get("Workbooks")
                                      .call("Open", std::filesystem::absolute(book).string())
                                      .toObject();
    excel::PictureMaker& maker = excel::pictureMaker(*desk_);
    excel::SuitePictures& suite = maker.suite();
    const libreoffice::PrivateFolder folder;
    const std::string file = folder.file("suite.png");
    const std::string bookName = std::filesystem::path(book).filename().string();

    for (const auto& sheet : desk_->active<excel::CalcDocument>()->sheetList().all()) {
        for (const auto& chart : sheet->chartShapes().all()) {
            suite.writeChart(chart->shape(), file);
            const excel::ChartLook look = excel::lookOf(chart->shape());
            const auto metafile = suite.metafileOf(look.graphic);
            use({bookName, chart->knownName(), contentOf(file),
                 drawnByRoom(metafile, chart->shape()->getSize(), !excel::isOpaque(look)),
                 maker.drawnOtherwise(metafile)});
        }
    }
    const office::Object names = opened.get("Names").toObject();
    for (std::int32_t i = 1; i <= names.get("Count").toLong(); ++i) {
        const office::Object name = names.get("Item", i).toObject();
        office::ContinueOnFailure scope;
        // A name need not lead to cells.
        const bool isCopied = scope.attempt(
            [&] { name.get("RefersToRange").toObject().call("CopyPicture", 1, -4147); });
        const auto* copied =
            dynamic_cast<const excel::CopiedPicture*>(desk_->clipboard().copied.get());
        if (!isCopied || copied == nullptr) continue;
        suite.writeMetafile(copied->metafile(), copied->size(), file);
        use({bookName, name.get("Name").toText(), contentOf(file),
             drawnByRoom(copied->metafile(), copied->size(), false),
             maker.drawnOtherwise(copied->metafile())});
    }
    opened.call("Close", false);
}

}  // namespace compare
