#include "office/package/workbook/sheet_markup.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "office/package/package.h"

namespace office::package {

namespace {

constexpr std::string_view keptInSheet =
    "sheetPr dimension sheetViews sheetFormatPr cols sheetData sheetCalcPr sheetProtection "
    "protectedRanges autoFilter sortState mergeCells phoneticPr conditionalFormatting "
    "dataValidations hyperlinks printOptions pageMargins pageSetup headerFooter rowBreaks "
    "colBreaks ignoredErrors drawing legacyDrawing picture tableParts extLst";

/// Extensions of a sheet: conditional formats, validation, sparklines, errors that aren't shown.
const std::set<std::string_view> keptExtensions = {
    "{78C0D931-6437-407d-A8EE-F0AAD7539E65}", "{CCE6A557-97BC-4b89-ADB6-D9C93CAAB3DF}",
    "{05C60535-1F16-4fd2-B633-F4F36F0B64E0}", "{01252117-D84E-4E92-8308-4BE1C098FCBB}"};

/// What goes as a whole with one of its formulas, and what goes with the last of those.
constexpr std::string_view rules = "cfRule dataValidation sparkline sparklineGroup";
constexpr std::string_view ruleHolders =
    "conditionalFormatting conditionalFormattings dataValidations sparklines sparklineGroup "
    "sparklineGroups ext extLst";

const std::set<std::string_view> keptGraphics = {
    "http://schemas.openxmlformats.org/drawingml/2006/chart",
    "http://schemas.microsoft.com/office/drawing/2014/chartex",
    "http://schemas.openxmlformats.org/drawingml/2006/diagram"};

pugi::xml_node sheetChild(pugi::xml_node parent, std::string_view name) {
    return childNamed(parent, ns::spreadsheet, name);
}

bool isRuleFormula(pugi::xml_node node) {
    const std::string_view name = localName(node);
    if (name == "cfvo") return std::string_view(node.attribute("type").value()) == "formula";
    // The formula of a cell is none of these.
    return name == "formula" || name == "formula1" || name == "formula2" ||
           (name == "f" && localName(node.parent()) != "c");
}

/// Whether nothing is left in a holder but the cells that it was about.
bool isBare(pugi::xml_node holder) {
    return !holder.find_child([](const pugi::xml_node& child) {
        return child.type() == pugi::node_element && localName(child) != "sqref" &&
               child.first_child();
    }) && !holder.find_child([](const pugi::xml_node& child) {
        return isListed(rules, localName(child));
    });
}

void dropRule(pugi::xml_node rule) {
    pugi::xml_node holder = rule.parent();
    holder.remove_child(rule);
    if (auto count = holder.attribute("count"); count && localName(holder) == "dataValidations")
        count.set_value(count.as_uint() - 1);
}

void reduceRules(pugi::xml_node root, const FormulaReach& reach) {
    std::set<pugi::xml_node> gone;
    for (const pugi::xml_node formula : elementsBelow(root, isRuleFormula)) {
        const pugi::xml_attribute value = formula.attribute("val");
        if (!reach.leavesSheet(value ? value.value() : formula.text().get())) continue;
        pugi::xml_node rule = formula;
        while (rule && !isListed(rules, localName(rule))) rule = rule.parent();
        if (rule) gone.insert(rule);
    }
    if (gone.empty()) return;
    // From the innermost, since what stands in another element goes with that.
    const auto all =
        elementsBelow(root, [](pugi::xml_node node) { return isListed(rules, localName(node)); });
    std::for_each(all.rbegin(), all.rend(), [&](pugi::xml_node rule) {
        if (gone.contains(rule)) dropRule(rule);
    });
    const auto holders = elementsBelow(
        root, [](pugi::xml_node node) { return isListed(ruleHolders, localName(node)); });
    std::for_each(holders.rbegin(), holders.rend(), [](pugi::xml_node holder) {
        if (isBare(holder)) holder.parent().remove_child(holder);
    });
}

/// An empty text is the result of a formula as any other is.
bool hasValue(pugi::xml_node cell) {
    const auto value = sheetChild(cell, "v");
    const bool isText = std::string_view(cell.attribute("t").value()) == "str";
    return (value && isText) || !std::string_view(value.text().get()).empty() ||
           sheetChild(cell, "is");
}

void reduceCells(pugi::xml_node data, const FormulaReach& reach) {
    // A shared formula stands with its first cell.
    std::set<std::string_view> sharedGone;
    const auto leaves = [&](pugi::xml_node formula) {
        const std::string_view shared = formula.attribute("si").value();
        const std::string_view text = formula.text().get();
        const bool isGone = text.empty() ? sharedGone.contains(shared) : reach.leavesSheet(text);
        if (isGone && !shared.empty()) sharedGone.insert(shared);
        return isGone;
    };
    for (const pugi::xml_node row : data.children()) {
        for (pugi::xml_node cell : row.children()) {
            // They lead to a table of the workbook that goes.
            cell.remove_attribute("cm");
            cell.remove_attribute("vm");
            const auto formula = sheetChild(cell, "f");
            if (!formula || !leaves(formula)) continue;
            if (!hasValue(cell))
                throw PackageError(
                    Fault::Damaged,
                    fmt::format("the formula in {} leads away from its sheet, and its value is not "
                                "stored: a spreadsheet program that opens and saves it stores it",
                                cell.attribute("r").value()));
            cell.remove_child(formula);
        }
    }
}

/// The formats that a sheet has, by their places.
std::set<unsigned> formatsOn(pugi::xml_node sheet) {
    std::set<unsigned> used = {0};
    for (const pugi::xml_node column : sheetChild(sheet, "cols").children())
        used.insert(column.attribute("style").as_uint());
    for (const pugi::xml_node row : sheetChild(sheet, "sheetData").children()) {
        used.insert(row.attribute("s").as_uint());
        for (const pugi::xml_node cell : row.children()) used.insert(cell.attribute("s").as_uint());
    }
    return used;
}

/// The formats of conditions and filters keep their numbers where a sheet has them.
void reduceDifferences(pugi::xml_node root, pugi::xml_node sheet) {
    std::set<unsigned> used;
    for (const pugi::xml_node node :
         elementsBelow(sheet, [](pugi::xml_node one) { return bool(one.attribute("dxfId")); }))
        used.insert(node.attribute("dxfId").as_uint());
    unsigned place = 0;
    for (pugi::xml_node difference :
         childrenNamed(sheetChild(root, "dxfs"), ns::spreadsheet, "dxf")) {
        if (!used.contains(place++)) difference.remove_child(sheetChild(difference, "numFmt"));
    }
}

/// A list says how many it has left; an empty one goes.
void recount(pugi::xml_node list, const char* ofName) {
    const std::size_t left = childrenNamed(list, ns::spreadsheet, ofName).size();
    if (left == 0)
        list.parent().remove_child(list);
    else
        attributeFor(list, "count").set_value(left);
}

/// Those styles stay by name that every workbook has, and those of cells.
void reduceStyles(pugi::xml_node root, const std::set<unsigned>& used) {
    // From here on they are the workbook's own.
    constexpr unsigned firstOwnFormat = 164;
    unsigned place = 0;
    for (pugi::xml_node format :
         childrenNamed(sheetChild(root, "cellStyleXfs"), ns::spreadsheet, "xf")) {
        auto number = format.attribute("numFmtId");
        if (!used.contains(place++) && number.as_uint() >= firstOwnFormat) number.set_value("0");
    }
    auto styles = sheetChild(root, "cellStyles");
    keepChildren(styles, [&](pugi::xml_node style) {
        return style.attribute("builtinId") || used.contains(style.attribute("xfId").as_uint());
    });
    recount(styles, "cellStyle");
}

}  // namespace

void reduceSheet(const Xml& sheet, const FormulaReach& reach) {
    pugi::xml_node root = sheet.root();
    keepChildren(root, [](pugi::xml_node child) {
        return isNamed(child, ns::spreadsheet, localName(child)) &&
               isListed(keptInSheet, localName(child));
    });
    sheetChild(root, "sheetPr").remove_attribute("codeName");
    for (pugi::xml_node view : sheetChild(root, "sheetViews").children())
        keepChildren(view,
                     [](pugi::xml_node child) { return localName(child) != "pivotSelection"; });
    if (auto extensions = sheetChild(root, "extLst")) {
        keepChildren(extensions, [](pugi::xml_node child) {
            return keptExtensions.contains(child.attribute("uri").value());
        });
        if (!firstElement(extensions)) root.remove_child(extensions);
    }
    reduceRules(root, reach);
    reduceCells(sheetChild(root, "sheetData"), reach);
    if (auto links = sheetChild(root, "hyperlinks")) {
        keepChildren(links, [&](pugi::xml_node link) {
            return !reach.leavesSheet(link.attribute("location").value());
        });
        if (!firstElement(links)) root.remove_child(links);
    }
}

void reduceDrawing(const Xml& drawing, const FormulaReach& reach) {
    const auto isForeign = [](pugi::xml_node node) {
        // What a control looks like, and a picture of cells.
        const std::string_view name = localName(node);
        return (name == "graphicData" || name == "compatExt" || name == "cameraTool") &&
               (!keptGraphics.contains(node.attribute("uri").value()) || !firstElement(node));
    };
    keepChildren(drawing.root(),
                 [&](pugi::xml_node anchor) { return elementsBelow(anchor, isForeign).empty(); });
    const auto followers = elementsBelow(drawing.root(), [](pugi::xml_node node) {
        return node.attribute("macro") || node.attribute("textlink");
    });
    for (pugi::xml_node shape : followers) {
        if (auto macro = shape.attribute("macro")) macro.set_value("");
        if (reach.leavesSheet(shape.attribute("textlink").value()))
            shape.remove_attribute("textlink");
    }
}

void reduceTable(const Xml& table, const FormulaReach& reach) {
    pugi::xml_node root = table.root();
    for (const char* source : {"tableType", "connectionId"}) root.remove_attribute(source);
    for (pugi::xml_node column : sheetChild(root, "tableColumns").children()) {
        column.remove_attribute("queryTableFieldId");
        keepChildren(column, [&](pugi::xml_node child) {
            return localName(child) != "xmlColumnPr" && !reach.leavesSheet(child.text().get());
        });
        if (!sheetChild(column, "totalsRowFormula") &&
            std::string_view(column.attribute("totalsRowFunction").value()) == "custom")
            column.remove_attribute("totalsRowFunction");
    }
}

void reduceStrings(const Xml& strings, const Xml& sheet) {
    pugi::xml_node root = strings.root();
    const auto all = childrenNamed(root, ns::spreadsheet, "si");
    std::vector<int> places(all.size(), -1);
    std::vector<std::size_t> used;
    unsigned count = 0;
    for (const pugi::xml_node row : sheetChild(sheet.root(), "sheetData").children()) {
        for (const pugi::xml_node cell : row.children()) {
            auto value = sheetChild(cell, "v").text();
            const auto index = static_cast<std::size_t>(value.as_ullong());
            if (std::string_view(cell.attribute("t").value()) != "s" || index >= all.size())
                continue;
            if (places[index] < 0) {
                places[index] = static_cast<int>(used.size());
                used.push_back(index);
            }
            value.set(places[index]);
            ++count;
        }
    }
    for (const std::size_t index : used) root.append_copy(all[index]);
    for (const pugi::xml_node text : all) root.remove_child(text);
    keepChildren(root, [](pugi::xml_node child) { return localName(child) == "si"; });
    attributeFor(root, "count").set_value(count);
    attributeFor(root, "uniqueCount").set_value(used.size());
}

void reduceFormats(const Xml& styles, const Xml& sheet) {
    const std::set<unsigned> used = formatsOn(sheet.root());
    std::set<std::string_view> numbers;
    std::set<unsigned> usedStyles = {0};
    unsigned place = 0;
    for (pugi::xml_node format :
         childrenNamed(sheetChild(styles.root(), "cellXfs"), ns::spreadsheet, "xf")) {
        if (used.contains(place++))
            usedStyles.insert(format.attribute("xfId").as_uint());
        else
            attributeFor(format, "numFmtId").set_value("0");
        numbers.insert(format.attribute("numFmtId").value());
    }
    reduceStyles(styles.root(), usedStyles);
    reduceDifferences(styles.root(), sheet.root());
    for (pugi::xml_node format : sheetChild(styles.root(), "cellStyleXfs").children())
        numbers.insert(format.attribute("numFmtId").value());
    auto all = sheetChild(styles.root(), "numFmts");
    keepChildren(all, [&](pugi::xml_node format) {
        return numbers.contains(format.attribute("numFmtId").value());
    });
    recount(all, "numFmt");
}

}  // namespace office::package
