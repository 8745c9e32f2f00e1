#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <future>
#include <stdexcept>

#include "office/package/package.h"
#include "office/package/zip_bytes.h"
#include "support/temporary_folder.h"

using namespace office::package;
using namespace zip_bytes;

namespace {

/// A file changed in memory and what it was written as.
class RoundTrip : public ::testing::Test {
protected:
    Package saved(Package& package) {
        const std::string name = std::to_string(++files_);
        package.save(folder_.file(name));
        return Package::open(folder_.file(name));
    }

    std::string bytes() { return folder_.read(std::to_string(files_)); }

    support::TemporaryFolder folder_;

private:
    int files_ = 0;
};

/// Local header, name and data of an item, from one signature to the next.
std::string entryOf(const std::string& file, const std::string& name) {
    const auto at = file.find(name) - 30;
    return file.substr(at, file.find("PK", at + 4) - at);
}

TEST_F(RoundTrip, WithoutAChangeGivesTheSameFile) {
    const std::string file = package({{"b/", ""}}) + "tail";
    Package opened = Package::fromBytes(file);
    static_cast<void>(saved(opened));
    EXPECT_EQ(bytes(), file);
}

TEST_F(RoundTrip, LeavesWhatIsNotChangedInItsPlace) {
    const std::string file =
        package({{"z/", ""}, {"b/two.xml", "<two/>"}, {"B/My Picture.PNG", "pixels"}});
    Package opened = Package::fromBytes(file);
    opened.replace("/A/ONE.XML", "<changed/>");
    opened.add("/c/three.xml", "application/three", "<three/>");
    Package again = saved(opened);
    for (const char* name : {"_rels/.rels", "z/", "b/two.xml", "B/My Picture.PNG"}) {
        EXPECT_EQ(entryOf(bytes(), name), entryOf(file, name));
    }
    EXPECT_EQ(again.parts(), (std::vector<std::string>{"/_rels/.rels", "/a/one.xml", "/b/two.xml",
                                                       "/B/My Picture.PNG", "/c/three.xml"}));
    EXPECT_EQ(again.read("/a/one.xml"), "<changed/>");
    EXPECT_EQ(again.read("/c/three.xml"), "<three/>");
    EXPECT_EQ(again.contentTypeOf("/C/three.xml"), "application/three");

    // What was deflated here goes on as it is.
    const std::string first = bytes();
    again.replace("/b/two.xml", "<2/>");
    static_cast<void>(saved(again));
    EXPECT_EQ(entryOf(bytes(), "c/three.xml"), entryOf(first, "c/three.xml"));
}

TEST_F(RoundTrip, GivesTheSameFileForTheSameChanges) {
    const std::string file = package();
    std::string files[2];
    for (std::string& one : files) {
        Package opened = Package::fromBytes(file);
        opened.add("/b.xml", "b", "<b/>");
        opened.relationshipsOf("/b.xml").add("slide", "/a/one.xml");
        opened.relationshipsOf("/a/one.xml").add("slide", "/b.xml");
        static_cast<void>(saved(opened));
        one = bytes();
    }
    EXPECT_EQ(files[0], files[1]);
}

TEST_F(RoundTrip, TakesAPartOutWithAllThatIsItsOwn) {
    const std::string file =
        zipOf({{"[Content_Types].xml",
                contentTypes("<Override PartName=\"/b/Two.xml\" ContentType=\"t\"/>")},
               {"b/two.xml", "<two/>"},
               {"b/_rels/two.xml.rels", relationships()}});
    Package opened = Package::fromBytes(file);
    opened.remove("/b/TWO.xml");
    EXPECT_EQ(saved(opened).parts(), std::vector<std::string>{});
    opened.add("/b/two.xml", "u", "<again/>");
    const Package again = saved(opened);
    EXPECT_EQ(again.parts(), std::vector<std::string>{"/b/two.xml"});
    EXPECT_EQ(again.read("/[Content_Types].xml"),
              contentTypes("<Override PartName=\"/b/Two.xml\" ContentType=\"u\"/>"));
}

TEST_F(RoundTrip, WritesContentTypesWithTheSmallestEdit) {
    const std::string before = contentTypes("<!-- kept --><x:y xmlns:x=\"u\"/>");
    const std::string file = zipOf({{"[Content_Types].xml", before}, {"a.xml", "<a/>"}});
    Package opened = Package::fromBytes(file);
    opened.setContentType("/a.xml", "application/xml");
    opened.add("/b.xml", "b", "<b/>");
    opened.addMedia("/m/image", ".png", "image/png", "first");
    opened.addMedia("/m/image", ".png", "image/png", "second");
    opened.addMedia("/m/image", ".PNG", "image/x-other", "third");
    EXPECT_EQ(saved(opened).read("/[Content_Types].xml"),
              contentTypes("<!-- kept --><x:y xmlns:x=\"u\"/>"
                           "<Default Extension=\"png\" ContentType=\"image/png\"/>"
                           "<Override PartName=\"/b.xml\" ContentType=\"b\"/>"
                           "<Override PartName=\"/m/image3.PNG\" ContentType=\"image/x-other\"/>"));
}

TEST_F(RoundTrip, KeepsEqualMediaOnce) {
    const std::string file = package({{"m/image1.png", "first"}, {"m/_rels/image2.png.rels", "x"}});
    Package opened = Package::fromBytes(file);
    const auto add = [&](const char* ending, const char* bytes) {
        return opened.addMedia("/m/image", ending, "image/png", bytes);
    };
    EXPECT_EQ(add(".png", "first"), "/m/image3.png");
    EXPECT_EQ(add(".png", "second"), "/m/image4.png");
    EXPECT_EQ(add(".png", "first"), "/m/image3.png");
    EXPECT_EQ(add(".gif", "first"), "/m/image1.gif");
    opened.remove("/m/image3.png");
    EXPECT_EQ(add(".png", "first"), "/m/image3.png");
    EXPECT_EQ(saved(opened).read("/m/image3.png"), "first");
}

TEST_F(RoundTrip, LeavesNothingWhenItFails) {
    const std::string file = with(package(), "a/one.xml", Offset, 0xFFFFFF);
    Package opened = Package::fromBytes(file);
    opened.add("/b.xml", "b", "<b/>");
    EXPECT_THROW(opened.save(folder_.file("out")), PackageError);
    EXPECT_THROW(opened.save(folder_.file("no/out")), PackageError);
    EXPECT_EQ(folder_.names(), std::set<std::string>{});
    folder_.write("there", "kept");
    EXPECT_THROW(opened.save(folder_.file("there")), PackageError);
    EXPECT_EQ(folder_.read("there"), "kept");
}

/// Does something on a disk that takes no more than a few bytes of a file.
template <class Statement>
void onFullDisk(Statement statement) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    statement();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
}

