#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "office/package/drawing/chart_memory.h"
#include "office/package/small_workbook.h"
#include "office/package/workbook/cell_number_formats.h"
#include "office/package/workbook/chart_cells.h"
#include "support/copied_double.h"
#include "support/temporary_folder.h"

namespace {

using namespace office::package;
using office::CellContent;
using Content = CellContent::Kind;

/// A copy out of a workbook of one sheet, "Data", with numbers that are shown as "#1", "#2"; 8 is
/// hidden, 9 is a long one.
struct CopyOfCells : support::CopiedDouble {
    CopyOfCells() : CopiedDouble(office::TableLook()) {}

    [[nodiscard]] std::optional<office::CellContents> contentsOf(
        const std::string& sheet, const std::string& address) const override {
        if (sheet != "Data") return std::nullopt;
        const CellBlock block = office::model::excel::blockOf(address).value();
        office::CellContents found;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const auto place = static_cast<std::int32_t>(row);
            if (place < block.firstRow || place > block.lastRow) continue;
            found.showsRow.push_back(row != hiddenRow);
            for (auto column = block.firstColumn; column <= block.lastColumn; ++column)
                found.cells.push_back(rows[row].at(static_cast<std::size_t>(column)));
        }
        for (auto column = block.firstColumn; column <= block.lastColumn; ++column)
            found.showsColumn.push_back(column != hiddenColumn);
        return found;
    }
    [[nodiscard]] std::optional<std::string> shownTextOf(
        const std::string& /*sheet*/, const std::string& address) const override {
        const CellBlock block = office::model::excel::blockOf(address).value();
        const double number = rows.at(static_cast<std::size_t>(block.firstRow))
                                  .at(static_cast<std::size_t>(block.firstColumn))
                                  .number;
        if (number == 9) return "-1,234.5 %";
        return number == 8 ? "" : fmt::format("#{}", number);
    }

    std::vector<std::vector<CellContent>> rows;
    std::size_t hiddenRow = 99;
    std::int32_t hiddenColumn = 99;
};

CellContent holding(double value) {
    return {Content::Number, value, {}};
}
CellContent holding(const char* value) {
    return {Content::Text, 0, value};
}

/// What a chart remembers: points parted by "|", those that it hasn't got as "-".
std::string rememberedPoints(const std::string& points) {
    std::string marks;
    unsigned count = 0;
    for (std::size_t from = 0; from <= points.size(); ++count) {
        const std::size_t end = std::min(points.find('|', from), points.size());
        const std::string one = points.substr(from, end - from);
        if (one != "-") marks += fmt::format(R"(<c:pt idx="{}"><c:v>{}</c:v></c:pt>)", count, one);
        from = end + 1;
    }
    return fmt::format(R"(<c:ptCount val="{}"/>{})", count, marks);
}

std::string numbersOf(const std::string& formula, const std::string& points) {
    return fmt::format(
        "<c:numRef><c:f>{}</c:f><c:numCache><c:formatCode>0.0</c:formatCode>{}</c:numCache></"
        "c:numRef>",
        formula, rememberedPoints(points));
}

std::string textsOf(const std::string& formula, const std::string& points) {
    return fmt::format("<c:strRef><c:f>{}</c:f><c:strCache>{}</c:strCache></c:strRef>", formula,
                       rememberedPoints(points));
}

std::string levelsOf(const std::string& inner, const std::string& outer) {
    const auto level = [](const std::string& points) {
        const std::string all = rememberedPoints(points);
        return all.substr(all.find("/>") + 2);
    };
    return fmt::format(R"(<c:multiLvlStrRef><c:f>Data!$A$2:$B$5</c:f><c:multiLvlStrCache>)"
                       R"(<c:ptCount val="{}"/><c:lvl>{}</c:lvl><c:lvl>{}</c:lvl>)"
                       R"(</c:multiLvlStrCache></c:multiLvlStrRef>)",
                       std::count(inner.begin(), inner.end(), '|') + 1, level(inner), level(outer));
}

std::string labelOf(const std::string& text) {
    return fmt::format(
        "<c15:dlblFTEntry><c15:f>Data!$C$1</c15:f><c15:dlblFieldTableCache>{}"
        "</c15:dlblFieldTableCache></c15:dlblFTEntry>",
        rememberedPoints(text));
}

std::string chartOf(const std::string& name, const std::string& categories,
                    const std::string& values) {
    return fmt::format(
        R"(<c:chartSpace xmlns:c="{}" xmlns:c15="15"><c:chart><c:ser><c:tx>{}</c:tx><c:cat>{}</c:cat>)"
        R"(<c:val>{}</c:val></c:ser><c:plotVisOnly val="1"/></c:chart></c:chartSpace>)",
        ns::chart, name, categories, values);
}

