// The page of images.

#include <fmt/format.h>

#include "destinations/html_export.h"
#include "destinations/row_picture.h"
#include "office/text.h"

namespace destinations {

HtmlResult ExportRowsToHtmlAsImages(RowBatch& batch, const HtmlOptions& options) {
    session::OfficeSession& session = batch.session;
    HtmlFiles files(session, options);
    session.host.makeFolder(files.images());
    HtmlBody body{.useTitles = options.useTitles, .text = {}};
    HtmlResult result;
    result.walk = walkRowsAhead(
        batch, [&](const catalogue::TakenRow& taken, const catalogue::ExportItem& row) {
            const std::string name = fmt::format("Temp{}.png", taken.index + 1);
            return [&, name, picture = pictureOfRow(session, row)] {
                session.host.writeImage(picture.png.get(), session::ImageFormat::Png,
                                        files.images() + "/" + name);
                // From the page's own folder, so that both can be moved together.
                AppendHtmlBlock(body, options.widthPx, options.skipLines,
                                office::addressWord(files.imagesName()) + "/" + name, row.caption);
            };
        });
    if (!body.text.empty()) {
        WriteHtmlFile(session.host, files.page(), body.text);
        result.file = files.keep();
    }
    session.ExcelApp.put("ScreenUpdating", true);
    return result;
}

}  // namespace destinations
