#include "office/package/presentation/object_parts.h"

#include <fmt/format.h>

#include <filesystem>
#include <utility>

#include "office/model/powerpoint/objects.h"
#include "office/model/powerpoint/paste.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/presentation/picture_file.h"
#include "office/package/workbook/cell_box.h"
#include "office/package/workbook/embedded_workbook.h"
#include "office/text.h"

namespace office::package {

namespace {

/// The workbook behind an object, and how the object's markup names it.
struct Behind {
    std::string relationship;
    std::string programId;
    const char* kind;
};

Behind embed(FileSlide& slide, const CopySource& source) {
    FileDeck& deck = slide.deck();
    const WorkbookFilePtr workbook = deck.rules().workbooks->at(source.file);
    EmbeddedWorkbook made = embeddedWorkbook(*workbook, source, deck.rules().embedsSheetAlone);
    Package& package = deck.package();
    // A part for each object, though some hold the same: they are edited each by itself.
    const std::string part = package.freeName(deck.embeddingStem(), made.ending);
    package.add(part, made.contentType, std::move(made.bytes), Storage::Stored);
    return {package.relationshipsOf(slide.part()).add("package", part), made.programId,
            "<p:embed/>"};
}

/// "Sales%202026.xlsx!Sheet%201!R5C2:R8C7", as the program that follows the link reads it: sheets
/// have no apostrophes there, and cells go by their numbers.
std::string addressOfCells(const FileRules& rules, const CopySource& source) {
    const std::filesystem::path path(std::u8string(source.file.begin(), source.file.end()));
    const std::string address =
        fmt::format("{}!{}!{}", fileAddress(path, rules.linkBase), addressWord(source.sheet),
                    cellBox(source.address).value_or(CellBox()).nameByNumbers());
    // The colon between two cells must not stand in the first name of a relative address.
    const bool isPlainName = address.find('/') == std::string::npos;
    return isPlainName ? "./" + address : address;
}

Behind link(FileSlide& slide, const CopySource& source) {
    FileDeck& deck = slide.deck();
    const bool hasMacros = deck.rules().workbooks->at(source.file)->hasMacros();
    Relationships& relationships = deck.package().relationshipsOf(slide.part());
    return {relationships.addExternal("oleObject", addressOfCells(deck.rules(), source)),
            hasMacros ? macroWorkbook : plainWorkbook, R"(<p:link updateAutomatic="1"/>)"};
}

}  // namespace

std::string objectObstacle(PasteAs as, const CopySource& source, WorkbookFiles& workbooks,
                           bool sheetAlone) {
    if (source.kind == CopySource::Kind::Picture) return "it is a picture";
    if (source.file.empty()) return "its workbook has not been saved yet";
    try {
        const WorkbookFilePtr workbook = workbooks.at(source.file);
        const WorkbookSheet* const sheet = workbook->sheet(source.sheet);
        if (sheet == nullptr) return "the workbook's file does not hold its sheet";
        if (as == PasteAs::Embedded && sheetAlone) prepareSheetAlone(*workbook, *sheet);
        return {};
    } catch (const PackageError& error) {
        const char* const text = error.fault() == Fault::NotAPackage
                                     ? "its workbook is no .xlsx or .xlsm file ({})"
                                     : "its workbook's file can't be used ({})";
        return fmt::format(fmt::runtime(text), std::string(error.what()));
    }
}

FileShapePtr pasteObject(FileSlide& slide, const Copied& copied, PasteAs as) {
    const CopySource& source = copied.source();
    FileDeck& deck = slide.deck();
    const std::string obstacle =
        objectObstacle(as, source, *deck.rules().workbooks, deck.rules().embedsSheetAlone);
    if (!obstacle.empty())
        office::model::refuse("Shapes.PasteSpecial",
                              fmt::format("It can't be {}: {}",
                                          as == PasteAs::Linked ? "linked" : "embedded", obstacle));
    PictureFile picture = pictureOf(copied.png(), "What was copied");
    const model::PastePlace place = model::pastePlaceFor(picture.size, deck, slide);
    const Behind behind = as == PasteAs::Linked ? link(slide, source) : embed(slide, source);
    Package& package = deck.package();
    const std::string media = package.addMedia(deck.mediaStem(), picture.ending,
                                               picture.contentType, std::move(picture.bytes));
    const std::string preview = package.relationshipsOf(slide.part()).add("image", media);
    const std::string box =
        fmt::format(R"(<a:off x="{}" y="{}"/><a:ext cx="{}" cy="{}"/>)", emuOf(place.corner.left),
                    emuOf(place.corner.top), emuOf(place.size.width), emuOf(place.size.height));
    FileShapePtr shape = slide.addShape(
        "Object",
        fmt::format(
            R"(<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr/><p:cNvGraphicFramePr>)"
            R"(<a:graphicFrameLocks noChangeAspect="1"/></p:cNvGraphicFramePr><p:nvPr/>)"
            R"(</p:nvGraphicFramePr><p:xfrm>{0}</p:xfrm><a:graphic>)"
            R"(<a:graphicData uri="http://schemas.openxmlformats.org/presentationml/2006/ole">)"
            R"(<p:oleObj name="Worksheet" r:id="{1}" imgW="{2}" imgH="{3}" progId="{4}">{5}<p:pic>)"
            R"(<p:nvPicPr><p:cNvPr id="0" name=""/><p:cNvPicPr/><p:nvPr/></p:nvPicPr><p:blipFill>)"
            R"(<a:blip r:embed="{6}"/><a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr>)"
            R"(<a:xfrm>{0}</a:xfrm><a:prstGeom prst="rect"><a:avLst/></a:prstGeom></p:spPr></p:pic>)"
            R"(</p:oleObj></a:graphicData></a:graphic></p:graphicFrame>)",
            box, behind.relationship, emuOf(picture.size.width), emuOf(picture.size.height),
            behind.programId, behind.kind, preview));
    shape->setName(shape->name());
    return shape;
}

}  // namespace office::package
