#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// ZIP files as plain bytes, so that tests can make what no library writes.
namespace zip_bytes {

struct Item {
    std::string name;
    std::string bytes;
};

inline std::string number(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
    return text;
}

inline std::uint32_t crc(std::string_view bytes) {
    std::uint32_t rest = 0xFFFFFFFF;
    for (const char c : bytes) {
        rest ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) rest = rest >> 1 ^ (rest & 1 ? 0xEDB88320 : 0);
    }
    return ~rest;
}

/// Of items that are stored as they are.
inline std::string zipOf(const std::vector<Item>& items) {
    std::string file, directory;
    for (const Item& item : items) {
        const std::string common = number(20, 2) + number(0, 2) + number(0, 2) + number(0, 2) +
                                   number(0x21, 2) + number(crc(item.bytes), 4) +
                                   number(item.bytes.size(), 4) + number(item.bytes.size(), 4) +
                                   number(item.name.size(), 2) + number(0, 2);
        directory += "PK\1\2" + number(20, 2) + common + number(0, 2) + number(0, 2) +
                     number(0, 2) + number(0, 4) + number(file.size(), 4) + item.name;
        file += "PK\3\4" + common + item.name + item.bytes;
    }
    return file + directory + "PK\5\6" + number(0, 4) + number(items.size(), 2) +
           number(items.size(), 2) + number(directory.size(), 4) + number(file.size(), 4) +
           number(0, 2);
}

/// Where fields stand in an entry of the directory.
enum Field : std::size_t {
    Flags = 8,
    Method = 10,
    Crc = 16,
    PackedSize = 20,
    Size = 24,
    Offset = 42
};

/// A file of which the directory's entry of `name` says something else.
inline std::string with(std::string file, std::string_view name, Field field, std::uint64_t value,
                        int bytes = 4) {
    const auto directory = file.find("PK\1\2");
    const auto at = file.find(name, directory) - 46;
    return file.replace(at + field, number(value, bytes).size(), number(value, bytes));
}

inline std::string contentTypes(std::string_view more = {}) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>"
           "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
           "<Default Extension=\"rels\" "
           "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
           "<Default Extension=\"xml\" ContentType=\"application/xml\"/>" +
           std::string(more) + "</Types>";
}

inline std::string relationships(std::string_view more = {}) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>"
           "<Relationships "
           "xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">" +
           std::string(more) + "</Relationships>";
}

/// A package with one part, /a/one.xml, and what is added.
inline std::vector<Item> packageItems(const std::vector<Item>& more = {}) {
    std::vector<Item> items = {
        {"[Content_Types].xml", contentTypes()},
        {"_rels/.rels", relationships("<Relationship Id=\"rId1\" Type=\"urn:main\" "
                                      "Target=\"a/one.xml\"/>")},
        {"a/one.xml", "<one/>"},
    };
    items.insert(items.end(), more.begin(), more.end());
    return items;
}

inline std::string package(const std::vector<Item>& more = {}) {
    return zipOf(packageItems(more));
}

inline std::string wide(std::string_view ascii) {
    std::string text;
    for (const char c : ascii) text += std::string{c, '\0'};
    return text;
}

/// A file in the container of the older formats, whose directory names these streams.
inline std::string compoundFile(const std::vector<std::string>& streams) {
    std::string file = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + std::string(504, '\0');
    for (const std::string& name : streams) {
        std::string entry = wide(name);
        entry.resize(64);
        file += entry + number(name.size() * 2 + 2, 2) + '\2' + std::string(61, '\0');
    }
    return file;
}

}  // namespace zip_bytes
