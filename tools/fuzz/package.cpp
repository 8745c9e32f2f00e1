// What tools/fuzz-package does with each of its inputs.
//
// An input is a ZIP file, or else the parts of a package as text, from which a sound ZIP file is
// made here: so that a turned byte reaches the markup and not only the check sums. Each part is a
// name, a line feed, its bytes and a byte 0x1E.
#include "office/package/package.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "office/failure.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/xml.h"
#include "office/package/zip_bytes.h"

namespace {

using namespace office::package;

/// Small, so that an input that makes much of little is found out.
constexpr Limits limits{2000, 1 << 20, 8 << 20, 1 << 20};

[[noreturn]] void stop(const std::string& what) {
    std::fprintf(stderr, "fuzz-package: %s\n", what.c_str());
    std::abort();
}

std::string fileOf(std::string_view input) {
    if (input.starts_with("PK") || input.starts_with("\xD0\xCF")) return std::string(input);
    std::vector<zip_bytes::Item> items;
    while (!input.empty() && items.size() < limits.parts) {
        const std::string_view item = input.substr(0, input.find('\x1E'));
        input.remove_prefix(std::min(input.size(), item.size() + 1));
        const auto line = item.find('\n');
        if (line == std::string_view::npos || line > 0xFFFF) continue;
        items.push_back({std::string(item.substr(0, line)), std::string(item.substr(line + 1))});
    }
    return zip_bytes::zipOf(items);
}

std::string pathOf(const char* name) {
    const std::string file = std::string("fuzz-package-") + name + "-" + std::to_string(getpid());
    return (std::filesystem::temp_directory_path() / file).string();
}

/// Refusals are what is wanted.
void trying(const std::function<void()>& step) {
    try {
        step();
    } catch (const PackageError& error) {
        for (const char c : std::string_view(error.what())) {
            if (static_cast<unsigned char>(c) < 0x20) stop("a message with a control character");
        }
    } catch (const office::Failure&) {}
}

void readAll(const std::string& file) {
    Package package = Package::open(file, limits);
    for (const std::string& part : package.parts()) {
        trying([&] {
            const std::string bytes = package.read(part);
            const Xml document(bytes, part);
            // What is written has to be read again, and as the same.
            const std::string written = document.bytes();
            if (Xml(written, part).bytes() != written)
                stop("markup that changes with each reading");
        });
        trying([&] {
            const Relationships& all = package.relationshipsOf(part);
            for (const Relationship& one : all.all())
                trying([&] { static_cast<void>(package.has(all.partOf(one))); });
        });
        trying([&] { static_cast<void>(package.contentTypeOf(part)); });
    }
}

/// A package that was opened can be added to, and is then read again as it was written.
void change(const std::string& file) {
    Package package = Package::open(file, limits);
    const std::string output = pathOf("output");
    const auto before = package.parts();
    const std::string name = package.freeName("/new/part", ".xml");
    trying([&] {
        package.add(name, "application/x-new+xml", "<new/>");
        const std::string media = package.addMedia("/media/image", ".png", "image/png", "pixels");
        const std::string id = package.relationshipsOf(name).add("image", media);
        if (package.relationshipsOf(name).add("image", media) != id) stop("a second relationship");
        if (!before.empty()) {
            package.relationshipsOf(before.back()).add("slide", name);
            package.remove(before.front());
        }
        for (const Relationship& one : std::vector(package.relationshipsOf("/").all()))
            package.relationshipsOf("/").remove(one.id);
        package.relationshipsOf("/").add("officeDocument", name);
        package.save(output);
    });
    if (!std::filesystem::exists(output)) return;
    try {
        Package again = Package::open(output, limits);
        if (again.read(name) != "<new/>") stop("a part that isn't as it was written");
        if (again.contentTypeOf(name) != "application/x-new+xml") stop("another content type");
        Relationships& all = again.relationshipsOf("/");
        if (all.all().size() != 1 || again.read(all.partOf(all.all().front())) != "<new/>")
            stop("other relationships than were written");
        Relationships& own = again.relationshipsOf(name);
        if (again.read(own.partOf(*own.ofType("image"))) != "pixels") stop("another picture");
    } catch (const PackageError& error) {
        stop(std::string("its own file is refused: ") + error.what());
    }
    std::filesystem::remove(output);
}

/// What an export does to a presentation.
void addToDeck(const std::string& file) {
    static_cast<void>(factsOf(file));
    const auto powerPoint =
        powerPointOfFiles({[](const std::string&, const office::Font&, std::optional<double>) {
                               return office::Size{100, 20};
                           },
                           {}});
    const auto deck = powerPoint.get("Presentations").call("Open", file).toObject();
    const auto slides = deck.get("Slides").toObject();
    const auto count = slides.get("Count").toLong();
    for (int slide = 1; slide <= std::min(count, 5); ++slide) {
        const auto shapes = slides.call("Item", slide).get("Shapes").toObject();
        static_cast<void>(shapes.get("Count"));
    }
    for (const int layout : {1, 11, 12}) {
        trying([&] {
            const auto shapes = slides.call("Add", 1, layout).get("Shapes").toObject();
            const auto label = shapes.call("AddLabel", 1, 20, 20, 100, 20).toObject();
            label.get("TextFrame").get("TextRange").put("Text", "words");
            if (layout != 12)
                shapes.get("Title").get("TextFrame").get("TextRange").put("Text", "Title");
        });
    }
    deck.call("SaveCopyAs", pathOf("deck"));
    const bool isSaved = std::filesystem::remove(pathOf("deck"));
    if (!isSaved) stop("no file was written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string path = pathOf("input");
    std::ofstream(path, std::ios::binary) << fileOf({reinterpret_cast<const char*>(data), size});
    // Each step opens the file by itself, so that none hides something from the next.
    for (const auto step : {readAll, change, addToDeck}) trying([&] { step(path); });
    return 0;
}
