#include "office/libreoffice/excel/package_parts.h"

#include <com/sun/star/io/XInputStream.hpp>
#include <pugixml.hpp>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace libreoffice::excel {

namespace {

/// More than any part that is read here holds.
constexpr sal_Int32 mostBytes = 64 * 1024 * 1024;

std::string bytesOf(const uno::Reference<css::io::XInputStream>& stream) {
    uno::Sequence<sal_Int8> bytes;
    const sal_Int32 count = stream->readBytes(bytes, mostBytes);
    std::string text(static_cast<std::size_t>(count), '\0');
    std::transform(bytes.begin(), bytes.begin() + count, text.begin(),
                   [](sal_Int8 byte) { return static_cast<char>(byte); });
    return text;
}

std::string relationshipsPartOf(const std::filesystem::path& part) {
    return (part.parent_path() / "_rels" / (part.filename().string() + ".rels")).string();
}

std::string resolved(const std::filesystem::path& part, const std::string& target) {
    if (target.starts_with('/')) return target.substr(1);
    return (part.parent_path() / target).lexically_normal().string();
}

}  // namespace

std::optional<PackageParts> PackageParts::open(const Connection& connection,
                                               const rtl::OUString& url) {
    if (url.isEmpty()) return std::nullopt;
    try {
        return PackageParts(as<css::container::XNameAccess>(
            connection.create("com.sun.star.packages.zip.ZipFileAccess", {uno::Any(url)})));
    } catch (const uno::Exception&) {
        if (connection.isLost()) throw;
        return std::nullopt;
    }
}

PackageParts::PackageParts(uno::Reference<css::container::XNameAccess> parts)
    : parts_(std::move(parts)) {}

std::string PackageParts::read(const std::string& part) const {
    const rtl::OUString name = toUno(part);
    if (!parts_->hasByName(name)) return {};
    uno::Reference<css::io::XInputStream> stream;
    parts_->getByName(name) >>= stream;
    return stream.is() ? bytesOf(stream) : std::string();
}

std::vector<Relationship> PackageParts::relationshipsOf(const std::string& part) const {
    pugi::xml_document document;
    const std::string bytes = read(relationshipsPartOf(part));
    document.load_buffer(bytes.data(), bytes.size());
    std::vector<Relationship> found;
    for (const pugi::xml_node node : document.document_element().children("Relationship")) {
        found.push_back({node.attribute("Id").value(), node.attribute("Type").value(),
                         resolved(part, node.attribute("Target").value())});
    }
    return found;
}

std::string PackageParts::related(const std::string& part, std::string_view typeEnd) const {
    for (const Relationship& relationship : relationshipsOf(part)) {
        if (relationship.type.ends_with(typeEnd)) return relationship.target;
    }
    return {};
}

}  // namespace libreoffice::excel
