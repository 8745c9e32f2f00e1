#pragma once

#include <memory>
#include <optional>

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// In points.
struct PictureBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// What a picture holder and its chart share.
struct HeldPicture {
    PictureBox box;
    std::optional<CopiedPicture> picture;
    bool isDeleted = false;
};

/// A chart object that only holds a picture. Excel's way from a range to a picture file leads over
/// one; here nothing is put into the workbook for it.
class PictureHolder : public SheetObject<PictureHolder> {
public:
    PictureHolder(DeskPtr desk, BookPtr book, SheetPtr sheet, std::shared_ptr<HeldPicture> held);

    static const office::MemberTable<PictureHolder>& members();

    Value chart();
    Value parent();
    Value remove(const CallArguments& arguments);
    /// Nothing is there to see.
    Value activate(const CallArguments& arguments);

private:
    HeldPicture& held() const;

    std::shared_ptr<HeldPicture> held_;
};

/// The chart in a picture holder.
class PictureChart : public SheetObject<PictureChart> {
public:
    PictureChart(DeskPtr desk, BookPtr book, SheetPtr sheet, std::shared_ptr<HeldPicture> held);

    static const office::MemberTable<PictureChart>& members();

    Value parent();
    /// Takes the picture copied last. `Failure` 1004 if there is none.
    Value paste(const CallArguments& arguments);
    Value exportPicture(const CallArguments& arguments);

private:
    HeldPicture& held() const;

    std::shared_ptr<HeldPicture> held_;
};

}  // namespace libreoffice::excel
