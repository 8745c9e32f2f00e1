#pragma once

#include <com/sun/star/uno/Sequence.hxx>

#include <vector>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/held_styles.h"
#include "office/libreoffice/excel/numbers_around.h"

namespace libreoffice::excel {

/// What cells are copied as to become an object in another document.
inline constexpr const char* embeddedType =
    "application/x-openoffice-embed-source-xml;windows_formatname=\"Star Embed Source (XML)\"";
inline constexpr const char* metafileType =
    "application/x-openoffice-gdimetafile;windows_formatname=\"GDIMetaFile\"";

/// What a copy of a block of cells doesn't tell of their conditional formats.
struct UntoldByCopy {
    std::vector<HeldStyle> styles;
    std::vector<NumbersAround> around;

    [[nodiscard]] bool isNothing() const { return styles.empty() && around.empty(); }
};

/// The metafile of a block of cells that was copied as `embeddedType`, as the suite
/// draws it of a copy, but with what the copy doesn't tell. It is drawn in a workbook that has no
/// window and is in none of the suite's lists of documents.
[[nodiscard]] uno::Sequence<sal_Int8> drawWith(const UntoldByCopy& untold,
                                               const Connection& connection,
                                               const uno::Sequence<sal_Int8>& copied,
                                               const model::CellBlock& block);

}  // namespace libreoffice::excel
