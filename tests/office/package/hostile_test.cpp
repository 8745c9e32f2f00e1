#include <gtest/gtest.h>

#include "office/package/package.h"
#include "office/package/xml.h"
#include "office/package/zip_bytes.h"
#include "support/temporary_folder.h"

using namespace office::package;
using namespace zip_bytes;

namespace {

struct Case {
    const char* name;
    std::string file;
    /// None: all of it can be read.
    std::optional<Fault> fault;
};

std::string withRelationships(std::string_view more) {
    return package({{"a/_rels/one.xml.rels", relationships(more)}});
}

std::string withEntriesOf64(std::uint64_t count) {
    const std::string file = package();
    const std::string end = file.substr(file.size() - 22);
    const std::string end64 = "PK\6\6" + number(44, 8) + number(45, 2) + number(45, 2) +
                              number(0, 8) + number(count, 8) + number(count, 8) +
                              number(file.size() - 22 - file.find("PK\1\2"), 8) +
                              number(file.find("PK\1\2"), 8);
    return file.substr(0, file.size() - 22) + end64 + "PK\6\7" + number(0, 4) +
           number(file.size() - 22, 8) + number(1, 4) + "PK\5\6" + number(0, 4) +
           number(0xFFFF, 2) + number(0xFFFF, 2) + number(0xFFFFFFFF, 4) + number(0xFFFFFFFF, 4) +
           number(0, 2);
}

/// Reads and follows everything.
void exhaust(Package& package) {
    for (const std::string& part : package.parts()) {
        static_cast<void>(package.contentTypeOf(part));
        const std::string bytes = package.read(part);
        if (part.ends_with(".xml")) static_cast<void>(Xml(bytes, part).root());
        const Relationships& all = package.relationshipsOf(part);
        for (const Relationship& one : all.all()) {
            if (!one.isExternal) static_cast<void>(all.partOf(one));
        }
    }
    static_cast<void>(package.relationshipsOf("/"));
}

TEST(HostilePackages, AreRefusedForTheirReasonAndOddOnesAreRead) {
    const std::string file = package();
    const std::string big(900, 'b');
    const Case cases[] = {
        {"plain", file, {}},
        {"empty", "", Fault::NotAPackage},
        {"text", "nothing of the kind", Fault::NotAPackage},
        {"old binary", compoundFile({"PowerPoint Document"}), Fault::NotAPackage},
        {"password", compoundFile({"EncryptionInfo", "EncryptedPackage"}), Fault::Password},
        {"rights", compoundFile({"EncryptedPackage", "DRMEncryptedDataSpace"}), Fault::Rights},
        {"rights of a binary file", compoundFile({"\tDRMContent"}), Fault::Rights},
        {"a stream's name as text", compoundFile({"Text"}) + wide("EncryptedPackage"),
         Fault::NotAPackage},
        {"no content types", zipOf({{"mimetype", "x"}}), Fault::NotAPackage},
        {"cut off", file.substr(0, file.size() - 30), Fault::Damaged},
        {"cut in the middle", file.substr(0, 100), Fault::Damaged},
        {"something behind", file + "tail", {}},
        {"something before", "head" + file, Fault::NotAPackage},
        {"a folder", package({{"b/", ""}}), {}},
        {"an entry without a name", package({{"", "x"}}), {}},
        {"an empty segment", package({{"b//two.xml", "<x/>"}}), {}},
        {"backslashes", package({{"b\\two.xml", "<x/>"}}), {}},
        {"a blank", package({{"b/my two.xml", "<x/>"}}), {}},
        {"no UTF-8", package({{"b/\xFF.xml", "<x/>"}}), {}},
        {"no content type", package({{"b/two.foo", "x"}}), {}},
        {"two of a name", package({{"b/x.xml", "1"}, {"b/x.xml", "2"}}), Fault::Damaged},
        {"two but for the case", package({{"A/ONE.xml", "2"}}), Fault::Damaged},
        {"two but for an escape", package({{"a/%6Fne.xml", "2"}}), Fault::Damaged},
        {"two but for the slash", package({{"a\\one.xml", "2"}}), Fault::Damaged},
        {"absolute", package({{"/b.xml", "<x/>"}}), Fault::Damaged},
        {"upwards", package({{"../b.xml", "<x/>"}}), Fault::Damaged},
        {"upwards by backslashes", package({{"b\\..\\..\\c.xml", "<x/>"}}), Fault::Damaged},
        {"here", package({{"b/./c.xml", "<x/>"}}), Fault::Damaged},
        {"a control character", package({{"b/\n.xml", "<x/>"}}), Fault::Damaged},
        {"wrong check sum", with(file, "a/one.xml", Crc, 1), Fault::Damaged},
        {"more than it says", with(file, "a/one.xml", Size, 3), Fault::Damaged},
        {"less than it says", with(file, "a/one.xml", Size, 300), Fault::Damaged},
        {"far more than allowed", with(file, "a/one.xml", Size, 0xFFFFFFF0), Fault::TooLarge},
        {"more together", package({{"x.png", big}, {"y.png", big}, {"z.png", big}}),
         Fault::TooLarge},
        {"nearly as much, twice", package({{"x.png", big}, {"y.png", big.substr(600)}}), {}},
        {"more room than there is", with(file, "a/one.xml", PackedSize, 5000), Fault::Damaged},
        {"somewhere else", with(file, "a/one.xml", Offset, 0xFFFFFF), Fault::Damaged},
        {"unknown method", with(file, "a/one.xml", Method, 99, 2), Fault::Damaged},
        {"encrypted", with(file, "a/one.xml", Flags, 1, 2), Fault::Password},
        {"large numbers", withEntriesOf64(3), {}},
        {"too many entries", withEntriesOf64(1ULL << 40), Fault::Damaged},
        {"too many parts", package(std::vector<Item>(60, Item{"x/", ""})), Fault::TooLarge},
        {"no types in the types", zipOf({{"[Content_Types].xml", "<x/>"}}), Fault::Damaged},
        {"types that are no XML", zipOf({{"[Content_Types].xml", "<x"}, {"a.xml", "<a/>"}}),
         Fault::Damaged},
        {"types with entities",
         zipOf({{"[Content_Types].xml", "<!DOCTYPE x [<!ENTITY a \"b\">]>" + contentTypes()},
                {"a.xml", "<a/>"}}),
         Fault::Damaged},
        {"types said twice",
         zipOf({{"[content_types].XML",
                 contentTypes("<Default Extension=\"XML\" ContentType=\"b\"/><Override/>")},
                {"a.xml", "<a/>"}}),
         {}},
        {"a relationship out", withRelationships("<Relationship Id=\"a\" Target=\"../../b\"/>"),
         Fault::Damaged},
        {"a relationship to the net",
         withRelationships("<Relationship Id=\"a\" Target=\"http://h/\"/>"), Fault::Damaged},
        {"to another machine", withRelationships("<Relationship Id=\"a\" Target=\"\\\\h\\b\"/>"),
         Fault::Damaged},
        {"to nothing", withRelationships("<Relationship Id=\"a\"/>"), Fault::Damaged},
        {"an external one",
         withRelationships("<Relationship Id=\"a\" TargetMode=\"External\" Target=\"x:y\"/>"),
         {}},
        {"two of an id",
         withRelationships("<Relationship Id=\"a\" Target=\"b\"/>"
                           "<Relationship Id=\"a\" Target=\"c\"/>"),
         {}},
        {"a cycle", withRelationships("<Relationship Id=\"a\" Target=\"one.xml\"/>"), {}},
        {"no relationships", package({{"a/_rels/one.xml.rels", "<a/>"}}), Fault::Damaged},
    };
    const Limits limits{50, 1000, 2000, 1000};
    const support::TemporaryFolder folder;
    for (const Case& one : cases) {
        std::optional<Fault> fault;
        std::string text;
        try {
            Package opened = Package::fromBytes(one.file, limits);
            // As a review does ahead of a paste.
            exhaust(opened);
            exhaust(opened);
            opened.add("/new.xml", "text/xml", "<new/>");
            opened.save(folder.file("out"));
        } catch (const PackageError& error) {
            fault = error.fault();
            text = error.what();
        }
        EXPECT_EQ(fault, one.fault) << one.name << ": " << text;
        EXPECT_TRUE(text.find_first_of("\n\xFF") == std::string::npos) << one.name;
        EXPECT_EQ(folder.names().empty(), fault.has_value()) << one.name;
        std::filesystem::remove(folder.file("out"));
    }
}

TEST(HostilePackages, ThatUnpackToMuchMoreThanTheySayAreLeftEarly) {
    const support::TemporaryFolder folder;
    const std::string plain = package();
    Package made = Package::fromBytes(plain);
    made.add("/zeros.xml", "text/xml", std::string(8 << 20, '\0'));
    made.save(folder.file("bomb"));
    const std::string bomb = folder.read("bomb");
    ASSERT_LT(bomb.size(), 20'000U);
    const std::pair<std::string, Fault> cases[] = {
        {bomb, Fault::TooLarge},
        {with(bomb, "zeros.xml", Size, 1000), Fault::Damaged},
    };
    for (const auto& [file, expected] : cases) {
        const Package opened = Package::fromBytes(file, {.partBytes = 1 << 20});
        try {
            static_cast<void>(opened.read("/zeros.xml"));
            FAIL();
        } catch (const PackageError& error) {
            EXPECT_EQ(error.fault(), expected) << error.what();
        }
    }
}

TEST(HostilePackages, MayHoldNoMarkupThatTakesMuchMoreThanItsBytes) {
    const auto times = [](int count, std::string_view text) {
        std::string all;
        for (int i = 0; i < count; ++i) all += text;
        return all;
    };
    const std::pair<std::string, Fault> cases[] = {
        {times(300, "<a>") + times(300, "</a>"), Fault::Damaged},
        {"<a" + times(600, " b=''") + "/>", Fault::Damaged},
        {"<a>" + std::string(4'000'000, '=') + "</a>", Fault::TooLarge},
    };
    for (const auto& [text, expected] : cases) {
        try {
            const Xml document(text, "/a.xml");
            FAIL() << text.substr(0, 20);
        } catch (const PackageError& error) {
            EXPECT_EQ(error.fault(), expected) << error.what();
        }
    }
}

TEST(HostilePackages, AreNotOpenedFromWhatIsNoFile) {
    const support::TemporaryFolder folder;
    for (const std::string& path :
         {folder.file("missing"), folder.path().string(), std::string("/dev/zero")}) {
        try {
            static_cast<void>(Package::open(path));
            FAIL() << path;
        } catch (const PackageError& error) {
            EXPECT_EQ(error.fault(), Fault::Unreadable) << path;
        }
    }
}

}  // namespace
