#include "office/libreoffice/excel/picture_holder.h"

#include <utility>

#include "office/libreoffice/excel/chart_export.h"
#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/units.h"

namespace libreoffice::excel {

namespace {

HeldPicture& there(HeldPicture& held) {
    if (!held.isDeleted) return held;
    throw Failure(FailureNumber::Disconnected, "ChartObject", "The chart object has been deleted");
}

}  // namespace

const office::MemberTable<PictureHolder>& PictureHolder::members() {
    using Self = PictureHolder;
    const auto side = [](double PictureBox::*which) {
        return std::pair<office::MemberTable<Self>::Reader, office::MemberTable<Self>::Writer>{
            [which](Self& self, const CallArguments&) { return Value(self.held().box.*which); },
            [which](Self& self, const CallArguments&, const Value& points) {
                self.held().box.*which = points.toDouble();
            }};
    };
    static const auto table = [&] {
        auto made =
            office::MemberTable<Self>("ChartObject")
                .property("Name", [](Self&, const CallArguments&) { return Value("Picture"); })
                .property("Chart", &Self::chart)
                .property("Parent", &Self::parent)
                .method("Activate", {}, &Self::activate)
                .method("Select", {"Replace"}, &Self::activate)
                .method("Delete", {}, &Self::remove);
        const std::pair<const char*, double PictureBox::*> sides[] = {
            {"Left", &PictureBox::left},
            {"Top", &PictureBox::top},
            {"Width", &PictureBox::width},
            {"Height", &PictureBox::height}};
        for (const auto& [name, which] : sides) {
            const auto [read, write] = side(which);
            made.property(name, read, write);
        }
        return made;
    }();
    return table;
}

PictureHolder::PictureHolder(DeskPtr desk, BookPtr book, SheetPtr sheet,
                             std::shared_ptr<HeldPicture> held)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)),
      held_(std::move(held)) {}

HeldPicture& PictureHolder::held() const {
    return there(*held_);
}

Value PictureHolder::chart() {
    held();
    return makeObject<PictureChart>(deskPtr(), bookPtr(), sheetPtr(), held_);
}

Value PictureHolder::parent() {
    return sheetObject(deskPtr(), bookPtr(), sheetPtr());
}

Value PictureHolder::remove(const CallArguments&) {
    held() = HeldPicture{{}, {}, true};
    return true;
}

Value PictureHolder::activate(const CallArguments&) {
    held();
    return true;
}

const office::MemberTable<PictureChart>& PictureChart::members() {
    using Self = PictureChart;
    static const auto table =
        office::MemberTable<Self>("Chart")
            .property("Parent", &Self::parent)
            .method("Paste", {"Type"}, &Self::paste)
            .method("Export", {"Filename", "FilterName", "Interactive"}, &Self::exportPicture);
    return table;
}

PictureChart::PictureChart(DeskPtr desk, BookPtr book, SheetPtr sheet,
                           std::shared_ptr<HeldPicture> held)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)),
      held_(std::move(held)) {}

HeldPicture& PictureChart::held() const {
    return there(*held_);
}

Value PictureChart::parent() {
    held();
    return makeObject<PictureHolder>(deskPtr(), bookPtr(), sheetPtr(), held_);
}

Value PictureChart::paste(const CallArguments& arguments) {
    if (!desk().copiedPicture) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "No picture has been copied");
    }
    held().picture = desk().copiedPicture;
    return true;
}

Value PictureChart::exportPicture(const CallArguments& arguments) {
    const std::string path = exportPath(arguments);
    const auto& picture = held().picture;
    const PictureSize empty{hundredthMmOf(held().box.width), hundredthMmOf(held().box.height)};
    const PictureSize size =
        picture ? PictureSize{picture->widthHundredthMm, picture->heightHundredthMm} : empty;
    pictureMaker(desk()).writeMetafile(picture ? picture->metafile : uno::Sequence<sal_Int8>(),
                                       size, path);
    return true;
}

}  // namespace libreoffice::excel