TEST_F(RoundTrip, SaysWhenTheDiskIsFull) {
    const std::string file = package();
    for (const bool isChanged : {false, true}) {
        Package opened = Package::fromBytes(file);
        if (isChanged) opened.add("/b.xml", "b", std::string(1 << 20, 'b'), Storage::Stored);
        onFullDisk([&] { EXPECT_THROW(opened.save(folder_.file("out")), PackageError); });
        EXPECT_EQ(folder_.names(), std::set<std::string>{});
    }
}

TEST_F(RoundTrip, KeepsLargePartsWhereverThereIsRoomForThem) {
    const std::string file = package();
    const auto picture = [](char of) { return std::string(1 << 17, of); };
    for (const bool isFull : {false, true}) {
        Package opened = Package::fromBytes(file);
        const auto addAll = [&] {
            opened.add("/b.xml", "b", picture('b'));
            opened.add("/c.xml", "c", picture('c'));
            opened.addCopy("/copy.xml", "/c.xml");
            opened.addCopy("/other.xml", "/b.xml");
            opened.replace("/c.xml", "<c/>");
            for (const char bytes : {'1', '2', '1'})
                opened.addMedia("/m/image", ".png", "image/png", picture(bytes));
            for (const char bytes : {'3', '4', '3'}) {
                std::promise<std::string> drawn;
                drawn.set_value(picture(bytes));
                opened.addMedia("/m/image", ".png", "image/png", drawn.get_future().share(),
                                {bytes});
            }
        };
        if (isFull) {
            onFullDisk(addAll);
        } else {
            addAll();
        }
        EXPECT_EQ(opened.read("/m/image3.png"), picture('3'));
        EXPECT_EQ(opened.head("/b.xml", 3), "bbb");
        EXPECT_EQ(opened.bytes(), opened.bytes());
        const Package again = saved(opened);
        for (const char number : {'1', '2', '3', '4'})
            EXPECT_EQ(again.read(std::string("/m/image") + number + ".png"), picture(number));
        EXPECT_FALSE(again.has("/m/image5.png"));
        EXPECT_EQ(again.read("/b.xml"), picture('b'));
        EXPECT_EQ(again.read("/c.xml"), "<c/>");
        EXPECT_EQ(again.read("/copy.xml"), picture('c'));
        EXPECT_EQ(again.read("/other.xml"), picture('b'));
        EXPECT_EQ(again.contentTypeOf("/copy.xml"), "c");
    }
}