TEST(AChartsMemory, IsThatOfItsCells) {
    struct Case {
        const char* about;
        std::string name, categories, values;
        /// Empty for what stays.
        std::string nameAfter, categoriesAfter, valuesAfter;
    };
    const std::string name = textsOf("Data!$C$1", "Net"),
                      names = textsOf("Data!$B$2:$B$5", "a|b|c|d");
    const char* const places = "Data!$C$2:$C$5";
    const std::string values = numbersOf(places, "1.5|-|0|#N/A");
    const Case cases[] = {
        {"what agrees", name, names, numbersOf(places, "1.50000000000001|-|-|#DIV/0!"), {}, {}, {}},
        {"what is no cell", name, names, numbersOf("[0]!Sales", "8|9"), {}, {}, {}},
        {"what is on no sheet", name, names, numbersOf("Gone!$A$1:$A$2", "8|9"), {}, {}, {}},
        {"values",
         name,
         names,
         numbersOf(places, "7|8|0|-"),
         {},
         {},
         numbersOf(places, "1.5|-|0|#N/A")},
        {"none", name, names, numbersOf(places, "-"), {}, {}, numbersOf(places, "1.5|-|0|#N/A")},
        {"what is no number", name, names, numbersOf(places, "inf|-|0|#N/A"), {}, {}, values},
        {"a rest", name, names, numbersOf(places, "1.5|0|0|#N/A"), {}, {}, values},
        {"places too many", name, names, numbersOf(places, "1.5|-|0|#N/A|0"), {}, {}, values},
        {"empty texts",
         name,
         textsOf("Data!$D$2:$D$5", "a||c|-"),
         numbersOf("Data!$D$2:$D$5", "1|2|3|4"),
         {},
         textsOf("Data!$D$2:$D$5", "|#7|-|"),
         numbersOf("Data!$D$2:$D$5", "0|7|-|8")},
        {"empty headings",
         name,
         numbersOf("Data!$D$2:$D$5", "7|8"),
         values,
         {},
         numbersOf("Data!$D$2:$D$5", "-|7|-|8"),
         {}},
        {"several areas",
         name,
         names,
         numbersOf("(Data!$C$5,Data!$C$2:$C$3)", "1|2|3"),
         {},
         {},
         numbersOf("(Data!$C$5,Data!$C$2:$C$3)", "#N/A|1.5|-")},
        {"texts",
         textsOf("Data!$C$1", "Gross"),
         textsOf("Data!$B$2:$B$5", "a|b|c|-"),
         values,
         name,
         names,
         {}},
        {"texts for numbers", name, numbersOf("Data!$B$2:$B$5", "1|2|3|4"), values, {}, names, {}},
        {"shown numbers", textsOf("Data!$C$2", "#1.5"), names, values, {}, {}, {}},
        {"hidden numbers", name, textsOf("Data!$D$2:$D$5", "-|#7|-|-"), values, {}, {}, {}},
        {"another language's", textsOf("Data!$D$1", "-1.234,5%"), names, values, {}, {}, {}},
        {"other numbers",
         textsOf("Data!$D$1", "-12.345%"),
         names,
         values,
         textsOf("Data!$D$1", "-1,234.5 %"),
         {},
         {}},
        {"a label's field", labelOf("Old"), names, values, labelOf("Net"), {}, {}},
        {"changed numbers",
         textsOf("Data!$C$2", "#9"),
         names,
         values,
         textsOf("Data!$C$2", "#1.5"),
         {},
         {}},
        {"levels",
         name,
         levelsOf("a|b|c|e", "X|-|Y|-"),
         values,
         {},
         levelsOf("a|b|c|d", "X|-|Y|-"),
         {}},
        {"levels that stand", name, levelsOf("a|b|c|d", "X|-|Y|-"), values, {}, {}, {}},
    };
    CopyOfCells copied;
    copied.rows = {{{}, {}, holding("Net"), holding(9)},
                   {holding("X"), holding("a"), holding(1.5), holding("")},
                   {{}, holding("b"), {}, holding(7)},
                   {holding("Y"), holding("c"), holding("n/a"), {}},
                   {{}, holding("d"), {Content::Error, 0, {}}, holding(8)}};
    const auto expect = [&](const char* about, const std::string& before,
                            const std::string& after) {
        const Xml xml(before, "chart");
        rememberCells(xml, copied, {});
        EXPECT_EQ(Xml(xml.bytes(), "chart").bytes(), Xml(after, "chart").bytes()) << about;
    };
    const auto either = [](const std::string& after, const std::string& before) {
        return after.empty() ? before : after;
    };
    for (const Case& one : cases)
        expect(one.about, chartOf(one.name, one.categories, one.values),
               chartOf(either(one.nameAfter, one.name), either(one.categoriesAfter, one.categories),
                       either(one.valuesAfter, one.values)));
    // All lines leave the same places out; a heading stays with what is left below it.
    copied.hiddenRow = 1;
    expect("hidden", chartOf(name, levelsOf("a|b|c|d", "X|-|Y|-"), values),
           chartOf(name, levelsOf("b|c|d", "X|Y|-"), numbersOf(places, "-|0|#N/A")));
    copied.hiddenRow = 0;
    for (const auto& [column, left] : {std::pair(0, "a|b|c|d"), std::pair(1, "X|-|Y|-")}) {
        copied.hiddenColumn = column;
        std::string one = levelsOf(left, "");
        one.erase(one.rfind("<c:lvl>"), one.rfind("</c:lvl>") + 8 - one.rfind("<c:lvl>"));
        expect("a hidden level", chartOf(name, levelsOf("a|b|c|d", "X|-|Y|-"), values),
               chartOf(name, one, values));
    }
    copied.hiddenColumn = 99;
    expect("a hidden name", chartOf(textsOf("Data!$C$1", "Old"), names, values),
           chartOf(name, names, values));
}

