#include "office/package/document/pastes.h"

#include <fmt/format.h>

#include <utility>

#include "office/failure.h"
#include "office/file_address.h"
#include "office/package/document/drawing_markup.h"
#include "office/package/document/word_table.h"
#include "office/package/drawing/picture_file.h"
#include "office/package/workbook/object_source.h"
#include "office/package/workbook/source_chart.h"

namespace office::package {

namespace {

constexpr const char* pasteSpecial = "Selection.PasteSpecial";

struct Media {
    std::string relationship;
    Size size;
};

/// A picture as a part of the document.
Media addMedia(FileDocument& document, PictureFile picture) {
    const Size size = picture.size;
    Package& package = document.package();
    const std::string part =
        addPicturePart(package, document.stem("media/image"), std::move(picture));
    return {package.relationshipsOf(document.mainPart()).add("image", part), size};
}

void insertPicture(FileDocument& document, PictureFile picture, word::Anchoring anchoring) {
    const Size size = picture.size;
    const std::string blip = addBlip(document.package(), document.mainPart(),
                                     document.stem("media/image"), std::move(picture));
    const unsigned id = document.freeDrawingId();
    const std::string name = fmt::format("Picture {}", id);
    document.insertObject(
        drawingRun(anchoring, id, name, size, pictureGraphic(id, name, size, blip)));
}

/// False for one that goes as a picture.
bool pasteChart(FileDocument& document, const Copied& copied, PasteAs as,
                word::Anchoring anchoring) {
    SourceChart chart = findChart(copied.source(), *document.rules().workbooks);
    if (!chart.obstacle.empty()) {
        if (as == PasteAs::Default) return false;
        refuse(pasteSpecial, "The chart can't be linked to: " + chart.obstacle);
    }
    const std::string link =
        as == PasteAs::Linked ? linkAddress(chart.book->path(), document.rules().linkBase) : "";
    const std::string part = document.charts().add(std::move(chart), copied, link);
    const std::string relationship =
        document.package().relationshipsOf(document.mainPart()).add("chart", part);
    const unsigned id = document.freeDrawingId();
    document.insertObject(drawingRun(anchoring, id, fmt::format("Chart {}", id),
                                     {copied.widthPt(), copied.heightPt()},
                                     chartGraphic(relationship)));
    return true;
}

void pasteObject(FileDocument& document, const Copied& copied, PasteAs as,
                 word::Anchoring anchoring) {
    const CopySource& source = copied.source();
    const FileRules& rules = document.rules();
    requireNoObstacle(as, source, rules, pasteSpecial);
    PictureFile picture = pictureOf(copied);
    const bool isLink = as == PasteAs::Linked;
    Package& package = document.package();
    const ObjectSource behind =
        isLink
            ? linkCells(package, document.mainPart(), source, rules)
            : embedWorkbook(package, document.mainPart(),
                            document.stem("embeddings/Microsoft_Excel_Worksheet"), source, rules);
    // After all that can fail.
    const Media preview = addMedia(document, std::move(picture));
    document.insertObject(objectRun(anchoring, {.id = document.freeDrawingId(),
                                                .size = preview.size,
                                                .preview = preview.relationship,
                                                .workbook = behind.relationship,
                                                .programId = behind.programId,
                                                .isLink = isLink,
                                                .hasShapeType = document.takesShapeType()}));
}

}  // namespace

void pasteInto(FileDocument& document, const Copied& copied, PasteAs as,
               word::Anchoring anchoring) {
    const CopySource::Kind kind = copied.source().kind;
    const bool isChart = kind == CopySource::Kind::Chart;
    const bool isCells = kind == CopySource::Kind::Cells;
    if (as == PasteAs::Embedded || (as == PasteAs::Linked && isCells))
        return pasteObject(document, copied, as, anchoring);
    if (isCells && as == PasteAs::Default) {
        const TableLook look = copied.table();
        if (look.columnWidthsPt.size() <= mostTableColumns)
            return document.insertTable(
                wordTable(look, document.lineWidth(), document.rules().measure));
    } else if (isChart && (as == PasteAs::Default || as == PasteAs::Linked)) {
        if (pasteChart(document, copied, as, anchoring)) return;
    } else if (as == PasteAs::Linked) {
        refuse(pasteSpecial, "A picture leads to no file that it could be linked to");
    }
    insertPicture(document, pictureOf(copied), anchoring);
}

void addPictureTo(FileDocument& document, const std::string& file) {
    insertPicture(document, readPicture(file, document.rules().pictures.get()),
                  word::Anchoring::Inline);
}

}  // namespace office::package
