#include "destinations/image_files.h"

#include <fmt/format.h>

#include <set>

#include "destinations/row_picture.h"
#include "office/text.h"
#include "session/file_names.h"

namespace destinations {

namespace {

using catalogue::ExportItem;
using session::ImageFormat;
using session::OfficeSession;

std::string_view extensionOf(ImageFormat format) {
    switch (format) {
        case ImageFormat::Png:
            return ".png";
        case ImageFormat::Gif:
            return ".gif";
        case ImageFormat::Jpeg:
            return ".jpg";
        case ImageFormat::Bmp:
            return ".bmp";
        case ImageFormat::Tiff:
            return ".tiff";
    }
    return {};
}

/// The names of one run's files.
class Names {
public:
    Names(OfficeSession& session, const ImageFileOptions& options, bool replaces)
        : host_(session.host),
          options_(options),
          replaces_(replaces) {}

    /// `index` is the row's, from 0.
    std::string pathFor(const ExportItem& row, std::size_t index) {
        // File systems take 255 bytes; some room is for the extension and the number.
        constexpr std::size_t longest = 240;
        const std::string name =
            options_.names == FileNames::Numerator
                ? fmt::format("{}", index + 1)
                : session::readableFileName(row.name + "-" + row.sheet, longest);
        std::string path = pathOf(name);
        for (int number = 2; isUsed(path); ++number)
            path = pathOf(fmt::format("{} ({})", name, number));
        // Not every folder tells names apart that differ in case alone.
        used_.insert(office::folded(path));
        return path;
    }

private:
    [[nodiscard]] std::string pathOf(const std::string& name) const {
        return fmt::format("{}/{}{}", options_.folder, name, extensionOf(options_.format));
    }
    [[nodiscard]] bool isUsed(const std::string& path) const {
        return used_.contains(office::folded(path)) || isTaken(path);
    }
    /// A folder never gives way to a picture.
    [[nodiscard]] bool isTaken(const std::string& path) const {
        return host_.pathExists(path) && !(replaces_ && host_.fileExists(path));
    }

    session::Host& host_;
    const ImageFileOptions& options_;
    bool replaces_;
    std::set<std::string> used_;
};

}  // namespace

std::string defaultImageFolder(OfficeSession& session) {
    return session.host.outputFolder("MurvaneImages");
}

std::vector<std::string> plannedImageFiles(OfficeSession& session,
                                           const catalogue::ExportList& list,
                                           const ImageFileOptions& options) {
    Names names(session, options, true);
    std::vector<std::string> files;
    for (const catalogue::TakenRow& taken : catalogue::takeRows(session, list, {}))
        files.push_back(names.pathFor(list.rows[taken.index], taken.index));
    return files;
}

WalkResult ExportRowsToImageFiles(RowBatch& batch, const ImageFileOptions& options) {
    OfficeSession& session = batch.session;
    Names names(session, options, options.replaces);
    session.host.makeFolder(options.folder);
    const WalkResult result =
        walkRowsAhead(batch, [&](const catalogue::TakenRow& taken, const ExportItem& row) {
            const std::string path = names.pathFor(row, taken.index);
            return [&, path, picture = pictureOfRow(session, row)] {
                session.host.writeImage(picture.png.get(), options.format, path);
            };
        });
    session.ExcelApp.put("ScreenUpdating", true);
    return result;
}

}  // namespace destinations
