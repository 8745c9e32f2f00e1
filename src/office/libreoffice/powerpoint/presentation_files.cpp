#include "office/libreoffice/powerpoint/presentation_files.h"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

#include "office/failure.h"
#include "office/libreoffice/powerpoint/impress_document.h"
#include "office/text.h"

namespace libreoffice::powerpoint {

namespace {

using office::Failure;
using office::FailureNumber;

struct Format {
    std::string_view ending;
    const char* filter;
    /// Whether it can be loaded again, and so be a presentation's own file.
    bool isDocument;
};

constexpr std::array<Format, 4> formats = {{
    {".pptx", "Impress MS PowerPoint 2007 XML", true},
    {".odp", "impress8", true},
    {".ppt", "MS PowerPoint 97", true},
    {".pdf", "impress_pdf_Export", false},
}};

const Format& formatOf(const std::string& path, const char* member) {
    const std::string ending = office::lowerCase(std::filesystem::path(path).extension().string());
    const auto* found = std::find_if(formats.begin(), formats.end(),
                                     [&](const Format& format) { return format.ending == ending; });
    if (found == formats.end())
        throw Failure(FailureNumber::InvalidProcedureCall, member,
                      fmt::format("\"{}\" ends like no format that a presentation is saved in: "
                                  ".pptx, .odp, .ppt or .pdf",
                                  path));
    return *found;
}

/// LibreOffice would make the folder, also one that is merely mistyped.
void requireFolder(const std::string& path, const char* member) {
    const auto folder = std::filesystem::absolute(path).parent_path();
    if (!std::filesystem::is_directory(folder))
        throw Failure(FailureNumber::ApplicationDefined, member,
                      fmt::format("\"{}\" could not be written: there is no folder \"{}\"", path,
                                  folder.string()));
}

/// A filter that fails does not always say so.
void requireWritten(const std::string& path, const char* member) {
    std::error_code problem;
    const auto size = std::filesystem::file_size(path, problem);
    if (problem || size == 0)
        throw Failure(FailureNumber::ApplicationDefined, member,
                      fmt::format("\"{}\" was not written: {}", path,
                                  problem ? problem.message() : "the file is empty"));
}

}  // namespace

void saveCopy(ImpressDocument& document, const std::string& path) {
    constexpr const char* member = "Presentation.SaveCopyAs";
    const Format& format = formatOf(path, member);
    requireFolder(path, member);
    document.storeCopy(path, format.filter);
    requireWritten(path, member);
}

void saveUnderNewName(ImpressDocument& document, const std::string& path) {
    constexpr const char* member = "Presentation.SaveAs";
    const Format& format = formatOf(path, member);
    if (!format.isDocument)
        throw Failure(FailureNumber::InvalidProcedureCall, member,
                      fmt::format("A presentation can't be kept as \"{}\": save a copy", path));
    requireFolder(path, member);
    try {
        as<css::frame::XStorable>(document.model())
            ->storeAsURL(
                fileUrl(path),
                propertyValues(
                    {{"FilterName", uno::Any(rtl::OUString::createFromAscii(format.filter))}}));
    } catch (const css::io::IOException& error) {
        throw Failure(FailureNumber::ApplicationDefined, member,
                      fmt::format("\"{}\" could not be written: {}", path, fromUno(error.Message)));
    }
    requireWritten(path, member);
}

}  // namespace libreoffice::powerpoint