TEST_F(RoundTrip, TellsOfAPictureThatCouldNotBeDrawnWhenItIsWritten) {
    const std::string file = package();
    Package opened = Package::fromBytes(file);
    for (const char* look : {"one", "two"}) {
        std::promise<std::string> drawn;
        drawn.set_exception(std::make_exception_ptr(std::runtime_error("not drawn")));
        opened.addMedia("/m/image", ".png", "image/png", drawn.get_future().share(), look);
    }
    EXPECT_THROW(opened.save(folder_.file("out")), std::runtime_error);
}

TEST(Relationships, ReachTheirPartsHoweverTheyNameThem) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"/ppt/slides/s1.xml", "../media/i.png", "/ppt/media/i.png"},
        {"/ppt/slides/s1.xml", "/ppt/media/i.png", "/ppt/media/i.png"},
        {"/ppt/slides/s1.xml", ".\\s2.xml", "/ppt/slides/s2.xml"},
        {"/ppt/slides/s1.xml", "s2.xml#here", "/ppt/slides/s2.xml"},
        {"/ppt/slides/s1.xml", "a//../s2.xml", "/ppt/slides/s2.xml"},
        {"/", "ppt/p.xml", "/ppt/p.xml"},
        {"/p.xml", "./my%20part.xml", "/my%20part.xml"},
    };
    for (const auto& [source, target, part] : cases) {
        const Relationships all(source, {});
        EXPECT_EQ(all.partOf({"a", "b", target, false}), part) << target;
    }
    const std::string file = package({{"b/my part.xml", "<b/>"}});
    EXPECT_TRUE(Package::fromBytes(file).has("/B/my%20part.xml"));
}

TEST(Relationships, ArePutWithTheSmallestEdit) {
    const std::string before = relationships(
        "\n <Relationship Id=\"rId7\" Type=\"http://purl.oclc.org/ooxml/officeDocument/"
        "relationships/image\" Target=\"/m/1.png\" x=\"y\"/>"
        "<Relationship Id=\"link\" Type=\"urn:l\" Target=\"http://h/?a&amp;b\" "
        "TargetMode=\"External\"/><!-- end -->");
    Relationships all("/p/s.xml", before);
    EXPECT_EQ(all.xml(), before);
    EXPECT_EQ(all.add("image", "/M/1.png"), "rId7");
    EXPECT_FALSE(all.isChanged());
    EXPECT_EQ(all.ofType("image")->id, "rId7");

    EXPECT_EQ(all.add("image", "/m/a b%20c.png"), "rId1");
    EXPECT_EQ(all.add("urn:own", "/p/t:u.xml"), "rId2");
    EXPECT_EQ(all.add("urn:own", "/p/gone.xml"), "rId3");
    all.remove("rId3");
    all.remove("rId7");
    EXPECT_EQ(all.withId("rId7"), nullptr);
    EXPECT_EQ(all.partOf(*all.withId("rId1")), "/m/a%20b%20c.png");
    EXPECT_EQ(all.xml(),
              relationships("\n <Relationship Id=\"link\" Type=\"urn:l\" "
                            "Target=\"http://h/?a&amp;b\" TargetMode=\"External\"/><!-- end -->"
                            "<Relationship Id=\"rId1\" "
                            "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/"
                            "relationships/image\" Target=\"../m/a%20b%20c.png\"/>"
                            "<Relationship Id=\"rId2\" Type=\"urn:own\" Target=\"/p/t:u.xml\"/>"));
}

TEST(Relationships, KeepThePrefixAndTheEncodingOfTheirDocument) {
    std::string wide = "\xFF\xFE";
    for (const char c :
         std::string("<?xml version=\"1.0\" encoding=\"UTF-16\"?><q:Relationships "
                     "xmlns:q=\"http://schemas.openxmlformats.org/package/2006/relationships\"/>"))
        wide += std::string{c, '\0'};
    Relationships all("/", wide);
    all.add("urn:t", "/a.xml");
    EXPECT_EQ(all.xml(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><q:Relationships "
              "xmlns:q=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
              "<q:Relationship Id=\"rId1\" Type=\"urn:t\" Target=\"a.xml\"/></q:Relationships>");
}

}  // namespace
