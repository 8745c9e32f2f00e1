#include "office/libreoffice/objects/picture_graphic.h"

#include <fmt/format.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/units.h"
#include "office/libreoffice/uno_values.h"
#include "office/vector_file.h"

namespace libreoffice {

namespace {

constexpr const char* member = "AddPicture";

/// None if the file holds something else.
std::optional<office::VectorFile> vectorsIn(const std::string& file) {
    constexpr std::size_t head = 128;
    std::ifstream stream(file, std::ios::binary);
    std::string bytes(head, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    if (!office::looksLikeVectors(bytes)) return std::nullopt;
    bytes.append(std::istreambuf_iterator<char>(stream), {});
    return office::vectorFileOf(std::move(bytes), file);
}

css::awt::Size naturalSize(const uno::Reference<css::graphic::XGraphic>& picture) {
    constexpr double hundredthMmPerPixel = hundredthMmPerInch / office::pixelsPerInch;
    auto size = property<css::awt::Size>(picture, "Size100thMM");
    if (size.Width > 0 && size.Height > 0) return size;
    const auto pixels = property<css::awt::Size>(picture, "SizePixel");
    const auto onPaper = [](sal_Int32 count) {
        return static_cast<sal_Int32>(std::lround(count * hundredthMmPerPixel));
    };
    return {onPaper(pixels.Width), onPaper(pixels.Height)};
}

}  // namespace

uno::Reference<css::graphic::XGraphic> graphicOf(const Connection& connection,
                                                 const std::string& bytes) {
    const uno::Any argument(uno::Sequence<sal_Int8>(
        reinterpret_cast<const sal_Int8*>(bytes.data()),  // NOLINT: as UNO's
        static_cast<sal_Int32>(bytes.size())));
    const auto stream = connection.create("com.sun.star.io.SequenceInputStream", {argument});
    return connection.graphics()->queryGraphic(
        propertyValues({{"InputStream", uno::Any(stream)}, {"LazyRead", uno::Any(true)}}));
}

/// LibreOffice makes an SVG larger by a pixel of a screen than it says.
FilePicture pictureOfFile(const Connection& connection, const std::string& file) {
    if (std::error_code problem; !std::filesystem::is_regular_file(file, problem))
        throw office::Failure(office::FailureNumber::FileNotFound, member,
                              fmt::format("There is no file \"{}\"", file));
    const auto vectors = vectorsIn(file);
    const auto graphic = vectors ? graphicOf(connection, vectors->bytes)
                                 : connection.graphics()->queryGraphic(
                                       propertyValues({{"URL", uno::Any(fileUrl(file))}}));
    if (!graphic.is())
        office::refuse(member, fmt::format("\"{}\" holds no picture that LibreOffice reads", file));
    if (!vectors) return {graphic, naturalSize(graphic)};
    return {graphic, {hundredthMmOf(vectors->widthPt), hundredthMmOf(vectors->heightPt)}};
}

}  // namespace libreoffice