TEST(AChartsMemory, SaysTheFormatsOfItsCells) {
    struct Case {
        const char* about;
        std::string before, after;
    };
    const auto numbers = [](const std::string& format, const std::string& middle) {
        return R"(<c:numCache><c:formatCode>)" + format +
               R"(</c:formatCode><c:ptCount val="3"/><c:pt idx="0"><c:v>1</c:v></c:pt><c:pt idx="1")" +
               middle + R"(><c:v>2</c:v></c:pt><c:pt idx="2"><c:v>3</c:v></c:pt></c:numCache>)";
    };
    const std::string percent = R"( formatCode="0 %")";
    const Case cases[] = {
        {"General", numbers("General", ""), numbers("mmm-yy", percent)},
        {"nothing",
         std::regex_replace(numbers("", ""), std::regex("<c:formatCode>.*formatCode>"), ""),
         numbers("mmm-yy", percent)},
        {"changed", std::regex_replace(numbers("General", ""), std::regex("<c:pt .*/c:pt>"), ""),
         numbers("mmm-yy", percent)},
        {"one of its own", numbers("0.0", ""), numbers("0.0", "")},
        {"a point's own", numbers("General", R"( formatCode="@")"),
         numbers("General", R"( formatCode="@")")},
    };
    // What Excel doesn't write out, what is the workbook's own, and a style without a place.
    const auto styles = small_workbook::sheet(
        R"(<numFmts><numFmt numFmtId="164" formatCode="0 %"/></numFmts><cellXfs>)"
        R"(<xf numFmtId="0"/><xf numFmtId="17"/><xf numFmtId="164"/></cellXfs>)",
        "styleSheet");
    const auto cells = small_workbook::sheet(
        R"(<sheetData><row r="2"><c r="B2" s="1"/><c s="7"/></row><row><c r="B3" s='2'/></row>)"
        R"(<row r="4"><c r="B4" s="1"><v>3</v></c></row></sheetData>)");
    const support::TemporaryFolder folder;
    const std::string zip =
        small_workbook::bytes({{"xl/sheet1.xml", cells},
                               {"xl/styles.xml", styles},
                               {"xl/_rels/workbook.xml.rels",
                                small_workbook::relationshipsTo(
                                    {{"worksheet", "sheet1.xml"}, {"styles", "styles.xml"}})}});
    support::writeBytes(folder.file("book.xlsx"), {zip.begin(), zip.end()});
    WorkbookFile book(folder.file("book.xlsx"));
    CellNumberFormats formats(book);
    const auto formatOf = [&](const auto& sheet, auto row, auto column) {
        return formats.codeAt(sheet, row, column);
    };
    for (const auto& [row, column] : {std::pair(0, 1), {1, 0}, {1, 2}, {1, 9}})
        EXPECT_EQ(formatOf("Data", row, column), "General") << row << " " << column;
    CopyOfCells copied;
    copied.rows = {{}, {{}, holding(1)}, {{}, holding(2)}, {{}, holding(3)}};
    for (const Case& one : cases) {
        const auto chart = [](const std::string& cache) {
            return chartOf("", "", "<c:numRef><c:f>Data!$B$2:$B$4</c:f>" + cache + "</c:numRef>");
        };
        const Xml xml(chart(one.before), "chart");
        rememberCells(xml, copied, formatOf);
        EXPECT_EQ(xml.bytes(), Xml(chart(one.after), "chart").bytes()) << one.about;
    }
}

}  // namespace
