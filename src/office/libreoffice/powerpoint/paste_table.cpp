#include <com/sun/star/datatransfer/UnsupportedFlavorException.hpp>
#include <com/sun/star/datatransfer/XTransferable.hpp>
#include <com/sun/star/datatransfer/clipboard/XClipboard.hpp>
#include <com/sun/star/datatransfer/clipboard/XClipboardOwner.hpp>
#include <cppuhelper/implbase1.hxx>

#include <utility>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/powerpoint/hidden_step.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/paste.h"
#include "office/libreoffice/powerpoint/table_drawing.h"

namespace libreoffice::powerpoint {

namespace {

namespace transfer = css::datatransfer;

constexpr const char* drawingType = "application/x-openoffice-drawing";
/// LibreOffice's number of this kind of data.
constexpr sal_uInt32 drawingFormat = 11;

/// A drawing in LibreOffice's own notation, as its copies offer one.
class OfferedDrawing : public cppu::WeakImplHelper1<transfer::XTransferable> {
public:
    explicit OfferedDrawing(const std::string& markup)
        : bytes_(reinterpret_cast<const sal_Int8*>(markup.data()),  // NOLINT: bytes as UNO's
                 static_cast<sal_Int32>(markup.size())) {}

    uno::Any SAL_CALL getTransferData(const transfer::DataFlavor& flavor) override {
        if (!isDataFlavorSupported(flavor)) throw transfer::UnsupportedFlavorException();
        return uno::Any(bytes_);
    }

    uno::Sequence<transfer::DataFlavor> SAL_CALL getTransferDataFlavors() override {
        const transfer::DataFlavor drawing(
            rtl::OUString::createFromAscii(drawingType) + ";windows_formatname=\"Drawing Format\"",
            "Drawing Format", cppu::UnoType<decltype(bytes_)>::get());
        return {&drawing, 1};
    }

    sal_Bool SAL_CALL isDataFlavorSupported(const transfer::DataFlavor& flavor) override {
        return flavor.MimeType.startsWith(rtl::OUString::createFromAscii(drawingType));
    }

private:
    uno::Sequence<sal_Int8> bytes_;
};

/// Puts something on the suite's clipboard for a moment.
class LentClipboard {
public:
    LentClipboard(const Connection& connection,
                  const uno::Reference<transfer::XTransferable>& contents)
        : clipboard_(as<transfer::clipboard::XClipboard>(
              connection.create("com.sun.star.datatransfer.clipboard.SystemClipboard"))),
          before_(clipboard_->getContents()),
          // What comes from another application can't be put back: it would ask the clipboard for
          // what it is itself.
          owner_(tryAs<transfer::clipboard::XClipboardOwner>(before_)) {
        if (!owner_.is()) before_.clear();
        clipboard_->setContents(contents, {});
    }
    LentClipboard(const LentClipboard&) = delete;
    LentClipboard& operator=(const LentClipboard&) = delete;
    ~LentClipboard() {
        asFarAsPossible([&] { clipboard_->setContents(before_, owner_); });
    }

private:
    uno::Reference<transfer::clipboard::XClipboard> clipboard_;
    uno::Reference<transfer::XTransferable> before_;
    uno::Reference<transfer::clipboard::XClipboardOwner> owner_;
};

}  // namespace

/// Tables that are built by calls make LibreOffice crash when the presentation is closed, and take
/// seconds. What is pasted as a drawing is read like a file.
ShapeRef addTable(ImpressSlide& slide, const office::TableLook& table, double scale) {
    ImpressDeck& deck = slide.deck();
    const sal_Int32 before = slide.page()->getCount();
    {
        const HiddenStep hidden(deck);
        const LentClipboard clipboard(deck.connection(),
                                      new OfferedDrawing(tableDrawing(table, scale)));
        deck.impressWindow().pasteOnto(slide, drawingFormat);
    }
    if (slide.page()->getCount() != before + 1)
        office::refuse("Shapes.PasteSpecial", "LibreOffice did not take the table");
    return {slide.page()->getByIndex(before), uno::UNO_QUERY_THROW};
}

}  // namespace libreoffice::powerpoint
